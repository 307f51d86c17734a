#include "engine/wash_render.h"

#include <algorithm>
#include <vector>

#include "engine/wash_row.h"
#include "engine/wash_stages.h"
#include "settings/effect_settings.h"
#include "textures/texture_path.h"

namespace tarnwick {

bool HasTexture(const EffectLayer& layer, const RenderState& state) {
  return layer.texture != nullptr &&
         layer.fileName != TexturePath(state.textureFolder, kNoTextureName);
}

void RenderWash(EffectLayer& layer, RenderState& state) {
  if (!HasTexture(layer, state)) return;
  const ProgressShare whole(state.progress, state.progress.base, state.progress.budget);
  RefreshWash(layer, state);
  const WashInputs inputs = InputsOf(layer, state);
  if (inputs.texture.first == nullptr || inputs.coverage.first == nullptr ||
      inputs.edge.first == nullptr || !state.outputPixels) {
    return;
  }

  WashLook look;
  look.intensity = layer.intensity;
  look.inside = layer.inside != 0;
  look.type = layer.washType;
  std::copy(layer.stainColor.begin(), layer.stainColor.end(), look.stain);
  look.table = layer.intensityTable.data();
  look.identity = layer.intensityTable == EffectLayer::IdentityTable();
  const auto washRow = state.isa == Isa::kAvx2 ? WashRowAvx2 : WashRowPlain;
  const std::uint8_t* const save = state.keepSurfaceSave ? state.surfaceSave.Data() : nullptr;

  ForRowsReporting(state.pool, &state.progress, inputs.height, [&](int first, int last) {
    std::vector<float> strength(static_cast<std::size_t>(inputs.width));
    for (int y = first; y < last; ++y) {
      const std::ptrdiff_t pixels = static_cast<std::ptrdiff_t>(y) * state.renderRowBytes;
      WashRow row;
      row.texture = inputs.texture.Row(y);
      row.coverage = inputs.coverage.Row(y);
      row.edge = inputs.edge.Row(y);
      if (state.hasSelection) row.selection = state.selection + y * state.selectionRowBytes;
      if (save != nullptr) row.save = save + pixels;
      row.output = state.outputPixels.Data() + pixels;
      row.strength = strength.data();
      row.width = inputs.width;
      washRow(row, look);
    }
  });
}

}  // namespace tarnwick
