#include <gtest/gtest.h>
#include <algorithm>
#include <cstdlib>

#include "built_picture.h"

namespace tarnwick {
namespace {

const struct {
  int width, height;
  std::vector<int> numbers;
} kSizes[] = {
    {453, 71, {213}},
    {4, 71, {214}},
    {334, 71, {215}},
    {400, 35, {227, 228, 231, 232}},
    {118, 50, {224, 225}},
    {127, 40, {188, 189}},
    {140, 40, {186, 192, 233, 234}},
    {30, 26, {104, 107, 143, 144, 145, 146}},
    {24, 24, {174, 175, 176, 177, 178, 179, 180, 181, 182, 183, 184, 185}},
    {20, 63, {218, 219, 220, 221, 222, 223}},
    {16, 14, {148, 150}},
    {13, 13, {153, 154}},
    {20, 33, {155}},
    {199, 20, {193, 208, 235}},
    {116, 38, {201, 202, 206, 207}},
    {40, 38, {203, 204, 205}},
    {12, 25, {209, 210, 211, 212}},
    {44, 19, {168, 169}},
    {28, 125, {156, 157, 158, 159}},
    {20, 15, {160, 161, 162, 163, 164, 165}},
    {14, 14, {172, 173}},
};

TEST(ModulePictures, AreAllThereInTheirSizes) {
  std::vector<int> wanted;
  for (const auto& c : kSizes) {
    for (const int number : c.numbers) {
      wanted.push_back(number);
      const BuiltPicture picture = BuiltBitmap(number);
      EXPECT_EQ(picture.width, c.width) << number;
      EXPECT_EQ(picture.height, c.height) << number;
    }
  }
  std::ranges::sort(wanted);
  EXPECT_EQ(ResourceNumbers("#2"), wanted);
}

// Every state of a control beside every other.
const std::vector<int> kStates[] = {
    {228, 227, 232, 231}, {225, 224},      {189, 188},
    {186, 192, 234, 233}, {104, 145, 143}, {107, 146, 144},
    {184, 185, 174},      {181, 182, 183}, {178, 179, 180, 177, 175, 176},
    {223, 222, 221},      {220, 219, 218}, {148, 150},
    {154, 153},           {207, 206},      {202, 201},
    {205, 204, 203},      {212, 211},      {210, 209},
    {168, 169},           {158, 157},      {156, 159},
    {163, 162, 161},      {160, 165, 164}, {172, 173},
    {193, 208, 235},
};

// Pixels of which some sample differs by more than a sixth of the scale.
int PixelsThatDiffer(const BuiltPicture& a, const BuiltPicture& b) {
  int count = 0;
  for (std::size_t i = 0; i < a.pixels.size(); ++i) {
    int most = 0;
    for (std::size_t c = 0; c < 3; ++c)
      most = std::max(most, std::abs(a.pixels[i][c] - b.pixels.at(i)[c]));
    if (most > 42) ++count;
  }
  return count;
}

TEST(ModulePictures, TellTheStatesOfAControlApart) {
  for (const std::vector<int>& states : kStates) {
    for (const int one : states) {
      for (const int other : states) {
        if (one == other) continue;
        // As much as the strokes of a small glyph.
        EXPECT_GE(PixelsThatDiffer(BuiltBitmap(one), BuiltBitmap(other)), 18)
            << one << " and " << other;
      }
    }
  }
}

// What the header shows at a place, before its buttons: `width` is the dialog's.
Rgb BandAt(int width, int x, int y) {
  static const BuiltPicture left = BuiltBitmap(213);
  static const BuiltPicture tile = BuiltBitmap(214);
  static const BuiltPicture right = BuiltBitmap(215);
  if (x < 453) return left.At(x, y);
  return x < width - 334 ? tile.At((x - 453) % 4, y) : right.At(x - (width - 334), y);
}

TEST(ModulePictures, JoinTheBandWithoutASeam) {
  for (int y = 0; y < 71; ++y) {
    for (const int x : {452, 453, 454, 455, 456, 457, 665, 666}) {
      EXPECT_EQ(BandAt(1000, x, y), BandAt(1000, 500, y)) << x << ", " << y;
    }
  }
}

TEST(ModulePictures, LetNoRectangleShowRoundTheButtonsOnTheBand) {
  constexpr int kWidth = 1000;
  const struct {
    int x, y;
    std::vector<int> numbers;
  } places[] = {
      {23, 18, {227, 228, 231, 232}},
      {453, 9, {224, 225}},
      {kWidth - 328, 19, {188, 189}},
      {kWidth - 202, 19, {186, 192, 233, 234}},
  };
  for (const auto& c : places) {
    for (const int number : c.numbers) {
      const BuiltPicture button = BuiltBitmap(number);
      const auto check = [&](int x, int y) {
        EXPECT_EQ(button.At(x, y), BandAt(kWidth, c.x + x, c.y + y))
            << number << " at " << x << ", " << y;
      };
      for (int x = 0; x < button.width; ++x) {
        check(x, 0);
        check(x, button.height - 1);
      }
      for (int y = 0; y < button.height; ++y) {
        check(0, y);
        check(button.width - 1, y);
      }
    }
  }
}

TEST(ModulePictures, LieOnTheirGrounds) {
  const struct {
    int grey;
    std::vector<int> numbers;
  } grounds[] = {
      {240, {104, 107, 143, 144, 145, 146, 174, 175, 176, 177, 178, 179, 180, 181, 182}},
      {240, {183, 184, 185, 218, 219, 220, 221, 222, 223}},
      {255, {148, 150}},
      {128, {160, 161, 162, 163, 164, 165, 172, 173}},
      {0, {153, 154, 156, 157, 158, 159, 193, 201, 202, 203, 204, 205, 206, 207, 208}},
      {0, {209, 210, 211, 212, 235}},
  };
  for (const auto& c : grounds) {
    for (const int number : c.numbers) {
      const BuiltPicture picture = BuiltBitmap(number);
      for (const int x : {0, picture.width - 1}) {
        for (const int y : {0, picture.height - 1}) {
          EXPECT_EQ(picture.At(x, y), (Rgb{c.grey, c.grey, c.grey})) << number;
        }
      }
    }
  }
}

TEST(ModulePictures, ShadeACornerWithAQuarterCircle) {
  const BuiltPicture shade = BuiltBitmap(155);
  double sum = 0;
  for (int y = 0; y < 33; ++y) {
    for (int x = 0; x < 20; ++x) {
      const Rgb& p = shade.At(x, y);
      EXPECT_TRUE(p[0] == p[1] && p[1] == p[2]) << "a grey";
      // Whoever lays it at a corner counts on black along the pane and the strip.
      if (y == 0 || x == 19) {
        EXPECT_EQ(p[0], 0) << x << ", " << y;
      } else if (x > 0) {
        EXPECT_LE(p[0], shade.At(x - 1, y)[0]) << x << ", " << y;
        EXPECT_GE(p[0], shade.At(x, y - 1)[0]) << x << ", " << y;
      }
      sum += p[0] / 255.0;
    }
  }
  EXPECT_EQ(shade.At(0, 32)[0], 255);
  // A square of 12 without its quarter circle: 144 - 36 pi. The edge is drawn in steps
  // of a fifteenth of a row, in twelve columns.
  EXPECT_NEAR(sum, 30.9, 12.0 / 15);
}

}  // namespace
}  // namespace tarnwick
