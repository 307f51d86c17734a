#include "textures/texture_set_table.h"

#include <algorithm>
#include <charconv>
#include <fstream>

#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

// Far more sets than a list can show.
constexpr std::size_t kMostBytes = 1U << 16;
constexpr std::string_view kBlanks = " \t\r";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

std::string Quoted(std::string_view text) {
  return '"' + std::string(text) + '"';
}

class Parser {
 public:
  explicit Parser(std::vector<SetTableFault>& faults) : faults_(faults) {}

  TextureSetTable Run(std::string_view text) {
    if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    while (!text.empty()) {
      ++line_;
      const std::size_t end = std::min(text.find('\n'), text.size());
      const std::string_view line = Trimmed(text.substr(0, end));
      if (!line.empty() && line[0] != ';') TakeLine(line);
      text.remove_prefix(std::min(end + 1, text.size()));
    }
    return std::move(sets_);
  }

 private:
  void Fault(std::string text) { faults_.push_back({line_, std::move(text)}); }

  void TakeLine(std::string_view line) {
    const std::size_t tab = line.find('\t');
    const std::string_view number = Trimmed(line.substr(0, tab));
    std::uint32_t id = 0;
    const char* const end = number.data() + number.size();
    const auto result = std::from_chars(number.data(), end, id);
    if (result.ec != std::errc() || result.ptr != end) {
      Fault(Quoted(number) + " is no number of a set (0 to 4294967295, then a TAB and the name)");
      return;
    }
    if (tab == line.npos) {
      Fault("set " + std::to_string(id) + " has no name (put it after a TAB)");
      return;
    }
    TakeSet(id, Trimmed(line.substr(tab)));
  }

  void TakeSet(std::uint32_t id, std::string_view name) {
    const bool hasControl =
        std::ranges::any_of(name, [](char c) { return static_cast<unsigned char>(c) < ' '; });
    if (hasControl) {
      Fault("the name of set " + std::to_string(id) + " holds a control character");
      return;
    }
    if (name.size() > kMaxSetName) {
      Fault("the name of set " + std::to_string(id) + " is longer than " +
            std::to_string(kMaxSetName) + " bytes and was cut");
      name = Trimmed(name.substr(0, kMaxSetName));
    }
    if (const std::string earlier = FindSetName(sets_, id); !earlier.empty()) {
      Fault("set " + std::to_string(id) + " is named twice; it stays " + Quoted(earlier));
    } else if (FindSetRow(sets_, name) != 0) {
      Fault("a set before it is called " + Quoted(name) + " too");
    } else {
      sets_.push_back({id, std::string(name)});
    }
  }

  std::vector<SetTableFault>& faults_;
  TextureSetTable sets_;
  int line_ = 0;
};

}  // namespace

TextureSetTable ParseTextureSets(std::string_view text, std::vector<SetTableFault>& faults) {
  return Parser(faults).Run(text);
}

bool LoadTextureSets(const std::filesystem::path& path, TextureSetTable& sets,
                     std::vector<SetTableFault>& faults) {
  sets.clear();
  // A folder opens like a file on some systems and fails at its first byte.
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return false;
  std::ifstream file(path, std::ios::binary);
  if (!file) return false;
  std::string text(kMostBytes + 1, '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (file.bad() || (file.gcount() == 0 && !file.eof())) return false;
  text.resize(static_cast<std::size_t>(file.gcount()));
  const bool isLonger = text.size() > kMostBytes;
  // Not in the middle of a line.
  if (isLonger) text.resize(text.find_last_of('\n') + 1);
  sets = ParseTextureSets(text, faults);
  if (isLonger) faults.push_back({0, "the file is too long; what is beyond 64 KiB was not read"});
  return true;
}

std::string TextureSetText(const TextureSetTable& sets) {
  std::string text =
      "; The sets of the texture library, in the order in which filters offer them:\n"
      "; the number that the textures of the set carry, a TAB, the name.\n";
  for (const TextureSetEntry& set : sets) {
    text += std::to_string(set.id) + '\t' + set.name + '\n';
  }
  return text;
}

std::string FindSetName(const TextureSetTable& sets, std::uint32_t id) {
  const auto found = std::ranges::find(sets, id, &TextureSetEntry::id);
  return found == sets.end() ? std::string() : found->name;
}

int FindSetRow(const TextureSetTable& sets, std::string_view name) {
  const auto found = std::ranges::find_if(
      sets, [&](const TextureSetEntry& set) { return EqualIgnoringCase(set.name, name); });
  return found == sets.end() ? 0 : static_cast<int>(found - sets.begin()) + 1;
}

}  // namespace tarnwick
