#include <algorithm>
#include <cmath>
#include <vector>

#include "base/truncate.h"
#include "engine/edge_samples.h"
#include "engine/height_rows.h"
#include "engine/surface_light.h"
#include "engine/surface_render.h"
#include "engine/surface_row.h"

namespace tarnwick {
namespace {

// The vertical displacement of "Apply depth perspective to image".
struct Perspective {
  float factor = 0;  // rows for a height of 1
  int lift = 0;      // keeps the middle height in place

  Perspective(const EffectSettings& settings, float viewScale) {
    factor = std::sqrt(GoverningDepth(settings) / 100.0F) * 150.0F / viewScale / 1000.0F;
    lift = TruncateToInt(factor * 127.0F);
  }
};

// The part of the render that the surface covers.
struct Area {
  int width;
  int height;
};

std::uint8_t MixRows(int a, float f, int b, float g) {
  return static_cast<std::uint8_t>(
      TruncateToInt(static_cast<float>(a) * f + static_cast<float>(b) * g));
}

// Row y of the displaced picture into `out`; the row of the source that each
// pixel counts as goes to `rows`.
void DisplaceRow(const RenderState& state, const Area& area, const Perspective& perspective, int y,
                 const std::uint8_t* heights, std::uint8_t* out, int* rows) {
  const int last = area.height - 1;
  for (int x = 0; x < area.width; ++x) {
    const float z = static_cast<float>(heights[x]) * perspective.factor;
    const int s = TruncateToInt(z);
    const auto wanted = std::int64_t{y} - s + perspective.lift;
    const int rowA = static_cast<int>(std::clamp<std::int64_t>(wanted, 0, last));
    const int rowB = std::min(rowA + 1, last);
    const float f = z - static_cast<float>(s);
    const float g = 1.0F - f;
    const auto pixel = [&](int row) {
      return state.sourcePixels.Data() + static_cast<std::ptrdiff_t>(row) * state.renderRowBytes +
             4 * x;
    };
    const std::uint8_t* const a = pixel(rowA);
    const std::uint8_t* const b = pixel(rowB);
    for (int c = 0; c < 4; ++c) out[4 * x + c] = MixRows(a[c], f, b[c], g);
    rows[x] = rowB;
  }
}

// The picture as it is, with the alpha that the output holds.
void TakeRow(const RenderState& state, const Area& area, int y, std::uint8_t* out) {
  const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(y) * state.renderRowBytes;
  const std::uint8_t* const source = state.sourcePixels.Data() + at;
  const std::uint8_t* const output = state.outputPixels.Data() + at;
  for (int x = 0; x < area.width; ++x) {
    out[4 * x] = source[4 * x];
    out[4 * x + 1] = source[4 * x + 1];
    out[4 * x + 2] = source[4 * x + 2];
    out[4 * x + 3] = output[4 * x + 3];
  }
}

// Nothing without the first surface's texture, whichever is shown.
Area CoveredArea(const EffectLayers& layers, const EffectLayer& layer, const RenderState& state) {
  if (layers.surfaces[0].working == nullptr || layer.working == nullptr ||
      layer.working->PeekInterior() == nullptr) {
    return {0, 0};
  }
  return {std::min(layer.working->Width(), state.renderWidth),
          std::min(layer.working->Height(), state.renderHeight)};
}

SurfaceLook LookOf(const RenderState& state, const EffectSettings& settings, std::uint8_t type) {
  SurfaceLook look;
  look.shade = ShadeLookOf(settings, type);
  look.intensity = static_cast<float>(settings.SurfaceIntensity) / 100.0F;
  look.entire = state.surfaceEntire;
  look.keepSave = state.keepSurfaceSave;
  if (state.layerOutputMode == LayerOutputMode::kSurfaceAlone) {
    look.output = SurfaceOutput::kPure;
  } else if (state.layerOutputMode == LayerOutputMode::kSurfaceLeftOut) {
    look.output = SurfaceOutput::kSourceOnly;
  }
  return look;
}

}  // namespace

void ComposeSurface(EffectLayers& layers, RenderState& state, const EffectSettings& settings,
                    const ReliefHeights& heights) {
  if (!state.surfaceStale) return;
  state.surfaceStale = false;
  const bool secondAlone = state.previewMode && state.view == ViewMode::kSurfaceTwo;
  const EffectLayer& layer = layers.surfaces[secondAlone ? 1 : 0];
  const Area area = CoveredArea(layers, layer, state);
  // Made even if there is nothing to cover: a wash needs its samples, 0 then.
  EdgeSampler edges[2];
  if (settings.WashUse != 0 || state.deferWash) {
    edges[0] = EdgeSampler(layers.washes[0], state, area.width, area.height);
    if (settings.SecondWashExists != 0) {
      edges[1] = EdgeSampler(layers.washes[1], state, area.width, area.height);
    }
  }
  std::uint8_t* const result = state.SurfaceResult();
  if (area.width <= 0 || area.height <= 0 || result == nullptr || !state.sourcePixels ||
      !state.outputPixels) {
    return;
  }

  state.surfaceEntire = settings.SurfaceEntire != 0;
  const SurfaceLook look = LookOf(state, settings, layer.surfaceType);
  const SurfaceLight light = LightOf(settings, state.viewScale);
  const Perspective perspective(settings, state.viewScale);
  const bool displaces = settings.SurfacePerspectiveOn != 0;
  const auto surfaceRow = state.isa == Isa::kAvx2 ? SurfaceRowAvx2 : SurfaceRowPlain;

  ForRowsReporting(state.pool, &state.progress, area.height, [&](int first, int last) {
    std::vector<float> lit(static_cast<std::size_t>(area.width));
    std::vector<std::uint8_t> pixels(static_cast<std::size_t>(area.width) * 4);
    HeightRows relief(heights, area.width, area.height);
    std::vector<int> rows(displaces ? static_cast<std::size_t>(area.width) : 0);
    for (int y = first; y < last; ++y) {
      const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(y) * state.renderRowBytes;
      relief.MoveTo(y);
      LightRow(light, relief.Row(), relief.Next(), relief.NextIsAbove(), area.width, lit.data());
      if (displaces) {
        DisplaceRow(state, area, perspective, y, relief.Row(), pixels.data(), rows.data());
      } else {
        TakeRow(state, area, y, pixels.data());
      }
      std::uint8_t* const save =
          look.keepSave && state.surfaceSave ? state.surfaceSave.Data() + at : nullptr;
      surfaceRow({lit.data(), pixels.data(), result + at, save, area.width}, look);
      for (EdgeSampler& edge : edges) {
        if (!displaces) {
          edge.CopyRow(y, area.width);
        } else if (edge) {
          for (int x = 0; x < area.width; ++x) {
            edge.Put(x, y, state.viewOriginY + rows[static_cast<std::size_t>(x)]);
          }
        }
      }
    }
  });
}

}  // namespace tarnwick
