#include "engine/shade_color.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engine/random_settings.h"
#include "engine/shade_model.h"

namespace tarnwick::testing {
namespace {

TEST(ShadeColor, EqualsTheDefinition) {
  TestRandom random(15);
  for (int round = 0; round < 20000; ++round) {
    const EffectSettings settings = RandomSettings(random);
    const int type = random.Below(10);
    const float lights[] = {-1, 0, 0.5F, 0.65F, std::nextafter(0.65F, 1.0F), 1, 2};
    const float light =
        random.Coin() ? lights[random.Below(7)] : static_cast<float>(random.Below(1000)) / 999;
    const Bytes s = random.Shaped(3);
    const ShadedColor got =
        ShadeColor(s[0], s[1], s[2], light, ShadeLookOf(settings, static_cast<std::uint8_t>(type)));
    const ModelShade wanted = ShadeByDefinition(settings, type, {s[0], s[1], s[2]}, light);
    ASSERT_EQ(got.blended, wanted.blended) << "type " << type << " light " << light;
    for (std::size_t i = 0; i < 3; ++i) ASSERT_EQ(got.pure[i], wanted.pure[i]) << light;
  }
}

// Colours 10, 20 and 30 for shadow, midtone and highlight; the shade alone.
TEST(ShadeColor, HandWorked) {
  const struct {
    const char* name;
    int type, amount;
    float light;
    int source, pure;
    float blended;
  } kShades[] = {
      {"no light is the shadow colour", 5, 100, 0, 7, 10, 10},
      {"0.65 is the midtone", 5, 100, 0.65F, 7, 20, 20},
      {"full light is the highlight colour", 5, 100, 1, 7, 30, 30},
      {"too much light too", 5, 100, 3, 7, 30, 30},
      {"no light at all", 5, 100, std::nanf(""), 7, 10, 10},
      {"an unknown type is the shade", 200, 100, 0, 7, 10, 10},
      {"without colour the light is grey", 5, 0, 0.5F, 7, 127, 127.5F},
      {"multiply", 6, 100, 0.65F, 51, 20, 4},
      // 2 * 20 * 100 / 255 = 15.7; 255 - 2 * 235 * 55 / 255 = 153.6.
      {"enhance a dark one", 3, 100, 0.65F, 100, 20, 15},
      {"enhance a light one", 3, 100, 0.65F, 200, 20, 153},
      // 255 + (250 - 255) * 256 / 40 = 255 - 32; * 256 / 20 = 255 - 64.
      {"vivid below 128", 4, 100, 0.65F, 250, 20, 223},
      {"burn", 7, 100, 0.65F, 250, 20, 191},
      {"burn floors at 0", 7, 100, 0.65F, 0, 20, 0},
      {"vivid from 128: 0.5 * 255 = 127, 255 is white", 4, 0, 1, 100, 255, 255},
  };
  for (const auto& c : kShades) {
    EffectSettings s;
    s.SurfaceBrightness = s.SurfaceContrast = 100;
    s.SurfaceMidtone = c.amount;
    s.SurfaceShadowColor = 0x0A0A0A;
    s.SurfaceMidtoneColor = 0x141414;
    s.SurfaceHighlightColor = 0x1E1E1E;
    const ShadedColor got = ShadeColor(c.source, c.source, c.source, c.light,
                                       ShadeLookOf(s, static_cast<std::uint8_t>(c.type)));
    EXPECT_EQ(got.pure[0], c.pure) << c.name;
    EXPECT_FLOAT_EQ(got.blended[1], c.blended) << c.name;
  }
}

}  // namespace
}  // namespace tarnwick::testing
