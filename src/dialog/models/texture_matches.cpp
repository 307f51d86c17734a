#include "dialog/models/texture_matches.h"

#include <cstring>

namespace tarnwick {
namespace {

bool SameName(const char* a, const char* b) {
  return std::strncmp(a, b, kTextureNameSize) == 0;
}

bool HasTexture(const char* name) {
  return !SameName(name, kNoTextureName);
}

// A kind with up to two layers, and how its page shows one of them alone.
struct Kind {
  const char* first;
  const char* second;
  bool hasSecond;
  int tab;
  ViewMode view, firstView, secondView;
};

bool IsUsed(const Kind& kind, int currentTab) {
  if (!kind.hasSecond) return HasTexture(kind.first);
  if (!HasTexture(kind.first) && !HasTexture(kind.second)) return false;
  if (currentTab == kind.tab) {
    if (kind.view == kind.firstView) return HasTexture(kind.first);
    if (kind.view == kind.secondView) return HasTexture(kind.second);
  }
  return true;
}

}  // namespace

void UpdateUseFlags(const EffectViews& views, EffectSettings& settings) {
  const Kind wash{settings.WashFileName1,
                  settings.WashFileName2,
                  settings.SecondWashExists != 0,
                  kWashTab,
                  views.washView,
                  ViewMode::kWashOne,
                  ViewMode::kWashTwo};
  const Kind surface{settings.SurfaceFileName1,
                     settings.SurfaceFileName2,
                     settings.SecondSurfaceExists != 0,
                     kSurfaceTab,
                     views.surfaceView,
                     ViewMode::kSurfaceOne,
                     ViewMode::kSurfaceTwo};
  settings.WashUse = IsUsed(wash, views.currentTab) ? 1 : 0;
  settings.SurfaceUse = IsUsed(surface, views.currentTab) ? 1 : 0;
  settings.BackgroundUse = HasTexture(settings.BackgroundFileName) ? 1 : 0;
}

TextureMatches UpdateTextureMatches(const EffectViews& views, EffectSettings& settings,
                                    SettingsSession& session) {
  UpdateUseFlags(views, settings);
  const char* wash = settings.WashFileName1;
  const char* surface = settings.SurfaceFileName1;
  const char* background = settings.BackgroundFileName;

  TextureMatches matches;
  matches.sameWashes = settings.WashUse != 0 && settings.SecondWashExists != 0 &&
                       SameName(wash, settings.WashFileName2);
  matches.sameSurfaces = settings.SurfaceUse != 0 && settings.SecondSurfaceExists != 0 &&
                         SameName(surface, settings.SurfaceFileName2);

  // Two layers with different textures cannot both follow a third one.
  const bool canLinkWash = settings.WashUse != 0 && HasTexture(wash) &&
                           (settings.SecondWashExists == 0 || matches.sameWashes);
  const bool canLinkSurface = settings.SurfaceUse != 0 && HasTexture(surface) &&
                              (settings.SecondSurfaceExists == 0 || matches.sameSurfaces);
  const bool canLinkBackground = settings.BackgroundUse != 0;

  matches.washSurface = canLinkWash && canLinkSurface && SameName(wash, surface);
  matches.washBackground = canLinkWash && canLinkBackground && SameName(wash, background);
  matches.surfaceBackground = canLinkSurface && canLinkBackground && SameName(surface, background);

  if (!matches.Wash()) session.WashLinked = 0;
  if (!matches.Surface()) session.SurfaceLinked = 0;
  if (!matches.Background()) session.BackgroundLinked = 0;
  return matches;
}

}  // namespace tarnwick
