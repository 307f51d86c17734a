#include "imaging/raster_image.h"

#include <gtest/gtest.h>

#include "support/images.h"

namespace tarnwick::testing {
namespace {

TEST(RasterImage, StorageIsTakenOnDemand) {
  // 10 wide, 20 high, not at the origin, and a margin of 3: storage 16 x 26.
  RasterImage image(kGrayMode, {100, 50, 120, 60}, 2, 0, 3, 1);
  EXPECT_EQ(image.Width(), 10);
  EXPECT_EQ(image.Height(), 20);
  EXPECT_EQ(image.StorageWidth(), 16);
  EXPECT_EQ(image.StorageHeight(), 26);
  EXPECT_EQ(image.RowBits(), 128);
  EXPECT_EQ(image.SampleBits(), 8);
  EXPECT_EQ(image.PlaneBytes(), 16U * 26U);
  EXPECT_EQ(image.PeekInterior(), nullptr);
  EXPECT_EQ(image.PeekPixels(), nullptr);

  ASSERT_NE(image.Interior(), nullptr);
  EXPECT_EQ(image.Interior(), image.Pixels() + 3 * 16 + 3);
  EXPECT_EQ(StorageOf(image), Bytes(16 * 26 * 2, 0));
  *image.Pixels() = 9;
  EXPECT_EQ(*image.CursorToPixels(), 9);

  image.Release();
  image.Release();
  EXPECT_EQ(image.PeekPixels(), nullptr);
  EXPECT_EQ(image.cursor, nullptr);
  ASSERT_NE(image.Pixels(), nullptr);
  EXPECT_EQ(*image.Pixels(), 0);
}

TEST(RasterImage, SizesWithoutStorage) {
  const struct {
    Rect bounds;
    int planes, margin;
  } kImages[] = {
      {{0, 0, 0, 5}, 1, 0},          {{0, 0, 5, 0}, 1, 0},         {{5, 5, 0, 0}, 1, 0},
      {{0, 0, 5, 5}, 0, 0},          {{0, 0, 70000, 70000}, 1, 0}, {{0, 0, 40000, 40000}, 3, 0},
      {{0, 0, 2, 2000000000}, 1, 0},
  };
  for (const auto& c : kImages) {
    RasterImage image(kGrayMode, c.bounds, static_cast<std::int8_t>(c.planes), 8, c.margin, 0);
    EXPECT_EQ(image.Pixels(), nullptr) << c.bounds.right << 'x' << c.bounds.bottom;
    EXPECT_EQ(image.Interior(), nullptr);
    EXPECT_EQ(image.PeekInterior(), nullptr);
  }
}

TEST(Rect, Operations) {
  Rect r{10, 20, 40, 25};
  r.Offset(-1, 2);
  r.Transpose();  // from 5 x 30 at (19, 12)
  EXPECT_EQ(r.left, 19);
  EXPECT_EQ(r.top, 12);
  EXPECT_EQ(r.Width(), 30);
  EXPECT_EQ(r.Height(), 5);
  r.Intersect({0, 40, 15, 100});
  EXPECT_EQ(r.left, 40);
  EXPECT_EQ(r.right, 49);
  EXPECT_EQ(r.top, 12);
  EXPECT_EQ(r.bottom, 15);
}

}  // namespace
}  // namespace tarnwick::testing
