#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// Brings a wash's edge map to the render: fills `edgeSamples`, which keep what
// they hold where no stage puts anything.
class EdgeSampler {
 public:
  // For a stage that covers `width` x `height` of the render. Takes the samples'
  // memory if the layer has none. A map that is whole needs none, if the stage
  // covers everything and no later pass asks for the samples.
  // False, and nothing is put, for an inactive sampler: no map, no memory, or
  // nothing to do.
  EdgeSampler(EffectLayer& layer, const RenderState& state, int width, int height);
  EdgeSampler() = default;
  explicit operator bool() const { return samples_ != nullptr; }

  // The sample at column x for the rendered row `row`, with the origin already
  // in it, goes to (x, y). Beyond the picture the last row and column repeat.
  void Put(int x, int y, int row) { samples_[y * width_ + x] = At(x, row); }
  // The first `width` samples of rendered row y from the document row below it.
  void CopyRow(int y, int width);

 private:
  [[nodiscard]] std::uint8_t At(int x, int row) const;

  const RenderState* state_ = nullptr;
  const std::uint8_t* edge_ = nullptr;  // null: 255 everywhere
  std::uint8_t* samples_ = nullptr;
  std::ptrdiff_t stride_ = 0;
  int lastColumn_ = 0;
  int lastRow_ = 0;
  std::ptrdiff_t width_ = 0;
};

}  // namespace tarnwick
