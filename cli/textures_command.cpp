// tarnwick textures: what lies in the folder of textures, and what is in a file.
#include <array>
#include <filesystem>

#include "command.h"
#include "data_folders.h"
#include "did_you_mean.h"
#include "json_writer.h"
#include "listing.h"
#include "option_parser.h"
#include "option_values.h"
#include "text_table.h"
#include "texture_sets.h"
#include "texture_summary.h"
#include "textures/texture_effects.h"
#include "textures/thumbnail_file.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::array<OptionRow, 7> kListOptions = {{
    {"set", 0, "NAME", "only textures of this set, such as \"Darkroom\""},
    {"set-id", 0, "N", "the same by its number, which textures carry"},
    {"effect", 0, "NAME", "only textures with this effect, such as \"Metals\""},
    {"json", 0, "", "for programs to read"},
    kDataOption,
    kTexturesOption,
    {"help", 'h', "", "this text"},
}};

constexpr std::array<OptionRow, 4> kInfoOptions = {{
    {"json", 0, "", "for programs to read"},
    kDataOption,
    kTexturesOption,
    {"help", 'h', "", "this text"},
}};

std::uint32_t WantedEffect(const ParsedArguments& arguments) {
  const std::string* name = arguments.Value("effect");
  if (name == nullptr) return 0;
  const std::uint32_t mask = TextureEffectMask(*name);
  if (mask != 0) return mask;
  const std::vector<std::string> names(kTextureEffects.begin(), kTextureEffects.end());
  FailUse("--effect", "no effect is called \"" + *name + "\"",
          DidYouMean(*name, names, "one of " + JoinNames(names)));
}

std::string SizeText(const TextureSummary& summary) {
  return std::to_string(summary.width) + " x " + std::to_string(summary.height);
}

// The number of the set asked for, nothing for all of them.
std::optional<std::uint32_t> WantedSet(const ParsedArguments& arguments,
                                       const TextureSetTable& sets) {
  const std::string* name = arguments.Value("set");
  if (name != nullptr && arguments.Has("set-id")) FailUse("--set", "excludes --set-id");
  if (name != nullptr) return RequireSet(sets, *name, "--set");
  if (!arguments.Has("set-id")) return std::nullopt;
  return static_cast<std::uint32_t>(NumberOption(arguments, "set-id", 0, UINT32_MAX, 0));
}

void PutSummary(JsonWriter& json, const std::string& name, const TextureSummary& summary,
                const TextureSetTable& sets) {
  json.Key("name").String(name);
  json.Key("width").Number(std::int64_t{summary.width});
  json.Key("height").Number(std::int64_t{summary.height});
  json.Key("planes").Number(std::int64_t{summary.planes});
  json.Key("setId").Number(std::int64_t{summary.setId});
  json.Key("set").String(FindSetName(sets, summary.setId));
  json.Key("effects").BeginArray();
  for (const std::string& effect : EffectNames(summary.effectMask)) json.String(effect);
  json.EndArray();
}

ExitCode List(Console& console, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(kListOptions, words);
  if (arguments.Has("help")) {
    Print("usage: tarnwick textures list [options]\n\n" + OptionsHelp(kListOptions));
    return ExitCode::kDone;
  }
  if (!arguments.operands.empty()) FailUse(arguments.operands[0], "textures list takes no name");
  const std::uint32_t effect = WantedEffect(arguments);
  const DataFolders folders(arguments);
  const TextureSetTable sets = LoadSetsOf(folders.Textures(), console);
  const std::optional<std::uint32_t> setId = WantedSet(arguments, sets);
  ExitCode code = ExitCode::kDone;
  Listing listing({"NAME", "SIZE", "SET", "EFFECTS"});
  for (const std::string& name : TextureNames(folders.Textures())) {
    const fs::path path = folders.Textures() / name;
    const std::optional<TextureSummary> summary = ReadTextureSummary(path);
    if (!summary) {
      console.Error(path.string() + ": is no texture file (make it again)");
      code = ExitCode::kInputFailed;
      continue;
    }
    if (setId && summary->setId != *setId) continue;
    if (effect != 0 && (summary->effectMask & effect) == 0) continue;
    JsonWriter& json = listing.Add({name, SizeText(*summary), SetLabel(sets, summary->setId),
                                    JoinNames(EffectNames(summary->effectMask))});
    PutSummary(json, name, *summary, sets);
  }
  Print(listing.Text(arguments));
  return code;
}

// A file as it is named, or else a texture of the folder by its name.
fs::path FindTexture(const std::string& name, const DataFolders& folders) {
  std::error_code fault;
  if (fs::is_regular_file(name, fault) || name.find('/') != std::string::npos) return name;
  if (folders.HasTextures()) {
    for (const char* ending : {"", ".twk"}) {
      if (const auto spelled = SpellingIn(folders.Textures(), name + ending)) {
        return folders.Textures() / *spelled;
      }
    }
    FailInput(name, "no such texture",
              DidYouMean(name, TextureNames(folders.Textures()), "see tarnwick textures list"));
  }
  FailInput(name, "no such file", "check the name");
}

// What the drawer keeps beside a texture, so that it need not decode it again.
std::string ThumbnailText(const fs::path& path) {
  const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
  const std::string cache = ThumbnailPath(folder.string(), path.filename().string());
  std::error_code fault;
  if (!fs::exists(cache, fault)) return "none yet";
  const auto picture = ReadThumbnail(cache);
  if (!picture) return "unusable, will be made anew";
  return std::to_string(picture->width) + " x " + std::to_string(picture->height);
}

void Describe(const std::string& name, const DataFolders& folders, const TextureSetTable& sets,
              JsonWriter& json, std::vector<std::vector<std::string>>& rows) {
  const fs::path path = FindTexture(name, folders);
  const std::optional<TextureSummary> summary = ReadTextureSummary(path);
  if (!summary) FailInput(path.string(), "is no texture file", "make it again");
  const PayloadState state = CheckPayload(path, *summary);
  const std::string thumbnail = ThumbnailText(path);
  json.BeginObject();
  PutSummary(json, path.filename().string(), *summary, sets);
  json.Key("path").String(path.string());
  json.Key("payload").String(DescribePayload(state));
  json.Key("usable").Bool(IsUsable(state));
  json.Key("thumbnail").String(thumbnail);
  json.EndObject();
  const std::vector<std::string> effects = EffectNames(summary->effectMask);
  rows.push_back({path.string()});
  rows.push_back({"  size", SizeText(*summary)});
  rows.push_back({"  planes", summary->planes == 1 ? "1, grey" : "3, of which the first counts"});
  const std::string setName = FindSetName(sets, summary->setId);
  rows.push_back(
      {"  set", std::to_string(summary->setId) + (setName.empty() ? "" : ", " + setName)});
  rows.push_back({"  effects", effects.empty() ? "none" : JoinNames(effects)});
  rows.push_back({"  samples", DescribePayload(state)});
  rows.push_back({"  thumbnail", thumbnail});
  if (!IsUsable(state)) {
    FailInput(path.string(), "its samples are " + DescribePayload(state), "make it again");
  }
}

ExitCode Info(Console& console, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(kInfoOptions, words);
  if (arguments.Has("help")) {
    Print("usage: tarnwick textures info [options] NAME|FILE...\n\n" + OptionsHelp(kInfoOptions));
    return ExitCode::kDone;
  }
  if (arguments.operands.empty()) FailUse("textures info", "needs the name of a texture or file");
  const DataFolders folders(arguments);
  TextureSetTable sets;
  if (folders.HasTextures()) sets = LoadSetsOf(folders.Textures(), console);
  ExitCode code = ExitCode::kDone;
  JsonWriter json;
  json.BeginArray();
  std::string text;
  for (const std::string& name : arguments.operands) {
    std::vector<std::vector<std::string>> rows;
    try {
      Describe(name, folders, sets, json, rows);
    } catch (const CliError& error) {
      console.Error(error.what());
      code = error.Code();
    }
    // The path is a heading, not a cell that widens the first column.
    if (rows.empty()) continue;
    text += rows[0][0] + "\n";
    rows.erase(rows.begin());
    text += AlignColumns(rows);
  }
  json.EndArray();
  Print(arguments.Has("json") ? json.Text() : text);
  return code;
}

constexpr std::array<Command, 2> kCommands = {{
    {"list", "all textures of the folder: name, size, set and effects", List},
    {"info", "what is in a texture, and whether its samples are whole", Info},
}};

}  // namespace

ExitCode RunTextures(Console& console, std::span<const std::string> arguments) {
  return RunGroup(console, arguments, "tarnwick textures", kCommands,
                  "  tarnwick textures list --set Darkroom\n"
                  "  tarnwick textures list --effect Metals\n"
                  "  tarnwick textures info Rusted\n");
}

}  // namespace tarnwick
