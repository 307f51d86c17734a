#include "controls/models/slider_values.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

// 110 pixels are 100 between the margins of five.
TEST(SliderValues, APointerStandsForAValueAndBack) {
  const struct {
    SliderRange range;
    int position;
    float value;
    int back;  // where that value is drawn
  } kCases[] = {
      {{0, 100}, 5, 0, 5},
      {{0, 100}, 55, 50, 55},
      {{0, 100}, 105, 100, 105},
      {{0, 100}, 0, 0, 5},
      {{0, 100}, 300, 100, 105},
      {{0, 100}, -40, 0, 5},
      {{-100, 100}, 55, 0, 55},
      {{-100, 100}, 30, -50, 30},
      {{0, 200}, 6, 2, 6},
      {{0, 100, true, 20, 60}, 10, 20, 25},
      {{0, 100, true, 20, 60}, 100, 60, 65},
      {{0, 100, true, 20, 60}, 50, 45, 50},
  };
  for (const auto& c : kCases) {
    EXPECT_FLOAT_EQ(ValueAt(c.range, c.position, 110), c.value) << c.position;
    EXPECT_EQ(PositionOf(c.range, c.value, 110), c.back) << c.position;
  }
}

TEST(SliderValues, LimitsCountOnlyWhenTheyAreOn) {
  EXPECT_EQ(WithinLimits({0, 100, false, 20, 60}, 90), 90);
  EXPECT_EQ(WithinLimits({0, 100, true, 20, 60}, 90), 60);
  // The wrong way round: the low one is looked at first.
  EXPECT_EQ(WithinLimits({0, 100, true, 60, 20}, 40), 60);
}

TEST(SliderValues, SnapsWhatIsNearerThanTheDistance) {
  const struct {
    int position, snapped;
  } kCases[] = {{9, 0}, {10, 10}, {-9, 0}, {-10, -10}, {0, 0}};
  for (const auto& c : kCases) EXPECT_EQ(Snapped(c.position, 0, 10), c.snapped) << c.position;
  EXPECT_EQ(Snapped(95, 100.5F, 10), 100);
}

}  // namespace
}  // namespace tarnwick
