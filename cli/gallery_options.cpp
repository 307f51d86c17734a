#include "gallery_options.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "cli_error.h"
#include "data_folders.h"
#include "did_you_mean.h"
#include "option_values.h"
#include "preset_library.h"

namespace tarnwick {
namespace {

constexpr std::array<OptionRow, 11> kOptions = {{
    {"output", 'o', "DIR", "folder for the page and its pictures; made if missing"},
    {"kind", 0, "KIND",
     "only basic, user, wash, surface, background, surface-color or back-palette; may be "
     "given again; all but the last two when left out",
     true},
    {"title", 0, "TEXT", "heading of the page; the photograph's name when left out"},
    {"size", 0, "N", "longer side of the large pictures, about; 1600 when left out"},
    {"force", 'f', "", "replace pictures that are there and a page of an earlier run"},
    {"threads", 0, "N", "threads to work with; else one for each processor"},
    kDataOption,
    kTexturesOption,
    kPresetsOption,
    {"quiet", 'q', "", "no progress bar"},
    {"help", 'h', "", "this text"},
}};

std::vector<PresetKind> WantedKinds(const ParsedArguments& arguments) {
  std::vector<PresetKind> wanted;
  for (const GivenOption& given : arguments.options) {
    if (given.row->name != "kind") continue;
    const auto kind = PresetKindFromWord(given.value);
    if (!kind || std::ranges::find(kAllKinds, *kind) == std::end(kAllKinds)) {
      std::vector<std::string> words;
      for (const PresetKind known : kAllKinds) words.emplace_back(PresetKindWord(known));
      FailUse("--kind", "no kind is called \"" + given.value + "\"", "use " + EitherOf(words));
    }
    wanted.push_back(*kind);
  }
  // Each once, in the library's order.
  std::vector<PresetKind> kinds;
  for (const PresetKind kind : kAllKinds) {
    const bool isExtra = IsColorKind(kind) || kind == PresetKind::kBackPalette;
    if (wanted.empty() ? !isExtra : std::ranges::find(wanted, kind) != wanted.end()) {
      kinds.push_back(kind);
    }
  }
  return kinds;
}

}  // namespace

std::span<const OptionRow> GalleryOptionRows() {
  return kOptions;
}

std::string GalleryHelp() {
  return "usage: tarnwick gallery [options] PHOTO -o DIR\n"
         "\n"
         "Shows your own photograph in every look of the library: a page to look through,\n"
         "with a slider between before and after, and the command line of each look. It\n"
         "needs no network and no server: open DIR/index.html, or put the folder on any.\n"
         "\n" +
         OptionsHelp(kOptions) +
         "\n"
         "Presets that hold a part of the settings are shown by themselves: a wash without\n"
         "a surface, a surface without a wash, a background where a wash eats a lot away.\n"
         "The pictures hold nothing of the photograph's metadata; the command lines name it and\n"
         "its folder as you type them here. Nothing in DIR is removed.\n"
         "\n"
         "examples:\n"
         "  tarnwick gallery photo.jpg -o looks\n"
         "  tarnwick gallery photo.jpg -o looks --kind basic --kind wash\n"
         "  tarnwick gallery photo.jpg -o looks --title \"The old barn\" --force\n";
}

GalleryOptions ReadGalleryOptions(const ParsedArguments& arguments) {
  GalleryOptions options;
  if (arguments.operands.size() != 1) {
    FailUse("gallery", "takes one photograph, but got " + std::to_string(arguments.operands.size()),
            "name it");
  }
  options.photo = arguments.operands[0];
  const std::string* folder = arguments.Value("output");
  if (folder == nullptr || folder->empty()) FailUse("gallery", "has no output", "give -o DIR");
  options.folder = *folder;
  options.kinds = WantedKinds(arguments);
  const std::string* title = arguments.Value("title");
  options.title = title != nullptr ? *title : options.photo.stem().string();
  constexpr int kUsual = 1600;
  constexpr int kSmallest = 200;
  constexpr int kLargest = 8000;
  options.largeSide =
      static_cast<int>(NumberOption(arguments, "size", kSmallest, kLargest, kUsual));
  constexpr int kMostThreads = 256;
  options.threads = static_cast<int>(NumberOption(arguments, "threads", 1, kMostThreads, 0));
  options.force = arguments.Has("force");
  return options;
}

}  // namespace tarnwick
