#include <algorithm>

#include "engine/wash_render.h"
#include "engine/wash_stages.h"

namespace tarnwick {
namespace {

// What the wash leaves of a mask pixel: 255 all, 0 nothing. Always through the
// table, so a strength above 100 takes its curve here.
float MaskStrength(const EffectLayer& layer, const RenderState& state, const WashInputs& inputs,
                   bool useEdge, int x, int y) {
  const float m = static_cast<float>(inputs.coverage.Row(y)[x]) / 255.0F;
  float e = 255.0F;
  if (useEdge) {
    e = inputs.edge.Row(y)[x];
    if (layer.inside == 0) e = 255.0F - e;
  }
  float a = e / 255.0F * m;
  if (state.hasSelection) {
    a = a * static_cast<float>(state.selection[y * state.selectionRowBytes + x]) / 255.0F;
  }
  const float b = a * static_cast<float>(inputs.texture.Row(y)[x]) + (1.0F - a) * 255.0F;
  return layer.intensityTable[static_cast<std::uint8_t>(static_cast<int>(b))];
}

// Puts the pure surface under the pixel where the wash eats; the new strength.
float SaveThroughPixel(std::uint8_t* pixel, const std::uint8_t* save, float v) {
  v = v * static_cast<float>(pixel[3]) / 255.0F;
  const float f = v / 255.0F;
  for (int c = 0; c < 3; ++c) {
    const float mixed = static_cast<float>(save[c]) * (1.0F - f) + static_cast<float>(pixel[c]) * f;
    pixel[c] =
        v == 0.0F ? save[c] : static_cast<std::uint8_t>(static_cast<int>(std::min(mixed, 255.0F)));
  }
  pixel[3] = 255;
  return std::max(v, static_cast<float>(save[3]));
}

}  // namespace

void RenderWashToMask(EffectLayer& layer, RenderState& state, const MaskTarget& target) {
  if (!HasTexture(layer, state)) return;
  if (target.planes < (state.isCmyk ? 6 : 5) || target.pixels == nullptr) return;
  const ProgressShare whole(state.progress, state.progress.base, state.progress.budget);
  RefreshWash(layer, state);

  WashInputs inputs = InputsOf(layer, state);
  const bool useEdge = layer.edgeDistanceSquared != 0 || layer.edgeBlurRadius != 0;
  if (inputs.texture.first == nullptr || inputs.coverage.first == nullptr ||
      (useEdge && inputs.edge.first == nullptr)) {
    return;
  }
  const int width = std::min(inputs.width, target.width);
  const int height = std::min(inputs.height, target.height);
  const std::uint8_t* const save =
      state.keepSurfaceSave && state.surfaceSave.Size() >= state.PixelCount() * 4
          ? state.surfaceSave.Data()
          : nullptr;
  ForRowsReporting(state.pool, &state.progress, height, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      std::uint8_t* pixel = target.pixels + y * target.rowBytes;
      for (int x = 0; x < width; ++x, pixel += target.planes) {
        float v = MaskStrength(layer, state, inputs, useEdge, x, y);
        if (save != nullptr) {
          const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(y) * state.renderRowBytes + 4 * x;
          v = SaveThroughPixel(pixel, save + at, v);
        }
        std::uint8_t& mask = pixel[target.planes - 1];
        mask = static_cast<std::uint8_t>(static_cast<int>(std::min(static_cast<float>(mask), v)));
      }
    }
  });
}

}  // namespace tarnwick
