#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// Takes `edgeSamples` if the layer has none; false without memory.
bool AllocateEdgeSamples(EffectLayer& layer, const RenderState& state);

// Where the samples of a rendered row come from.
class EdgeSampler {
 public:
  // A layer without an edge map or without samples is left alone.
  EdgeSampler(EffectLayer& layer, const RenderState& state);
  explicit operator bool() const { return edge_ != nullptr && samples_ != nullptr; }

  // Sample of rendered column x for the rendered row `row` (with the origin
  // already in it), at the document pixel below it. Beyond the picture the last
  // row and column repeat.
  [[nodiscard]] std::uint8_t At(int x, int row) const;
  void Put(int x, int y, int row) { samples_[y * width_ + x] = At(x, row); }
  // The first `width` samples of rendered row y from the document row below it.
  void CopyRow(int y, int width);

 private:
  const RenderState& state_;
  const std::uint8_t* edge_ = nullptr;
  std::uint8_t* samples_ = nullptr;
  std::ptrdiff_t stride_ = 0;
  int lastColumn_ = 0;
  int lastRow_ = 0;
  std::ptrdiff_t width_ = 0;
};

}  // namespace tarnwick
