#pragma once
#include <array>
#include <cstdint>
#include <string>

#include "base/page_buffer.h"
#include "imaging/raster_image.h"

namespace tarnwick {

enum class LayerKind : std::uint8_t { kWash = 0, kBackground = 1, kSurface = 2 };

// Red, green, blue.
using LayerColor = std::array<std::uint8_t, 3>;

// Where the noise of a wash is sampled; see coverage.h.
struct NoiseWindow {
  std::uint32_t seed = 0;
  double stepX = 0;
  double stepY = 0;
  double firstX = 0;
  double firstY = 0;
};

// Red, green, blue, alpha of each grey of a background's texture.
using ToneTable = std::array<std::array<std::uint8_t, 4>, 256>;

// All that one effect needs between renders: its texture, its masks, its tone
// table and what of these is stale. A plain record; a kind uses the fields that
// are marked with its letter (W wash, B background, S surface), all kinds those
// without.
//
// Owns   its images and buffers. `activeCoverage` is a second name for
//        `coverageMap`, and `working` one for `texture` in a final render.
// Units  document pixels for sizes and offsets, degrees for angles, percent for
//        levels and depths.
struct EffectLayer {
  LayerKind kind = LayerKind::kWash;
  std::string fileName;  // with its folder
  // As the file states them, before scaling; 1000 for a missing file.
  std::int32_t textureWidth = 0;
  std::int32_t textureHeight = 0;
  // Where the picture's corner lies on the scaled texture.
  std::int32_t offsetX = 0;
  std::int32_t offsetY = 0;
  Rect documentBounds;  // W

  ImagePtr texture;         // at document scale, inverted, flipped and turned
  ImagePtr working;         // what the stages read; plane 0
  ImagePtr noiseMap;        // W: fractal noise, margin 3; see EnsureNoise
  ImagePtr coverageMap;     // W: thresholded and softened noise, margin 3; see flatCoverage
  ImagePtr activeCoverage;  // W: the map that the wash reads
  ImagePtr selectionMap;    // W: selection or transparency, document size, margin 1
  ImagePtr edgeMap;         // W: the same, eaten back and blurred
  // W: edgeMap at render size, renderWidth samples a row.
  PageBuffer<std::uint8_t> edgeSamples;
  // W: squared distance to the selection's edge, over the storage of
  // selectionMap; empty until a distance or a softness asks for it.
  PageBuffer<std::int32_t> distanceField;
  std::int32_t maxDistanceSquared = 0;  // W; with distanceField
  NoiseWindow noiseWindow;              // W
  bool noisePending = false;            // W: noiseMap is not filled yet
  // Maps that are the same everywhere need no memory. W: the one value of the
  // interior of coverageMap, or -1; selectionMap, edgeMap and edgeSamples that
  // are 255 throughout and have no pixels.
  std::int32_t flatCoverage = -1;
  bool selectionWhole = false;
  bool edgeWhole = false;
  bool samplesWhole = false;
  // B: the tones of the last tone pass, and the part of the render they cover.
  ToneTable tones{};
  std::int32_t tonedWidth = 0;
  std::int32_t tonedHeight = 0;

  double effectiveScale = 0;             // from the file's size to the document
  double scaleSetting = 0;               // the slider, 0..200
  double noisePeriod = 0;                // W: 256 / noisePeriod cells across the texture
  std::int32_t coverage = 0;             // W
  std::int32_t coverageScale = 100;      // W
  std::int32_t intensity = 100;          // W
  std::int32_t edgeDistance = 0;         // W
  std::int32_t edgeDistanceSquared = 0;  // W: derived threshold
  std::int32_t edgeSoftness = 0;         // W: 0..200
  std::int32_t edgeBlurRadius = 0;       // W: derived
  std::int32_t surfaceDepth = 0;         // S
  LayerColor stainColor{};               // W
  std::uint8_t washType = 0;             // W: see wash_types.h
  std::uint8_t surfaceType = 0;          // S: see surface_types.h
  std::uint8_t perspective = 0;          // S
  float lightAlpha = 0;                  // S
  float lightBeta = 0;                   // S
  std::int32_t inside = 1;               // W: 0 turns the edge map round
  std::int32_t seed = 123;               // W
  std::array<std::uint8_t, 256> intensityTable = IdentityTable();
  std::int32_t intensityParameter = 0;
  std::uint8_t washEnabled = 0;  // W
  std::uint8_t invert = 0;
  std::uint8_t flipVertical = 0;    // mirrors left to right
  std::uint8_t flipHorizontal = 0;  // top and bottom change places
  std::int32_t angle = 0;
  std::uint8_t backgroundEnabled = 0;  // B
  std::uint8_t surfaceEnabled = 0;     // S

  bool textureDirty = true;   // `working` must be rebuilt
  bool coverageDirty = true;  // W: noise and coverage must be rebuilt
  bool edgeDirty = true;      // W: edgeMap must be rebuilt
  bool toneDirty = false;     // B: `tones` must be rebuilt

  float highlightLevel = 0;     // S, B
  float midtoneLevel = 0;       // S, B
  float shadowLevel = 0;        // S, B
  LayerColor highlightColor{};  // S, B
  LayerColor midtoneColor{};    // S, B
  LayerColor shadowColor{};     // S, B

  [[nodiscard]] static std::array<std::uint8_t, 256> IdentityTable() {
    std::array<std::uint8_t, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) table[i] = static_cast<std::uint8_t>(i);
    return table;
  }
};

// Red in the low byte, then green, then blue.
[[nodiscard]] inline LayerColor ColorOfWord(std::uint32_t word) {
  return {static_cast<std::uint8_t>(word), static_cast<std::uint8_t>(word >> 8),
          static_cast<std::uint8_t>(word >> 16)};
}

// The five layers of a run.
struct EffectLayers {
  std::array<EffectLayer, 2> washes;
  EffectLayer background;
  std::array<EffectLayer, 2> surfaces;
};

}  // namespace tarnwick
