#include "engine/texture_offset.h"

#include <algorithm>

namespace tarnwick {
namespace {

std::int32_t SaturatingAdd(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(
      std::clamp<std::int64_t>(std::int64_t{a} + b, INT32_MIN, INT32_MAX));
}

}  // namespace

void MoveOffset(EffectLayer& layer, const RenderState& state, int dx, int dy) {
  layer.offsetX = SaturatingAdd(layer.offsetX, dx);
  layer.offsetY = SaturatingAdd(layer.offsetY, dy);
  if (layer.texture != nullptr) {
    const Rect& bounds = layer.texture->bounds;
    layer.offsetX = std::max(layer.offsetX, bounds.left);
    layer.offsetY = std::max(layer.offsetY, bounds.top);
    layer.offsetX = std::min(layer.offsetX, bounds.right - state.documentWidth);
    layer.offsetY = std::min(layer.offsetY, bounds.bottom - state.documentHeight);
  }
  layer.textureDirty = true;
}

OffsetRange GetOffset(const EffectLayer& layer, const RenderState& state) {
  OffsetRange range{false, layer.offsetX, layer.offsetY, 0, 0};
  if (layer.texture != nullptr) {
    range.rangeX = layer.texture->bounds.right - state.documentWidth;
    range.rangeY = layer.texture->bounds.bottom - state.documentHeight;
  }
  range.canMove = ((range.rangeX | range.rangeY) & 0xFF) != 0;
  return range;
}

}  // namespace tarnwick
