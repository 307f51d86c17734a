#include "engine/background_render.h"
#include "engine/background_row.h"

namespace tarnwick {
namespace {

bool ShowsOneEffect(ViewMode view) {
  return view == ViewMode::kWashOne || view == ViewMode::kWashTwo ||
         view == ViewMode::kSurfaceOne || view == ViewMode::kSurfaceTwo;
}

}  // namespace

void ComposeBackground(RenderState& state, const EffectSettings& settings, ViewMode view) {
  if (!state.backgroundPixels || !state.outputPixels || !state.sourcePixels) return;
  const bool fill = settings.BackgroundEntire != 0 && state.HasTransparency() &&
                    !(state.previewMode && ShowsOneEffect(view));
  const auto composeRow = state.isa == Isa::kAvx2 ? BackgroundRowAvx2 : BackgroundRowPlain;
  ForRowsReporting(state.pool, &state.progress, state.renderHeight, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(y) * state.renderRowBytes;
      composeRow({state.sourcePixels.Data() + at, state.backgroundPixels.Data() + at,
                  state.hasSelection ? state.selection + y * state.selectionRowBytes : nullptr,
                  state.outputPixels.Data() + at, state.renderWidth, fill});
    }
  });
}

}  // namespace tarnwick
