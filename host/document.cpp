#include "host/document.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace tarnwick::testhost {

int ColorPlanes(int mode) {
  if (mode == host::plugInModeRGBColor || mode == host::plugInModeRGB48) return 3;
  return mode == host::plugInModeCMYKColor || mode == host::plugInModeCMYK64 ? 4 : 1;
}

void SetMode(Document& document, const std::string& name) {
  static const std::map<std::string, int> kModes = {
      {"rgb", host::plugInModeRGBColor},   {"cmyk", host::plugInModeCMYKColor},
      {"grey", host::plugInModeGrayScale}, {"indexed", host::plugInModeIndexedColor},
      {"rgb48", host::plugInModeRGB48},    {"cmyk64", host::plugInModeCMYK64},
  };
  const auto found = kModes.find(name);
  if (found == kModes.end()) throw std::runtime_error("there is no mode " + name);
  document.mode = found->second;
  document.depth = name == "rgb48" || name == "cmyk64" ? 16 : 8;
}

host::VRect SelectionBounds(const Document& document) {
  host::VRect bounds{document.height, document.width, 0, 0};
  for (int y = 0; y < document.height; ++y) {
    for (int x = 0; x < document.width; ++x) {
      if (document.selection[static_cast<std::size_t>(y * document.width + x)] == 0) continue;
      bounds = {std::min(bounds.top, y), std::min(bounds.left, x), std::max(bounds.bottom, y + 1),
                std::max(bounds.right, x + 1)};
    }
  }
  return bounds.bottom <= bounds.top ? document.Bounds() : bounds;
}

std::uint8_t PlaneFill(const Document& document, int plane, int x, int y) {
  const int colors = ColorPlanes(document.mode);
  // In CMYK the fourth plane is the black: none. Then transparency and mask.
  if (plane < colors + 2) return 255;
  return static_cast<std::uint8_t>(x * 3 + y * 7 + plane * 31);
}

}  // namespace tarnwick::testhost
