#include "toolbox/strokes.h"

#include <gtest/gtest.h>

#include <vector>

#include "toolbox/cracks.h"
#include "toolbox/maths.h"
#include "toolbox/scratches.h"

namespace tarnwick::content {
namespace {

const Sheet kSheet{60, 40, 1, nullptr};

Field Drawn(const std::vector<StrokePoint>& points, StrokeProfile profile) {
  StrokeSet strokes;
  strokes.Add(points);
  Field field(kSheet);
  strokes.Draw(kSheet, field, {.profile = profile});
  return field;
}

TEST(Strokes, CutOfALevelLine) {
  // A line along row 20; the rows at distance 0, 1, 2, 3 from it.
  const struct {
    const char* name;
    StrokeProfile profile;
    float radius, strength;
    float want[4];
  } kCases[] = {
      {"two pixels and a quarter", StrokeProfile::kFlat, 2.25F, 1.0F, {1.0F, 1.0F, 0.75F, 0.0F}},
      {"half strength", StrokeProfile::kFlat, 1.0F, 0.5F, {0.5F, 0.25F, 0.0F, 0.0F}},
      {"half a pixel thick", StrokeProfile::kFlat, 0.25F, 1.0F, {0.5F, 0.0F, 0.0F, 0.0F}},
      // Half circle of radius 2.5: sqrt(1 - (d / 2.5)²).
      {"wire", StrokeProfile::kRound, 2.0F, 1.0F, {1.0F, 0.91651514F, 0.6F, 0.0F}},
      {"groove", StrokeProfile::kVee, 1.5F, 1.0F, {1.0F, 0.5F, 0.0F, 0.0F}},
  };
  for (const auto& c : kCases) {
    const Field field = Drawn(
        {{10.0F, 20.0F, c.radius, c.strength}, {50.0F, 20.0F, c.radius, c.strength}}, c.profile);
    for (int d = 0; d < 4; ++d) {
      EXPECT_NEAR(field(30, 20 + d), c.want[d], 1e-5F) << c.name << " below " << d;
      EXPECT_NEAR(field(30, 20 - d), c.want[d], 1e-5F) << c.name << " above " << d;
    }
    EXPECT_EQ(field(4, 20), 0.0F) << c.name << " before its start";
  }
}

TEST(Strokes, PressureAndDots) {
  const Field fading =
      Drawn({{10.0F, 20.0F, 2.0F, 0.0F}, {50.0F, 20.0F, 2.0F, 1.0F}}, StrokeProfile::kFlat);
  EXPECT_NEAR(fading(20, 20), 0.25F, 1e-5F);
  EXPECT_NEAR(fading(40, 20), 0.75F, 1e-5F);
  const Field dot = Drawn({{30.0F, 20.0F, 3.0F, 1.0F}}, StrokeProfile::kFlat);
  EXPECT_EQ(dot(32, 20), 1.0F);
  EXPECT_EQ(dot(30, 16), 0.0F);
  // A drop longer than its tail: one round dot, whole on all sides.
  const Field drop =
      Drawn({{30.0F, 20.0F, 1.0F, 1.0F}, {31.0F, 20.0F, 6.0F, 1.0F}}, StrokeProfile::kFlat);
  EXPECT_EQ(drop(26, 20), 1.0F);
  EXPECT_EQ(drop(31, 15), 1.0F);
}

TEST(Strokes, CrossingsDoNotPileUpAndOrderDoesNotMatter) {
  const std::vector<StrokePoint> level = {{5.0F, 20.0F, 2.0F, 0.5F}, {55.0F, 20.0F, 2.0F, 0.5F}};
  const std::vector<StrokePoint> steep = {{30.0F, 5.0F, 2.0F, 0.8F}, {30.0F, 35.0F, 2.0F, 0.8F}};
  StrokeSet one;
  one.Add(level);
  one.Add(steep);
  StrokeSet other;
  other.Add(steep);
  other.Add(level);
  Field a(kSheet);
  Field b(kSheet);
  one.Draw(kSheet, a);
  other.Draw(kSheet, b);
  EXPECT_FLOAT_EQ(a(30, 20), 0.8F);
  EXPECT_FLOAT_EQ(a(20, 20), 0.5F);
  for (int y = 0; y < kSheet.height; ++y) {
    for (int x = 0; x < kSheet.width; ++x) ASSERT_EQ(a(x, y), b(x, y));
  }
}

TEST(Strokes, WalkGoesItsLengthInItsDirection) {
  StrokeSet strokes;
  AddWalk(
      strokes,
      {.x = 10.0F, .y = 20.0F, .length = 40.0F, .heading = 0.0F, .radius = 2.0F, .taper = 0.0F});
  Field field(kSheet);
  strokes.Draw(kSheet, field);
  EXPECT_EQ(field(10, 20), 1.0F);
  EXPECT_EQ(field(50, 20), 1.0F);
  EXPECT_EQ(field(54, 20), 0.0F);
  EXPECT_EQ(field(30, 24), 0.0F);
}

// A tip is thinner than a pixel and fades out in dots: these do not count.
constexpr float kClear = 0.15F;

// How many clear places can be reached from (x, y) over places that are not
// blank, with gaps of one place allowed.
int Reached(const Field& field, int x, int y) {
  const auto width = static_cast<std::size_t>(field.Width());
  std::vector<char> seen(width * static_cast<std::size_t>(field.Height()));
  std::vector<std::pair<int, int>> open = {{x, y}};
  int count = 0;
  while (!open.empty()) {
    const auto [cx, cy] = open.back();
    open.pop_back();
    for (int j = -2; j <= 2; ++j) {
      for (int i = -2; i <= 2; ++i) {
        const int nx = cx + i;
        const int ny = cy + j;
        if (nx < 0 || ny < 0 || nx >= field.Width() || ny >= field.Height()) continue;
        char& mark = seen[static_cast<std::size_t>(ny) * width + static_cast<std::size_t>(nx)];
        if (mark != 0 || field(nx, ny) <= 0.0F) continue;
        mark = 1;
        count += field(nx, ny) > kClear ? 1 : 0;
        open.emplace_back(nx, ny);
      }
    }
  }
  return count;
}

TEST(Cracks, BranchesHangTogether) {
  const Sheet sheet{400, 300, 1, nullptr};
  for (std::uint32_t seed = 0; seed < 5; ++seed) {
    StrokeSet strokes;
    AddCrack(strokes, sheet, {.length = 300.0F, .branchEvery = 30.0F}, 200.0F, 150.0F, 0.4F, seed);
    Field field(sheet);
    strokes.Draw(sheet, field);
    int drawn = 0;
    for (int y = 0; y < sheet.height; ++y) {
      for (int x = 0; x < sheet.width; ++x) drawn += field(x, y) > kClear ? 1 : 0;
    }
    EXPECT_GT(drawn, 900) << seed;
    EXPECT_EQ(Reached(field, 200, 150), drawn) << seed;
  }
}

TEST(Scratches, AreAsManyAsTheSheetIsLarge) {
  const ScratchStyle style{.count = 400, .minLength = 80.0F, .maxLength = 80.0F, .skip = 0.0F};
  StrokeSet whole;
  AddScratches(whole, {2048, 1536, 1, nullptr}, style, 3);
  StrokeSet quarter;
  AddScratches(quarter, {1024, 768, 1, nullptr}, style, 3);
  // Ten pieces of eight pixels each.
  EXPECT_EQ(whole.SegmentCount(), 4000U);
  EXPECT_EQ(quarter.SegmentCount(), 1000U);
}

}  // namespace
}  // namespace tarnwick::content
