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
  if (layer.working == nullptr || layer.activeCoverage == nullptr) return inputs;
  const RasterImage& texture = *layer.working;
  const RasterImage& coverage = *layer.activeCoverage;
  // The map has the texture's size, but for a pixel that the reduction rounds up:
  // there its margin is read, and looks depend on it.
  inputs.width = std::min({texture.Width(), state.renderWidth, coverage.Width() + coverage.margin});
  inputs.height =
      std::min({texture.Height(), state.renderHeight, coverage.Height() + coverage.margin});
  inputs.texture = {texture.PeekInterior(), texture.RowBytes()};
  const auto width = static_cast<std::size_t>(std::max(inputs.width, 1));
  if (layer.flatCoverage >= 0) {
    inputs.flatCoverage.assign(width, static_cast<std::uint8_t>(layer.flatCoverage));
    inputs.coverage = {inputs.flatCoverage.data(), 0};
  } else {
    inputs.coverage = {coverage.PeekInterior(), coverage.RowBytes()};
  }
  if (layer.samplesWhole) {
    inputs.wholeEdge.assign(width, 255);
    inputs.edge = {inputs.wholeEdge.data(), 0};
  } else if (layer.edgeSamples.Size() >= state.PixelCount()) {
    inputs.edge = {layer.edgeSamples.Data(), state.renderWidth};
  }
  return inputs;
}

}  // namespace tarnwick
