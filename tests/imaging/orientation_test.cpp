#include "imaging/orientation.h"

#include <gtest/gtest.h>

#include "support/forms.h"
#include "support/images.h"

namespace tarnwick::testing {
namespace {

TEST(Orientation, QuarterTurns) {
  // 3 x 2 with a place of its own, and a second plane that is not turned.
  auto source = std::make_shared<RasterImage>(kRgbMode, Rect{7, 9, 9, 12}, std::int8_t{2}, 8, 0,
                                              std::uint8_t{0});
  const Bytes samples = {1, 2, 3, 4, 5, 6, 9, 9, 9, 9, 9, 9};
  std::copy(samples.begin(), samples.end(), source->Pixels());
  ImagePtr turned;
  ASSERT_TRUE(RotateClockwise(turned, source.get()));
  EXPECT_EQ(StorageOf(*turned), Bytes({4, 1, 5, 2, 6, 3, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(turned->bounds.left, 9);
  EXPECT_EQ(turned->bounds.top, 7);
  ASSERT_TRUE(RotateCounterClockwise(turned, source.get()));
  EXPECT_EQ(StorageOf(*turned), Bytes({3, 6, 2, 5, 1, 4, 0, 0, 0, 0, 0, 0}));

  const ImagePtr kept = turned;
  EXPECT_FALSE(RotateClockwise(turned, nullptr));
  EXPECT_FALSE(RotateCounterClockwise(turned, MakeGrayImage({0, 0, 2, 2}, 0).get()));
  EXPECT_EQ(turned, kept);
}

TEST(Orientation, EveryFormTurnsBack) {
  TestRandom random(10);
  for (int width = 1; width <= 67; ++width) {
    const int height = 1 + random.Below(80);
    const Bytes samples = random.Shaped(static_cast<std::size_t>(width * height));
    const ImagePtr source = GrayOf(width, samples);
    for (const Form& form : AllForms()) {
      ImagePtr once;
      ASSERT_TRUE(RotateClockwise(once, source.get(), form.Pool()));
      for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
          ASSERT_EQ(once->Pixels()[x * height + height - 1 - y], source->Pixels()[y * width + x]);
        }
      }
      ImagePtr back;
      ASSERT_TRUE(RotateCounterClockwise(back, once.get(), form.Pool()));
      ASSERT_EQ(StorageOf(*back), samples) << width << 'x' << height << ' ' << form;
      // Both mirrors are half a turn.
      ImagePtr half;
      ASSERT_TRUE(RotateClockwise(half, once.get(), form.Pool()));
      const ImagePtr mirrored = GrayOf(width, samples);
      ASSERT_TRUE(ReverseRows(*mirrored, *source, form.Pool()));
      const ImagePtr both = GrayOf(width, samples);
      ASSERT_TRUE(MirrorRows(*both, *mirrored, form.Pool()));
      ASSERT_EQ(StorageOf(*both), StorageOf(*half)) << width << 'x' << height << ' ' << form;
    }
  }
}

TEST(Orientation, MirrorsAndCopiesNeedTheSameShape) {
  const ImagePtr two = PlanesOf(2, 2, 2, {1, 2, 3, 4, 5, 6, 7, 8});
  const ImagePtr target = PlanesOf(2, 2, 2, Bytes(8, 0));
  ASSERT_TRUE(ReverseRows(*target, *two));
  EXPECT_EQ(StorageOf(*target), Bytes({3, 4, 1, 2, 7, 8, 5, 6}));
  ASSERT_TRUE(MirrorRows(*target, *two));
  EXPECT_EQ(StorageOf(*target), Bytes({2, 1, 4, 3, 6, 5, 8, 7}));
  ASSERT_TRUE(CopyPixels(*target, *two));
  EXPECT_EQ(StorageOf(*target), StorageOf(*two));

  const Bytes before = StorageOf(*target);
  for (const ImagePtr& other : {GrayOf(2, {1, 2, 3, 4}), PlanesOf(2, 3, 2, Bytes(12, 9)),
                                PlanesOf(3, 2, 2, Bytes(12, 9)), MakeGrayImage({0, 0, 2, 2}, 1)}) {
    EXPECT_FALSE(ReverseRows(*target, *other));
    EXPECT_FALSE(MirrorRows(*target, *other));
    EXPECT_FALSE(CopyPixels(*target, *other));
  }
  EXPECT_EQ(StorageOf(*target), before);
}

// Out of the 4 x 3 picture 11..34.
const struct {
  const char* name;
  Rect rect;
  int width;
  Bytes want;  // from a target of 99
} kRegions[] = {
    {"the size of the target", {1, 2, 3, 4}, 2, {23, 24, 33, 34}},
    {"centred, rounding down", {0, 0, 1, 1}, 4, {99, 99, 99, 99, 99, 11, 99, 99, 99, 99, 99, 99}},
    {"larger than the target", {0, 0, 3, 4}, 2, {12, 13, 22, 23, 32, 33}},
    {"beyond the source", {2, 3, 4, 5}, 2, {34, 99, 99, 99}},
};

TEST(Orientation, CopiesARegion) {
  const ImagePtr source = GrayOf(4, {11, 12, 13, 14, 21, 22, 23, 24, 31, 32, 33, 34});
  for (const auto& c : kRegions) {
    const ImagePtr target = GrayOf(c.width, Bytes(c.want.size(), 99));
    ASSERT_TRUE(CopyRegion(*target, *source, c.rect)) << c.name;
    EXPECT_EQ(StorageOf(*target), c.want) << c.name;
  }
  const ImagePtr target = GrayOf(1, {99});
  EXPECT_FALSE(CopyRegion(*target, *source, {0, 0, 0, 3}));
  EXPECT_FALSE(CopyRegion(*target, *MakeGrayImage({0, 0, 2, 2}, 0), {0, 0, 1, 1}));
}

}  // namespace
}  // namespace tarnwick::testing
