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

// Gives a whole selection its white samples and its frame; false without memory.
bool EnsureSelectionMap(EffectLayer& layer) {
  if (layer.selectionMap == nullptr) return false;
  if (layer.selectionMap->PeekPixels() != nullptr) return true;
  if (!FillImage(*layer.selectionMap, kWhiteFill)) return false;
  return ClearFrame(*layer.selectionMap, kMargin);
}

// False where there is nothing to measure.
bool EnsureDistanceField(EffectLayer& layer) {
  if (layer.distanceField) return true;
  if (!EnsureSelectionMap(layer)) return false;
  return BuildDistanceField(*layer.selectionMap, layer.distanceField, layer.maxDistanceSquared);
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
  if (value != 0) (void)EnsureDistanceField(layer);
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
  if (value != 0) (void)EnsureDistanceField(layer);
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
  std::uint8_t* const out = layer.edgeMap->Pixels();
  if (out == nullptr) {
    layer.edgeMap = nullptr;
    return;
  }
  // A threshold of 0 stops nothing, whatever the distances are.
  const bool measured = layer.edgeDistanceSquared == 0 || EnsureDistanceField(layer);
  if (!measured || !EnsureSelectionMap(layer)) {
    (void)FillImage(*layer.edgeMap, kWhiteFill, state.colorServices);
  } else {
    const std::uint8_t* const selection = layer.selectionMap->PeekPixels();
    const std::int32_t* const distances = layer.distanceField.Data();
    const std::int32_t least = layer.edgeDistanceSquared;
    const auto stride = layer.edgeMap->RowBytes();
    ForRows(state.pool, 0, layer.edgeMap->StorageHeight(), [&](int first, int last) {
      for (std::ptrdiff_t i = first * stride; i < last * stride; ++i) {
        const bool inside = selection[i] != 0 && (least == 0 || distances[i] >= least);
        out[i] = inside ? 255 : 0;
      }
    });
  }
  if (layer.edgeBlurRadius != 0) {
    const int radius =
        TruncateToInt(layer.edgeBlurRadius / std::sqrt(static_cast<double>(state.viewScale)));
    (void)BoxBlur(*layer.edgeMap, radius, state.pool);
  }
}

}  // namespace tarnwick
