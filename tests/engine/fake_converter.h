#pragma once
#include <gtest/gtest.h>

#include <vector>

#include "engine/apply_run.h"

namespace tarnwick::testing {

// A conversion of its own: each ink is a colour with some bits turned round.
struct FakeConverter : RowColorConverter {
  bool RgbToCmyk(std::uint8_t* p, int count) override {
    toCmyk.push_back(count);
    if (fails) return false;
    for (int i = 0; i < count; ++i, p += 4) {
      EXPECT_EQ(p[0], 255);
      for (int c = 0; c < 3; ++c) p[c] = static_cast<std::uint8_t>(p[c + 1] ^ (0x11 << c));
      p[3] = 77;
    }
    return true;
  }
  bool CmykToRgb(std::uint8_t* p, int count) override {
    toRgb.push_back(count);
    for (int i = 0; i < count; ++i, p += 4) {
      const std::uint8_t ink[3] = {p[0], p[1], p[2]};
      for (int c = 0; c < 3; ++c) p[c + 1] = static_cast<std::uint8_t>(ink[c] ^ (0x11 << c));
    }
    return true;
  }
  bool fails = false;
  std::vector<int> toCmyk;
  std::vector<int> toRgb;
};

}  // namespace tarnwick::testing
