#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// Builds a JSON text, indented, piece by piece:
//   json.BeginObject(); json.Key("name").String("Rusted.twk"); json.EndObject();
// Strings are taken as UTF-8; a byte that is none becomes the replacement
// character, so that file names of any kind give valid JSON.
class JsonWriter {
 public:
  JsonWriter& BeginObject() { return Open('{'); }
  JsonWriter& EndObject() { return Close('}'); }
  JsonWriter& BeginArray() { return Open('['); }
  JsonWriter& EndArray() { return Close(']'); }
  JsonWriter& Key(std::string_view name);
  JsonWriter& String(std::string_view value);
  JsonWriter& Number(std::int64_t value);
  JsonWriter& Number(double value);
  JsonWriter& Bool(bool value);
  JsonWriter& Null();

  // The text with a line end, once all is closed.
  [[nodiscard]] std::string Text() const { return text_ + "\n"; }

 private:
  JsonWriter& Open(char bracket);
  JsonWriter& Close(char bracket);
  JsonWriter& Raw(std::string_view value);
  void BeforeValue();
  void NewLine();

  std::string text_;
  std::vector<bool> hasMembers_;
  bool afterKey_ = false;
};

}  // namespace tarnwick
