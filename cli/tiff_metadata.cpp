#include "tiff_metadata.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <optional>

#include "tiff_directory.h"

namespace tarnwick {
namespace {

constexpr std::uint16_t kExifPointer = 0x8769;
constexpr std::uint16_t kGpsPointer = 0x8825;
constexpr std::uint16_t kInteroperabilityPointer = 0xA005;
constexpr std::uint16_t kIptc = 0x83BB;
constexpr std::uint16_t kPixelWidth = 0xA002;
constexpr std::uint16_t kPixelHeight = 0xA003;

// Fields of the first directory that describe the picture rather than the file:
// description, make, model, software, date, artist, computer, rating, copyright,
// and title, comment, author, keywords, subject as Windows writes them.
constexpr std::array<std::uint16_t, 15> kDescribing = {0x010E, 0x010F, 0x0110, 0x0131, 0x0132,
                                                       0x013B, 0x013C, 0x4746, 0x4749, 0x8298,
                                                       0x9C9B, 0x9C9C, 0x9C9D, 0x9C9E, 0x9C9F};

constexpr std::array<std::uint8_t, 6> kBlockHead = {'E', 'x', 'i', 'f', 0, 0};

struct ExifFields {
  TiffDirectory describing;
  TiffDirectory exif;
  TiffDirectory gps;

  [[nodiscard]] bool Empty() const {
    return describing.entries.empty() && exif.entries.empty() && gps.entries.empty();
  }
};

// Values that go into another file have to be packed with it.
TiffDirectory Detached(TiffDirectory directory) {
  for (TiffEntry& entry : directory.entries) entry.heldAt = 0;
  return directory;
}

ExifFields Collect(const TiffReader& reader) {
  ExifFields fields;
  if (!reader.IsGood()) return fields;
  const std::optional<TiffDirectory> first = reader.Read(reader.FirstDirectory());
  if (!first) return fields;
  for (const TiffEntry& entry : first->entries) {
    if (std::ranges::find(kDescribing, entry.tag) != kDescribing.end()) {
      fields.describing.Put(entry);
    }
  }
  fields.describing = Detached(fields.describing);
  fields.exif = Detached(reader.Read(first->OffsetAt(kExifPointer)).value_or(TiffDirectory{}));
  fields.exif.Remove(kInteroperabilityPointer);  // leads to a place that is left behind
  fields.gps = Detached(reader.Read(first->OffsetAt(kGpsPointer)).value_or(TiffDirectory{}));
  return fields;
}

TiffEntry LongEntry(std::uint16_t tag, std::uint32_t value) {
  TiffEntry entry{tag, kTiffLong, 1, {}};
  PutLittle(entry.value, value, 4);
  return entry;
}

void Append(std::vector<std::uint8_t>& bytes, const std::vector<std::uint8_t>& more) {
  bytes.insert(bytes.end(), more.begin(), more.end());
}

// The directories behind `first`, which gets pointers to them; `offset` is where
// the bytes will stand. Then comes `first` itself, whose place is told.
std::vector<std::uint8_t> Pack(const ExifFields& fields, TiffDirectory first, std::uint32_t offset,
                               std::uint32_t& firstAt) {
  std::vector<std::uint8_t> bytes;
  const auto at = [&] { return offset + static_cast<std::uint32_t>(bytes.size()); };
  for (const auto& [pointer, directory] :
       {std::pair(kExifPointer, &fields.exif), std::pair(kGpsPointer, &fields.gps)}) {
    if (directory->entries.empty()) continue;
    first.Put(LongEntry(pointer, at()));
    Append(bytes, PackDirectory(*directory, at()));
  }
  firstAt = at();
  Append(bytes, PackDirectory(first, firstAt));
  return bytes;
}

TiffBytes FromFile(std::fstream& file) {
  return [&file](std::uint64_t offset, std::span<std::uint8_t> bytes) {
    file.clear();
    file.seekg(static_cast<std::streamoff>(offset));
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return file.good();
  };
}

TiffBytes FromMemory(std::span<const std::uint8_t> memory) {
  return [memory](std::uint64_t offset, std::span<std::uint8_t> bytes) {
    if (offset > memory.size() || bytes.size() > memory.size() - offset) return false;
    std::ranges::copy(memory.subspan(static_cast<std::size_t>(offset), bytes.size()),
                      bytes.begin());
    return true;
  };
}

bool WriteAt(std::fstream& file, std::uint64_t offset, const std::vector<std::uint8_t>& bytes) {
  file.clear();
  file.seekp(static_cast<std::streamoff>(offset));
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.flush();
  return file.good();
}

}  // namespace

std::vector<std::uint8_t> ExifOfTiff(const std::filesystem::path& path) {
  std::fstream file(path, std::ios::binary | std::ios::in);
  const ExifFields fields = Collect(TiffReader(FromFile(file)));
  if (fields.Empty()) return {};
  // The first directory has to be found before those it leads to.
  constexpr std::uint32_t kHeaderBytes = 8;
  std::uint32_t firstAt = 0;
  const std::vector<std::uint8_t> packed = Pack(fields, fields.describing, kHeaderBytes, firstAt);
  std::vector<std::uint8_t> block = {'E', 'x', 'i', 'f', 0, 0, 'I', 'I', 42, 0};
  PutLittle(block, firstAt, 4);
  Append(block, packed);
  return block;
}

bool AddMetadataToTiff(const std::filesystem::path& path, std::span<const std::uint8_t> block,
                       std::span<const std::uint8_t> iptc, int width, int height) {
  // Some formats store the structure without the word before it.
  if (block.size() > kBlockHead.size() &&
      std::ranges::equal(block.first(kBlockHead.size()), kBlockHead)) {
    block = block.subspan(kBlockHead.size());
  }
  ExifFields fields = Collect(TiffReader(FromMemory(block)));
  if (fields.Empty() && iptc.empty()) return true;
  for (const auto& [tag, pixels] :
       {std::pair(kPixelWidth, width), std::pair(kPixelHeight, height)}) {
    if (fields.exif.Find(tag) != nullptr) {
      fields.exif.Put(LongEntry(tag, static_cast<std::uint32_t>(pixels)));
    }
  }

  std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
  const TiffReader reader(FromFile(file));
  if (!reader.IsGood() || !reader.IsLittleEndian()) return false;
  std::optional<TiffDirectory> first = reader.Read(reader.FirstDirectory());
  if (!first || !first->whole || first->next != 0) return false;
  for (const TiffEntry& entry : fields.describing.entries) {
    if (first->Find(entry.tag) == nullptr) first->Put(entry);
  }
  if (!iptc.empty()) {
    const auto length = static_cast<std::uint32_t>(iptc.size());
    first->Put({kIptc, kTiffUndefined, length, {iptc.begin(), iptc.end()}});
  }
  file.clear();
  file.seekg(0, std::ios::end);
  const auto end = static_cast<std::uint64_t>(file.tellg());
  constexpr std::uint64_t kRoom = 1u << 26;
  if (end > UINT32_MAX - kRoom) return false;
  const auto offset = static_cast<std::uint32_t>((end + 1) / 2 * 2);
  std::uint32_t firstAt = 0;
  const std::vector<std::uint8_t> packed = Pack(fields, *first, offset, firstAt);
  std::vector<std::uint8_t> pointer;
  PutLittle(pointer, firstAt, 4);
  // The pointer last: until then the file is what it was.
  constexpr std::uint64_t kPointerAt = 4;
  return WriteAt(file, offset, packed) && WriteAt(file, kPointerAt, pointer);
}

}  // namespace tarnwick
