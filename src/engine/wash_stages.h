#pragma once
#include <vector>

#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// The steps that both kinds of wash render share.

// Working texture, coverage and edge map, as far as they are stale, each with
// its share of the progress. Leaves the base behind them and the budget at one
// share, for the composite.
void RefreshWash(EffectLayer& layer, RenderState& state);

// Rows of samples; a stride of 0 repeats one row.
struct SampleRows {
  const std::uint8_t* first = nullptr;  // null: cannot be had
  std::ptrdiff_t stride = 0;
  [[nodiscard]] const std::uint8_t* Row(int y) const { return first + y * stride; }
};

// What a composite reads, `width` x `height` samples of each.
struct WashInputs {
  SampleRows texture;
  SampleRows coverage;
  SampleRows edge;
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> flatCoverage;  // the one row of a flat map
  std::vector<std::uint8_t> wholeEdge;
};
[[nodiscard]] WashInputs InputsOf(const EffectLayer& layer, const RenderState& state);

}  // namespace tarnwick
