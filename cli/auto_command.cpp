// tarnwick auto: a photograph with a look that dice have thrown.
#include <array>
#include <ctime>
#include <filesystem>

#include "age_picture.h"
#include "auto_summary.h"
#include "command.h"
#include "data_folders.h"
#include "engine/render_layers.h"
#include "option_values.h"
#include "output_plan.h"
#include "preset_library.h"
#include "preset_save.h"
#include "presets/color_list.h"
#include "settings_recipe.h"
#include "textures/texture_catalogue.h"
#include "vips_library.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::array<OptionRow, 13> kOptions = {{
    {"seed", 0, "N", "the same number throws the same look; the time when left out"},
    {"output", 'o', "FILE", "the result; PHOTO-auto-N beside the photograph when left out"},
    {"print", 0, "", "only tell the settings; needs no photograph"},
    {"save-preset", 0, "FILE", "write the settings as a preset"},
    {"json", 0, "", "the settings for programs to read"},
    {"force", 'f', "", "replace files that are there"},
    {"quality", 0, "N", "1 to 100 for formats that lose, 92 when left out"},
    {"threads", 0, "N", "threads to work with; else one for each processor"},
    kDataOption,
    kTexturesOption,
    kPresetsOption,
    {"quiet", 'q', "", "no progress bar"},
    {"help", 'h', "", "this text"},
}};

std::string Help() {
  return "usage: tarnwick auto [options] PHOTO [-o FILE]\n"
         "       tarnwick auto --print [options]\n"
         "\n"
         "Throws dice for all settings: now and then a Basic preset as it is, else a\n"
         "background and a surface from their folders under one or two washes of random\n"
         "texture, kind and colour. Tells what it threw; the same seed with the same data\n"
         "folder throws it again.\n"
         "\n" +
         OptionsHelp(kOptions) +
         "\n"
         "examples:\n"
         "  tarnwick auto photo.jpg\n"
         "  tarnwick auto photo.jpg --seed 7 -o lucky.jpg\n"
         "  tarnwick auto --print --seed 7 --save-preset \"Lucky.twkpst\"\n";
}

std::uint32_t SeedOf(const ParsedArguments& arguments) {
  const auto now = static_cast<std::uint32_t>(std::time(nullptr));
  return static_cast<std::uint32_t>(NumberOption(arguments, "seed", 0, UINT32_MAX, now));
}

// What the dialog's drawers would show, sorted, so that a seed does not hang on
// the order in which a file system lists.
AutoLibrary LibraryOf(const DataFolders& folders, std::uint32_t seed) {
  AutoLibrary library;
  library.presetRoot = folders.Presets();
  library.order = FolderOrder::kByName;
  library.seconds = [seed] { return seed; };
  for (const TextureRecord& record : ListTextures(
           folders.Textures().string(), TextureNames(folders.Textures()), FirstTexture::kMove)) {
    library.textures.push_back(record.fileName);
  }
  library.colors.emplace_back(kResetColorsName);
  for (const PresetEntry& entry : ListPresets(library.presetRoot, kColorKinds)) {
    const bool isInDrawer = entry.name.find('/') == std::string::npos;
    if (isInDrawer) library.colors.push_back(entry.name);
  }
  return library;
}

AgeOptions OptionsOf(const ParsedArguments& arguments, std::uint32_t seed) {
  AgeOptions options;
  options.force = arguments.Has("force");
  options.quality = QualityOption(arguments);
  constexpr int kMostThreads = 256;
  options.threads = static_cast<int>(NumberOption(arguments, "threads", 1, kMostThreads, 0));
  if (const std::string* name = arguments.Value("save-preset")) options.savePreset = *name;
  if (arguments.Has("print")) {
    if (arguments.Has("output")) FailUse("-o", "excludes --print", "give one of them");
    if (!arguments.operands.empty()) {
      FailUse(arguments.operands[0], "--print takes no photograph", "leave one of them out");
    }
    return options;
  }
  if (arguments.operands.size() != 1) {
    FailUse("auto", "takes one photograph, but got " + std::to_string(arguments.operands.size()),
            "name it, or give --print");
  }
  const fs::path input = arguments.operands[0];
  options.inputs = {input};
  if (const std::string* name = arguments.Value("output")) {
    options.output = *name;
  } else {
    options.output = input.parent_path() / (input.stem().string() + "-auto-" +
                                            std::to_string(seed) + input.extension().string());
  }
  return options;
}

}  // namespace

ExitCode RunAuto(Console& console, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(kOptions, words);
  if (arguments.Has("help")) {
    Print(Help());
    return ExitCode::kDone;
  }
  if (arguments.Has("quiet")) console.BeQuiet();
  const std::uint32_t seed = SeedOf(arguments);
  const AgeOptions options = OptionsOf(arguments, seed);
  const DataFolders folders(arguments);
  const std::vector<PlannedOutput> plan = PlanOutputs(options);

  EffectSettings settings;
  SettingsSession session;
  InitSettingsToDefaults(settings, session);
  PresetSession presetSession(session);
  const AutoThrow thrown = AutoRandomize(LibraryOf(folders, seed), settings, presetSession);
  DeriveSwitches(settings);
  const AutoSummary summary = SummarizeThrow(seed, thrown, folders.Presets(), settings, session);
  if (options.savePreset) {
    SavePreset(*options.savePreset, PresetKind::kUser, options.force, settings, session);
  }
  if (!plan.empty()) {
    SpellTexturesAsIn(folders.Textures(), settings);
    const VipsLibrary library(options.threads);
    ThreadPool pool(options.threads);
    AgePicture({options, settings, session, folders.Textures(), {}, pool, console}, plan[0],
               plan[0].input.filename().string());
  }
  Print(arguments.Has("json") ? SummaryAsJson(summary) : SummaryAsText(summary));
  return ExitCode::kDone;
}

}  // namespace tarnwick
