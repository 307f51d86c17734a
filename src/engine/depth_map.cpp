#include <algorithm>
#include <array>
#include <cstring>

#include "base/truncate.h"
#include "engine/surface_render.h"

namespace tarnwick {
namespace {

const RasterImage* WorkingOf(const EffectLayer& layer) {
  const ImagePtr& image = layer.working;
  return image != nullptr && image->PeekInterior() != nullptr ? image.get() : nullptr;
}

std::uint8_t HeightByte(float value) {
  return static_cast<std::uint8_t>(static_cast<unsigned>(TruncateToInt(value)));
}

struct Area {
  int width;
  int height;
};

Area SharedArea(const RasterImage& image, const RenderState& state) {
  return {std::min(image.Width(), state.renderWidth), std::min(image.Height(), state.renderHeight)};
}

void FillFromOne(const RasterImage& heights, float depth, RenderState& state) {
  std::array<std::uint8_t, 256> table{};
  for (int i = 0; i < 256; ++i) {
    table[static_cast<std::size_t>(i)] = HeightByte(static_cast<float>(i) * depth);
  }
  const Area area = SharedArea(heights, state);
  ForRows(state.pool, 0, area.height, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      const std::uint8_t* const in = heights.PeekInterior() + y * heights.RowBytes();
      std::uint8_t* const out =
          state.depthMap.Data() + static_cast<std::ptrdiff_t>(y) * state.renderWidth;
      for (int x = 0; x < area.width; ++x) out[x] = table[in[x]];
    }
  });
}

void BlendSecond(const RasterImage& one, const RasterImage& two, float d1, float d2,
                 RenderState& state) {
  const Area a = SharedArea(one, state);
  const Area b = SharedArea(two, state);
  const int width = std::min(a.width, b.width);
  float sum = d1 + d2;
  if (sum == 0.0F) sum = 1.0F;
  ForRows(state.pool, 0, std::min(a.height, b.height), [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      const std::uint8_t* const in1 = one.PeekInterior() + y * one.RowBytes();
      const std::uint8_t* const in2 = two.PeekInterior() + y * two.RowBytes();
      std::uint8_t* const out =
          state.depthMap.Data() + static_cast<std::ptrdiff_t>(y) * state.renderWidth;
      for (int x = 0; x < width; ++x) {
        const float both =
            (static_cast<float>(in1[x]) * d1 + static_cast<float>(in2[x]) * d2) / sum;
        out[x] = HeightByte(std::min(both, 255.0F));
      }
    }
  });
}

}  // namespace

void BuildDepthMap(EffectLayers& layers, RenderState& state, const EffectSettings& settings,
                   bool firstActive, bool secondActive) {
  state.surfaceStale = true;
  if (!state.depthMap) return;
  const float d1 = static_cast<float>(settings.SurfaceDepth1) / 100.0F;
  const float d2 = static_cast<float>(settings.SurfaceDepth2) / 100.0F;
  const RasterImage* const first = WorkingOf(layers.surfaces[0]);
  const RasterImage* const second = WorkingOf(layers.surfaces[1]);
  if (!firstActive) {
    if (second == nullptr) return;
    if (!secondActive) {
      std::memset(state.depthMap.Data(), 0, state.depthMap.Size());
      return;
    }
    FillFromOne(*second, d2, state);
    return;
  }
  if (first == nullptr) return;
  FillFromOne(*first, d1, state);
  if (secondActive && second != nullptr) BlendSecond(*first, *second, d1, d2, state);
}

}  // namespace tarnwick
