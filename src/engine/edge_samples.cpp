#include "engine/edge_samples.h"

#include <algorithm>
#include <cstring>

namespace tarnwick {

bool AllocateEdgeSamples(EffectLayer& layer, const RenderState& state) {
  if (layer.edgeSamples) return true;
  return layer.edgeSamples.Allocate(state.PixelCount());
}

EdgeSampler::EdgeSampler(EffectLayer& layer, const RenderState& state)
    : state_(state), width_(state.renderWidth) {
  if (layer.edgeMap == nullptr || layer.edgeSamples.Size() < state.PixelCount()) return;
  edge_ = layer.edgeMap->PeekInterior();
  samples_ = layer.edgeSamples.Data();
  stride_ = layer.edgeMap->RowBytes();
  lastColumn_ = layer.edgeMap->Width() - 1;
  lastRow_ = layer.edgeMap->Height() - 1;
}

std::uint8_t EdgeSampler::At(int x, int row) const {
  const auto column =
      static_cast<int>(static_cast<float>(state_.viewOriginX + x) * state_.viewScale);
  const auto line = static_cast<int>(static_cast<float>(row) * state_.viewScale);
  return edge_[std::clamp(line, 0, lastRow_) * stride_ + std::clamp(column, 0, lastColumn_)];
}

void EdgeSampler::CopyRow(int y, int width) {
  if (!*this) return;
  const int row = state_.viewOriginY + y;
  if (state_.viewScale == 1.0F && state_.viewOriginX + width <= lastColumn_ + 1) {
    const std::uint8_t* const from = edge_ + std::min(row, lastRow_) * stride_;
    std::memcpy(samples_ + y * width_, from + state_.viewOriginX, static_cast<std::size_t>(width));
    return;
  }
  for (int x = 0; x < width; ++x) Put(x, y, row);
}

}  // namespace tarnwick
