#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

// Lines, keys and values of presets and of the ini file, whose lines have the
// same form: key, blank, value, blank, comment. Everything is 8-bit text in
// memory and read in one pass; broken input gives other values, never errors.

// The key of a line as it stands in the file, first character in the low byte:
// the reverse of the field's four-character code gives the same number.
[[nodiscard]] constexpr std::uint32_t PresetKey(const char (&text)[5]) {
  std::uint32_t key = 0;
  for (int i = 3; i >= 0; --i) key = key << 8 | static_cast<unsigned char>(text[i]);
  return key;
}

// A file's bytes and how far they have been read. Does not own them.
struct PresetSource {
  std::string_view bytes;
  std::size_t at = 0;
};

struct PresetLine {
  std::string text;     // terminator included, unless it was a NUL
  std::size_t end = 0;  // where the line ends before its terminator
};

// The next line, or false at the end of the bytes: a last line without a
// terminator is lost.
//
// A TAB becomes a blank. A line ends at the first other byte that is at most 13
// as a signed number: LF, CR, further control bytes, and all from 0x80 up. So a
// name with an accented letter breaks in two; presets cannot hold such names.
// A NUL as terminator also takes off the blanks before it.
[[nodiscard]] bool ReadPresetLine(PresetSource& source, PresetLine& line);

// A place in a line. Reading stops at its end.
class PresetCursor {
 public:
  explicit PresetCursor(const PresetLine& line) : line_(line) {}

  void SkipBlanks();
  void Skip(std::size_t count);

  // The next four characters as a key, skipping them; or 0, skipping nothing,
  // when a comment starts here or fewer than four characters are left.
  [[nodiscard]] std::uint32_t TakeKey();

  // Digits, points, commas, minus signs and letters e, at most 64 of them, as
  // the C library would convert them: the leading part that is a number counts,
  // none gives 0. An integer beyond 32 bits becomes the nearest one.
  [[nodiscard]] std::int32_t TakeInteger();
  [[nodiscard]] double TakeDouble();

  // Up to the next ";", TAB, LF or the line's end, without blanks at the end.
  [[nodiscard]] std::string TakeText();

 private:
  [[nodiscard]] std::string_view TakeNumberText();

  const PresetLine& line_;
  std::size_t at_ = 0;
};

// The number of a version line, or 0 for any other line. A version line begins
// with "V", has at least 9 characters and holds the word "Version".
[[nodiscard]] std::int32_t PresetVersionOf(const PresetLine& line);

// True for a line that begins with the header's text, whatever the case.
[[nodiscard]] bool IsPresetHeader(const PresetLine& line);

inline constexpr std::string_view kPresetHeader = "TarnwickStudi Press Preset;";

}  // namespace tarnwick
