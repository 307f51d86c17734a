#include "age_options.h"

#include <array>
#include <cstdint>
#include <limits>

#include "base/checked_size.h"
#include "cli_error.h"
#include "did_you_mean.h"
#include "number_text.h"
#include "option_values.h"
#include "picture_formats.h"

namespace tarnwick {
namespace {

using Kind = AgeStep::Kind;

constexpr std::array<std::string_view, 7> kViews = {
    "composite", "wash1", "wash2", "background", "surface1", "surface2", "original"};

ViewMode ParseView(const std::string& word) {
  for (std::size_t i = 0; i < kViews.size(); ++i) {
    if (word == kViews[i]) return static_cast<ViewMode>(i);
  }
  const std::vector<std::string> views(kViews.begin(), kViews.end());
  FailUse("--view", "no view is called \"" + word + "\"", "use " + EitherOf(views));
}

ShownRect ParseWindow(const std::string& text) {
  std::array<int, 4> numbers{};
  std::string_view rest = text;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const bool last = i + 1 == numbers.size();
    const std::size_t end = last ? rest.size() : rest.find(',');
    const auto number =
        end == std::string_view::npos ? std::nullopt : ParseNumber<int>(rest.substr(0, end));
    const bool isSize = i >= 2;
    if (!number || *number < (isSize ? 1 : 0) || *number > kMaxPictureSide) {
      FailUse("--window", "\"" + text + "\" is no window",
              "give X,Y,WIDTH,HEIGHT in shown pixels, such as 0,0,640,480");
    }
    numbers[i] = *number;
    if (!last) rest.remove_prefix(end + 1);
  }
  return {numbers[0], numbers[1], numbers[2], numbers[3]};
}

PresetKind ParseSaveKind(const std::string& word) {
  std::vector<std::string> words;
  for (const PresetKind kind : kPresetKinds) {
    // What comes with the program has the form of the user's own.
    if (!IsWritten(kind) || kind == PresetKind::kBasic) continue;
    if (word == PresetKindWord(kind)) return kind;
    words.emplace_back(PresetKindWord(kind));
  }
  FailUse("--kind", "no preset of kind \"" + word + "\" is written", "use " + EitherOf(words));
}

std::optional<Kind> StepKind(std::string_view option) {
  if (option == "preset") return Kind::kPreset;
  if (option == "set") return Kind::kSet;
  if (option == "surface-colors") return Kind::kSurfaceColors;
  if (option == "background-colors") return Kind::kBackgroundColors;
  if (option == "seed") return Kind::kSeed;
  return std::nullopt;
}

void ReadSteps(const ParsedArguments& arguments, AgeOptions& options) {
  for (const GivenOption& given : arguments.options) {
    const auto kind = StepKind(given.row->name);
    if (!kind) continue;
    if (kind == Kind::kSet && given.value.find('=') == std::string::npos) {
      FailUse("--set " + given.value, "has no value", "give --set FIELD=VALUE");
    }
    options.steps.push_back({*kind, given.value});
  }
  // Read for its check alone; the step is applied in its place.
  (void)NumberOption(arguments, "seed", std::numeric_limits<std::int32_t>::min(),
                     std::numeric_limits<std::int32_t>::max(), 0);
}

void ReadOutputs(const ParsedArguments& arguments, AgeOptions& options) {
  if (const std::string* name = arguments.Value("output")) options.output = *name;
  if (const std::string* name = arguments.Value("output-dir")) options.outputFolder = *name;
  if (options.output && options.outputFolder) {
    FailUse("-o", "excludes --output-dir", "give one of them");
  }
  for (const char* name : {"suffix", "format"}) {
    if (arguments.Has(name) && !options.outputFolder) {
      FailUse("--" + std::string(name), "goes with --output-dir", "add --output-dir DIR");
    }
  }
  if (const std::string* text = arguments.Value("suffix")) options.suffix = *text;
  if (options.suffix.find('/') != std::string::npos) {
    FailUse("--suffix", "cannot hold a \"/\"", "name the folder with --output-dir");
  }
  if (const std::string* text = arguments.Value("format")) {
    const PictureFormat* format = FindFormat(*text);
    if (format == nullptr || !format->color) {
      FailUse("--format", "pictures cannot be written as \"" + *text + "\"",
              "use one of " + FormatNames());
    }
    options.format = format->extension;
  }
}

void RequireSomethingToDo(const AgeOptions& options) {
  if (options.inputs.empty()) {
    if (options.output || options.outputFolder || !options.savePreset) {
      FailUse("age", "has no input", "name a picture, or see tarnwick age --help");
    }
    return;
  }
  if (!options.output && !options.outputFolder) {
    FailUse("age", "has no output", "give -o FILE or --output-dir DIR");
  }
  if (options.output && options.inputs.size() > 1) {
    FailUse("-o", "takes one input, but there are " + std::to_string(options.inputs.size()),
            "give --output-dir DIR for several");
  }
}

}  // namespace

AgeOptions ReadAgeOptions(const ParsedArguments& arguments) {
  AgeOptions options;
  ReadSteps(arguments, options);
  options.inputs.assign(arguments.operands.begin(), arguments.operands.end());
  ReadOutputs(arguments, options);
  if (const std::string* name = arguments.Value("selection")) options.selection = *name;
  if (const std::string* name = arguments.Value("save-preset")) options.savePreset = *name;
  if (const std::string* word = arguments.Value("kind")) {
    if (!options.savePreset) FailUse("--kind", "goes with --save-preset", "add --save-preset FILE");
    options.saveKind = ParseSaveKind(*word);
  }
  for (const char* name : {"view", "scale", "window"}) {
    options.preview = options.preview || arguments.Has(name);
  }
  if (const std::string* word = arguments.Value("view")) options.view = ParseView(*word);
  options.scale = static_cast<int>(NumberOption(arguments, "scale", 1, kMaxPictureSide, 1));
  if (const std::string* text = arguments.Value("window")) options.window = ParseWindow(*text);
  constexpr int kMostThreads = 256;
  options.threads = static_cast<int>(NumberOption(arguments, "threads", 1, kMostThreads, 0));
  options.quality = QualityOption(arguments);
  options.strict = arguments.Has("strict");
  options.force = arguments.Has("force");
  options.quiet = arguments.Has("quiet");
  RequireSomethingToDo(options);
  return options;
}

}  // namespace tarnwick
