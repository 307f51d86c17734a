#include <gtest/gtest.h>

#include <stdexcept>

#include "resources/art_generator/picture.h"

namespace tarnwick {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes BytesOf(const std::string& file) {
  return {file.begin(), file.end()};
}

// Bytes and runs of zeros in a row.
Bytes Joined(std::initializer_list<Bytes> parts) {
  Bytes all;
  for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}
Bytes Zeros(std::size_t count) {
  return Bytes(count);
}

// Three wide: a row of a bitmap is nine bytes and three to fill up.
const ArtPicture kOpaque = {3, 2, {1,  2,  3,  255, 4,  5,  6,  255, 7,  8,  9,  255,  //
                                   11, 12, 13, 255, 14, 15, 16, 255, 17, 18, 19, 255}};

TEST(WindowsFiles, LayABitmapOutFromItsLastRowAndBlueFirst) {
  const Bytes want = Joined({
      {'B', 'M', 78, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0},
      {40, 0, 0, 0, 3, 0, 0, 0, 2, 0, 0, 0, 1, 0, 24, 0},
      Zeros(24),
      {13, 12, 11, 16, 15, 14, 19, 18, 17, 0, 0, 0},
      {3, 2, 1, 6, 5, 4, 9, 8, 7, 0, 0, 0},
  });
  EXPECT_EQ(BytesOf(EncodeBitmap(kOpaque)), want);
}

TEST(WindowsFiles, NameThePixelThatWouldComeOutBlack) {
  ArtPicture picture = kOpaque;
  picture.samples[4 * (3 + 2) + 3] = 254;
  try {
    (void)EncodeBitmap(picture);
    FAIL() << "a hole got through";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "not opaque at 2, 1");
  }
}

// Only its first pixel and its third are to be seen.
const ArtPicture kSmall = {2, 2, {1, 2, 3, 255, 0, 0, 0, 0, 7, 8, 9, 1, 0, 0, 0, 0}};
const Bytes kSmallAsEntry = Joined({
    // Twice as high as it is: the mask counts.
    {40, 0, 0, 0, 2, 0, 0, 0, 4, 0, 0, 0, 1, 0, 32, 0},
    Zeros(24),
    {9, 8, 7, 1, 0, 0, 0, 0, 3, 2, 1, 255, 0, 0, 0, 0},
    {0x40, 0, 0, 0, 0x40, 0, 0, 0},
});

TEST(WindowsFiles, KeepTheLargestIconAsItsPng) {
  const std::vector<IconImage> images = {{kSmall, "unused", 0, 0}, {{256, 256, {}}, "PNG", 0, 0}};
  const Bytes want = Joined({
      {0, 0, 1, 0, 2, 0},
      // Sides, planes and bits, bytes, place.
      {2, 2, 0, 0, 1, 0, 32, 0, 64, 0, 0, 0, 38, 0, 0, 0},
      {0, 0, 0, 0, 1, 0, 32, 0, 3, 0, 0, 0, 102, 0, 0, 0},
      kSmallAsEntry,
      {'P', 'N', 'G'},
  });
  EXPECT_EQ(BytesOf(EncodeIcon(images, false)), want);
}

TEST(WindowsFiles, GiveACursorItsPoint) {
  const Bytes want = Joined({
      {0, 0, 2, 0, 1, 0},
      {2, 2, 0, 0, 1, 0, 0, 1, 64, 0, 0, 0, 22, 0, 0, 0},
      kSmallAsEntry,
  });
  EXPECT_EQ(BytesOf(EncodeIcon({{kSmall, "", 1, 256}}, true)), want);
}

TEST(WindowsFiles, FillUpTheRowsOfAMaskToFourBytes) {
  // One pixel wider than 32: the last pixel has the first bit of a second four.
  ArtPicture picture{33, 33, Bytes(33 * 33 * 4, 255)};
  picture.samples[32 * 4 + 3] = 0;
  const Bytes file = BytesOf(EncodeIcon({{picture, "", 0, 0}}, false));
  const std::size_t mask = 22 + 40 + 33 * 33 * 4;
  ASSERT_EQ(file.size(), mask + 33 * 8);
  for (std::size_t i = mask; i < file.size(); ++i) {
    EXPECT_EQ(file[i], i == file.size() - 4 ? 0x80 : 0) << i - mask;
  }
}

TEST(WindowsFiles, RefuseAnIconThatIsNoSquare) {
  EXPECT_THROW((void)EncodeIcon({{kOpaque, "", 0, 0}}, false), std::runtime_error);
}

TEST(CutOut, TakesAPartAndNothingBeyond) {
  const ArtPicture part = CutOut(kOpaque, 1, 1, 2, 1);
  EXPECT_EQ(part.width, 2);
  EXPECT_EQ(part.height, 1);
  EXPECT_EQ(part.samples, (Bytes{14, 15, 16, 255, 17, 18, 19, 255}));
  const struct {
    int left, top, width, height;
  } kBeyond[] = {{-1, 0, 2, 1}, {0, -1, 2, 1}, {2, 0, 2, 1}, {0, 1, 2, 2}};
  for (const auto& c : kBeyond) {
    EXPECT_THROW((void)CutOut(kOpaque, c.left, c.top, c.width, c.height), std::runtime_error)
        << c.left << ", " << c.top;
  }
}

}  // namespace
}  // namespace tarnwick
