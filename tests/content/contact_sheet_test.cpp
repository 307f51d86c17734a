#include "builder/contact_sheet.h"

#include <gtest/gtest.h>

namespace tarnwick::content {
namespace {

TEST(ContactSheet, ReducedIsTheMeanOfAreas) {
  const GreyPicture picture{4, 2, {0, 4, 10, 20, 8, 12, 30, 41}};
  const GreyPicture small = Reduced(picture, 2, 2);
  EXPECT_EQ(small.width, 2);
  EXPECT_EQ(small.height, 1);
  // 24/4 and 101/4, rounded.
  EXPECT_EQ(small.samples, (std::vector<std::uint8_t>{6, 25}));
  EXPECT_EQ(Reduced(picture, 100, 100).samples, picture.samples) << "never enlarged";
}

TEST(ContactSheet, ChooserTileTakesEveryFourthSampleOfTheMiddle) {
  GreyPicture picture{16, 8, {}};
  for (int i = 0; i < 16 * 8; ++i) picture.samples.push_back(static_cast<std::uint8_t>(i));
  // A tile of 2 x 2 covers 8 x 8 from column 4: columns 4 and 8, rows 0 and 4.
  EXPECT_EQ(ChooserTile(picture, 2, 2).samples, (std::vector<std::uint8_t>{4, 8, 68, 72}));
}

TEST(ContactSheet, CellsAreCentredWithGaps) {
  const GreyPicture dot{1, 1, {255}};
  const GreyPicture sheet = ContactSheet({dot, dot, dot}, 2, 3, 3);
  // Two columns and two rows of 3 with gaps of 8.
  ASSERT_EQ(sheet.width, 30);
  ASSERT_EQ(sheet.height, 30);
  for (int y = 0; y < 30; ++y) {
    for (int x = 0; x < 30; ++x) {
      const bool isDot = (x == 9 && (y == 9 || y == 20)) || (x == 20 && y == 9);
      EXPECT_EQ(sheet.samples[static_cast<std::size_t>(y * 30 + x)], isDot ? 255 : 96) << x << y;
    }
  }
  EXPECT_EQ(Stacked(dot, dot).height, 10);
}

}  // namespace
}  // namespace tarnwick::content
