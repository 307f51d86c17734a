// Canyon_Sandstone: a wall of old dunes. Each dune was cut off by the next, so
// sets of thin layers lie on one another at different slopes, curving out
// along the bottom; wind has hollowed the soft layers.
//
// What makes it read as that: layers of unequal breadth that meet the surface
// below at a glancing angle, sets that cut one another off, ledges lit from
// above, sand grain everywhere and dark varnish run down from the top.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Bed {
  float layer = 0.0F;  // pixels across the layers
  float below = 0.0F;  // pixels above the set's own floor
  float toFloor = 0.0F;
  std::uint32_t hash = 0;
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Fbm bend{820.0F, 3, 0.5F, seed};
  const Fbm shake{60.0F, 4, 0.55F, seed + 5};
  const Fbm sand{2.6F, 2, 0.75F, seed + 10};
  const Fbm rough{15.0F, 4, 0.66F, seed + 12};
  const Fbm stain{420.0F, 6, 0.58F, seed + 20};
  const Fbm run{120.0F, 5, 0.6F, seed + 28};

  constexpr float kSet = 300.0F;
  // The floor of set `i`: uneven in height and tilted its own way.
  const auto floorOf = [&](int i, float x) {
    const std::uint32_t h = HashAt(i, 7, seed);
    const float tilt = (Unit(h) - 0.5F) * 0.30F;
    const float at = (static_cast<float>(i) + 0.7F * (Unit(Hash(h + 1)) - 0.5F)) * kSet;
    return at + tilt * (x - 1000.0F) + 60.0F * LineNoise(x / 640.0F, h);
  };
  const Survey<Bed> beds(sheet, [&](Spot p) {
    const float jitter = shake(p);
    const float x = p.fx + 10.0F * jitter;
    const float y = p.fy + 70.0F * bend(p.fx * 0.6F, p.fy) + 3.5F * jitter;
    // The youngest set whose floor lies below the place has cut off the others.
    Bed bed;
    const int guess = FloorInt(y / kSet);
    for (int i = guess - 2; i <= guess + 3; ++i) {
      const float floor = floorOf(i, x);
      if (y > floor) continue;
      const float above = floor - y;
      const std::uint32_t h = HashAt(i, 9, seed);
      const float slope = (Unit(h) < 0.32F ? -1.0F : 1.0F) * (0.20F + 0.34F * Unit(Hash(h + 1)));
      // Straight on top, flattening out where it meets the floor.
      const float toe = above - 90.0F * (1.0F - Exp(-above / 110.0F));
      bed = {toe * 0.9F + above * 0.28F + slope * x, above, above, h};
      break;
    }
    return bed;
  });
  const auto lamina = [&](const Bed& bed) {
    const float wide = LineNoise(bed.layer / 34.0F, bed.hash);
    const float mid = LineNoise(bed.layer / 12.0F, bed.hash + 1);
    const float thin = LineNoise(bed.layer / 4.6F, bed.hash + 2);
    return 0.50F * wide + 0.36F * mid + 0.26F * thin * (0.6F + 0.6F * wide);
  };
  const Field hard = Painted(sheet, [&](Spot p) { return lamina(beds(p)); });
  const Field height = Painted(sheet, [&](Spot p) {
    const float ledge = SmoothRamp(-0.25F, 0.35F, hard(p));
    return 1.5F * ledge + 0.5F * hard(p) + 0.55F * rough(p) + 0.22F * sand(p) -
           0.9F * Exp(-beds(p).toFloor / 9.0F);
  });
  const Field light = Relief(sheet, height, 0.30F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Bed& bed = beds(p);
    const float set = Unit(Hash(bed.hash + 5)) - 0.5F;
    float value = 0.62F + 0.22F * hard(p) + 0.14F * set + 0.10F * stain(p.fx * 0.5F, p.fy) +
                  0.05F * sand(p) + 0.03F * rough(p);
    value += 0.20F * light(p) * (0.8F + 0.5F * stain(p));
    const float varnish =
        SmoothRamp(0.02F, 0.55F, run(p.fx * 0.6F, p.fy * 0.12F) + 0.5F * stain(p));
    value *= 1.0F - 0.12F * varnish;
    return value * (1.0F - 0.30F * Exp(-bed.toFloor / 10.0F));
  });
  Soften(sheet, tone, 0.6F);
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kCanyonSandstone(TextureRecipe{
    .name = "Canyon_Sandstone",
    .set = TextureSet::kQuarry,
    .effects = {"Stone/Minerals", "Erosion (Medium)", "Texture (Medium)"},
    .seed = 2040,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
