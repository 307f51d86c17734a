#pragma once
#include <array>
#include <vector>

#include "dialog/models/dialog_layout.h"
#include "dialog/models/effect_views.h"

namespace tarnwick {

// The strip above the pane: what is in it and where it stands. On its left are the
// views of the page and what adds or deletes a second effect, on its right the
// page's Reset. Texts grow with the screen, all else is in plain pixels.

// Ids, which are commands of the dialog too.
inline constexpr int kViewComposite = 500;
inline constexpr int kViewWashOne = 501;
inline constexpr int kViewWashTwo = 502;
inline constexpr int kAddWash = 503;
inline constexpr int kViewOriginal = 504;
inline constexpr int kViewBackground = 505;
inline constexpr int kViewSurfaceOne = 506;
inline constexpr int kViewSurfaceTwo = 507;
inline constexpr int kAddSurface = 508;
inline constexpr int kDeleteSurfaceTwo = 509;
inline constexpr int kDeleteSurfaceOne = 510;
inline constexpr int kDeleteWashTwo = 511;
inline constexpr int kDeleteWashOne = 512;
inline constexpr int kResetAll = 513;
inline constexpr int kResetWash = 514;
inline constexpr int kResetSurface = 515;
inline constexpr int kResetBackground = 516;

struct StripText {
  int id;
  const char* text;
  int width;  // at 96 dpi
  const char* tip;
};

// That of Reset All speaks of washes alone: odd, and kept.
inline constexpr std::array<StripText, 13> kStripTexts{{
    {kViewComposite, "Composite", 66, "View all combined image effects"},
    {kViewWashOne, "Wash One", 60, "View and edit wash effect"},
    {kViewWashTwo, "Wash Two", 60, "View and edit wash effect"},
    {kAddWash, "Add Wash", 60, "Apply an additional wash effect"},
    {kViewOriginal, "Original", 55, "View the original image"},
    {kViewBackground, "Background", 70, "View and edit background effect"},
    {kViewSurfaceOne, "Surface One", 70, "View and edit surface effect"},
    {kViewSurfaceTwo, "Surface Two", 70, "View and edit surface effect"},
    {kAddSurface, "Add Surface", 70, "Apply an additional surface effect"},
    {kResetAll, "Reset All", 50, "Reset all wash settings"},
    {kResetWash, "Reset Wash", 70, "Reset all wash settings"},
    {kResetSurface, "Reset Surface", 87, "Reset all surface settings"},
    {kResetBackground, "Reset Background", 110, "Reset all background settings"},
}};

struct StripCross {
  int id;
  const char* tip;
};

inline constexpr std::array<StripCross, 4> kStripCrosses{{
    {kDeleteWashTwo, "Delete wash effect"},
    {kDeleteWashOne, "Delete wash effect"},
    {kDeleteSurfaceTwo, "Delete surface effect"},
    {kDeleteSurfaceOne, "Delete surface effect"},
}};

// No page needs the last one.
inline constexpr std::array<int, 4> kStripSeparators{604, 608, 612, 616};

inline constexpr int kCrossSize = 13;

[[nodiscard]] int StripTextWidth(const StripText& text, int dpi);
// What their font needs on the screen: no letter is cut below.
[[nodiscard]] int StripTextHeight(int dpi);

// Where the row begins and where it ends. Client pixels of the dialog.
struct StripFrame {
  int x = 0, y = 0;  // see StripOriginFor
  int previewRight = 0;
  int dpi = 96;
  int previewLeft = 0, previewTop = 0;  // of the black strip
  // Of the texts as they are drawn when selected, in the order of kStripTexts. One
  // that has not the room of its button gets what it needs.
  std::array<int, kStripTexts.size()> textWidths{};
};

struct StripOrigin {
  int x, y;
};

// The row's beginning for a frame at (frameLeft, frameTop) in the template, within
// the black strip that begins at `previewTop`.
[[nodiscard]] StripOrigin StripOriginFor(int frameLeft, int frameTop, int previewTop, int dpi);

struct StripPlace {
  int id;
  Place place;
  bool operator==(const StripPlace&) const = default;
};

// What shows on the current page, from the left; all else of the strip is hidden.
//
// In a narrow window the row begins further left, so that it ends before Reset. Where
// that does not do there are two lines: below, Reset, and the end of a row that the
// pane is too narrow for, without the separator before it.
[[nodiscard]] std::vector<StripPlace> LayoutStrip(const StripFrame& frame,
                                                  const EffectViews& views);

// The button that stands for a view.
[[nodiscard]] int ButtonOfView(ViewMode view);

}  // namespace tarnwick
