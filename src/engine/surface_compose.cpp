#include <algorithm>
#include <cmath>
#include <cstring>

#include "base/truncate.h"
#include "engine/edge_samples.h"
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

struct Surface {
  RenderState& state;
  const EffectSettings& settings;
  const EffectLayer& layer;  // whose size counts
  int width;
  int height;
};

std::uint8_t MixRows(int a, float f, int b, float g) {
  return static_cast<std::uint8_t>(
      TruncateToInt(static_cast<float>(a) * f + static_cast<float>(b) * g));
}

// Row y of the displaced picture into `out`; the row of the source that each
// pixel counts as goes to `rows`.
void DisplaceRow(const Surface& surface, const Perspective& perspective, int y, std::uint8_t* out,
                 int* rows) {
  const RenderState& state = surface.state;
  const std::uint8_t* const depth =
      state.depthMap.Data() + static_cast<std::ptrdiff_t>(y) * state.renderWidth;
  const int last = surface.height - 1;
  for (int x = 0; x < surface.width; ++x) {
    const float z = static_cast<float>(depth[x]) * perspective.factor;
    const int s = TruncateToInt(z);
    const auto wanted = std::int64_t{y} - s + perspective.lift;
    const int rowA = static_cast<int>(std::clamp<std::int64_t>(wanted, 0, last));
    const int rowB = std::min(rowA + 1, last);
    const float f = z - static_cast<float>(s);
    const float g = 1.0F - f;
    const std::uint8_t* const a = state.sourcePixels.Data() +
                                  static_cast<std::ptrdiff_t>(rowA) * state.renderRowBytes + 4 * x;
    const std::uint8_t* const b = state.sourcePixels.Data() +
                                  static_cast<std::ptrdiff_t>(rowB) * state.renderRowBytes + 4 * x;
    for (int c = 0; c < 4; ++c) out[4 * x + c] = MixRows(a[c], f, b[c], g);
    rows[x] = rowB;
  }
}

// The picture as it is, with the alpha that the output holds.
void TakeRow(const Surface& surface, int y, std::uint8_t* out) {
  const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(y) * surface.state.renderRowBytes;
  const std::uint8_t* const source = surface.state.sourcePixels.Data() + at;
  const std::uint8_t* const output = surface.state.outputPixels.Data() + at;
  for (int x = 0; x < surface.width; ++x) {
    out[4 * x] = source[4 * x];
    out[4 * x + 1] = source[4 * x + 1];
    out[4 * x + 2] = source[4 * x + 2];
    out[4 * x + 3] = output[4 * x + 3];
  }
}

SurfaceLook LookOf(const Surface& surface) {
  const RenderState& state = surface.state;
  SurfaceLook look;
  look.shade = ShadeLookOf(surface.settings, surface.layer.surfaceType);
  look.intensity = static_cast<float>(surface.settings.SurfaceIntensity) / 100.0F;
  look.entire = state.surfaceEntire;
  look.keepSave = state.keepSurfaceSave && state.surfaceSave;
  if (state.layerOutputMode == LayerOutputMode::kSurfaceAlone) {
    look.output = SurfaceOutput::kPure;
  } else if (state.layerOutputMode == LayerOutputMode::kSurfaceLeftOut) {
    look.output = SurfaceOutput::kSourceOnly;
  }
  return look;
}

}  // namespace

void ComposeSurface(EffectLayers& layers, RenderState& state, const EffectSettings& settings) {
  if (!state.surfaceStale) return;
  state.surfaceStale = false;
  if (layers.surfaces[0].working == nullptr) return;
  const bool secondAlone = state.previewMode && state.view == ViewMode::kSurfaceTwo;
  const EffectLayer& layer = layers.surfaces[secondAlone ? 1 : 0];
  std::uint8_t* const result = state.SurfaceResult();
  if (layer.working == nullptr || result == nullptr || !state.depthMap || !state.sourcePixels ||
      !state.outputPixels) {
    return;
  }
  const Surface surface{state, settings, layer, std::min(layer.working->Width(), state.renderWidth),
                        std::min(layer.working->Height(), state.renderHeight)};
  if (surface.width <= 0 || surface.height <= 0) return;

  state.surfaceEntire = settings.SurfaceEntire != 0;
  const SurfaceLook look = LookOf(surface);
  const SurfaceLight light = LightOf(settings, state.viewScale);
  const Perspective perspective(settings, state.viewScale);
  const bool displaces = settings.SurfacePerspectiveOn != 0;
  const bool hasWash = settings.WashUse != 0 || state.deferWash;
  EdgeSampler edges[2] = {EdgeSampler(layers.washes[0], state),
                          EdgeSampler(layers.washes[1], state)};
  const int washes = hasWash ? (settings.SecondWashExists != 0 ? 2 : 1) : 0;
  const auto surfaceRow = state.isa == Isa::kAvx2 ? SurfaceRowAvx2 : SurfaceRowPlain;

  ForRowsReporting(state.pool, &state.progress, surface.height, [&](int first, int last) {
    SurfaceScratch scratch(surface.width);
    std::vector<int> rows(static_cast<std::size_t>(surface.width));
    for (int y = first; y < last; ++y) {
      const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(y) * state.renderRowBytes;
      LightRow(light, state.depthMap.Data(), state.renderWidth, surface.width, surface.height, y,
               scratch.light.data());
      if (displaces) {
        DisplaceRow(surface, perspective, y, scratch.pixels.data(), rows.data());
      } else {
        TakeRow(surface, y, scratch.pixels.data());
      }
      std::uint8_t* const save = look.keepSave ? state.surfaceSave.Data() + at : nullptr;
      surfaceRow({&scratch, result + at, save, surface.width}, look);
      for (int i = 0; i < washes; ++i) {
        if (!edges[i]) continue;
        if (!displaces) {
          edges[i].CopyRow(y, surface.width);
          continue;
        }
        for (int x = 0; x < surface.width; ++x) {
          edges[i].Put(x, y, state.viewOriginY + rows[static_cast<std::size_t>(x)]);
        }
      }
    }
  });
}

}  // namespace tarnwick
