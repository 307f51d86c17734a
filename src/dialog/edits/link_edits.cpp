#include "dialog/edits/link_edits.h"

#include <algorithm>
#include <cstdlib>

#include "engine/layer_edit.h"
#include "engine/working_texture.h"

namespace tarnwick {
namespace {

constexpr LayerKind kInOrder[] = {LayerKind::kWash, LayerKind::kSurface, LayerKind::kBackground};

// What a link carries.
struct Carried {
  std::int32_t scale;
  std::uint8_t mirror, upsideDown;
  std::int32_t offsetX, offsetY;
  std::int32_t angle;
};

Carried CarriedBy(const LayerSlot& slot) {
  return {*slot.scale, *slot.mirror, *slot.upsideDown, *slot.offsetX, *slot.offsetY, *slot.angle};
}

void Turn(EffectLayer& layer, RenderState& state, std::int64_t difference) {
  // A preset may hold any angle; four turns are none.
  const std::int64_t turns = ((std::llabs(difference) - 1) / 90 + 1) % 4;
  for (std::int64_t i = 0; i < turns; ++i) {
    if (difference > 0) {
      RotateLayerClockwise(layer, state);
    } else {
      RotateLayerCounterClockwise(layer, state);
    }
  }
}

void CarryTo(const LayerSlot& slot, RenderState& state, const Carried& from) {
  EffectLayer& layer = *slot.layer;
  *slot.scale = from.scale;
  SetScale(layer, state, from.scale);
  if (*slot.mirror != from.mirror) {
    *slot.mirror = from.mirror;
    ToggleFlipVertical(layer, state);
  }
  if (*slot.upsideDown != from.upsideDown) {
    *slot.upsideDown = from.upsideDown;
    ToggleFlipHorizontal(layer, state);
  }
  if (*slot.offsetX != from.offsetX || *slot.offsetY != from.offsetY) {
    *slot.offsetX = layer.offsetX = from.offsetX;
    *slot.offsetY = layer.offsetY = from.offsetY;
    layer.textureDirty = true;
  }
  if (*slot.angle != from.angle) {
    Turn(layer, state, std::int64_t{from.angle} - *slot.angle);
    *slot.angle = from.angle;
    layer.textureDirty = true;
    PrepareWorkingTexture(layer, state);
  }
}

bool IsUsed(LayerKind kind, const EffectSettings& settings) {
  switch (kind) {
    case LayerKind::kWash:
      return settings.WashUse != 0;
    case LayerKind::kSurface:
      return settings.SurfaceUse != 0;
    case LayerKind::kBackground:
      break;
  }
  return settings.BackgroundUse != 0;
}

// To the layers of a kind but `source`, the one that they follow.
void CarryToKind(const LinkScope& scope, LayerKind kind, const EffectLayer* source,
                 const Carried& from) {
  const auto carry = [&](const LayerSlot& slot) {
    if (slot.layer != source) CarryTo(slot, scope.state, from);
  };
  switch (kind) {
    case LayerKind::kWash:
      carry(WashSlot(scope.layers, scope.settings, false));
      if (scope.settings.SecondWashExists != 0) {
        carry(WashSlot(scope.layers, scope.settings, true));
      }
      break;
    case LayerKind::kSurface:
      carry(SurfaceSlot(scope.layers, scope.settings, false));
      if (scope.settings.SecondSurfaceExists != 0) {
        carry(SurfaceSlot(scope.layers, scope.settings, true));
      }
      break;
    case LayerKind::kBackground:
      carry(BackgroundSlot(scope.layers, scope.settings));
      break;
  }
}

}  // namespace

std::uint8_t& LinkFlagOf(LayerKind kind, SettingsSession& session) {
  switch (kind) {
    case LayerKind::kWash:
      return session.WashLinked;
    case LayerKind::kSurface:
      return session.SurfaceLinked;
    case LayerKind::kBackground:
      break;
  }
  return session.BackgroundLinked;
}

bool HasMatch(LayerKind kind, const TextureMatches& matches) {
  switch (kind) {
    case LayerKind::kWash:
      return matches.Wash();
    case LayerKind::kSurface:
      return matches.Surface();
    case LayerKind::kBackground:
      break;
  }
  return matches.Background();
}

bool AreMatched(LayerKind one, LayerKind other, const TextureMatches& matches) {
  const auto is = [&](LayerKind a, LayerKind b) {
    return (one == a && other == b) || (one == b && other == a);
  };
  if (is(LayerKind::kWash, LayerKind::kSurface)) return matches.washSurface;
  if (is(LayerKind::kWash, LayerKind::kBackground)) return matches.washBackground;
  if (is(LayerKind::kSurface, LayerKind::kBackground)) return matches.surfaceBackground;
  return false;
}

void PropagateLinks(const LinkScope& scope, LayerKind source) {
  if (LinkFlagOf(source, scope.session) == 0) return;
  const LayerSlot active = ActiveSlotOf(source, scope.views, scope.layers, scope.settings);
  const Carried from = CarriedBy(active);
  CarryToKind(scope, source, active.layer, from);
  for (const LayerKind kind : kInOrder) {
    if (kind == source || !IsUsed(kind, scope.settings)) continue;
    if (LinkFlagOf(kind, scope.session) != 0) CarryToKind(scope, kind, active.layer, from);
  }
}

LayerKind PreselectedSource(LayerKind own, const TextureMatches& matches) {
  for (const LayerKind kind : kInOrder) {
    if (AreMatched(own, kind, matches)) return kind;
  }
  return own;
}

void AcceptLink(const LinkScope& scope, LayerKind own, LayerKind source,
                const TextureMatches& matches) {
  LinkFlagOf(own, scope.session) = 1;
  for (const LayerKind kind : kInOrder) {
    if (AreMatched(own, kind, matches)) LinkFlagOf(kind, scope.session) = 1;
  }
  PropagateLinks(scope, source);
}

}  // namespace tarnwick
