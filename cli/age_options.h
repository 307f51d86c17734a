#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "engine/view_mode.h"
#include "option_parser.h"
#include "presets/preset_kind.h"

namespace tarnwick {

// One thing that changes the settings. They apply in the order given.
struct AgeStep {
  enum class Kind { kPreset, kSet, kSurfaceColors, kBackgroundColors, kSeed };
  Kind kind;
  std::string value;
};

// A part of the picture, in shown pixels.
struct ShownRect {
  int x = 0, y = 0;           // 0 or more
  int width = 1, height = 1;  // 1 or more
};

// What `tarnwick age` is told to do, checked as far as words alone allow.
struct AgeOptions {
  std::vector<AgeStep> steps;
  std::vector<std::filesystem::path> inputs;

  // Either one output, or a folder with what makes up the names in it.
  std::optional<std::filesystem::path> output;
  std::optional<std::filesystem::path> outputFolder;
  std::string suffix;
  std::string format;  // an extension; empty: as the input

  std::optional<std::filesystem::path> selection;
  std::optional<std::filesystem::path> savePreset;
  PresetKind saveKind = PresetKind::kUser;

  // Set by --view, --scale or --window: a preview instead of the full render.
  bool preview = false;
  ViewMode view = ViewMode::kComposite;
  int scale = 1;
  std::optional<ShownRect> window;  // none: the whole picture

  int threads = 0;  // 0: one for each processor
  int quality = 0;
  bool strict = false;
  bool force = false;
  bool quiet = false;
};

// Wrong use for values that do not parse and options that do not go together.
[[nodiscard]] AgeOptions ReadAgeOptions(const ParsedArguments& arguments);

[[nodiscard]] std::span<const OptionRow> AgeOptionRows();

// The whole of `tarnwick age --help`.
[[nodiscard]] std::string AgeHelp();

}  // namespace tarnwick
