// tarnwick presets: what lies in the folder of presets, and what is in a file.
#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <vector>

#include "command.h"
#include "data_folders.h"
#include "did_you_mean.h"
#include "json_writer.h"
#include "listing.h"
#include "option_parser.h"
#include "preset_library.h"
#include "preset_summary.h"
#include "presets/color_list.h"
#include "presets/preset_check.h"
#include "presets/preset_file.h"
#include "settings/ascii_text.h"
#include "text_table.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::array<OptionRow, 6> kListOptions = {{
    {"kind", 0, "KIND", "only basic, user, wash, surface, background, surface-color, back-palette"},
    {"category", 0, "NAME", "only colour presets of this category, such as \"Red Tones\""},
    {"json", 0, "", "for programs to read"},
    kDataOption,
    kPresetsOption,
    {"help", 'h', "", "this text"},
}};

constexpr std::array<OptionRow, 4> kShowOptions = {{
    {"json", 0, "", "for programs to read"},
    kDataOption,
    kPresetsOption,
    {"help", 'h', "", "this text"},
}};

constexpr std::array<OptionRow, 5> kCheckOptions = {{
    {"json", 0, "", "for programs to read"},
    kDataOption,
    kTexturesOption,
    kPresetsOption,
    {"help", 'h', "", "this text"},
}};

std::vector<PresetKind> WantedKinds(const ParsedArguments& arguments) {
  const std::string* word = arguments.Value("kind");
  if (word == nullptr) return {std::begin(kAllKinds), std::end(kAllKinds)};
  if (const auto kind = PresetKindFromWord(*word)) return {*kind};
  std::vector<std::string> words;
  for (const PresetKind kind : kAllKinds) words.emplace_back(PresetKindWord(kind));
  FailUse("--kind", "no kind is called \"" + *word + "\"", "use " + EitherOf(words));
}

// Of a colour preset; nothing for others.
std::vector<std::string> CategoriesOf(const PresetEntry& entry) {
  std::string joined;
  if (IsColorKind(entry.kind)) (void)ReadColorCategoryOf(entry.path, joined);
  return SplitCategories(joined);
}

// The category's own spelling, or null if none was asked for.
const std::string_view* WantedCategory(const ParsedArguments& arguments) {
  const std::string* given = arguments.Value("category");
  if (given == nullptr) return nullptr;
  std::vector<std::string> names;
  for (const std::string_view& category : kColorCategories) {
    if (category == kColorCategories[0] || category == kBlankCategory) continue;
    if (EqualIgnoringCase(category, *given)) return &category;
    names.emplace_back(category);
  }
  FailUse("--category", "no category is called \"" + *given + "\"",
          DidYouMean(*given, names, "one of " + JoinNames(names)));
}

ExitCode List(Console&, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(kListOptions, words);
  if (arguments.Has("help")) {
    Print("usage: tarnwick presets list [options]\n\n" + OptionsHelp(kListOptions));
    return ExitCode::kDone;
  }
  if (!arguments.operands.empty()) FailUse(arguments.operands[0], "presets list takes no name");
  const std::vector<PresetKind> kinds = WantedKinds(arguments);
  const std::string_view* category = WantedCategory(arguments);
  const DataFolders folders(arguments);
  Listing listing({"KIND", "FOLDER", "NAME", "CATEGORIES"});
  for (const PresetEntry& entry : ListPresets(folders.Presets(), kinds)) {
    const std::vector<std::string> categories = CategoriesOf(entry);
    if (category != nullptr && std::ranges::find(categories, *category) == categories.end()) {
      continue;
    }
    const std::string kind(PresetKindWord(entry.kind));
    const std::size_t leaf = entry.name.rfind('/') + 1;
    const std::string folder = leaf == 0 ? "" : entry.name.substr(0, leaf - 1);
    JsonWriter& json = listing.Add({kind, folder, entry.name.substr(leaf), JoinNames(categories)});
    json.Key("kind").String(kind);
    json.Key("folder").String(folder);
    json.Key("name").String(entry.name);
    json.Key("path").String(entry.path.string());
    if (!IsColorKind(entry.kind)) continue;
    json.Key("categories").BeginArray();
    for (const std::string& name : categories) json.String(name);
    json.EndArray();
  }
  Print(listing.Text(arguments));
  return ExitCode::kDone;
}

ExitCode Show(Console&, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(kShowOptions, words);
  if (arguments.Has("help")) {
    Print("usage: tarnwick presets show [options] NAME|FILE\n\n" + OptionsHelp(kShowOptions));
    return ExitCode::kDone;
  }
  if (arguments.operands.size() != 1) FailUse("presets show", "takes one preset", "name it");
  const DataFolders folders(arguments);
  const fs::path path = FindPreset(arguments.operands[0], "presets show", folders, kAllKinds);
  std::string bytes;
  PresetSummary summary;
  PresetLoad outcome = ReadPresetBytes(path, bytes);
  if (outcome == PresetLoad::kLoaded) outcome = SummarizePreset(bytes, summary);
  if (outcome != PresetLoad::kLoaded) {
    FailInput(path.string(), DescribePresetLoad(outcome), "see tarnwick presets check");
  }
  Print(arguments.Has("json") ? SummaryAsJson(path.string(), summary)
                              : SummaryAsText(path.string(), summary));
  return ExitCode::kDone;
}

// The faults of one file, those of its textures among them.
std::vector<PresetFault> FaultsOf(const fs::path& path, const DataFolders& folders) {
  std::string bytes;
  const PresetLoad outcome = ReadPresetBytes(path, bytes);
  if (outcome != PresetLoad::kLoaded) FailInput(path.string(), DescribePresetLoad(outcome));
  PresetReport report = CheckPreset(bytes);
  if (!folders.HasTextures()) return report.faults;
  for (const PresetTexture& texture : report.textures) {
    if (SpellingIn(folders.Textures(), texture.name)) continue;
    const std::string advice =
        DidYouMean(texture.name, TextureNames(folders.Textures()), "see tarnwick textures list");
    report.faults.push_back(
        {texture.line, PresetFaultKind::kOutOfRange,
         "no texture \"" + texture.name + "\" is in the folder (" + advice + ")"});
  }
  std::ranges::stable_sort(report.faults, {}, &PresetFault::line);
  return report.faults;
}

ExitCode Check(Console& console, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(kCheckOptions, words);
  if (arguments.Has("help")) {
    Print(
        "usage: tarnwick presets check [options] NAME|FILE...\n\n"
        "Tells of all that the reader passes over in silence: unknown keys, values out of\n"
        "range, textures that are not there. Exits with 1 if there is any.\n\n" +
        OptionsHelp(kCheckOptions));
    return ExitCode::kDone;
  }
  if (arguments.operands.empty()) FailUse("presets check", "needs a preset", "name one or more");
  const DataFolders folders(arguments);
  ExitCode code = ExitCode::kDone;
  JsonWriter json;
  json.BeginArray();
  std::string text;
  for (const std::string& name : arguments.operands) {
    try {
      const fs::path path = FindPreset(name, "presets check", folders, kAllKinds);
      const std::vector<PresetFault> faults = FaultsOf(path, folders);
      json.BeginObject();
      json.Key("path").String(path.string());
      json.Key("good").Bool(faults.empty());
      json.Key("faults").BeginArray();
      for (const PresetFault& fault : faults) {
        json.BeginObject();
        json.Key("line").Number(std::int64_t{fault.line});
        json.Key("text").String(fault.text);
        json.EndObject();
        text += path.string() + ":" + std::to_string(fault.line) + ": " + fault.text + "\n";
      }
      json.EndArray();
      json.EndObject();
      if (faults.empty()) {
        text += path.string() + ": good\n";
      } else {
        code = std::max(code, ExitCode::kInputFailed);
      }
    } catch (const CliError& error) {
      console.Error(error.what());
      code = std::max(code, error.Code());
    }
  }
  json.EndArray();
  Print(arguments.Has("json") ? json.Text() : text);
  return code;
}

constexpr std::array<Command, 3> kCommands = {{
    {"list", "all presets of the folder", List},
    {"show", "what a preset sets", Show},
    {"check", "what is wrong in a preset", Check},
}};

}  // namespace

ExitCode RunPresets(Console& console, std::span<const std::string> arguments) {
  return RunGroup(console, arguments, "tarnwick presets", kCommands,
                  "  tarnwick presets list --kind wash\n"
                  "  tarnwick presets list --category \"Rust Tones\"\n"
                  "  tarnwick presets show \"Rusted Tin Sign\"\n"
                  "  tarnwick presets check mine.twkpst\n");
}

}  // namespace tarnwick
