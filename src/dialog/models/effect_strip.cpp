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

constexpr int kCrossDrop = 2;  // below the top of a text 16 high
constexpr int kPlainHeight = 16;

// What is left free at the pane's edges, whose corners are round, and before Reset.
constexpr int kEdgeMargin = 8;
constexpr int kResetGap = 8;

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

int WidthOf(int id, const StripFrame& frame) {
  for (std::size_t i = 0; i < kStripTexts.size(); ++i) {
    if (kStripTexts[i].id != id) continue;
    return std::max(StripTextWidth(kStripTexts[i], frame.dpi), frame.textWidths[i]);
  }
  return 0;
}

StripPlace PlaceReset(const StripFrame& frame, int tab) {
  const float factor = DpiFactorOf(frame.dpi);
  const ResetPlace& reset = kResets[tab];
  const float x = static_cast<float>(frame.previewRight + reset.pixels) - kResetReach * factor -
                  static_cast<float>(reset.squared) * factor * factor;
  const int width = WidthOf(reset.id, frame);
  return {reset.id,
          {std::min(static_cast<int>(x), frame.previewRight - kEdgeMargin - width), frame.y, width,
           StripTextHeight(frame.dpi)}};
}

std::vector<StripPlace> PlaceViews(const StripFrame& frame, const EffectViews& views) {
  std::vector<StripPlace> row;
  const int height = StripTextHeight(frame.dpi);
  int x = frame.x;
  const auto put = [&](int id, int width) {
    row.push_back({id, {x, frame.y, width, height}});
    x += width;
  };
  put(kViewComposite, WidthOf(kViewComposite, frame));
  for (const RowStep& step : RowOf(views)) {
    switch (step.kind) {
      case Kind::kText:
        put(step.id, WidthOf(step.id, frame));
        break;
      case Kind::kSeparator:
        x += step.gap;
        put(step.id, step.width);
        break;
      case Kind::kCross:
        row.push_back({step.id,
                       {x + step.gap, frame.y + kCrossDrop + (height - kPlainHeight) / 2,
                        kCrossSize, kCrossSize}});
        break;
    }
  }
  return row;
}

int RightOf(const StripPlace& item) {
  return item.place.x + item.place.width;
}

void Shift(std::vector<StripPlace>& row, int dx) {
  for (StripPlace& item : row) item.place.x += dx;
}

// The row and Reset on two lines that fill the strip between them. `row` ends in a
// separator and Original.
void BreakRow(std::vector<StripPlace>& row, StripPlace& reset, const StripFrame& frame) {
  constexpr int kUpperHeight = kStripHeight / 2 + 1;
  constexpr int kLowerHeight = kStripHeight / 2;
  const auto lie = [](StripPlace& item, int top, int height) {
    if (item.place.height == kCrossSize) {
      item.place.y = top + kCrossDrop;
    } else {
      item.place.y = top;
      item.place.height = std::min(item.place.height, height);
    }
  };
  const int begin = frame.previewLeft + kEdgeMargin;
  const int end = frame.previewRight - kEdgeMargin;
  const int lowerTop = frame.previewTop + kUpperHeight;
  for (StripPlace& item : row) lie(item, frame.previewTop, kUpperHeight);
  lie(reset, lowerTop, kLowerHeight);

  const auto pullLeft = [&](int right) {
    const int first = row.front().place.x;
    Shift(row, -std::clamp(right - end, 0, std::max(first - begin, 0)));
  };
  StripPlace original = row.back();
  const auto separator = row.end() - 2;
  if (RightOf(original) - row.front().place.x <= end - begin) {
    pullLeft(RightOf(original));
    return;
  }
  row.erase(separator, row.end());
  pullLeft(RightOf(row.back()));
  original.place.x = row.front().place.x;
  lie(original, lowerTop, kLowerHeight);
  row.push_back(original);
}

}  // namespace

int StripTextWidth(const StripText& text, int dpi) {
  return static_cast<int>(static_cast<float>(text.width) * DpiFactorOf(dpi));
}

int StripTextHeight(int dpi) {
  return ScaledHeight(kPlainHeight, dpi);
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
  origin.y =
      std::clamp(origin.y, previewTop + 1, previewTop + kStripHeight - StripTextHeight(dpi) - 1);
  return origin;
}

std::vector<StripPlace> LayoutStrip(const StripFrame& frame, const EffectViews& views) {
  std::vector<StripPlace> row = PlaceViews(frame, views);
  StripPlace reset = PlaceReset(frame, views.currentTab);
  const int excess = RightOf(row.back()) + kResetGap - reset.place.x;
  if (excess > 0) {
    if (excess <= frame.x - frame.previewLeft - kEdgeMargin) {
      Shift(row, -excess);
    } else {
      BreakRow(row, reset, frame);
    }
  }
  row.push_back(reset);
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
