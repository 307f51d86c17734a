#include "option_parser.h"

#include <gtest/gtest.h>

#include "cli_error.h"

namespace tarnwick {
namespace {

constexpr OptionRow kRows[] = {
    {"set", 's', "FIELD=VALUE", "", true},
    {"output", 'o', "FILE", ""},
    {"force", 'f', "", ""},
};

using Words = std::vector<std::string>;

// "name=value name=value | operand operand": what was understood, in order.
std::string Understood(const Words& words) {
  const ParsedArguments parsed = ParseArguments(kRows, words);
  std::string text;
  for (const GivenOption& option : parsed.options) {
    text += std::string(option.row->name) + "=" + option.value + " ";
  }
  text += "|";
  for (const std::string& operand : parsed.operands) text += " " + operand;
  return text;
}

TEST(OptionParser, EverySpelling) {
  const struct {
    const char* name;
    Words words;
    const char* want;
  } kCases[] = {
      {"nothing", {}, "|"},
      {"value apart", {"--set", "A=1", "in"}, "set=A=1 | in"},
      {"value behind the first equals sign", {"--set=A=1"}, "set=A=1 |"},
      {"empty value", {"--output="}, "output= |"},
      {"letters", {"-s", "A=1", "-oout", "-f"}, "set=A=1 output=out force= |"},
      {"order is kept", {"--set", "B=2", "in", "--set", "A=1"}, "set=B=2 set=A=1 | in"},
      {"a value may look like an option", {"--set", "--force"}, "set=--force |"},
      {"after two dashes all are operands", {"--", "--force", "-x"}, "| --force -x"},
      {"a single dash is an operand", {"-"}, "| -"},
  };
  for (const auto& c : kCases) EXPECT_EQ(Understood(c.words), c.want) << c.name;
}

TEST(OptionParser, WhatCannotBeIsWrongUse) {
  const Words kCases[] = {
      {"--nix"}, {"-x"}, {"--output"}, {"-o"}, {"--force=1"}, {"-f1"}, {"-o", "a", "--output", "b"},
  };
  for (const Words& words : kCases) {
    try {
      (void)ParseArguments(kRows, words);
      ADD_FAILURE() << words[0] << " was taken";
    } catch (const CliError& error) {
      EXPECT_EQ(error.Code(), ExitCode::kWrongUse) << words[0];
    }
  }
}

TEST(WrapText, BreaksBetweenWordsOnly) {
  // 4 blanks of indent leave 6 columns: "ab cde" fits, "ab cdef" does not.
  EXPECT_EQ(WrapText("ab cde f", 4, 10), "ab cde\n    f");
  EXPECT_EQ(WrapText("ab cdef", 4, 10), "ab\n    cdef");
  EXPECT_EQ(WrapText("muchtoolong x", 4, 10), "muchtoolong\n    x");
  EXPECT_EQ(WrapText("", 4, 10), "");
}

}  // namespace
}  // namespace tarnwick
