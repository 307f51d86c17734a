#include "engine/relief_heights.h"

#include <algorithm>
#include <cstring>

#include "base/truncate.h"

namespace tarnwick {
namespace {

std::uint8_t HeightByte(float value) {
  return static_cast<std::uint8_t>(static_cast<unsigned>(TruncateToInt(value)));
}

}  // namespace

ReliefHeights::Area ReliefHeights::AreaOf(const EffectLayer& layer, const RenderState& state) {
  if (layer.working == nullptr || layer.working->PeekInterior() == nullptr) return {};
  return {layer.working.get(), std::min(layer.working->Width(), state.renderWidth),
          std::min(layer.working->Height(), state.renderHeight)};
}

ReliefHeights::ReliefHeights(const EffectLayers& layers, const RenderState& state,
                             const EffectSettings& settings, bool firstActive, bool secondActive)
    : depth1_(static_cast<float>(settings.SurfaceDepth1) / 100.0F),
      depth2_(static_cast<float>(settings.SurfaceDepth2) / 100.0F) {
  if (firstActive) {
    single_ = AreaOf(layers.surfaces[0], state);
    if (secondActive && single_.image != nullptr) blended_ = AreaOf(layers.surfaces[1], state);
  } else if (secondActive) {
    single_ = AreaOf(layers.surfaces[1], state);
  }
  const float depth = firstActive ? depth1_ : depth2_;
  for (int i = 0; i < 256; ++i) {
    table_[static_cast<std::size_t>(i)] = HeightByte(static_cast<float>(i) * depth);
  }
}

void ReliefHeights::Row(int y, int width, std::uint8_t* out) const {
  const int covered = y < single_.height ? std::min(single_.width, width) : 0;
  std::memset(out + covered, 0, static_cast<std::size_t>(width - covered));
  if (covered == 0) return;
  const std::uint8_t* const in1 = single_.image->PeekInterior() + y * single_.image->RowBytes();
  const int both = y < blended_.height ? std::min(blended_.width, covered) : 0;
  if (both > 0) {
    const std::uint8_t* const in2 = blended_.image->PeekInterior() + y * blended_.image->RowBytes();
    float sum = depth1_ + depth2_;
    if (sum == 0.0F) sum = 1.0F;
    for (int x = 0; x < both; ++x) {
      const float mixed =
          (static_cast<float>(in1[x]) * depth1_ + static_cast<float>(in2[x]) * depth2_) / sum;
      out[x] = HeightByte(std::min(mixed, 255.0F));
    }
  }
  for (int x = both; x < covered; ++x) out[x] = table_[in1[x]];
}

}  // namespace tarnwick
