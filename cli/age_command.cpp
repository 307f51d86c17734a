// tarnwick age: the photographs of the command line, one after the other.
#include <filesystem>
#include <memory>
#include <system_error>

#include "age_options.h"
#include "age_picture.h"
#include "command.h"
#include "data_folders.h"
#include "output_plan.h"
#include "picture_load.h"
#include "picture_open.h"
#include "preset_save.h"
#include "settings_recipe.h"
#include "vips_library.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

// With --strict the last one is thrown, and so all are told.
void TellWarnings(Console& console, const std::vector<std::string>& warnings, bool strict) {
  for (std::size_t i = 0; i < warnings.size(); ++i) {
    if (!strict) {
      console.Warning(warnings[i]);
    } else if (i + 1 < warnings.size()) {
      console.Error(warnings[i]);
    } else {
      FailUse("--strict", warnings[i]);
    }
  }
}

// Every input that can be opened has to fit; one that cannot fails in its turn.
vips::VImage TakeSelection(const AgeOptions& options) {
  if (!options.selection) return {};
  vips::VImage selection;
  try {
    selection = LoadSelection(*options.selection);
  } catch (const CliError& error) {
    // Without the selection nothing can be done as asked.
    throw CliError(ExitCode::kWrongUse, "--selection", error.what());
  }
  for (const fs::path& input : options.inputs) {
    PictureSize size;
    try {
      size = ReadPictureSize(input);
    } catch (const CliError&) {
      continue;
    }
    if (size.width == selection.width() && size.height == selection.height()) continue;
    FailUse("--selection",
            "is " + std::to_string(selection.width()) + " x " + std::to_string(selection.height()) +
                ", but " + input.string() + " is " + std::to_string(size.width) + " x " +
                std::to_string(size.height),
            "make it the same size");
  }
  return selection;
}

void MakeOutputFolder(const AgeOptions& options) {
  if (!options.outputFolder) return;
  std::error_code fault;
  fs::create_directories(*options.outputFolder, fault);
  if (fault || !fs::is_directory(*options.outputFolder, fault)) {
    FailUse(options.outputFolder->string(), "cannot be made a folder",
            "choose another --output-dir");
  }
}

ExitCode AgeAll(const AgeRun& run, const std::vector<PlannedOutput>& plan) {
  ExitCode code = ExitCode::kDone;
  for (std::size_t i = 0; i < plan.size(); ++i) {
    std::string label = plan[i].input.filename().string();
    if (plan.size() > 1) {
      label = std::to_string(i + 1) + "/" + std::to_string(plan.size()) + " " + label;
    }
    try {
      AgePicture(run, plan[i], label);
    } catch (const CliError& error) {
      run.console.Error(error.what());
      code = ExitCode::kInputFailed;
    }
  }
  return code;
}

}  // namespace

ExitCode RunAge(Console& console, std::span<const std::string> words) {
  const ParsedArguments arguments = ParseArguments(AgeOptionRows(), words);
  if (arguments.Has("help")) {
    Print(AgeHelp());
    return ExitCode::kDone;
  }
  const AgeOptions options = ReadAgeOptions(arguments);
  if (options.quiet) console.BeQuiet();
  const DataFolders folders(arguments);
  ComposedSettings composed = ComposeSettings(options.steps, folders);
  TellWarnings(console, composed.warnings, options.strict);
  const std::vector<PlannedOutput> plan = PlanOutputs(options);
  if (options.savePreset) {
    SavePreset(*options.savePreset, options.saveKind, options.force, composed.settings,
               composed.session);
  }
  if (plan.empty()) return ExitCode::kDone;

  fs::path textures;
  if (!TexturesInUse(composed.settings).empty()) {
    textures = folders.Textures();
    SpellTexturesAsIn(textures, composed.settings);
  }
  const VipsLibrary library(options.threads);
  const vips::VImage selection = TakeSelection(options);
  MakeOutputFolder(options);
  ThreadPool pool(options.threads);
  return AgeAll({options, composed.settings, composed.session, textures, selection, pool, console},
                plan);
}

}  // namespace tarnwick
