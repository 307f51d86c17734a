#include "news/news_text.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnwick {
namespace {

TEST(NewsText, ComparesVersionsNumberByNumber) {
  const struct {
    const char* told;
    const char* own;
    bool isNewer;
  } kVersions[] = {{"1.2.4", "1.2.3", true},   {"1.2.3", "1.2.3", false},
                   {"1.2.2", "1.2.3", false},  {"1.10.0", "1.9.9", true},
                   {"1.9.9", "1.10.0", false}, {"2", "1.9.9.9", true},
                   {"1.2", "1.2.0.0", false},  {"1.2.0.1", "1.2", true},
                   {"65535", "65534.9", true}, {"65536", "1", false},
                   {"1.2.3.4.5", "1", false},  {"2.", "1", false},
                   {".2", "0.1", false},       {"v2", "1", false},
                   {"2 beta", "1", false},     {"-2", "1", false},
                   {"+2", "1", false},         {"", "1", false},
                   {"2..1", "1", false},       {"2", "", false},
                   {"2", "dev", false},        {"99999999999999", "1", false}};
  for (const auto& v : kVersions) {
    const std::string text = std::string("TarnwickStudio news\nversion ") + v.told + "\n";
    EXPECT_EQ(TellsOfNewer(text, v.own), v.isNewer) << v.told << " to " << v.own;
  }
}

TEST(NewsText, IsKnownByItsFirstLine) {
  const struct {
    const char* text;
    bool isNewer;
  } kTexts[] = {
      {"TarnwickStudio news\nversion 2", true},
      {"TarnwickStudio news \r\n\r\nWhat is new: much.\r\nversion 2 \r\nversion 1\r\n", true},
      {"TarnwickStudio news\nversion 1\nversion 2\n", false},
      {"TarnwickStudio news\nversion\nVersion 2\n version 2\n", false},
      {"TarnwickStudio news", false},
      {"\nTarnwickStudio news\nversion 2\n", false},
      {"version 2\n", false},
      {"<html>\nversion 2\n</html>\n", false},
      {"", false},
  };
  for (const auto& t : kTexts) EXPECT_EQ(TellsOfNewer(t.text, "1.5"), t.isNewer) << t.text;
}

}  // namespace
}  // namespace tarnwick
