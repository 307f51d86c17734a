#include <gtest/gtest.h>

#include "imaging/color_blend.h"
#include "imaging/hls_color.h"
#include "imaging/hsl255_color.h"

namespace tarnwick::testing {
namespace {

using Three = std::array<int, 3>;

const struct {
  const char* name;
  Three rgb, hls;
} kHls[] = {
    {"black", {0, 0, 0}, {160, 0, 0}},
    {"white", {255, 255, 255}, {160, 240, 0}},
    // L = (200 * 240 + 255) / 510 = 94.6
    {"grey", {100, 100, 100}, {160, 94, 0}},
    {"red", {255, 0, 0}, {0, 120, 240}},
    {"green", {0, 255, 0}, {80, 120, 240}},
    {"blue", {0, 0, 255}, {160, 120, 240}},
    // dg = 40, db = (255 - 1) * 40 + 127 = 10287 / 255 = 40: hue 0.
    {"red with a trace of blue", {255, 0, 1}, {0, 120, 240}},
    // dg - dr + 160: db = 0, dg = 40, dr = (128 * 40 + 127) / 255 = 20.
    {"violet", {127, 0, 255}, {180, 120, 240}},
};

TEST(HlsColor, HandWorked) {
  for (const auto& c : kHls) {
    const HlsColor hls = RgbToHls(c.rgb[0], c.rgb[1], c.rgb[2]);
    EXPECT_EQ((Three{hls.hue, hls.lightness, hls.saturation}), c.hls) << c.name;
  }
  // Hues are taken modulo 240, but 240 itself is not wrapped: its own channel is
  // the low one either way, and 240 + 80 and 240 - 80 are those of hue 0.
  for (const auto& [hue, same] :
       {std::pair{-1, 239}, {-240, 240}, {-241, 239}, {241, 1}, {480, 0}, {240, 0}}) {
    const RgbColor a = HlsToRgb(hue, 100, 200);
    const RgbColor b = HlsToRgb(same, 100, 200);
    EXPECT_EQ((Three{a.red, a.green, a.blue}), (Three{b.red, b.green, b.blue})) << hue;
  }
  const RgbColor white = HlsToRgb(77, 240, 0);
  EXPECT_EQ((Three{white.red, white.green, white.blue}), (Three{255, 255, 255}));
}

TEST(Hsl255Color, HandWorked) {
  const struct {
    const char* name;
    Three rgb, hsl;
  } kColors[] = {
      {"white", {255, 255, 255}, {0, 0, 255}},
      {"grey rounds its half up", {7, 7, 7}, {0, 0, 7}},
      {"red", {255, 0, 0}, {0, 255, 128}},
      // (0 - 255) / 255 + 2 ... + 4: a third of 255 each.
      {"green", {0, 255, 0}, {85, 255, 128}},
      {"blue", {0, 0, 255}, {170, 255, 128}},
      // h = -0.5 * 42.5 + 255 = 233.75; d = 200, sum 300 - L = 150: S = 51000 / 211.
      {"rose", {250, 50, 150}, {234, 242, 150}},
  };
  for (const auto& c : kColors) {
    Three got = c.rgb;
    RgbToHsl255(got[0], got[1], got[2]);
    EXPECT_EQ(got, c.hsl) << c.name;
  }
  Three gray = {90, 0, 200};
  HslToRgb255(gray[0], gray[1], gray[2]);
  EXPECT_EQ(gray, (Three{200, 200, 200}));
}

TEST(ColorBlend, HandWorked) {
  const struct {
    const char* name;
    bool tint;
    float k, c, want;  // grey: k is the source or the stain
  } kBlends[] = {
      {"a tint of black is black", true, 0, 200, 0},
      // L = 1: max(255, c) * 1.
      {"a tint of white is white", true, 255, 10, 255},
      // L = 0.2: D = 51 * 0.8 + 0.2 * 51 = 51; max(51, 102) * 0.2 + 51 * 0.8.
      {"a dark source keeps the darker", true, 51, 102, 61.2F},
      {"a boost by black multiplies", false, 0, 200, 0},
      {"a boost by white adds and tops", false, 255, 10, 255},
      // L = 0.2: 100 * 51 * 0.8 / 255 + 151 * 0.2 = 16 + 30.2.
      {"between multiply and add", false, 51, 100, 46.2F},
  };
  for (const auto& c : kBlends) {
    float c0 = c.c;
    float c1 = c.c;
    float c2 = c.c;
    c.tint ? TintMix(c.k, c.k, c.k, c0, c1, c2) : BoostMix(c.k, c.k, c.k, c0, c1, c2);
    EXPECT_NEAR(c0, c.want, 1e-4) << c.name;
    EXPECT_EQ(c0, c1) << c.name;
    EXPECT_EQ(c0, c2) << c.name;
  }
  // Channels are mixed one by one, the light is that of all three.
  float c0 = 100;
  float c1 = 0;
  float c2 = 0;
  BoostMix(0, 0, 153, c0, c1, c2);
  // L = 0.2: red 0 + 100 * 0.2, blue 153 * 0.2.
  EXPECT_NEAR(c0, 20, 1e-4);
  EXPECT_NEAR(c2, 30.6, 1e-4);
}

}  // namespace
}  // namespace tarnwick::testing
