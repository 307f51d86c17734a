#include "page_text.h"

#include <gtest/gtest.h>

#include <array>

namespace tarnwick {
namespace {

TEST(PageText, NothingOfANameIsMarkup) {
  const struct {
    const char* name;
    std::string text, want;
  } kCases[] = {
      {"an element", "<b a='1'>", "&lt;b a=&#39;1&#39;&gt;"},
      {"an attribute's end", "\" onload=\"", "&quot; onload=&quot;"},
      {"what looks escaped", "&lt;", "&amp;lt;"},
      {"letters of all lengths", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xA8",
       "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xA8"},
      {"a letter of another code", "caf\xE9<", "caf\xEF\xBF\xBD&lt;"},
      {"a letter cut off", "\xE2\x82", "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"control characters", std::string("a\0\x1B", 3), "a\xEF\xBF\xBD\xEF\xBF\xBD"},
  };
  for (const auto& c : kCases) EXPECT_EQ(EscapeHtml(c.text), c.want) << c.name;
}

TEST(PageText, DataCannotEndItsScript) {
  EXPECT_EQ(JsonForScript(R"(["</script><!--", "a\\", 1])"),
            R"(["\u003c/script>\u003c!--", "a\\", 1])");
}

// What each word becomes by the shell's own rules of quoting.
TEST(PageText, ShellWords) {
  const struct {
    const char* name;
    std::string word, want;
  } kCases[] = {
      {"a plain path", "../looks/barn-2.jpg", "../looks/barn-2.jpg"},
      {"nothing", "", "''"},
      {"blanks", "Old Barn", "'Old Barn'"},
      {"a quote", "it's", "'it'\\''s'"},
      {"quotes alone", "''", "''\\'''\\'''"},
      {"what a shell expands", "$(a) `b` ~ * ! \"", "'$(a) `b` ~ * ! \"'"},
      {"a home folder", "~/a", "'~/a'"},
      {"a setting", "a=b", "a=b"},
      {"a command's place, to some", "=ls", "'=ls'"},
      {"accents", "Caf\xC3\xA9", "'Caf\xC3\xA9'"},
      {"a line end", "a\nb", "$'a\\012b'"},
      {"a byte, then a digit",
       "\xE9"
       "7'\\",
       "$'\\3517\\'\\\\'"},
  };
  for (const auto& c : kCases) EXPECT_EQ(ShellWord(c.word), c.want) << c.name;
}

TEST(PageText, SlugsAreSafeNames) {
  const struct {
    std::string text, want;
  } kCases[] = {
      {"Metal/Rusted Tin Sign", "metal-rusted-tin-sign"},
      {"  --Tea & \"Rust\"!", "tea-rust"},
      {"../../etc", "etc"},
      {"Caf\xC3\xA9 1900", "caf-1900"},
      {"\xE6\x97\xA5\xE6\x9C\xAC", ""},
      {std::string(59, 'a') + " b", std::string(59, 'a')},
      {std::string(100, 'A'), std::string(60, 'a')},
  };
  for (const auto& c : kCases) EXPECT_EQ(SlugOf(c.text), c.want) << c.text;
}

TEST(PageText, ValuesAreNotTemplates) {
  const std::array<std::pair<std::string_view, std::string>, 2> values = {
      {{"a", "{{b}}"}, {"b", "x"}}};
  EXPECT_EQ(FillTemplate("<{{a}}|{{b}}{{b}}> {{", values), "<{{b}}|xx> {{");
  EXPECT_THROW((void)FillTemplate("{{c}}", values), std::logic_error);
}

}  // namespace
}  // namespace tarnwick
