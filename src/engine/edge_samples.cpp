#include "engine/edge_samples.h"

#include <algorithm>
#include <cstring>

namespace tarnwick {

EdgeSampler::EdgeSampler(EffectLayer& layer, const RenderState& state, int width, int height)
    : state_(&state), width_(state.renderWidth) {
  const bool coversAll = width >= state.renderWidth && height >= state.renderHeight;
  const bool wasWhole = layer.samplesWhole;
  layer.samplesWhole = layer.edgeWhole && coversAll && !state.deferWash;
  if (layer.samplesWhole) return;
  if (!layer.edgeWhole) {
    if (layer.edgeMap == nullptr || layer.edgeMap->PeekInterior() == nullptr) return;
    edge_ = layer.edgeMap->PeekInterior();
    stride_ = layer.edgeMap->RowBytes();
    lastColumn_ = layer.edgeMap->Width() - 1;
    lastRow_ = layer.edgeMap->Height() - 1;
  }
  if (layer.edgeSamples.Size() != state.PixelCount() &&
      !layer.edgeSamples.Allocate(state.PixelCount())) {
    return;
  }
  samples_ = layer.edgeSamples.Data();
  // What this stage does not cover keeps what the last render had there.
  if (wasWhole) std::memset(samples_, 255, layer.edgeSamples.Size());
}

std::uint8_t EdgeSampler::At(int x, int row) const {
  if (edge_ == nullptr) return 255;
  const auto column =
      static_cast<int>(static_cast<float>(state_->viewOriginX + x) * state_->viewScale);
  const auto line = static_cast<int>(static_cast<float>(row) * state_->viewScale);
  return edge_[std::clamp(line, 0, lastRow_) * stride_ + std::clamp(column, 0, lastColumn_)];
}

void EdgeSampler::CopyRow(int y, int width) {
  if (!*this) return;
  std::uint8_t* const out = samples_ + y * width_;
  const int row = state_->viewOriginY + y;
  if (edge_ == nullptr) {
    std::memset(out, 255, static_cast<std::size_t>(width));
  } else if (state_->viewScale == 1.0F && state_->viewOriginX + width <= lastColumn_ + 1) {
    const std::uint8_t* const from = edge_ + std::min(row, lastRow_) * stride_;
    std::memcpy(out, from + state_->viewOriginX, static_cast<std::size_t>(width));
  } else {
    for (int x = 0; x < width; ++x) Put(x, y, row);
  }
}

}  // namespace tarnwick
