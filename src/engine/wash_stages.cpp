#include "engine/wash_stages.h"

#include <algorithm>

#include "engine/coverage.h"
#include "engine/wash_edge.h"
#include "engine/working_texture.h"

namespace tarnwick {

void RefreshWash(EffectLayer& layer, RenderState& state) {
  Progress& progress = state.progress;
  const int parts =
      (layer.coverageDirty ? 3 : 0) + (layer.textureDirty ? 2 : 1) + (layer.edgeDirty ? 1 : 0);
  const double part = progress.budget / parts;
  progress.budget = part;
  if (layer.textureDirty) {
    PrepareWorkingTexture(layer, state);
    progress.base += part;
  }
  if (layer.coverageDirty) {
    progress.budget = 3 * part;
    BuildCoverage(layer, state);
    progress.base += 3 * part;
    progress.budget = part;
  }
  if (layer.edgeDirty) {
    BuildEdgeMap(layer, state);
    progress.base += part;
  }
}

WashInputs InputsOf(const EffectLayer& layer, const RenderState& state) {
  WashInputs inputs;
  const auto usable = [](const ImagePtr& image) {
    return image != nullptr && image->PeekInterior() != nullptr ? image.get() : nullptr;
  };
  inputs.texture = usable(layer.working);
  inputs.coverage = usable(layer.activeCoverage);
  if (layer.edgeSamples.Size() >= state.PixelCount()) inputs.edge = layer.edgeSamples.Data();
  if (inputs.texture == nullptr || inputs.coverage == nullptr) return inputs;
  // The map has the texture's size, but for a pixel that the reduction rounds up:
  // there its margin is read, as it always was.
  const int spareX = inputs.coverage->Width() + inputs.coverage->margin;
  const int spareY = inputs.coverage->Height() + inputs.coverage->margin;
  inputs.width = std::min({inputs.texture->Width(), state.renderWidth, spareX});
  inputs.height = std::min({inputs.texture->Height(), state.renderHeight, spareY});
  return inputs;
}

}  // namespace tarnwick
