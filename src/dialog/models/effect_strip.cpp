#include "dialog/models/effect_strip.h"

#include <algorithm>
#include <span>

#include "controls/models/dpi_scale.h"

namespace tarnwick {
namespace {

enum class Kind { kText, kSeparator, kCross };

// A step along the row. A cross hangs behind the text before it and takes no room;
// the separator that follows it keeps its distance from that text instead.
struct RowStep {
  Kind kind;
  int id;
  int gap = 0;
  int width = 0;
};

constexpr RowStep Text(int id) {
  return {Kind::kText, id};
}
constexpr RowStep Separator(int number, int width, int gap = 0) {
  return {Kind::kSeparator, kStripSeparators[static_cast<std::size_t>(number)], gap, width};
}
constexpr RowStep Cross(int id, int gap) {
  return {Kind::kCross, id, gap};
}

// Behind Composite, which begins them all.
constexpr RowStep kBasicRow[] = {Separator(0, 8), Text(kViewOriginal)};
constexpr RowStep kOneWashRow[] = {Separator(0, 8), Text(kViewWashOne), Separator(1, 7),
                                   Text(kAddWash),  Separator(2, 7),    Text(kViewOriginal)};
constexpr RowStep kTwoWashesRow[] = {
    Separator(0, 8),    Text(kViewWashOne),       Cross(kDeleteWashOne, 3), Separator(1, 7, 20),
    Text(kViewWashTwo), Cross(kDeleteWashTwo, 3), Separator(2, 7, 20),      Text(kViewOriginal)};
constexpr RowStep kOneSurfaceRow[] = {Separator(0, 7), Text(kViewSurfaceOne),
                                      Separator(1, 7), Text(kAddSurface),
                                      Separator(2, 7), Text(kViewOriginal)};
constexpr RowStep kTwoSurfacesRow[] = {
    Separator(0, 7),     Text(kViewSurfaceOne), Cross(kDeleteSurfaceOne, 4),
    Separator(1, 7, 22), Text(kViewSurfaceTwo), Cross(kDeleteSurfaceTwo, 4),
    Separator(2, 7, 22), Text(kViewOriginal)};
constexpr RowStep kBackgroundRow[] = {Separator(0, 8), Text(kViewBackground), Separator(1, 7),
                                      Text(kViewOriginal)};

constexpr int kCrossDrop = 2;  // below the row's top

// From the pane's right edge, times the screen's factor and its square, which is how
// the long ones find room.
struct ResetPlace {
  int id;
  int pixels, squared;
};
constexpr ResetPlace kResets[kTabs] = {
    {kResetAll, 5, 0}, {kResetWash, 0, 10}, {kResetSurface, 0, 17}, {kResetBackground, 0, 40}};
constexpr float kResetReach = 70;

std::span<const RowStep> RowOf(const EffectViews& views) {
  switch (views.currentTab) {
    case kWashTab:
      if (views.hasSecondWash) return kTwoWashesRow;
      return kOneWashRow;
    case kSurfaceTab:
      if (views.hasSecondSurface) return kTwoSurfacesRow;
      return kOneSurfaceRow;
    case kBackgroundTab:
      return kBackgroundRow;
    default:
      return kBasicRow;
  }
}

int WidthOf(int id, int dpi) {
  const auto* const found = std::find_if(kStripTexts.begin(), kStripTexts.end(),
                                         [id](const StripText& text) { return text.id == id; });
  return found != kStripTexts.end() ? StripTextWidth(*found, dpi) : 0;
}

StripPlace PlaceReset(const StripFrame& frame, int tab) {
  const float factor = DpiFactorOf(frame.dpi);
  const ResetPlace& reset = kResets[tab];
  const float x = static_cast<float>(frame.previewRight + reset.pixels) - kResetReach * factor -
                  static_cast<float>(reset.squared) * factor * factor;
  return {reset.id, {static_cast<int>(x), frame.y, WidthOf(reset.id, frame.dpi), kStripTextHeight}};
}

}  // namespace

int StripTextWidth(const StripText& text, int dpi) {
  return static_cast<int>(static_cast<float>(text.width) * DpiFactorOf(dpi));
}

StripOrigin StripOriginFor(int frameLeft, int frameTop, int previewTop, int dpi) {
  StripOrigin origin{frameLeft + 29, frameTop + 16};
  if (dpi >= 216) {
    origin.y -= 30;
  } else if (dpi >= 144) {
    origin.y += 20;
  } else if (dpi >= 120) {
    origin.x -= 70;
    origin.y += 10;
  } else if (dpi > 96) {
    origin.x -= 15;
    origin.y += 20;
  }
  // Fonts decide how high a dialog's unit is; white on black has to stay on black.
  origin.y = std::clamp(origin.y, previewTop + 1, previewTop + kStripHeight - kStripTextHeight - 1);
  return origin;
}

std::vector<StripPlace> LayoutStrip(const StripFrame& frame, const EffectViews& views) {
  std::vector<StripPlace> row;
  int x = frame.x;
  const auto put = [&](int id, int width) {
    row.push_back({id, {x, frame.y, width, kStripTextHeight}});
    x += width;
  };
  put(kViewComposite, WidthOf(kViewComposite, frame.dpi));
  for (const RowStep& step : RowOf(views)) {
    switch (step.kind) {
      case Kind::kText:
        put(step.id, WidthOf(step.id, frame.dpi));
        break;
      case Kind::kSeparator:
        x += step.gap;
        put(step.id, step.width);
        break;
      case Kind::kCross:
        row.push_back({step.id, {x + step.gap, frame.y + kCrossDrop, kCrossSize, kCrossSize}});
        break;
    }
  }
  row.push_back(PlaceReset(frame, views.currentTab));
  return row;
}

int ButtonOfView(ViewMode view) {
  switch (view) {
    case ViewMode::kWashOne:
      return kViewWashOne;
    case ViewMode::kWashTwo:
      return kViewWashTwo;
    case ViewMode::kBackground:
      return kViewBackground;
    case ViewMode::kSurfaceOne:
      return kViewSurfaceOne;
    case ViewMode::kSurfaceTwo:
      return kViewSurfaceTwo;
    case ViewMode::kOriginal:
      return kViewOriginal;
    case ViewMode::kComposite:
      break;
  }
  return kViewComposite;
}

}  // namespace tarnwick
