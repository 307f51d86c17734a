#include "imaging/box_blur.h"

#include <gtest/gtest.h>

#include "imaging/fill.h"
#include "support/forms.h"
#include "support/images.h"
#include "support/window_sums.h"

namespace tarnwick::testing {
namespace {

// Column 0 is part of the frame, and its running sum starts from nothing.
Bytes WithoutFirstColumn(Bytes rows, int width) {
  for (std::size_t i = 0; i < rows.size(); i += static_cast<std::size_t>(width)) rows[i] = 0;
  return rows;
}

const struct {
  const char* name;
  int width;
  int radius;
  Bytes in;
  Bytes want;
} kMaps[] = {
    // Rows 0 9 9 9 0 become 3 6 9 6 3; row 0 is then the mean of rows 4, 0, 1.
    {"a block gives a symmetric ramp",
     5,
     1,
     {0, 0, 0, 0, 0, 0, 9, 9, 9, 0, 0, 9, 9, 9, 0, 0, 9, 9, 9, 0, 0, 0, 0, 0, 0},
     {0, 2, 3, 2, 1, 0, 4, 6, 4, 2, 0, 6, 9, 6, 3, 0, 4, 6, 4, 2, 0, 2, 3, 2, 1}},
    // 49 in row 7 of 0..8: 49/7 across, 7/7 down. Rows 0, 1 reach it by wrapping.
    {"the bottom bleeds into the top",
     3,
     3,
     {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 49, 0, 0, 0, 0},
     {0, 1, 1, 0, 1, 1, 0, 0, 0, 0, 0, 0, 0, 1, 1, 0, 1, 1, 0, 1, 1, 0, 1, 1, 0, 1, 1}},
    {"a radius of 0 copies", 3, 0, {0, 2, 3, 0, 5, 6}, {0, 2, 3, 0, 5, 6}},
    {"the last row counts as 0, also alone", 3, 1, {0, 90, 0}, {0, 0, 0}},
};

TEST(BoxBlur, HandWorkedMaps) {
  for (const auto& c : kMaps) {
    const ImagePtr map = GrayOf(c.width, c.in);
    ASSERT_TRUE(BoxBlur(*map, c.radius)) << c.name;
    EXPECT_EQ(WithoutFirstColumn(StorageOf(*map), c.width), c.want) << c.name;
  }
}

TEST(BoxBlur, EveryFormEqualsTheWindowSums) {
  TestRandom random(1);
  std::vector<int> widths = {255, 256, 257, 600};
  for (int width = 1; width <= 67; ++width) widths.push_back(width);
  for (const int width : widths) {
    for (const int radius : {1, 2, 3, 15, 64}) {
      const int height = 2 + random.Below(40);
      ImagePtr map = GrayOf(width, random.Shaped(static_cast<std::size_t>(width * height)));
      ClearFrame(*map, 1 + random.Below(2));
      const Bytes framed = StorageOf(*map);
      const Bytes wanted = WindowSums(framed, width, radius);
      for (const Form& form : AllForms()) {
        map = GrayOf(width, framed);
        ASSERT_TRUE(BoxBlur(*map, radius, form.Pool()));
        const Bytes got = WithoutFirstColumn(StorageOf(*map), width);
        ASSERT_EQ(got, wanted) << width << 'x' << height << " radius " << radius << ' ' << form;
      }
    }
  }
}

TEST(BoxBlur, RefusesWhatHasNoPixels) {
  EXPECT_FALSE(BoxBlur(*MakeGrayImage({0, 0, 4, 4}, 0), 1));
  const ImagePtr map = GrayOf(2, {1, 2, 3, 4});
  EXPECT_FALSE(BoxBlur(*map, -1));
  EXPECT_EQ(StorageOf(*map), Bytes({1, 2, 3, 4}));
}

}  // namespace
}  // namespace tarnwick::testing
