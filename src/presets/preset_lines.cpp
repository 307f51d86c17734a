#include "presets/preset_lines.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

constexpr std::size_t kMaxNumberText = 64;
constexpr std::size_t kShortestVersionLine = 9;
constexpr std::string_view kVersionWord = "Version";

bool EndsLine(char byte) {
  return static_cast<signed char>(byte) <= 13;
}

bool IsOfNumber(char c) {
  return (c >= '0' && c <= '9') || c == '.' || c == ',' || c == '-' || c == 'e' || c == 'E';
}

void TrimBlanks(std::string& text) {
  // npos + 1 is 0: nothing but blanks.
  text.erase(text.find_last_not_of(' ') + 1);
}

}  // namespace

bool ReadPresetLine(PresetSource& source, PresetLine& line) {
  line.text.clear();
  line.end = 0;
  while (source.at < source.bytes.size()) {
    const char read = source.bytes[source.at++];
    const char byte = read == '\t' ? ' ' : read;
    if (!EndsLine(byte)) {
      line.text += byte;
      continue;
    }
    if (byte == '\0') TrimBlanks(line.text);
    line.end = line.text.size();
    if (byte != '\0') line.text += byte;
    return true;
  }
  return false;
}

void PresetCursor::SkipBlanks() {
  while (at_ < line_.text.size() && line_.text[at_] == ' ') ++at_;
}

void PresetCursor::Skip(std::size_t count) {
  at_ += std::min(count, line_.text.size() - at_);
}

std::uint32_t PresetCursor::TakeKey() {
  if (line_.text.size() - at_ < 4 || line_.text[at_] == ';') return 0;
  std::uint32_t key = 0;
  for (int i = 3; i >= 0; --i) {
    key = key << 8 | static_cast<unsigned char>(line_.text[at_ + static_cast<std::size_t>(i)]);
  }
  at_ += 4;
  return key;
}

std::string_view PresetCursor::TakeNumberText() {
  const std::size_t first = at_;
  while (at_ < line_.text.size() && at_ - first < kMaxNumberText && IsOfNumber(line_.text[at_])) {
    ++at_;
  }
  return std::string_view(line_.text).substr(first, at_ - first);
}

std::int32_t PresetCursor::TakeInteger() {
  using Limits = std::numeric_limits<std::int32_t>;
  const std::string_view text = TakeNumberText();
  std::int32_t number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec == std::errc::result_out_of_range) {
    return text[0] == '-' ? Limits::min() : Limits::max();
  }
  return number;
}

double PresetCursor::TakeDouble() {
  const std::string_view text = TakeNumberText();
  double number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec == std::errc::result_out_of_range) {
    // from_chars does not say which end was passed; the exponent's sign does.
    const std::string_view taken(text.data(), static_cast<std::size_t>(result.ptr - text.data()));
    const bool isTiny = taken.find('-', 1) != taken.npos;
    const double size = isTiny ? 0.0 : std::numeric_limits<double>::infinity();
    return text[0] == '-' ? -size : size;
  }
  return number;
}

std::string PresetCursor::TakeText() {
  std::string text;
  while (at_ < line_.end && line_.text[at_] != ';') text += line_.text[at_++];
  TrimBlanks(text);
  return text;
}

std::int32_t PresetVersionOf(const PresetLine& line) {
  const std::string& text = line.text;
  if (text.size() < kShortestVersionLine || text[0] != 'V') return 0;
  const std::size_t word = text.find(kVersionWord);
  if (word == text.npos) return 0;
  PresetCursor cursor(line);
  cursor.Skip(word);
  cursor.Skip(kVersionWord.size() + 1);
  cursor.SkipBlanks();
  return cursor.TakeInteger();
}

bool IsPresetHeader(const PresetLine& line) {
  return EqualIgnoringCase(std::string_view(line.text).substr(0, kPresetHeader.size()),
                           kPresetHeader);
}

}  // namespace tarnwick
