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

// An item as the tables below give it, on a line of its texts' height.
struct Expected {
  int id, x, width;
};

struct Line {
  int top, height;
  int crossTop;
};

std::vector<StripPlace> Placed(const std::vector<Expected>& items, const Line& line) {
  std::vector<StripPlace> row;
  for (const Expected& item : items) {
    const bool isCross = item.id >= 509 && item.id <= 512;
    row.push_back(isCross ? StripPlace{item.id, {item.x, line.crossTop, 13, 13}}
                          : StripPlace{item.id, {item.x, line.top, item.width, line.height}});
  }
  return row;
}

struct Row {
  const char* name;
  int dpi, tab;
  bool two;
  std::vector<Expected> items;
};

// From 400 on, with the pane's right edge at 900; at 216, it is at 1100.
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
      {515, 805, 87}}},
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
      {515, 805, 87}}},
    {"background",
     96,
     kBackgroundTab,
     false,
     {{500, 400, 66},
      {604, 466, 8},
      {505, 474, 70},
      {608, 544, 7},
      {504, 551, 55},
      {516, 782, 110}}},
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
      {515, 956, 130}}},
    {"background, fine",
     216,
     kBackgroundTab,
     false,
     {{500, 400, 99},
      {604, 499, 8},
      {505, 507, 105},
      {608, 612, 7},
      {504, 619, 82},
      {516, 905, 165}}},
    // 1.2247 times, cut off: 80.8, 67.4 and 61.2 wide; 900 + 5 - 85.7 is 819.3.
    {"basic at 144",
     144,
     kBasicTab,
     false,
     {{500, 400, 80}, {604, 480, 8}, {504, 488, 67}, {513, 819, 61}}},
};

// Texts are 16 high, 19 at 144 (16 x 1.2247) and 24 at 216; the crosses keep to their
// middle. The longest Resets end 8 before the pane.
TEST(EffectStrip, RowsOfThePages) {
  for (const Row& row : kRows) {
    const Line line = row.dpi == 216   ? Line{88, 24, 94}
                      : row.dpi == 144 ? Line{88, 19, 91}
                                       : Line{88, 16, 90};
    const int right = row.dpi == 216 ? 1100 : 900;
    EXPECT_EQ(LayoutStrip({400, 88, right, row.dpi}, OnTab(row.tab, row.two)),
              Placed(row.items, line))
        << row.name;
  }
}

TEST(EffectStrip, ALongTextGetsItsRoom) {
  StripFrame frame{400, 88, 900, 96};
  frame.textWidths.fill(50);
  frame.textWidths[7] = 73;   // Surface Two, three more than its own
  frame.textWidths[11] = 90;  // Reset Surface
  const std::vector<Expected> want = {
      {500, 400, 66}, {604, 466, 7},  {506, 473, 70}, {510, 547, 13}, {608, 565, 7},
      {507, 572, 73}, {509, 649, 13}, {612, 667, 7},  {504, 674, 55}, {515, 802, 90}};
  EXPECT_EQ(LayoutStrip(frame, OnTab(kSurfaceTab, true)), Placed(want, {88, 16, 90}));
}

// At 120 texts are 73, 78, 61 and 97 wide. The row would end at 795, where Reset begins.
TEST(EffectStrip, ARowBeginsEarlierForReset) {
  StripFrame frame{440, 88, 900, 120, 400, 80};
  const std::vector<Expected> want = {
      {500, 432, 73}, {604, 505, 7},  {506, 512, 78}, {510, 594, 13}, {608, 612, 7},
      {507, 619, 78}, {509, 701, 13}, {612, 719, 7},  {504, 726, 61}, {515, 795, 97}};
  EXPECT_EQ(LayoutStrip(frame, OnTab(kSurfaceTab, true)), Placed(want, {88, 17, 90}));
}

// At 144 in the smallest window: texts are 80, 73, 67, 85 wide, and the pane has 348.
// Upper lines are 17 high, lower ones 16.
TEST(EffectStrip, ANarrowPaneGetsTwoLines) {
  const StripFrame frame{701, 250, 1005, 144, 657, 237};
  const Line upper{237, 17, 239}, lower{254, 16, 256};
  const struct {
    int tab;
    bool two;
    std::vector<Expected> upper, lower;
  } kCases[] = {
      // Ends before the pane does, and so stays where it is.
      {kBackgroundTab,
       false,
       {{500, 701, 80}, {604, 781, 8}, {505, 789, 85}, {608, 874, 7}, {504, 881, 67}},
       {{516, 859, 134}}},
      // Ends 19 too late.
      {kWashTab,
       false,
       {{500, 682, 80},
        {604, 762, 8},
        {501, 770, 73},
        {608, 843, 7},
        {503, 850, 73},
        {612, 923, 7},
        {504, 930, 67}},
       {{514, 904, 85}}},
      // 338 wide, where there are 332 between the margins.
      {kSurfaceTab,
       false,
       {{500, 701, 80}, {604, 781, 7}, {506, 788, 85}, {608, 873, 7}, {508, 880, 85}},
       {{504, 701, 67}, {515, 891, 106}}},
      // The last cross would end 7 too late.
      {kSurfaceTab,
       true,
       {{500, 694, 80},
        {604, 774, 7},
        {506, 781, 85},
        {510, 870, 13},
        {608, 888, 7},
        {507, 895, 85},
        {509, 984, 13}},
       {{504, 694, 67}, {515, 891, 106}}},
  };
  for (const auto& c : kCases) {
    std::vector<StripPlace> want = Placed(c.upper, upper);
    const std::vector<StripPlace> below = Placed(c.lower, lower);
    want.insert(want.end(), below.begin(), below.end());
    EXPECT_EQ(LayoutStrip(frame, OnTab(c.tab, c.two)), want) << c.tab << c.two;
  }
}

// The frame at 408, 80 in the template, on a strip from 75 to 108: a row of 16 has to
// begin at 76 to 91, one of 19 (at 144) by 88 and one of 22 (at 192) by 85.
TEST(EffectStrip, BeginsOnTheBlackStrip) {
  const struct {
    int dpi, frameTop, x, y;
  } kScreens[] = {{96, 70, 437, 86},  {97, 50, 422, 86},  {120, 55, 367, 81}, {144, 50, 437, 86},
                  {192, 54, 437, 85}, {216, 95, 437, 81}, {144, 70, 437, 88}, {216, 70, 437, 76}};
  for (const auto& screen : kScreens) {
    const StripOrigin origin = StripOriginFor(408, screen.frameTop, 75, screen.dpi);
    EXPECT_EQ(origin.x, screen.x) << screen.dpi;
    EXPECT_EQ(origin.y, screen.y) << screen.dpi << " from " << screen.frameTop;
  }
}

}  // namespace
}  // namespace tarnwick
