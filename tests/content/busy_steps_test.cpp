#include "toolbox/busy_steps.h"

#include <gtest/gtest.h>

namespace tarnwick::content {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Differences to left, right, above and below, what is missing being none.
TEST(BusySteps, AreCoarserTheBusierItIs) {
  const struct {
    const char* name;
    int width;
    Bytes in, out;
  } kCases[] = {
      {"flat and smooth rows keep every level", 5, {7, 7, 8, 9, 9}, {7, 7, 8, 9, 9}},
      {"7 is smooth, 8 takes even levels", 4, {51, 58, 58, 66}, {51, 58, 58, 66}},
      {"odd levels round up", 3, {51, 59, 51}, {52, 60, 52}},
      // Differences 12, 24, 12.
      {"steps of four in the middle", 3, {51, 63, 51}, {52, 64, 52}},
      // 40, 80, 40.
      {"steps of eight", 3, {51, 91, 51}, {52, 88, 52}},
      {"white and black stay", 2, {255, 0, 0, 255}, {255, 0, 0, 255}},
      {"columns count as rows do", 1, {51, 63, 51}, {52, 64, 52}},
  };
  for (const auto& c : kCases) {
    for (const int threads : {1, 3}) {
      ThreadPool pool(threads);
      Bytes samples = c.in;
      CoarsenBusySteps(samples, c.width, &pool);
      EXPECT_EQ(samples, c.out) << c.name;
    }
  }
}

}  // namespace
}  // namespace tarnwick::content
