#include "dialog/models/strip_commands.h"

#include <cstring>
#include <utility>

#include "dialog/models/effect_strip.h"

namespace tarnwick {
namespace {

void NameNone(char (&name)[kTextureNameSize]) {
  std::memset(name, 0, sizeof name);
  std::memcpy(name, kNoTextureName, sizeof kNoTextureName);
}

void SwapWashes(EffectSettings& s) {
  std::swap(s.WashFileName1, s.WashFileName2);
  std::swap(s.WashType1, s.WashType2);
  std::swap(s.WashStainColor1, s.WashStainColor2);
  std::swap(s.WashScale1, s.WashScale2);
  std::swap(s.WashIntensity1, s.WashIntensity2);
  std::swap(s.WashCoverage1, s.WashCoverage2);
  std::swap(s.WashCoverageScale1, s.WashCoverageScale2);
  std::swap(s.WashEdgeSoftness1, s.WashEdgeSoftness2);
  std::swap(s.WashInside1, s.WashInside2);
  std::swap(s.WashFlipHor1, s.WashFlipHor2);
  std::swap(s.WashFlipVer1, s.WashFlipVer2);
  std::swap(s.WashInvert1, s.WashInvert2);
}

void SwapSurfaces(EffectSettings& s) {
  std::swap(s.SurfaceFileName1, s.SurfaceFileName2);
  std::swap(s.SurfaceType1, s.SurfaceType2);
  std::swap(s.SurfaceScale1, s.SurfaceScale2);
  std::swap(s.SurfaceDepth1, s.SurfaceDepth2);
  std::swap(s.SurfaceFlipHor1, s.SurfaceFlipHor2);
  std::swap(s.SurfaceFlipVer1, s.SurfaceFlipVer2);
  std::swap(s.SurfaceInvert1, s.SurfaceInvert2);
}

struct Choice {
  ViewMode view;
  LayerWork work = LayerWork::kNone;
};

Choice ChoiceOf(int command) {
  switch (command) {
    case kViewWashOne:
      return {ViewMode::kWashOne};
    case kViewWashTwo:
      return {ViewMode::kWashTwo};
    case kAddWash:
      return {ViewMode::kWashTwo, LayerWork::kMakeSecondWash};
    case kViewOriginal:
      return {ViewMode::kOriginal};
    case kViewBackground:
      return {ViewMode::kBackground};
    case kViewSurfaceOne:
      return {ViewMode::kSurfaceOne};
    case kViewSurfaceTwo:
      return {ViewMode::kSurfaceTwo};
    case kAddSurface:
      return {ViewMode::kSurfaceTwo, LayerWork::kMakeSecondSurface};
    case kDeleteSurfaceTwo:
      return {ViewMode::kSurfaceOne, LayerWork::kDropSecondSurface};
    case kDeleteSurfaceOne:
      return {ViewMode::kSurfaceOne, LayerWork::kRemakeSurfaces};
    case kDeleteWashTwo:
      return {ViewMode::kWashOne, LayerWork::kDropSecondWash};
    case kDeleteWashOne:
      return {ViewMode::kWashOne, LayerWork::kRemakeWashes};
    default:
      return {ViewMode::kComposite};
  }
}

void HaveSecondWash(EffectViews& views, EffectSettings& settings, bool has) {
  views.hasSecondWash = has;
  settings.SecondWashExists = has ? 1 : 0;
}

void HaveSecondSurface(EffectViews& views, EffectSettings& settings, bool has) {
  views.hasSecondSurface = has;
  settings.SecondSurfaceExists = has ? 1 : 0;
}

}  // namespace

LayerWork ChangeEffects(EffectViews& views, EffectSettings& settings, int command) {
  const LayerWork work = ChoiceOf(command).work;
  switch (work) {
    case LayerWork::kNone:
      break;
    case LayerWork::kMakeSecondWash:
      HaveSecondWash(views, settings, true);
      break;
    case LayerWork::kMakeSecondSurface:
      HaveSecondSurface(views, settings, true);
      break;
    case LayerWork::kRemakeWashes:
      SwapWashes(settings);
      [[fallthrough]];
    case LayerWork::kDropSecondWash:
      HaveSecondWash(views, settings, false);
      break;
    case LayerWork::kRemakeSurfaces:
      SwapSurfaces(settings);
      [[fallthrough]];
    case LayerWork::kDropSecondSurface:
      HaveSecondSurface(views, settings, false);
      break;
  }
  return work;
}

void ChooseView(EffectViews& views, int command) {
  views.Current() = ChoiceOf(command).view;
}

bool ShowsOneEffect(const EffectViews& views) {
  switch (views.currentTab) {
    case kWashTab:
      return views.washView == ViewMode::kWashOne || views.washView == ViewMode::kWashTwo;
    case kSurfaceTab:
      return views.surfaceView == ViewMode::kSurfaceOne ||
             views.surfaceView == ViewMode::kSurfaceTwo;
    default:
      return false;
  }
}

KeptLayers ResetPage(EffectSettings& settings, SettingsSession& session, int tab) {
  settings.SnapshotHeld = 1;
  switch (tab) {
    case kWashTab:
      settings.SecondWashExists = 0;
      ResetWash1(settings);
      NameNone(settings.WashFileName1);
      return {false, true, true};
    case kSurfaceTab:
      settings.SecondSurfaceExists = 0;
      ResetSurface1(settings, session);
      NameNone(settings.SurfaceFileName1);
      ResetSurfaceCommon(settings);
      return {true, false, true};
    case kBackgroundTab:
      ResetBackground(settings, session);
      NameNone(settings.BackgroundFileName);
      return {true, true, false};
    default:
      ResetAllSettings(settings, session);
      NameNone(settings.WashFileName1);
      NameNone(settings.SurfaceFileName1);
      NameNone(settings.BackgroundFileName);
      return {};
  }
}

StripSync SyncViews(EffectViews& views, const EffectSettings& settings) {
  StripSync sync;
  const bool hasWash = settings.SecondWashExists != 0;
  const bool hasSurface = settings.SecondSurfaceExists != 0;
  if (std::exchange(views.hasSecondWash, hasWash) != hasWash) {
    sync.isChanged = true;
    sync.wash = hasWash ? LayerWork::kMakeSecondWash : LayerWork::kDropSecondWash;
    views.washView = ViewMode::kComposite;
  }
  if (std::exchange(views.hasSecondSurface, hasSurface) != hasSurface) {
    sync.isChanged = true;
    sync.surface = hasSurface ? LayerWork::kMakeSecondSurface : LayerWork::kDropSecondSurface;
    views.surfaceView = ViewMode::kComposite;
  }
  return sync;
}

}  // namespace tarnwick
