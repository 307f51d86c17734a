#include "engine/coverage.h"

#include <algorithm>
#include <cstring>

#include "base/truncate.h"
#include "engine/noise_fill.h"
#include "imaging/box_blur.h"
#include "imaging/fill.h"

namespace tarnwick {
namespace {

constexpr int kMargin = 3;
constexpr int kRimRadius = 2;

Rect CoverageBounds(const EffectLayer& layer, const RenderState& state) {
  if (!state.previewMode) return layer.texture->bounds;
  const auto along = [&](int renderSize, int textureSize) {
    return static_cast<int>(std::min(static_cast<float>(renderSize),
                                     static_cast<float>(textureSize) / state.viewScale));
  };
  return {0, 0, along(state.renderHeight, layer.texture->Height()),
          along(state.renderWidth, layer.texture->Width())};
}

// The whole texture spans the same number of noise cells in each direction,
// whatever its size.
NoiseWindow WindowOf(const EffectLayer& layer, const RenderState& state) {
  double period = layer.noisePeriod;
  if (state.previewMode) period /= static_cast<double>(state.viewScale);
  const double cells = 256 / std::clamp(period, 8.0, 256.0);
  NoiseWindow window;
  window.seed = static_cast<std::uint32_t>(layer.seed);
  if (state.previewMode) {
    window.stepX = cells / layer.texture->Width();
    window.stepY = cells / layer.texture->Height();
    window.firstX = state.viewOriginX * window.stepX;
    window.firstY = state.viewOriginY * window.stepY;
  } else {
    window.stepX = cells / layer.noiseMap->StorageWidth();
    window.stepY = cells / layer.noiseMap->StorageHeight();
  }
  return window;
}

// The coverage of each noise value, for `keep` = 100 - coverage.
std::array<std::uint8_t, 256> ThresholdTable(int keep) {
  std::array<std::uint8_t, 256> table{};
  const int threshold = TruncateToInt(static_cast<float>(keep) * 2.55F);
  for (int n = 0; n < 256; ++n) {
    std::uint8_t& entry = table[static_cast<std::size_t>(n)];
    if (keep <= 100) {
      entry = n > threshold ? 0 : 255;
    } else {
      const auto c = static_cast<float>(keep);
      const float soft =
          static_cast<float>(128 - n) * (c / 100.0F) + (c - 150.0F) / -50.0F * 255.0F + 127.0F;
      entry = static_cast<std::uint8_t>(std::clamp(TruncateToInt(soft), 0, 255));
    }
  }
  return table;
}

// A final render reads the interior alone, which a rim of two pixels in a margin
// of three never reaches: one value stands for the whole map. A preview's
// texture may be a pixel larger than the map and reads its margin.
void MakeFlat(EffectLayer& layer, std::uint8_t value) {
  layer.coverageMap->Release();
  layer.flatCoverage = value;
}

// Fresh maps for the present texture and window; the noise is not filled yet.
void MakeMaps(EffectLayer& layer, const RenderState& state) {
  const Rect bounds = CoverageBounds(layer, state);
  layer.noiseMap = MakeGrayImage(bounds, kMargin);
  layer.coverageMap = MakeGrayImage(bounds, kMargin);
  layer.activeCoverage = nullptr;
  layer.flatCoverage = -1;
  layer.noiseWindow = WindowOf(layer, state);
  layer.noisePending = true;
}

bool SameSize(const RasterImage& a, const RasterImage& b) {
  return a.Width() == b.Width() && a.Height() == b.Height();
}

// Every byte of the noise through the table, and the soft rim. Without memory
// there is no map.
void Threshold(EffectLayer& layer, RenderState& state, int keep) {
  if (layer.coverageMap == nullptr || layer.noiseMap == nullptr) return;
  // A full map may have been made for another window than the noise.
  if (!SameSize(*layer.coverageMap, *layer.noiseMap)) {
    if (layer.texture == nullptr) return;
    MakeMaps(layer, state);
  }
  const std::array<std::uint8_t, 256> table = ThresholdTable(keep);
  const bool flat = std::all_of(table.begin(), table.end(),
                                [&](std::uint8_t entry) { return entry == table[0]; });
  layer.flatCoverage = -1;
  if (flat && !state.previewMode) return MakeFlat(layer, table[0]);
  std::uint8_t* const out = layer.coverageMap->Pixels();
  if (out == nullptr || (!flat && !EnsureNoise(layer, state))) {
    layer.coverageMap = nullptr;
    return;
  }
  if (flat) {
    std::memset(out, table[0], layer.coverageMap->store.bytes);
  } else {
    const std::uint8_t* const noise = layer.noiseMap->PeekPixels();
    const int stride = static_cast<int>(layer.coverageMap->RowBytes());
    ForRows(state.pool, 0, layer.coverageMap->StorageHeight(), [&](int first, int last) {
      const auto end = static_cast<std::ptrdiff_t>(last) * stride;
      for (auto i = static_cast<std::ptrdiff_t>(first) * stride; i < end; ++i) {
        out[i] = table[noise[i]];
      }
    });
  }
  // Without the frame the blur would darken whole rows.
  ClearFrame(*layer.coverageMap, 1);
  (void)BoxBlur(*layer.coverageMap, kRimRadius, state.pool);
}

void FillWithFullMap(EffectLayer& layer, const RenderState& state) {
  layer.coverageMap = nullptr;
  layer.activeCoverage = nullptr;
  if (layer.texture != nullptr) {
    layer.coverageMap = MakeGrayImage(CoverageBounds(layer, state), kMargin);
    layer.flatCoverage = -1;
    if (!state.previewMode) {
      MakeFlat(layer, 255);
    } else if (!FillImage(*layer.coverageMap, kWhiteFill, state.colorServices)) {
      layer.coverageMap = nullptr;
    }
  }
  layer.activeCoverage = layer.coverageMap;
}

}  // namespace

void SetCoverageScale(EffectLayer& layer, int value) {
  if (layer.kind != LayerKind::kWash) return;
  layer.coverageScale = value;
  layer.coverageDirty = true;
  layer.noisePeriod = ((256.0 - 8.0) + 8.0 - 0.0) * value / 200.0 + 0.0;
}

void SetSeed(EffectLayer& layer, int value) {
  if (layer.kind != LayerKind::kWash) return;
  if (value == layer.seed && layer.noiseMap != nullptr) return;
  layer.seed = value;
  layer.coverageDirty = true;
}

void SetCoverage(EffectLayer& layer, RenderState& state, int value) {
  if (layer.kind != LayerKind::kWash || value == layer.coverage) return;
  const auto keep =
      static_cast<int>(std::clamp<std::int64_t>(std::int64_t{100} - value, INT32_MIN, INT32_MAX));
  layer.coverage = keep;
  if (keep == 100 || layer.noiseMap == nullptr) {
    layer.coverageDirty = true;
    BuildCoverage(layer, state);
  }
  Threshold(layer, state, keep);
  layer.coverage = value;
  layer.activeCoverage = layer.coverageMap;
}

void BuildCoverage(EffectLayer& layer, RenderState& state) {
  if (layer.kind != LayerKind::kWash || !layer.coverageDirty) return;
  if (layer.coverage == 100 && layer.noiseMap != nullptr) {
    FillWithFullMap(layer, state);
    layer.coverageDirty = false;
    return;
  }
  layer.coverageDirty = false;
  if (layer.texture == nullptr) return;
  MakeMaps(layer, state);
  // The complement makes the value count as changed.
  const int coverage = layer.coverage;
  layer.coverage = ~coverage;
  SetCoverage(layer, state, coverage);
  layer.coverageDirty = false;
}

bool EnsureNoise(EffectLayer& layer, RenderState& state) {
  if (layer.noiseMap == nullptr) return false;
  if (!layer.noisePending) return layer.noiseMap->PeekPixels() != nullptr;
  if (!FillNoise(*layer.noiseMap, layer.noiseWindow, &state.progress, state.pool, state.isa)) {
    return false;
  }
  layer.noisePending = false;
  return true;
}

}  // namespace tarnwick
