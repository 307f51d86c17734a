#include "environment/ui_file.h"

#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "environment/format_text.h"
#include "presets/preset_lines.h"

namespace tarnwick {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

constexpr std::size_t kLongestFile = 1U << 20;

std::string ReadAll(const std::string& path) {
  std::string bytes;
  const File file(std::fopen(path.c_str(), "rb"));
  if (file == nullptr) return bytes;
  std::array<char, 4096> part{};
  while (bytes.size() < kLongestFile) {
    const std::size_t got = std::fread(part.data(), 1, part.size(), file.get());
    if (got == 0) break;
    bytes.append(part.data(), got);
  }
  return bytes;
}

// The file by lines. A line ends at the first byte of at most 13, but for a TAB,
// which becomes a blank; blanks at its end do not count. Unlike in presets, bytes of
// other alphabets end no line, and the last one needs no end.
std::vector<std::string> LinesOf(const std::string& bytes) {
  std::vector<std::string> lines(1);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte == '\t') {
      lines.back() += ' ';
    } else if (byte <= 13) {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  for (std::string& line : lines) line.erase(line.find_last_not_of(' ') + 1);
  return lines;
}

// Of an address; a text, so that it has no place among the numbers.
constexpr std::uint32_t kNewsKey = PresetKey("sweN");

// Where the value of a key lives; null for a key that is none of ours.
std::int32_t* PlaceOf(std::uint32_t key, EffectSettings& settings, UiValues& values) {
  switch (key) {
    case PresetKey("tfeL"):
      return &settings.WindowLeft;
    case PresetKey(" poT"):
      return &settings.WindowTop;
    case PresetKey("htdW"):
      return &settings.WindowWidth;
    case PresetKey("thgH"):
      return &settings.WindowHeight;
    case PresetKey("tlsR"):
      return &values.resolutionOfSharing;
    case PresetKey("nSsU"):
      return &values.useSound;
    default:
      return nullptr;
  }
}

}  // namespace

void LoadUiFile(const std::string& path, EffectSettings& settings, UiValues& values) {
  const std::string bytes = ReadAll(path);
  if (!bytes.empty()) values.newsAddress.clear();
  for (const std::string& text : LinesOf(bytes)) {
    const PresetLine line{text, text.size()};
    PresetCursor cursor(line);
    cursor.SkipBlanks();
    const std::uint32_t key = cursor.TakeKey();
    if (key == 0) continue;
    if (key == kNewsKey) {
      cursor.SkipBlanks();
      values.newsAddress = cursor.TakeText();
      continue;
    }
    std::int32_t* const place = PlaceOf(key, settings, values);
    if (place == nullptr) continue;
    cursor.SkipBlanks();
    *place = cursor.TakeInteger();
  }
}

void SaveUiFile(const std::string& path, const EffectSettings& settings, const UiValues& values) {
  const File file(std::fopen(path.c_str(), "wb"));
  if (file == nullptr) return;
  std::fputs(";Parameters for TarnwickStudio plug-in UI\n", file.get());
  const struct {
    const char* key;
    std::int32_t value;
    const char* comment;
  } lines[] = {
      {"tfeL", settings.WindowLeft, "\t\t\t\t;Left of window"},
      {" poT", settings.WindowTop, "\t\t\t\t;Top of window"},
      {"htdW", settings.WindowWidth, "\t\t\t\t;Width of window"},
      {"thgH", settings.WindowHeight, "\t\t\t\t;Height of window"},
      {"tlsR", values.resolutionOfSharing, "\t\t\t\t;Resolution of sharing"},
      {"nSsU", values.useSound, "\t\t\t\t;Use sound for Auto"},
  };
  for (const auto& line : lines) {
    const std::string text =
        FormatText("%s %d %s\n", line.key, static_cast<int>(line.value), line.comment);
    std::fputs(text.c_str(), file.get());
  }
  if (values.newsAddress.empty()) return;
  const std::string news =
      FormatText("%s %s %s\n", "sweN", values.newsAddress.c_str(), "\t\t\t\t;Address of news");
  std::fputs(news.c_str(), file.get());
}

}  // namespace tarnwick
