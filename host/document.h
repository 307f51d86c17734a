#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "host_interface/host_types.h"

namespace tarnwick::testhost {

struct Layer {
  std::string name;
  bool visible = true;
  // Colours, then transparency, layer mask and channels of no meaning, as far as
  // there are so many.
  int planes = 0;
  std::vector<std::uint8_t> samples;   // interleaved, rows without padding
  std::vector<std::uint8_t> original;  // as it was opened
};

// A picture in memory.
//
// Samples  1 byte, or 2 (low byte first) with a depth of 16. Those of a CMYK
//          picture are inverted: 0 is full ink.
// Layers   from the bottom up, all of the picture's size.
struct Document {
  int mode = host::plugInModeRGBColor;
  int depth = 8;
  int width = 0;
  int height = 0;
  std::vector<Layer> layers;
  std::size_t target = 0;
  std::vector<std::uint8_t> selection;  // a byte a pixel; empty: none
  host::VRect filterRect{};             // the selection's bounds, or everything

  [[nodiscard]] int SampleBytes() const { return depth == 16 ? 2 : 1; }
  [[nodiscard]] std::size_t RowBytes(const Layer& layer) const {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(layer.planes * SampleBytes());
  }
  [[nodiscard]] host::VRect Bounds() const { return {0, 0, height, width}; }
  [[nodiscard]] Layer& Target() { return layers.at(target); }
};

// Channels that carry colour: 3, 4 or 1.
[[nodiscard]] int ColorPlanes(int mode);

// The mode that a scenario calls "rgb", "cmyk", "grey", "indexed", "rgb48" or
// "cmyk64"; sets the depth too. Throws std::runtime_error.
void SetMode(Document& document, const std::string& name);

// The smallest rectangle around all that is selected; everything if nothing is.
[[nodiscard]] host::VRect SelectionBounds(const Document& document);

// What planes hold that no file has filled: opaque, shown, then a pattern.
[[nodiscard]] std::uint8_t PlaneFill(const Document& document, int plane, int x, int y);

}  // namespace tarnwick::testhost
