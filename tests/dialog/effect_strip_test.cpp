#include "dialog/models/effect_strip.h"

#include <gtest/gtest.h>

namespace tarnwick {

std::ostream& operator<<(std::ostream& out, const StripPlace& p) {
  return out << p.id << " at " << p.place.x << ' ' << p.place.y << ' ' << p.place.width << ' '
             << p.place.height;
}

namespace {

EffectViews OnTab(int tab, bool two = false) {
  EffectViews views;
  views.currentTab = static_cast<std::uint8_t>(tab);
  views.hasSecondWash = views.hasSecondSurface = two;
  return views;
}

// An item as the tables below give it: all are 16 high, at the row's top.
struct Expected {
  int id, x, width;
};

std::vector<StripPlace> Placed(const std::vector<Expected>& items, int top) {
  std::vector<StripPlace> row;
  for (const Expected& item : items) {
    const bool isCross = item.id >= 509 && item.id <= 512;
    row.push_back(isCross ? StripPlace{item.id, {item.x, top + 2, 13, 13}}
                          : StripPlace{item.id, {item.x, top, item.width, 16}});
  }
  return row;
}

struct Row {
  const char* name;
  int dpi, tab;
  bool two;
  std::vector<Expected> items;
};

// From 400 on, with the pane's right edge at 900.
const Row kRows[] = {
    {"basic", 96, kBasicTab, true, {{500, 400, 66}, {604, 466, 8}, {504, 474, 55}, {513, 835, 50}}},
    {"one wash",
     96,
     kWashTab,
     false,
     {{500, 400, 66},
      {604, 466, 8},
      {501, 474, 60},
      {608, 534, 7},
      {503, 541, 60},
      {612, 601, 7},
      {504, 608, 55},
      {514, 820, 70}}},
    // The crosses take no room: a separator begins 20 behind its wash.
    {"two washes",
     96,
     kWashTab,
     true,
     {{500, 400, 66},
      {604, 466, 8},
      {501, 474, 60},
      {512, 537, 13},
      {608, 554, 7},
      {502, 561, 60},
      {511, 624, 13},
      {612, 641, 7},
      {504, 648, 55},
      {514, 820, 70}}},
    {"one surface",
     96,
     kSurfaceTab,
     false,
     {{500, 400, 66},
      {604, 466, 7},
      {506, 473, 70},
      {608, 543, 7},
      {508, 550, 70},
      {612, 620, 7},
      {504, 627, 55},
      {515, 813, 87}}},
    {"two surfaces",
     96,
     kSurfaceTab,
     true,
     {{500, 400, 66},
      {604, 466, 7},
      {506, 473, 70},
      {510, 547, 13},
      {608, 565, 7},
      {507, 572, 70},
      {509, 646, 13},
      {612, 664, 7},
      {504, 671, 55},
      {515, 813, 87}}},
    {"background",
     96,
     kBackgroundTab,
     false,
     {{500, 400, 66},
      {604, 466, 8},
      {505, 474, 70},
      {608, 544, 7},
      {504, 551, 55},
      {516, 790, 110}}},
    // Texts grow by half at 216; separators, crosses and their distances do not. The
    // longer Resets go left by 70 x 1.5 and 17 or 40 x 2.25.
    {"two surfaces, fine",
     216,
     kSurfaceTab,
     true,
     {{500, 400, 99},
      {604, 499, 7},
      {506, 506, 105},
      {510, 615, 13},
      {608, 633, 7},
      {507, 640, 105},
      {509, 749, 13},
      {612, 767, 7},
      {504, 774, 82},
      {515, 756, 130}}},
    {"background, fine",
     216,
     kBackgroundTab,
     false,
     {{500, 400, 99},
      {604, 499, 8},
      {505, 507, 105},
      {608, 612, 7},
      {504, 619, 82},
      {516, 705, 165}}},
    // 1.2247 times, cut off: 80.8, 67.4 and 61.2 wide; 900 + 5 - 85.7 is 819.3.
    {"basic at 144",
     144,
     kBasicTab,
     false,
     {{500, 400, 80}, {604, 480, 8}, {504, 488, 67}, {513, 819, 61}}},
};

TEST(EffectStrip, RowsOfThePages) {
  for (const Row& row : kRows) {
    EXPECT_EQ(LayoutStrip({400, 88, 900, row.dpi}, OnTab(row.tab, row.two)), Placed(row.items, 88))
        << row.name;
  }
}

// The frame at 408, 80 in the template, on a strip from 75 to 108: a row of 16 has to
// begin at 76 to 91.
TEST(EffectStrip, BeginsOnTheBlackStrip) {
  const struct {
    int dpi, frameTop, x, y;
  } kScreens[] = {{96, 70, 437, 86},  {97, 50, 422, 86},  {120, 55, 367, 81}, {144, 50, 437, 86},
                  {192, 54, 437, 90}, {216, 95, 437, 81}, {144, 70, 437, 91}, {216, 70, 437, 76}};
  for (const auto& screen : kScreens) {
    const StripOrigin origin = StripOriginFor(408, screen.frameTop, 75, screen.dpi);
    EXPECT_EQ(origin.x, screen.x) << screen.dpi;
    EXPECT_EQ(origin.y, screen.y) << screen.dpi << " from " << screen.frameTop;
  }
}

}  // namespace
}  // namespace tarnwick
