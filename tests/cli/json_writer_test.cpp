#include "json_writer.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(JsonWriter, NestsAndSeparates) {
  JsonWriter json;
  json.BeginArray();
  json.BeginObject();
  json.Key("a").Number(std::int64_t{-5});
  json.Key("b").BeginArray().EndArray();
  json.Key("c").Number(0.5);
  json.EndObject();
  json.Bool(true).Null();
  json.EndArray();
  EXPECT_EQ(json.Text(),
            "[\n  {\n    \"a\": -5,\n    \"b\": [],\n    \"c\": 0.5\n  },\n  true,\n  null\n]\n");
}

TEST(JsonWriter, AnyBytesGiveValidText) {
  const struct {
    const char* name;
    std::string bytes;
    const char* want;
  } kCases[] = {
      {"quote and backslash", "a\"b\\c", R"("a\"b\\c")"},
      {"control characters", "\n\x01", R"("\u000a\u0001")"},
      {"two, three and four bytes", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xA8",
       "\"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xA8\""},
      {"a lone continuation byte", "a\x80z", R"("a\ufffdz")"},
      {"cut short", "a\xE2\x82", R"("a\ufffd\ufffd")"},
      {"overlong slash", "\xC0\xAF", R"("\ufffd\ufffd")"},
      {"a surrogate", "\xED\xA0\x80", R"("\ufffd\ufffd\ufffd")"},
      {"beyond the last code point", "\xF4\x90\x80\x80", R"("\ufffd\ufffd\ufffd\ufffd")"},
  };
  for (const auto& c : kCases) {
    JsonWriter json;
    json.String(c.bytes);
    EXPECT_EQ(json.Text(), std::string(c.want) + "\n") << c.name;
  }
}

}  // namespace
}  // namespace tarnwick
