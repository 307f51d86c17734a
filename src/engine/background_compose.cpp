#include <algorithm>
#include <cstring>
#include <vector>

#include "engine/background_render.h"
#include "engine/background_row.h"

namespace tarnwick {
namespace {

bool ShowsOneEffect(ViewMode view) {
  return view == ViewMode::kWashOne || view == ViewMode::kWashTwo ||
         view == ViewMode::kSurfaceOne || view == ViewMode::kSurfaceTwo;
}

// Row y of the toned ground, black beyond the texture.
void ToneRow(const EffectLayer& layer, int y, int width, std::uint8_t* out) {
  int toned = 0;
  if (layer.working != nullptr && layer.working->PeekInterior() != nullptr &&
      y < std::min(layer.tonedHeight, layer.working->Height())) {
    toned = std::min({layer.tonedWidth, layer.working->Width(), width});
    const std::uint8_t* const in = layer.working->PeekInterior() + y * layer.working->RowBytes();
    for (int x = 0; x < toned; ++x) std::memcpy(out + 4 * x, layer.tones[in[x]].data(), 4);
  }
  std::memset(out + 4 * toned, 0, static_cast<std::size_t>(width - toned) * 4);
}

}  // namespace

void ComposeBackground(const EffectLayer& layer, RenderState& state, const EffectSettings& settings,
                       ViewMode view) {
  if (layer.texture == nullptr || !state.outputPixels || !state.sourcePixels) return;
  const bool fill = settings.BackgroundEntire != 0 && state.HasTransparency() &&
                    !(state.previewMode && ShowsOneEffect(view));
  const auto composeRow = state.isa == Isa::kAvx2 ? BackgroundRowAvx2 : BackgroundRowPlain;
  const int width = state.renderWidth;
  ForRowsReporting(state.pool, &state.progress, state.renderHeight, [&](int first, int last) {
    std::vector<std::uint8_t> ground(static_cast<std::size_t>(width) * 4);
    for (int y = first; y < last; ++y) {
      const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(y) * state.renderRowBytes;
      ToneRow(layer, y, width, ground.data());
      composeRow({state.sourcePixels.Data() + at, ground.data(),
                  state.hasSelection ? state.selection + y * state.selectionRowBytes : nullptr,
                  state.outputPixels.Data() + at, width, fill});
    }
  });
}

}  // namespace tarnwick
