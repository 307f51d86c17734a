#pragma once
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "option_parser.h"
#include "presets/preset_kind.h"

namespace tarnwick {

// What `tarnwick gallery` is told to do, checked as far as words alone allow.
struct GalleryOptions {
  std::filesystem::path photo;
  std::filesystem::path folder;
  std::vector<PresetKind> kinds;  // each once, in the library's order
  std::string title;
  int largeSide = 0;  // of the large pictures, about
  int threads = 0;    // 0: one for each processor
  bool force = false;
};

// Wrong use for values that do not parse, or without one photograph and a folder.
[[nodiscard]] GalleryOptions ReadGalleryOptions(const ParsedArguments& arguments);

[[nodiscard]] std::span<const OptionRow> GalleryOptionRows();

// The whole of `tarnwick gallery --help`.
[[nodiscard]] std::string GalleryHelp();

}  // namespace tarnwick
