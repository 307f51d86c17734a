#include <gtest/gtest.h>

#include <algorithm>

#include "dialog/models/pane_image.h"
#include "dialog/models/pane_zoom.h"

namespace tarnwick {
namespace {

using Bytes = std::vector<std::uint8_t>;
constexpr PaneSize kPane = {600, 400};
constexpr PaneSize kDocument = {3000, 2000};  // five times the pane

struct Seen {
  float scale;
  int panX, panY;
  bool operator==(const Seen&) const = default;
};
Seen SeenOf(const PaneZoom& zoom) {
  return {zoom.viewScale, zoom.panX, zoom.panY};
}

TEST(PaneZoom, BeginsAtFullSize) {
  PaneZoom zoom;
  ApplyZoom(zoom, kPane, kDocument);
  EXPECT_EQ(zoom.maximum, 5);
  EXPECT_EQ(zoom.level, 4);
  EXPECT_EQ(SeenOf(zoom), (Seen{1, 0, 0}));
  EXPECT_EQ(zoom.proxy, kPane);
}

TEST(PaneZoom, StepsKeepTheMiddle) {
  PaneZoom zoom;
  const ZoomButtons fit = ZoomToFit(zoom, kPane, kDocument);
  EXPECT_EQ(SeenOf(zoom), (Seen{5, 0, 0}));
  EXPECT_TRUE(fit.canZoomIn);
  EXPECT_FALSE(fit.canZoomOut);
  // Shown 600 x 400, then 750 x 500, 1000 x 666, 1500 x 1000, 3000 x 2000.
  const Seen steps[] = {{4, 75, 50}, {3, 200, 133}, {2, 450, 300}, {1, 1200, 800}};
  for (const Seen& step : steps) {
    const ZoomButtons buttons = ZoomIn(zoom, kPane, kDocument);
    EXPECT_EQ(SeenOf(zoom), step) << step.scale;
    EXPECT_EQ(buttons.canZoomIn, step.scale != 1);
    EXPECT_TRUE(buttons.canZoomOut);
  }
  ZoomIn(zoom, kPane, kDocument);
  EXPECT_EQ(SeenOf(zoom), steps[3]);
  ZoomOut(zoom, kPane, kDocument);
  EXPECT_EQ(SeenOf(zoom), (Seen{2, 450, 300}));
  for (int i = 0; i < 5; ++i) ZoomOut(zoom, kPane, kDocument);
  EXPECT_EQ(SeenOf(zoom), (Seen{5, 0, 0}));
  EXPECT_FALSE(ButtonsOf(zoom).canZoomOut);
}

TEST(PaneZoom, StaysInsideTheDocument) {
  PaneZoom zoom;
  ApplyZoom(zoom, kPane, kDocument);
  zoom.panX = 5000;
  zoom.panY = -7;
  ApplyZoom(zoom, kPane, kDocument);
  EXPECT_EQ(SeenOf(zoom), (Seen{1, 2400, 0}));
  // To full size from half: the pan is that of shown pixels, as it was.
  ZoomOut(zoom, kPane, kDocument);
  const int pan = zoom.panX;
  const ZoomButtons full = ZoomToFull(zoom, kPane, kDocument);
  EXPECT_EQ(SeenOf(zoom), (Seen{1, pan, 0}));
  EXPECT_FALSE(full.canZoomIn);
  EXPECT_TRUE(full.canZoomOut);
}

TEST(PaneZoom, ADocumentSmallerThanThePane) {
  PaneZoom zoom;
  const ZoomButtons full = ZoomToFull(zoom, kPane, {300, 200});
  EXPECT_EQ(zoom.maximum, 1);
  EXPECT_EQ(SeenOf(zoom), (Seen{1, 0, 0}));
  EXPECT_EQ(zoom.proxy, (PaneSize{300, 200}));
  EXPECT_FALSE(full.canZoomIn || full.canZoomOut);
  const ZoomButtons fit = ZoomToFit(zoom, kPane, {300, 200});
  EXPECT_FALSE(fit.canZoomIn || fit.canZoomOut);
}

TEST(PaneZoom, APartOfAStepCountsWhole) {
  PaneZoom zoom;
  ZoomToFit(zoom, kPane, {3100, 2000});
  EXPECT_EQ(zoom.viewScale, 6);
}

TEST(PaneZoom, PercentageIsCut) {
  for (const auto& [scale, text] :
       {std::pair{1.0F, "100%"}, {2.0F, "50%"}, {3.0F, "33%"}, {4.0F, "25%"}, {7.0F, "14%"}}) {
    EXPECT_EQ(PercentageText(scale), text);
  }
}

TEST(Backdrop, StandsOnAGridWhereItIsTransparent) {
  RasterImage below(kRgbMode, {0, 0, 2, 2}, 4, 8, 0, 0);
  const Bytes samples = {10, 20, 30, 40, 11, 21, 31, 41, 12, 22, 32, 42, 255, 0, 51, 255};
  std::copy(samples.begin(), samples.end(), below.Pixels());
  // 30 * 0.2 + 204 * 0.8 = 169.2, 31: 169.4, 32: 169.6.
  EXPECT_EQ(BuildBackdrop(below, {0, 0, 2, 2, 1}),
            (Bytes{10, 11, 12, 204, 204, 204, 169, 169, 169, 40, 41, 42}));
  // Twice reduced, from the second pixel on: beyond the image its last ones repeat.
  EXPECT_EQ(BuildBackdrop(below, {1, 1, 1, 1, 2}), (Bytes{40, 41, 42}));
  // Squares of seven: the one at 7, 0 is the lighter one.
  const Bytes wide = BuildBackdrop(below, {0, 0, 8, 1, 0.25F});
  EXPECT_EQ(wide[4 * 3], 204);
  EXPECT_EQ(wide[7 * 3], 255);
}

TEST(Backdrop, WithoutAlphaIsCopied) {
  RasterImage grey(kGrayMode, {0, 0, 2, 2}, 1, 8, 0, 0);
  EXPECT_TRUE(BuildBackdrop(grey, {0, 0, 2, 2, 1}).empty());
  const Bytes samples = {1, 2, 3, 4};
  std::copy(samples.begin(), samples.end(), grey.Pixels());
  EXPECT_EQ(BuildBackdrop(grey, {0, 0, 2, 1, 1}), (Bytes{1, 1, 1, 2, 2, 2}));
}

TEST(PaneBitmap, IsBottomUpInBlueGreenRed) {
  const Bytes rows = {1, 2, 3, 4, 5, 6, 99, 7, 8, 9, 10, 11, 12, 99};
  EXPECT_EQ(BuildPaneBitmap({rows.data(), 7, 3}, 2, 2, nullptr, 0),
            (Bytes{9, 8, 7, 12, 11, 10, 3, 2, 1, 6, 5, 4}));
  EXPECT_TRUE(BuildPaneBitmap({nullptr, 7, 3}, 2, 2, nullptr, 0).empty());
}

TEST(PaneBitmap, ShowsTheBackdropThroughTransparency) {
  const Bytes row = {100, 100, 100, 51, 100, 100, 100, 255};
  const Bytes backdrop = {200, 210, 220, 1, 2, 3};
  // 100 * 0.2 + backdrop * 0.8: 180, 188, 196.
  EXPECT_EQ(BuildPaneBitmap({row.data(), 8, 4}, 2, 1, backdrop.data(), 2),
            (Bytes{196, 188, 180, 100, 100, 100}));
  EXPECT_EQ(BuildPaneBitmap({row.data(), 8, 4}, 2, 1, nullptr, 0),
            (Bytes{20, 20, 20, 100, 100, 100}));
  EXPECT_EQ(BuildPaneBitmap({row.data(), 8, 4, false, true}, 2, 1, backdrop.data(), 2),
            (Bytes{20, 20, 20, 100, 100, 100}));
}

TEST(PaneBitmap, TakesTheUpperBitsOfSixteen) {
  for (const auto& [sample, byte] : {std::pair{0, 0},
                                     {127, 0},
                                     {128, 1},
                                     {16384, 128},
                                     {32639, 254},
                                     {32640, 255},
                                     {32768, 255},
                                     {65535, 255}}) {
    EXPECT_EQ(ByteOf16(static_cast<std::uint16_t>(sample)), byte) << sample;
  }
  const Bytes row = {0x80, 0x00, 0x00, 0x40, 0x00, 0x80};
  EXPECT_EQ(BuildPaneBitmap({row.data(), 6, 3, true}, 1, 1, nullptr, 0), (Bytes{255, 128, 1}));
}

}  // namespace
}  // namespace tarnwick
