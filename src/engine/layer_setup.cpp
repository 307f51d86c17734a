#include "engine/layer_setup.h"

#include <cstring>

#include "engine/coverage.h"
#include "engine/layer_edit.h"
#include "engine/wash_edge.h"
#include "textures/texture_load.h"
#include "textures/texture_path.h"

namespace tarnwick {
namespace {

using TextureName = char[kTextureNameSize];

void BeginConfigure(EffectLayer& layer, RenderState& state, LayerKind kind) {
  layer.kind = kind;
  state.progress.base = 0;
  state.progress.budget = 0;
  layer.edgeSamples.Free();
  layer.samplesWhole = false;
}

void MarkStale(EffectLayer& layer) {
  layer.textureDirty = true;
  layer.coverageDirty = true;
  layer.edgeDirty = true;
}

// Loads by name, with alerts only if the effect takes part.
bool LoadByName(EffectLayer& layer, RenderState& state, const TextureName& name, bool alerts) {
  const std::string text(name, strnlen(name, sizeof name));
  state.showTextureAlerts = alerts;
  const bool loaded = LoadTexture(layer, state, TexturePath(state.textureFolder, text));
  state.showTextureAlerts = true;
  return loaded;
}

}  // namespace

bool ConfigureWash(EffectLayer& layer, RenderState& state, EffectSettings& settings,
                   const SettingsSession& session, bool second) {
  const EffectSettings& s = settings;
  BeginConfigure(layer, state, LayerKind::kWash);
  layer.washEnabled = s.WashUse;
  layer.washType = second ? s.WashType2 : s.WashType1;
  layer.stainColor = ColorOfWord(second ? s.WashStainColor2 : s.WashStainColor1);
  layer.coverageScale = second ? s.WashCoverageScale2 : s.WashCoverageScale1;
  layer.coverage = second ? s.WashCoverage2 : s.WashCoverage1;
  layer.seed = second ? s.WashRandomize2 : s.WashRandomize1;
  layer.inside = second ? s.WashInside2 : s.WashInside1;
  layer.scaleSetting = second ? s.WashScale2 : s.WashScale1;
  SetIntensity(layer, second ? s.WashIntensity2 : s.WashIntensity1);
  layer.edgeDistance = second ? s.WashEdgeDistance2 : s.WashEdgeDistance1;
  layer.angle = second ? s.WashAngle2 : s.WashAngle1;
  layer.invert = second ? s.WashInvert2 : s.WashInvert1;
  layer.flipVertical = second ? s.WashFlipVer2 : s.WashFlipVer1;
  layer.flipHorizontal = second ? s.WashFlipHor2 : s.WashFlipHor1;
  layer.edgeSoftness = second ? s.WashEdgeSoftness2 : s.WashEdgeSoftness1;
  layer.offsetX = second ? s.WashOffsetX2 : s.WashOffsetX1;
  layer.offsetY = second ? s.WashOffsetY2 : s.WashOffsetY1;
  MarkStale(layer);
  if (second && session.WashLinked != 0) {
    std::memcpy(settings.WashFileName2, settings.WashFileName1, sizeof settings.WashFileName2);
  }
  const bool alerts = s.WashUse != 0 && (!second || s.SecondWashExists != 0);
  if (!LoadByName(layer, state, second ? s.WashFileName2 : s.WashFileName1, alerts)) return false;

  SetCoverageScale(layer, layer.coverageScale);
  state.progress.base = 0;
  state.progress.budget = 0;
  BuildCoverage(layer, state);
  BuildSelectionMap(layer, state);
  SetEdgeSoftness(layer, layer.edgeSoftness);
  SetEdgeDistance(layer, layer.edgeDistance);
  return true;
}

bool ConfigureBackground(EffectLayer& layer, RenderState& state, const EffectSettings& s) {
  BeginConfigure(layer, state, LayerKind::kBackground);
  layer.backgroundEnabled = s.BackgroundUse;
  layer.highlightLevel = layer.midtoneLevel = layer.shadowLevel = 100;
  layer.highlightColor = ColorOfWord(s.BackgroundHighlightColor);
  layer.midtoneColor = ColorOfWord(s.BackgroundMidtoneColor);
  layer.shadowColor = ColorOfWord(s.BackgroundShadowColor);
  layer.scaleSetting = s.BackgroundScale;
  layer.angle = s.BackgroundAngle;
  layer.invert = s.BackgroundInvert;
  layer.flipVertical = s.BackgroundFlipVer;
  layer.flipHorizontal = s.BackgroundFlipHor;
  layer.offsetX = s.BackgroundOffsetX;
  layer.offsetY = s.BackgroundOffsetY;
  MarkStale(layer);
  return LoadByName(layer, state, s.BackgroundFileName, s.BackgroundUse != 0);
}

bool ConfigureSurface(EffectLayer& layer, RenderState& state, EffectSettings& settings,
                      const SettingsSession& session, bool second) {
  const EffectSettings& s = settings;
  BeginConfigure(layer, state, LayerKind::kSurface);
  layer.surfaceEnabled = s.SurfaceUse;
  layer.surfaceDepth = second ? s.SurfaceDepth2 : s.SurfaceDepth1;
  layer.perspective = s.SurfacePerspectiveOn;
  layer.lightAlpha = s.SurfaceLightAlpha;
  layer.lightBeta = s.SurfaceLightBeta;
  layer.highlightLevel = static_cast<float>(s.SurfaceHighlight);
  layer.midtoneLevel = static_cast<float>(s.SurfaceMidtone);
  layer.shadowLevel = static_cast<float>(s.SurfaceShadow);
  layer.highlightColor = ColorOfWord(s.SurfaceHighlightColor);
  layer.midtoneColor = ColorOfWord(s.SurfaceMidtoneColor);
  layer.shadowColor = ColorOfWord(s.SurfaceShadowColor);
  layer.offsetX = second ? s.SurfaceOffsetX2 : s.SurfaceOffsetX1;
  layer.offsetY = second ? s.SurfaceOffsetY2 : s.SurfaceOffsetY1;
  layer.flipVertical = second ? s.SurfaceFlipVer2 : s.SurfaceFlipVer1;
  layer.flipHorizontal = second ? s.SurfaceFlipHor2 : s.SurfaceFlipHor1;
  layer.scaleSetting = second ? s.SurfaceScale2 : s.SurfaceScale1;
  layer.invert = second ? s.SurfaceInvert2 : s.SurfaceInvert1;
  layer.angle = second ? s.SurfaceAngle2 : s.SurfaceAngle1;
  layer.surfaceType = second ? s.SurfaceType2 : s.SurfaceType1;
  MarkStale(layer);
  if (second && session.SurfaceLinked != 0) {
    std::memcpy(settings.SurfaceFileName2, settings.SurfaceFileName1,
                sizeof settings.SurfaceFileName2);
  }
  const bool alerts = s.SurfaceUse != 0 && (!second || s.SecondSurfaceExists != 0);
  return LoadByName(layer, state, second ? s.SurfaceFileName2 : s.SurfaceFileName1, alerts);
}

}  // namespace tarnwick
