#include "picture_formats.h"

#include <algorithm>
#include <array>

#include "cli_error.h"
#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

// color, alpha, cmyk, manyPlanes, profile, lossy
constexpr std::array<PictureFormat, 17> kFormats = {{
    {"jpg", true, false, true, false, true, true},
    {"jpeg", true, false, true, false, true, true},
    {"jpe", true, false, true, false, true, true},
    {"png", true, true, false, false, true, false},
    {"tif", true, true, true, true, true, false},
    {"tiff", true, true, true, true, true, false},
    {"webp", true, true, false, false, true, true},
    {"avif", true, true, false, false, true, true},
    {"heic", true, true, false, false, true, true},
    {"jxl", true, true, false, false, true, true},
    {"jp2", true, true, false, false, false, true},
    {"gif", true, true, false, false, false, false},
    {"ppm", true, false, false, false, false, false},
    {"pnm", true, false, false, false, false, false},
    {"pgm", false, false, false, false, false, false},
    {"v", true, true, true, true, true, false},
    {"vips", true, true, true, true, true, false},
}};

}  // namespace

std::span<const PictureFormat> PictureFormats() {
  return kFormats;
}

const PictureFormat* FindFormat(std::string_view extension) {
  if (!extension.empty() && extension.front() == '.') extension.remove_prefix(1);
  const auto found = std::find_if(kFormats.begin(), kFormats.end(), [&](const PictureFormat& f) {
    return EqualIgnoringCase(f.extension, extension);
  });
  return found == kFormats.end() ? nullptr : &*found;
}

const PictureFormat& FormatOf(const std::filesystem::path& path, bool grey) {
  const std::string extension = path.extension().string();
  if (extension.empty()) {
    FailUse(path.string(), "has no extension that tells the picture format",
            "add one of " + FormatNames());
  }
  const PictureFormat* format = FindFormat(extension);
  if (format == nullptr) {
    FailUse(path.string(), "pictures cannot be written as \"" + extension + "\"",
            "use one of " + FormatNames());
  }
  if (!format->color && !grey) {
    FailUse(path.string(), "\"" + extension + "\" holds grey pictures only", "use .ppm");
  }
  return *format;
}

std::string FormatNames() {
  std::string names;
  for (const PictureFormat& format : kFormats) {
    names += (names.empty() ? "" : ", ") + std::string(format.extension);
  }
  return names;
}

}  // namespace tarnwick
