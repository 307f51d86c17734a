#include "presets/preset_lines.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using namespace std::string_literals;
using Strings = std::vector<std::string>;

PresetLine LineOf(const std::string& text) {
  PresetSource source{text};
  PresetLine line;
  EXPECT_TRUE(ReadPresetLine(source, line)) << text;
  return line;
}

const struct {
  const char* name;
  std::string bytes;
  Strings lines;
} kFiles[] = {
    {"nothing", "", {}},
    {"no line end: lost", "abc", {}},
    {"LF stays, the rest is lost", "abc\ndef", {"abc\n"}},
    {"CR and LF are two ends", "a\r\nb\n", {"a\r", "\n", "b\n"}},
    {"TABs become blanks", "\ta\t\n", {" a \n"}},
    {"blanks before LF stay", "a  \n", {"a  \n"}},
    {"a NUL takes the blanks before it", "a \t \0b \n"s, {"a", "b \n"}},
    {"a NUL after blanks only", "  \0\n"s, {"", "\n"}},
    {"bytes up to 13 end a line",
     "a\x01"
     "b\x0B"
     "c\x0D",
     {"a\x01", "b\x0B", "c\x0D"}},
    {"bytes from 14 on do not",
     "a\x0E"
     "b\x1F"
     "c\x7F"
     "d\n",
     {"a\x0E"
      "b\x1F"
      "c\x7F"
      "d\n"}},
    {"bytes from 0x80 on do", "caf\xE9.twk\x80\xFF", {"caf\xE9", ".twk\x80", "\xFF"}},
};

TEST(PresetLines, Reading) {
  for (const auto& c : kFiles) {
    PresetSource source{c.bytes};
    PresetLine line;
    Strings lines;
    while (ReadPresetLine(source, line)) lines.push_back(line.text);
    EXPECT_EQ(lines, c.lines) << c.name;
  }
}

TEST(PresetLines, ALineOfAnyLength) {
  const std::string text(5000, 'x');
  EXPECT_EQ(LineOf(text + '\n').text, text + '\n');
}

TEST(PresetLines, Keys) {
  EXPECT_EQ(PresetKey("sBLN"), 0x4E4C4273u);
  const struct {
    std::string line;
    std::uint32_t key;
  } kLines[] = {
      {"sBLN 1\n", PresetKey("sBLN")},
      {"sBLN\n", PresetKey("sBLN")},
      {"sBL\n", PresetKey("sBL\n")},  // the line end counts, and no key has one
      {"sB\n", 0},
      {"sBL\0"s, 0},
      {";BLN 1\n", 0},
      {" sBLN 1\n", PresetKey(" sBL")},  // blanks are the caller's to skip
  };
  for (const auto& c : kLines) {
    const PresetLine line = LineOf(c.line);
    EXPECT_EQ(PresetCursor(line).TakeKey(), c.key) << c.line;
  }
}

const std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
const std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
const double kInfinity = std::numeric_limits<double>::infinity();

const struct {
  std::string text;
  std::int32_t integer;
  double number;
} kNumbers[] = {
    {"12 \n", 12, 12},
    {"-7;\n", -7, -7},
    {"+7\n", 0, 0},  // no sign of a number here
    {"007\n", 7, 7},
    {"1.5\n", 1, 1.5},
    {"1,5\n", 1, 1},
    {"1e3\n", 1, 1000},
    {"1E-1\n", 1, 0.1},
    {"1e\n", 1, 1},
    {"e1\n", 0, 0},
    {"-\n", 0, 0},
    {"--1\n", 0, 0},
    {"1-2\n", 1, 1},
    {".5\n", 0, 0.5},
    {"-.5\n", 0, -0.5},
    {"5.\n", 5, 5},
    {".\n", 0, 0},
    {"\n", 0, 0},
    {"x1\n", 0, 0},
    {"0x10\n", 0, 0},
    {"1 2\n", 1, 1},
    {"2147483647\n", kMost, 2147483647.0},
    {"2147483648\n", kMost, 2147483648.0},
    {"-2147483648\n", kLeast, -2147483648.0},
    {"-2147483649\n", kLeast, -2147483649.0},
    {"99999999999999999999999\n", kMost, 1e23},
    {"1e999\n", 1, kInfinity},
    {"-1e999-9\n", -1, -kInfinity},
    {"1e-999\n", 1, 0},
    // Only the first 64 characters are looked at: 60 zeros, "1234", then more.
    {std::string(60, '0') + "12345\n", 1234, 1234},
};

TEST(PresetLines, Numbers) {
  for (const auto& c : kNumbers) {
    const PresetLine line = LineOf(c.text);
    EXPECT_EQ(PresetCursor(line).TakeInteger(), c.integer) << c.text;
    EXPECT_EQ(PresetCursor(line).TakeDouble(), c.number) << c.text;
  }
}

TEST(PresetLines, Texts) {
  const struct {
    std::string line;
    std::string text;
  } kTexts[] = {
      {"Old Tin.twk \t\t\t\t;Name\n", "Old Tin.twk"},
      {"Old Tin.twk  \n", "Old Tin.twk"},
      {"Old Tin.twk\r", "Old Tin.twk"},
      {"Old\xE9", "Old"},
      {"Old \0"s, "Old"},
      {";x\n", ""},
      {"  \n", ""},
      {"\n", ""},
  };
  for (const auto& c : kTexts) {
    const PresetLine line = LineOf(c.line);
    EXPECT_EQ(PresetCursor(line).TakeText(), c.text) << c.line;
  }
}

TEST(PresetLines, Versions) {
  const struct {
    std::string line;
    std::int32_t version;
  } kLines[] = {
      {"Version 2;\n", 2}, {"Version 1\n", 1},    {"Version   1;\n", 1}, {"Version 3;\n", 3},
      {"Version;1\n", 1},  {"V. Version 1\n", 1}, {" Version 2;\n", 0},  {"version 2;\n", 0},
      {"Version2\n", 0},  // the digit is the character that is skipped
      {"Version\n", 0},    {"V Version\n", 0},    {"V..Version\0"s, 0},  {"Versio n2;\n", 0},
  };
  for (const auto& c : kLines) {
    EXPECT_EQ(PresetVersionOf(LineOf(c.line)), c.version) << c.line;
  }
}

}  // namespace
}  // namespace tarnwick
