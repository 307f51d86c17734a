#include "imaging/fill.h"

#include <gtest/gtest.h>

#include "imaging/layer_merge.h"
#include "support/images.h"

namespace tarnwick::testing {
namespace {

TEST(Fill, Invert) {
  const ImagePtr image = PlanesOf(2, 1, 2, {0, 1, 254, 255});
  ASSERT_TRUE(InvertImage(*image));
  EXPECT_EQ(StorageOf(*image), Bytes({255, 254, 1, 0}));
  EXPECT_FALSE(InvertImage(*MakeGrayImage({0, 0, 2, 2}, 0)));
}

const struct {
  const char* name;
  int width, frame;
  Bytes want;
} kFrames[] = {
    {"only the centre of 3 x 3 stays", 3, 1, {0, 0, 0, 0, 7, 0, 0, 0, 0}},
    {"no frame", 2, 0, {7, 7, 7, 7}},
    {"one column", 1, 1, {0, 0, 0}},
    {"wider than the map", 2, 5, {0, 0, 0, 0, 0, 0}},
    {"2 of 5 columns", 5, 2, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 7,
                              0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
};

TEST(Fill, Frame) {
  for (const auto& c : kFrames) {
    const ImagePtr image = GrayOf(c.width, Bytes(c.want.size(), 7));
    ASSERT_TRUE(ClearFrame(*image, c.frame)) << c.name;
    EXPECT_EQ(StorageOf(*image), c.want) << c.name;
  }
  EXPECT_FALSE(ClearFrame(*MakeGrayImage({0, 0, 2, 2}, 0), 1));
}

// Tells what it was asked and answers with one colour.
struct Services : ColorServices {
  bool Convert(ColorChannels& channels, std::int16_t fromSpace, std::int16_t toSpace) override {
    asked = {channels[0], channels[1], channels[2], fromSpace, toSpace};
    if (works) channels = {50, 60, 70, 80};
    return works;
  }
  bool works = true;
  std::array<int, 5> asked{};
};

TEST(Fill, GoesThroughTheColorServices) {
  Services services;
  // Three planes with a margin, 3 x 3 each: only the upper bytes count.
  RasterImage image(kCmykMode, {0, 0, 1, 1}, 3, 8, 1, 0);
  ASSERT_TRUE(FillImage(image, {0x0AFF, 0x14FF, 0x1EFF}, &services));
  EXPECT_EQ(services.asked, (std::array<int, 5>{10, 20, 30, 0, 2}));
  Bytes wanted(9, 50);
  wanted.resize(18, 60);
  wanted.resize(27, 70);
  EXPECT_EQ(StorageOf(image), wanted);

  // Without them, or when they fail, black and white still are what they are.
  services.works = false;
  for (ColorServices* none :
       {static_cast<ColorServices*>(&services), static_cast<ColorServices*>(nullptr)}) {
    const ImagePtr gray = MakeGrayImage({0, 0, 1, 2}, 0);
    ASSERT_TRUE(FillImage(*gray, kWhiteFill, none));
    EXPECT_EQ(StorageOf(*gray), Bytes({255, 255}));
    ASSERT_TRUE(FillImage(*gray, kBlackFill, none));
    EXPECT_EQ(StorageOf(*gray), Bytes({0, 0}));
  }
  EXPECT_FALSE(FillImage(*MakeGrayImage({0, 0, 0, 2}, 0), kWhiteFill, nullptr));
}

TEST(Fill, SpaceOfEachMode) {
  const int spaces[] = {0, 4, 4, 0, 2, 5, 1, 4, 4, 3, 0};
  for (std::uint16_t mode = 0; mode < 11; ++mode) {
    EXPECT_EQ(ColorSpaceOfMode(mode), spaces[mode]) << mode;
  }
  ColorChannels kept = {1, 2, 3, 4};
  EXPECT_FALSE(ConvertColor(nullptr, kept, 3, 4));
  EXPECT_EQ(kept, (ColorChannels{1, 2, 3, 4}));
}

TEST(LayerMerge, Composite) {
  // d + (s - d) * m / 255 toward zero: 100 + (0 - 100) * 128 / 255 = 100 - 50.
  const ImagePtr target = PlanesOf(3, 2, 4, Bytes(24, 100));
  const ImagePtr source = PlanesOf(2, 1, 4, {0, 255, 200, 7, 100, 101, 9, 9});
  const ImagePtr mask = GrayOf(2, {128, 255});
  ASSERT_TRUE(CompositeThroughMask(*target, *source, *mask, {1, 1, 2, 3}));
  Bytes wanted(24, 100);
  // Plane 1: 100 + 100 * 128 / 255 = 150. Plane 3 is left alone.
  const std::pair<std::size_t, int> changed[] = {{4, 50}, {5, 255},  {10, 150},
                                                 {11, 7}, {16, 100}, {17, 101}};
  for (const auto& [at, value] : changed) wanted[at] = static_cast<std::uint8_t>(value);
  EXPECT_EQ(StorageOf(*target), wanted);

  const Rect bad[] = {{1, 2, 2, 4}, {0, 0, 1, 3}, {-1, 0, 0, 2}, {0, -1, 1, 1}, {2, 0, 3, 2}};
  for (const Rect& rect : bad) {
    EXPECT_FALSE(CompositeThroughMask(*target, *source, *mask, rect)) << rect.top << rect.left;
  }
  EXPECT_FALSE(CompositeThroughMask(*target, *source, *GrayOf(1, {1}), {0, 0, 1, 2}));
  EXPECT_EQ(StorageOf(*target), wanted);
}

TEST(LayerMerge, Alpha) {
  const ImagePtr four = PlanesOf(2, 1, 4, {1, 1, 1, 1, 1, 1, 10, 20});
  RaiseAlpha(*four, 15);
  EXPECT_EQ(StorageOf(*four), Bytes({1, 1, 1, 1, 1, 1, 15, 20}));
  MergeAlpha(*four, *GrayOf(2, {200, 3}));
  EXPECT_EQ(StorageOf(*four), Bytes({1, 1, 1, 1, 1, 1, 200, 20}));
  const ImagePtr three = PlanesOf(1, 1, 3, {1, 1, 1});
  RaiseAlpha(*three, 15);
  MergeAlpha(*three, *GrayOf(1, {200}));
  EXPECT_EQ(StorageOf(*three), Bytes({1, 1, 1}));
}

}  // namespace
}  // namespace tarnwick::testing
