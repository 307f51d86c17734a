// tarnwick settings: the fields that --set takes.
#include <array>
#include <vector>

#include "command.h"
#include "json_writer.h"
#include "option_parser.h"
#include "settings/settings_reference.h"
#include "settings_recipe.h"
#include "text_table.h"

namespace tarnwick {
namespace {

constexpr std::array<OptionRow, 3> kListOptions = {{
    {"json", 0, "", "for programs to read"},
    {"markdown", 0, "", "as a table for documents"},
    {"help", 'h', "", "this text"},
}};

constexpr std::array<OptionRow, 2> kDescribeOptions = {{
    {"json", 0, "", "for programs to read"},
    {"help", 'h', "", "this text"},
}};

void PutField(JsonWriter& json, const SettingField& field) {
  json.BeginObject();
  json.Key("name").String(field.name);
  json.Key("values").String(DescribeSettingValues(field));
  json.Key("default").String(SettingDefaultAsText(field));
  if (field.range.IsStated()) {
    json.Key("minimum").Number(field.range.minimum);
    json.Key("maximum").Number(field.range.maximum);
  }
  json.Key("meaning").String(field.help);
  json.EndObject();
}

ExitCode List(Console&, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(kListOptions, words);
  if (arguments.Has("help")) {
    Print("usage: tarnwick settings list [--json | --markdown]\n\n" + OptionsHelp(kListOptions));
    return ExitCode::kDone;
  }
  if (!arguments.operands.empty()) FailUse(arguments.operands[0], "settings list takes no name");
  if (arguments.Has("markdown")) {
    Print(SettingsReference());
    return ExitCode::kDone;
  }
  JsonWriter json;
  json.BeginArray();
  std::vector<std::vector<std::string>> rows = {{"FIELD", "DEFAULT", "VALUES"}};
  for (const SettingField& field : SettingsTable()) {
    if (!UserMaySet(field)) continue;
    PutField(json, field);
    rows.push_back({field.name, SettingDefaultAsText(field), DescribeSettingValues(field)});
  }
  json.EndArray();
  Print(arguments.Has("json") ? json.Text() : AlignColumns(rows));
  return ExitCode::kDone;
}

ExitCode Describe(Console&, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(kDescribeOptions, words);
  if (arguments.Has("help")) {
    Print("usage: tarnwick settings describe [--json] FIELD...\n\n" +
          OptionsHelp(kDescribeOptions));
    return ExitCode::kDone;
  }
  if (arguments.operands.empty()) FailUse("settings describe", "needs the name of a field");
  JsonWriter json;
  json.BeginArray();
  std::string text;
  for (const std::string& name : arguments.operands) {
    const SettingField* field = FindSetting(name);
    if (field == nullptr || !UserMaySet(*field)) FailUnknownField(name, name);
    PutField(json, *field);
    text += std::string(field->name) + ": " + field->help + "\n  values   " +
            DescribeSettingValues(*field) + "\n  default  " + SettingDefaultAsText(*field) + "\n";
  }
  json.EndArray();
  Print(arguments.Has("json") ? json.Text() : text);
  return ExitCode::kDone;
}

constexpr std::array<Command, 2> kCommands = {{
    {"list", "all fields with their values and defaults", List},
    {"describe", "what a field does", Describe},
}};

}  // namespace

ExitCode RunSettings(Console& console, std::span<const std::string> arguments) {
  return RunGroup(console, arguments, "tarnwick settings", kCommands,
                  "  tarnwick settings list\n"
                  "  tarnwick settings describe WashCoverage1\n");
}

}  // namespace tarnwick
