#include "engine/wash_edge.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "base/truncate.h"
#include "engine/distance_field.h"
#include "imaging/box_blur.h"
#include "imaging/fill.h"

namespace tarnwick {
namespace {

constexpr int kMargin = 1;

// The deepest distance plus 1, in 32 bits.
float Depth(const EffectLayer& layer) {
  return static_cast<float>(std::sqrt(static_cast<double>(layer.maxDistanceSquared))) + 1.0F;
}

// In a whole selection the nearest edge is the nearest side of the frame, and no
// field is needed: this gives its largest distance.
std::int32_t DeepestInFrame(const RasterImage& map) {
  const int deepest = (std::min(map.StorageWidth(), map.StorageHeight()) - 1) / 2;
  return deepest * deepest;
}

// The distance field, or at least its maximum; false where there is nothing to
// measure.
bool EnsureDistances(EffectLayer& layer) {
  if (layer.distanceField) return true;
  if (layer.selectionWhole && layer.selectionMap != nullptr) {
    layer.maxDistanceSquared = DeepestInFrame(*layer.selectionMap);
    return true;
  }
  if (layer.selectionMap == nullptr) return false;
  return BuildDistanceField(*layer.selectionMap, layer.distanceField, layer.maxDistanceSquared);
}

// White, but for what lies nearer to the frame than the threshold.
void EatFrame(RasterImage& map, std::int32_t leastSquared) {
  const int width = map.StorageWidth();
  const int height = map.StorageHeight();
  const auto farEnough = [&](int distance) {
    // The frame itself is never selected.
    return distance > 0 && std::int64_t{distance} * distance >= leastSquared;
  };
  int first = 0;
  while (first < width && !farEnough(first)) ++first;
  const int count = width - 2 * first;
  if (count <= 0) return;
  for (int y = 0; y < height; ++y) {
    if (!farEnough(std::min(y, height - 1 - y))) continue;
    std::memset(map.Pixels() + y * map.RowBytes() + first, 255, static_cast<std::size_t>(count));
  }
}

void EatSelection(EffectLayer& layer, const RenderState& state) {
  const std::uint8_t* const selection = layer.selectionMap->PeekPixels();
  const std::int32_t* const distances = layer.distanceField.Data();
  const std::int32_t least = layer.edgeDistanceSquared;
  std::uint8_t* const out = layer.edgeMap->Pixels();
  const auto stride = layer.edgeMap->RowBytes();
  ForRows(state.pool, 0, layer.edgeMap->StorageHeight(), [&](int first, int last) {
    for (std::ptrdiff_t i = first * stride; i < last * stride; ++i) {
      const bool inside = selection[i] != 0 && (least == 0 || distances[i] >= least);
      out[i] = inside ? 255 : 0;
    }
  });
}

void CopySelectionPlane(RasterImage& map, const RenderState& state) {
  std::uint8_t* const out = map.Interior();
  for (int y = 0; y < map.Height(); ++y) {
    std::memcpy(out + y * map.RowBytes(),
                state.selectionPlane + static_cast<std::ptrdiff_t>(y) * state.documentWidth,
                static_cast<std::size_t>(map.Width()));
  }
}

}  // namespace

void SetEdgeDistance(EffectLayer& layer, int value) {
  if (layer.kind != LayerKind::kWash) return;
  layer.edgeDistance = value;
  layer.edgeDirty = true;
  if (value != 0) (void)EnsureDistances(layer);
  const int distance =
      TruncateToInt(static_cast<double>(Depth(layer) * static_cast<float>(value)) / 100.0);
  layer.edgeDistanceSquared = static_cast<std::int32_t>(static_cast<std::uint32_t>(distance) *
                                                        static_cast<std::uint32_t>(distance));
}

void SetEdgeSoftness(EffectLayer& layer, int value) {
  if (layer.kind != LayerKind::kWash) return;
  value = std::clamp(value, 0, 200);
  layer.edgeSoftness = value;
  layer.edgeDirty = true;
  if (layer.selectionMap == nullptr) {
    layer.edgeBlurRadius = value;
    return;
  }
  if (value != 0) (void)EnsureDistances(layer);
  layer.edgeBlurRadius =
      TruncateToInt(static_cast<double>(Depth(layer) * static_cast<float>(value)) / 200.0) / 2;
}

void BuildSelectionMap(EffectLayer& layer, RenderState& state) {
  if (layer.kind != LayerKind::kWash) return;
  layer.documentBounds = {0, 0, state.documentHeight, state.documentWidth};
  layer.distanceField.Free();
  layer.maxDistanceSquared = 0;
  layer.edgeDirty = true;
  layer.selectionMap = MakeGrayImage(layer.documentBounds, kMargin);
  layer.selectionWhole =
      state.selectionPlane == nullptr || !(state.hasSelection || state.HasTransparency());
  if (layer.selectionWhole) return;
  if (layer.selectionMap->Pixels() == nullptr) {
    layer.selectionMap = nullptr;
    return;
  }
  CopySelectionPlane(*layer.selectionMap, state);
  ClearFrame(*layer.selectionMap, kMargin);
}

void BuildEdgeMap(EffectLayer& layer, RenderState& state) {
  if (layer.kind != LayerKind::kWash || layer.texture == nullptr || !layer.edgeDirty) return;
  layer.edgeDirty = false;
  layer.edgeMap = nullptr;
  layer.edgeWhole =
      layer.selectionWhole && layer.edgeDistanceSquared == 0 && layer.edgeBlurRadius == 0;
  if (layer.edgeWhole) return;
  layer.edgeMap = MakeGrayImage(layer.documentBounds, kMargin);
  if (layer.edgeMap->Pixels() == nullptr) {
    layer.edgeMap = nullptr;
    return;
  }
  // A threshold of 0 stops nothing, whatever the distances are.
  const bool measured = layer.edgeDistanceSquared == 0 || EnsureDistances(layer);
  if (layer.selectionMap == nullptr || !measured) {
    (void)FillImage(*layer.edgeMap, kWhiteFill, state.colorServices);
  } else if (layer.selectionWhole) {
    EatFrame(*layer.edgeMap, layer.edgeDistanceSquared);
  } else {
    EatSelection(layer, state);
  }
  if (layer.edgeBlurRadius != 0) {
    const int radius =
        TruncateToInt(layer.edgeBlurRadius / std::sqrt(static_cast<double>(state.viewScale)));
    (void)BoxBlur(*layer.edgeMap, radius, state.pool);
  }
}

}  // namespace tarnwick
