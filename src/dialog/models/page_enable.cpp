#include "dialog/models/page_enable.h"

#include <cstring>

namespace tarnwick {
namespace {

constexpr char kSolidName[] = "Solid.twk";

ViewMode ViewOf(int tab, const EffectViews& views) {
  EffectViews there = views;
  there.currentTab = static_cast<std::uint8_t>(tab);
  return there.Current();
}

bool IsOneOfTwo(ViewMode view, ViewMode one, ViewMode two) {
  return view == one || view == two;
}

}  // namespace

bool IsSecondActive(int tab, const EffectViews& views, const EffectSettings& settings) {
  if (tab == kWashTab) {
    return views.washView == ViewMode::kWashTwo && settings.SecondWashExists != 0;
  }
  if (tab == kSurfaceTab) {
    return views.surfaceView == ViewMode::kSurfaceTwo && settings.SecondSurfaceExists != 0;
  }
  return false;
}

char* TextureNameOf(int tab, const EffectViews& views, EffectSettings& settings) {
  const bool second = IsSecondActive(tab, views, settings);
  switch (tab) {
    case kWashTab:
      return second ? settings.WashFileName2 : settings.WashFileName1;
    case kSurfaceTab:
      return second ? settings.SurfaceFileName2 : settings.SurfaceFileName1;
    case kBackgroundTab:
      return settings.BackgroundFileName;
    default:
      return nullptr;
  }
}

const char* TextureNameOf(int tab, const EffectViews& views, const EffectSettings& settings) {
  return TextureNameOf(tab, views, const_cast<EffectSettings&>(settings));
}

PageFacts FactsOf(int tab, const EffectViews& views, const EffectSettings& settings,
                  const TextureMatches& matches, const DocumentFacts& document, bool canMove) {
  PageFacts facts;
  const ViewMode view = ViewOf(tab, views);
  facts.isOriginal = view == ViewMode::kOriginal;
  facts.isAlone = true;
  switch (tab) {
    case kWashTab:
      facts.isUsed = settings.WashUse != 0;
      facts.isAlone = settings.SecondWashExists == 0 ||
                      IsOneOfTwo(view, ViewMode::kWashOne, ViewMode::kWashTwo);
      facts.hasMatch = matches.Wash();
      facts.hasColor =
          (IsSecondActive(tab, views, settings) ? settings.WashType2 : settings.WashType1) != 0;
      break;
    case kSurfaceTab:
      facts.isUsed = settings.SurfaceUse != 0;
      facts.isAlone = settings.SecondSurfaceExists == 0 ||
                      IsOneOfTwo(view, ViewMode::kSurfaceOne, ViewMode::kSurfaceTwo);
      facts.hasMatch = matches.Surface();
      break;
    case kBackgroundTab:
      facts.isUsed = settings.BackgroundUse != 0;
      facts.hasMatch = matches.Background();
      break;
    default:
      break;
  }
  const char* const name = TextureNameOf(tab, views, settings);
  facts.isSolid = name != nullptr && std::strncmp(name, kSolidName, kTextureNameSize) == 0;
  facts.canMove = canMove;
  facts.hasTransparency = document.planes >= (document.isCmyk ? 5 : 4);
  facts.hasWash = settings.WashUse != 0;
  facts.fillsCanvas = settings.SurfaceEntire != 0;
  return facts;
}

bool IsEnabled(RowNeeds needs, const PageFacts& facts) {
  const bool isUsed = facts.isUsed && !facts.isOriginal;
  const bool isInView = isUsed && facts.isAlone;
  switch (needs) {
    case RowNeeds::kNothing:
      return true;
    case RowNeeds::kUse:
      return isUsed;
    case RowNeeds::kView:
      return isInView;
    case RowNeeds::kShape:
      return isInView && !facts.isSolid;
    case RowNeeds::kMove:
      return isInView && !facts.isSolid && facts.canMove;
    case RowNeeds::kMatch:
      return isInView && facts.hasMatch;
    case RowNeeds::kColoredType:
      return isInView && facts.hasColor;
    case RowNeeds::kUsedAtAll:
      return facts.isUsed;
    case RowNeeds::kUsedAndShaped:
      return facts.isUsed && !facts.isSolid;
    case RowNeeds::kUsedAndMatch:
      return facts.isUsed && facts.hasMatch;
    case RowNeeds::kTransparency:
      return facts.hasTransparency;
    case RowNeeds::kWashAndCanvas:
      return facts.hasTransparency && facts.hasWash && facts.fillsCanvas;
  }
  return true;
}

}  // namespace tarnwick
