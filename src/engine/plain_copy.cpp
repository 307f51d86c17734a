#include "engine/plain_copy.h"

#include <algorithm>
#include <cstring>

#include "engine/edge_samples.h"

namespace tarnwick {
namespace {

std::ptrdiff_t RowStart(const RenderState& state, int y) {
  return static_cast<std::ptrdiff_t>(y) * state.renderRowBytes;
}

}  // namespace

void CopySourceToOutput(EffectLayers& layers, RenderState& state, const EffectSettings& settings) {
  if (!state.sourcePixels || !state.outputPixels) return;
  const bool hasWash = settings.WashUse != 0 || state.deferWash;
  EdgeSampler edges[2];
  for (std::size_t i = 0; i < 2; ++i) {
    EffectLayer& wash = layers.washes[i];
    if (!hasWash || wash.texture == nullptr || (i == 1 && settings.SecondWashExists == 0)) continue;
    edges[i] = EdgeSampler(wash, state, state.renderWidth, state.renderHeight);
  }
  ForRowsReporting(state.pool, &state.progress, state.renderHeight, [&](int top, int bottom) {
    for (int y = top; y < bottom; ++y) {
      std::memcpy(state.outputPixels.Data() + RowStart(state, y),
                  state.sourcePixels.Data() + RowStart(state, y),
                  static_cast<std::size_t>(state.renderRowBytes));
      for (EdgeSampler& edge : edges) edge.CopyRow(y, state.renderWidth);
    }
  });
}

void ResetOutputAlpha(RenderState& state) {
  if (!state.sourcePixels || !state.outputPixels) return;
  ForRows(state.pool, 0, state.renderHeight, [&](int top, int bottom) {
    for (int y = top; y < bottom; ++y) {
      const std::uint8_t* const source = state.sourcePixels.Data() + RowStart(state, y);
      std::uint8_t* const output = state.outputPixels.Data() + RowStart(state, y);
      if (!state.hasSelection) {
        for (int x = 0; x < state.renderWidth; ++x) output[4 * x + 3] = source[4 * x + 3];
        continue;
      }
      const std::uint8_t* const selection = state.selection + y * state.selectionRowBytes;
      for (int x = 0; x < state.renderWidth; ++x) {
        const float alpha =
            static_cast<float>(selection[x]) / 255.0F * static_cast<float>(source[4 * x + 3]);
        output[4 * x + 3] = static_cast<std::uint8_t>(static_cast<int>(alpha));
      }
    }
  });
}

void MergeSurfaceResult(RenderState& state) {
  const std::uint8_t* const result = state.SurfaceResult();
  std::uint8_t* const output = state.outputPixels.Data();
  if (result == nullptr || output == nullptr || !state.sourcePixels) return;
  if (!state.hasSelection) {
    // In a final render this is the same memory.
    if (result != output) std::memcpy(output, result, state.PixelCount() * 4);
    return;
  }
  ForRows(state.pool, 0, state.renderHeight, [&](int top, int bottom) {
    for (int y = top; y < bottom; ++y) {
      const std::uint8_t* const selection = state.selection + y * state.selectionRowBytes;
      const std::ptrdiff_t at = RowStart(state, y);
      for (int x = 0; x < state.renderWidth; ++x) {
        const float s = static_cast<float>(selection[x]) / 255.0F;
        for (int c = 0; c < 4; ++c) {
          const std::ptrdiff_t i = at + 4 * x + c;
          const float mixed = static_cast<float>(state.sourcePixels.Data()[i]) * (1.0F - s) +
                              static_cast<float>(result[i]) * s;
          output[i] = static_cast<std::uint8_t>(static_cast<int>(mixed));
        }
      }
    }
  });
}

}  // namespace tarnwick
