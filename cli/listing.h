#pragma once
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "json_writer.h"
#include "option_parser.h"
#include "text_table.h"

namespace tarnwick {

// What a list command tells: a table for people or, with --json, an array of
// objects for programs.
class Listing {
 public:
  explicit Listing(std::vector<std::string> headings) : rows_{std::move(headings)} {
    json_.BeginArray();
  }

  // A row of the table; the members of its object go into the writer, until the
  // next row.
  JsonWriter& Add(std::vector<std::string> cells) {
    CloseObject();
    rows_.push_back(std::move(cells));
    isOpen_ = true;
    return json_.BeginObject();
  }

  // Once all is added.
  [[nodiscard]] std::string Text(const ParsedArguments& arguments) {
    CloseObject();
    json_.EndArray();
    return arguments.Has("json") ? json_.Text() : AlignColumns(rows_);
  }

 private:
  void CloseObject() {
    if (isOpen_) json_.EndObject();
    isOpen_ = false;
  }

  std::vector<std::vector<std::string>> rows_;
  JsonWriter json_;
  bool isOpen_ = false;
};

}  // namespace tarnwick
