#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "controls/models/ball_angles.h"
#include "controls/models/ball_shade.h"

namespace tarnwick {
namespace {

constexpr int kSide = 100;  // centre 50, 50

TEST(BallAngles, APressTellsWhereItWas) {
  const struct {
    const char* place;
    int x, y;
    bool isDial;
    float azimuth, altitude;
  } kCases[] = {
      {"top of the rim", 50, 2, false, 90, 0},
      {"bottom of the rim", 50, 98, false, -90, 0},
      {"up and right", 74, 26, false, 45, 45},  // 24 sqrt 2 of 48 is cos 45
      {"up and left", 26, 26, false, 135, 45},
      {"down and left", 26, 74, false, -135, 45},
      {"down and right", 74, 74, false, -45, 45},
      {"beyond the rim", 50, -30, false, 90, 0},
      {"centre: the angle stays", 50, 50, false, 17, 90},
      {"level with it: the angle stays", 98, 50, false, 17, 0},
      {"a dial counts from its top, to the right", 74, 26, true, 45, 45},
      {"a dial, down and right", 74, 74, true, 135, 45},
      {"a dial, down and left", 26, 74, true, 225, 45},
      {"a dial, up and left", 26, 26, true, 315, 45},
  };
  for (const auto& c : kCases) {
    BallAngles angles;
    angles.angle = 17;
    angles.Press(c.x, c.y, kSide, kSide, c.isDial, false);
    EXPECT_NEAR(angles.azimuth, c.azimuth, 0.001) << c.place;
    EXPECT_NEAR(angles.altitude, c.altitude, 0.001) << c.place;
  }
}

TEST(BallAngles, ADragReachesTheRimTwoPixelsLater) {
  BallAngles angles;
  angles.Press(50, 2, kSide, kSide, false, false);
  EXPECT_NEAR(angles.altitude, 0, 0.001);
  angles.Drag(50, 2, kSide, kSide, false);
  EXPECT_NEAR(angles.altitude, 16.26, 0.01);  // acos(48 / 50)
  angles.Drag(50, -200, kSide, kSide, false);
  EXPECT_NEAR(angles.altitude, 0, 0.001);
  EXPECT_NEAR(angles.azimuth, 90, 0.001);
}

TEST(BallAngles, TurnsOfADialAddUp) {
  BallAngles angles;
  const auto dragTo = [&](double degrees) {
    const double radians = degrees * 3.14159265358979 / 180;
    angles.Drag(static_cast<int>(std::lround(500 + 400 * std::sin(radians))),
                static_cast<int>(std::lround(500 - 400 * std::cos(radians))), 1000, 1000, true);
  };
  for (int degrees = 5; degrees <= 3 * 360 + 5; degrees += 5) dragTo(degrees);
  EXPECT_NEAR(angles.azimuth, 1085, 0.5);
  for (int degrees = 3 * 360; degrees >= -355; degrees -= 5) dragTo(degrees);
  EXPECT_NEAR(angles.azimuth, -355, 0.5);
  angles.Press(900, 499, 1000, 1000, true, true);
  EXPECT_NEAR(angles.azimuth, 90, 0.5);
}

// The disc's rim at 45 degrees is the square's corner.
TEST(BallAngles, StandForAPointOfASquare) {
  const struct {
    float azimuth, altitude, x, y;
  } kCases[] = {{0, 0, 100, 0},    {90, 0, 0, 100},     {180, 0, -100, 0},   {-90, 0, 0, -100},
                {45, 0, 100, 100}, {-45, 0, 100, -100}, {135, 0, -100, 100}, {30, 90, 0, 0},
                {0, 60, 50, 0},    {-135, 60, -50, -50}};
  for (const auto& c : kCases) {
    const BallOffset offset = OffsetOf(c.azimuth, c.altitude);
    EXPECT_NEAR(offset.x, c.x, 0.01) << c.azimuth;
    EXPECT_NEAR(offset.y, c.y, 0.01) << c.azimuth;
  }
}

TEST(BallAngles, OfAPointGiveThePointBack) {
  for (int x = -100; x <= 100; x += 20) {
    for (int y = -100; y <= 100; y += 20) {
      const BallAngles angles = AnglesOf({static_cast<float>(x), static_cast<float>(y)});
      const BallOffset offset = OffsetOf(angles.azimuth, angles.altitude);
      EXPECT_NEAR(offset.x, x, 0.05) << x << ' ' << y;
      EXPECT_NEAR(offset.y, y, 0.05) << x << ' ' << y;
    }
  }
}

std::array<int, 3> PixelOf(const std::vector<std::uint8_t>& pixels, int width, int x, int y) {
  const auto at = static_cast<std::size_t>((y * width + x) * 4);
  return {pixels.at(at + 2), pixels.at(at + 1), pixels.at(at)};
}
using Rgb = std::array<int, 3>;

TEST(BallShade, IsLitFromWhereTheLightStands) {
  constexpr FaceColor kFace{240, 230, 220};
  constexpr int kWidth = 80, kHeight = 60;
  // From above: 205 and 50, white in the middle.
  const auto above = ShadedBall(kWidth, kHeight, {0, 90, false}, kFace);
  EXPECT_EQ(PixelOf(above, kWidth, 40, 30), (Rgb{255, 255, 255}));
  EXPECT_EQ(PixelOf(above, kWidth, 0, 0), (Rgb{240, 230, 220}));
  // The rim itself is no ball any more.
  EXPECT_EQ(PixelOf(above, kWidth, 70, 30), (Rgb{240, 230, 220}));
  // From the horizon the middle is as dark as it gets.
  const auto level = ShadedBall(kWidth, kHeight, {0, 0, true}, kFace);
  EXPECT_EQ(PixelOf(level, kWidth, 40, 30), (Rgb{50, 50, 50}));
  // A light at azimuth 0 is on the right, at 90 it is above.
  EXPECT_GT(PixelOf(level, kWidth, 60, 30)[0], PixelOf(level, kWidth, 20, 30)[0]);
  const auto top = ShadedBall(kWidth, kHeight, {90, 0, true}, kFace);
  EXPECT_GT(PixelOf(top, kWidth, 40, 10)[0], PixelOf(top, kWidth, 40, 50)[0]);
  EXPECT_EQ(above.size(), std::size_t{kWidth} * kHeight * 4);
}

// Lit from above a point of a ball of radius 25 is as bright as it is high: at 7 of
// 25 across it is 24 high, at 24 across 7.
TEST(BallShade, HasASpotAndARimThatFades) {
  constexpr FaceColor kFace{240, 230, 220};
  const auto plain = ShadedBall(50, 50, {0, 90, false}, kFace);
  const auto spotted = ShadedBall(50, 50, {0, 90, true}, kFace);
  // (24/25)^3 is 0.8847, times 205 and 50; its 20th power adds 0.0863.
  EXPECT_EQ(PixelOf(plain, 50, 32, 25), (Rgb{231, 231, 231}));
  EXPECT_EQ(PixelOf(spotted, 50, 32, 25), (Rgb{249, 249, 249}));
  // (7/25)^3 gives 54.50; of that 7/11, and 4/11 of the face.
  EXPECT_EQ(PixelOf(plain, 50, 49, 25), (Rgb{121, 118, 114}));
}

TEST(BallShade, MarksThePoint) {
  const BallMarker right = MarkerOf(80, 60, 0, 0);
  EXPECT_EQ(right.x, 70);  // 40 + 0.99 * 30
  EXPECT_EQ(right.y, 30);
  const BallMarker up = MarkerOf(80, 60, 90, 60);
  EXPECT_EQ(up.x, 40);
  EXPECT_EQ(up.y, 15);  // 30 - 0.99 * 30 / 2
}

}  // namespace
}  // namespace tarnwick
