#include "pe_file.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tarnwick {
namespace {

struct Section {
  std::uint32_t address;
  std::uint32_t size;
  std::uint32_t fileOffset;
};

class Reader {
 public:
  explicit Reader(std::string bytes) : bytes_(std::move(bytes)) {}

  PeFile Read() {
    const std::uint32_t head = U32(0x3C);
    if (Bytes(0, 2) != "MZ" || Bytes(head, 4) != std::string("PE\0\0", 4)) {
      throw std::runtime_error("no Windows file");
    }
    const std::uint32_t coff = head + 4;
    const std::uint32_t optional = coff + 20;
    file_.machine = U16(coff);
    file_.timestamp = U32(coff + 4);
    file_.characteristics = U16(coff + 18);
    wide_ = U16(optional) == 0x20B;
    file_.subsystemMajor = U16(optional + 48);
    file_.subsystemMinor = U16(optional + 50);
    file_.subsystem = U16(optional + 68);
    file_.libraryCharacteristics = U16(optional + 70);
    const std::uint32_t sections = optional + U16(coff + 16);
    for (std::uint32_t i = 0; i < U16(coff + 2); ++i) {
      const std::uint32_t at = sections + 40 * i;
      sections_.push_back({U32(at + 12), U32(at + 16), U32(at + 20)});
    }
    const std::uint32_t directories = optional + (wide_ ? 112 : 96);
    ReadExports(U32(directories));
    ReadImports(U32(directories + 8));
    resources_ = U32(directories + 16);
    if (resources_ != 0) ReadResources(0, 0, {});
    file_.hasRelocations = U32(directories + 44) > 8;
    return file_;
  }

 private:
  std::string Bytes(std::size_t at, std::size_t count) const {
    if (at > bytes_.size() || count > bytes_.size() - at)
      throw std::out_of_range("a truncated file");
    return bytes_.substr(at, count);
  }
  std::uint32_t Number(std::size_t at, int count) const {
    const std::string bytes = Bytes(at, static_cast<std::size_t>(count));
    std::uint32_t value = 0;
    for (int i = count; i-- > 0;) {
      value = value << 8 | static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]);
    }
    return value;
  }
  std::uint32_t U32(std::size_t at) const { return Number(at, 4); }
  std::uint16_t U16(std::size_t at) const { return static_cast<std::uint16_t>(Number(at, 2)); }

  // Where an address of the loaded image lies in the file.
  std::size_t Place(std::uint32_t address) const {
    for (const Section& section : sections_) {
      if (address >= section.address && address - section.address < section.size) {
        return section.fileOffset + (address - section.address);
      }
    }
    throw std::out_of_range("an address outside all sections");
  }
  std::string Text(std::uint32_t address) const {
    const std::size_t begin = Place(address);
    const std::size_t end = bytes_.find('\0', begin);
    return Bytes(begin, end - begin);
  }

  void ReadExports(std::uint32_t table) {
    if (table == 0) return;
    const std::size_t at = Place(table);
    const std::uint32_t functions = U32(at + 20);
    const std::uint32_t names = U32(at + 24);
    if (functions != names) throw std::runtime_error("exports without a name");
    for (std::uint32_t i = 0; i < names; ++i) {
      file_.exports.push_back(Text(U32(Place(U32(at + 32)) + 4 * i)));
    }
  }

  void ReadImports(std::uint32_t table) {
    if (table == 0) return;
    for (std::size_t at = Place(table); U32(at + 12) != 0; at += 20) {
      PeImport import{Text(U32(at + 12)), {}};
      const std::uint32_t step = wide_ ? 8 : 4;
      for (std::size_t entry = Place(U32(at)); U32(entry) != 0; entry += step) {
        const bool byNumber = (U32(entry + step - 4) & 0x80000000) != 0;
        if (!byNumber) import.functions.push_back(Text(U32(entry) + 2));
      }
      file_.imports.push_back(import);
    }
  }

  std::string ResourceName(std::uint32_t word) const {
    if ((word & 0x80000000) == 0) return "#" + std::to_string(word);
    const std::size_t at = Place(resources_) + (word & 0x7FFFFFFF);
    std::string name;
    for (std::size_t i = 0; i < U16(at); ++i) name += static_cast<char>(U16(at + 2 + 2 * i));
    return name;
  }

  // Three levels: type, name, language.
  void ReadResources(std::uint32_t offset, int level, PeResource found) {
    const std::size_t at = Place(resources_) + offset;
    const int entries = U16(at + 12) + U16(at + 14);
    for (int i = 0; i < entries; ++i) {
      const std::size_t entry = at + 16 + 8 * static_cast<std::size_t>(i);
      const std::uint32_t target = U32(entry + 4);
      if (level == 0) found.type = ResourceName(U32(entry));
      if (level == 1) found.name = ResourceName(U32(entry));
      if (level < 2) {
        ReadResources(target & 0x7FFFFFFF, level + 1, found);
        continue;
      }
      found.language = U32(entry);
      const std::size_t data = Place(resources_) + target;
      found.bytes = Bytes(Place(U32(data)), U32(data + 4));
      file_.resources.push_back(found);
    }
  }

  std::string bytes_;
  PeFile file_;
  bool wide_ = false;
  std::vector<Section> sections_;
  std::uint32_t resources_ = 0;
};

}  // namespace

PeFile ReadPeFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path + " cannot be read");
  return Reader({std::istreambuf_iterator<char>(in), {}}).Read();
}

}  // namespace tarnwick
