// Enamel_Sign: a white enamelled street sign that boys threw stones at. Every
// hit burst the glass off down to the iron, in shells with a black middle; rust
// crept from there, stained the white and ran down; the rim lost its enamel to
// the frost, and the screws in the corners bleed.
//
// What makes it read as that: chips that are sharp, round and ringed, few and
// black in a field of white, with a stain that respects gravity.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Hit {
  float x, y, radius;
};

std::vector<Hit> Hits(const Sheet& sheet, std::uint32_t seed) {
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  std::vector<Hit> hits;
  const int count = FloorInt(46.0F * width * height / (2048.0F * 1536.0F)) + 3;
  for (int i = 0; i < count; ++i) {
    Dice dice(seed, i);
    const float size = dice.Unit();
    Hit hit{};
    // Stones are aimed; most struck to the right of the middle.
    const bool aimed = dice.Chance(0.6F);
    hit.x = aimed ? dice.Around(0.62F, 0.16F) * width : dice.Unit() * width;
    hit.y = aimed ? dice.Around(0.46F, 0.17F) * height : dice.Unit() * height;
    hit.radius = 6.0F + 74.0F * size * size * size * size + 14.0F * size;
    hits.push_back(hit);
  }
  const float in = 0.052F * width;
  for (const Hit& screw : {Hit{in, in, 30.0F}, Hit{width - in, in, 38.0F},
                           Hit{in, height - in, 46.0F}, Hit{width - in, height - in, 34.0F}}) {
    hits.push_back(screw);
  }
  return hits;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const std::vector<Hit> hits = Hits(sheet, seed);
  // Depth of damage: 1 in the middle of a hit, 0 at the rim of its shell, and
  // on outwards below 0, in radii.
  const Fbm shell{0.8F, 3, 0.5F, seed + 1};
  const Fbm bite{30.0F, 4, 0.6F, seed + 2};
  Field depth(sheet, -9.0F);
  ForRows(sheet.pool, 0, sheet.height, [&](int first, int last) {
    for (std::size_t k = 0; k < hits.size(); ++k) {
      const Hit& hit = hits[k];
      const float reach = 4.2F * hit.radius;
      const int top = FloorInt(Max(static_cast<float>(first), hit.y - reach));
      const int bottom = FloorInt(Min(static_cast<float>(last), hit.y + reach));
      const int left = FloorInt(Max(0.0F, hit.x - reach));
      const int right = FloorInt(Min(width, hit.x + reach));
      const float shift = 40.0F * static_cast<float>(k);
      for (int y = top; y < bottom; ++y) {
        float* row = depth.Row(y);
        for (int x = left; x < right; ++x) {
          const float dx = static_cast<float>(x) - hit.x;
          const float dy = static_cast<float>(y) - hit.y;
          const float far = Length(dx, dy);
          const float inverse = 1.0F / Max(far, 0.5F);
          const float uneven = 1.0F + 0.34F * shell(dx * inverse + shift, dy * inverse);
          const float d = 1.0F - far / (hit.radius * uneven);
          if (d > row[x]) row[x] = d;
        }
      }
    }
  });
  // The rim of the sign, where frost got under the enamel.
  const Fbm frost{210.0F, 5, 0.6F, seed + 3};
  Repaint(sheet, depth, [&](Spot p) {
    const float side = Min(Min(p.fx, width - 1.0F - p.fx), Min(p.fy, height - 1.0F - p.fy));
    const float rim = (16.0F + 60.0F * frost(p) - side) / 34.0F;
    return Max(depth(p), rim) + 0.10F * bite(p);
  });

  const Fbm luck{9.0F, 4, 0.7F, seed + 10};
  const Fbm sway{110.0F, 3, 0.5F, seed + 11};
  const Fbm dry{160.0F, 3, 0.5F, seed + 12};
  Field source = Painted(sheet, [&](Spot p) {
    return SmoothRamp(-0.25F, 0.15F, depth(p)) * Clamp01(0.25F + 1.5F * luck(p.fx, p.fy * 0.3F));
  });
  Field runs = RunDown(
      source, [&](Spot p) { return 0.9915F - 0.0075F * dry(p.fx, p.fy * 0.3F); },
      [&](Spot p) { return 0.28F * sway(p.fx, p.fy * 0.5F); });
  Soften(sheet, runs, 0.5F);

  const Fbm rust{14.0F, 4, 0.66F, seed + 20};
  const Fbm grain{4.0F, 2, 0.7F, seed + 21};
  const Fbm peel{46.0F, 3, 0.5F, seed + 22};  // enamel is never quite flat
  const Fbm grime{420.0F, 5, 0.55F, seed + 23};
  const Field relief = Painted(sheet, [&](Spot p) {
    const float d = depth(p);
    const float gone = SmoothRamp(0.0F, 0.10F, d);
    const float rings = d > 0.0F ? 0.5F * Sin(d * 21.0F + 2.0F * bite(p)) * (1.0F - d) : 0.0F;
    const float deep = SmoothRamp(0.30F, 0.42F, d);
    return 0.9F * peel(p) - 5.0F * gone - 2.5F * deep + rings * (1.0F - deep) +
           (gone * 0.25F + deep * 0.8F) * (rust(p) + 0.7F * grain(p));
  });
  const Field light = Relief(sheet, relief, 0.45F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float d = depth(p);
    const float side = Min(Min(p.fx, width - p.fx), Min(p.fy, height - p.fy));
    float value = 0.985F + 0.030F * grime(p) + 0.02F * peel(p) -
                  0.10F * SmoothRamp(190.0F, 20.0F, side) * (0.7F + 0.7F * grime(p));
    const float halo = SmoothRamp(-1.9F, -0.05F, d + 0.55F * rust(p) + 0.5F * grime(p));
    value -= 0.26F * halo * halo;
    value -= 0.50F * runs(p) * (0.75F + 0.6F * grain(p));
    const float base = 0.58F + 0.12F * rust(p);  // the dark ground coat
    const float iron = 0.15F + 0.13F * rust(p) + 0.08F * grain(p);
    value = Mix(value, base, SmoothRamp(0.0F, 0.07F, d));
    value = Mix(value, iron, SmoothRamp(0.26F, 0.40F, d + 0.16F * rust(p)));
    return value + (0.05F + 0.22F * SmoothRamp(-0.1F, 0.1F, d)) * light(p);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.002F, 0.60F);
  Repaint(sheet, tone, [&](Spot p) {
    return tone(p) > 0.9F ? Min(1.0F, 0.9F + (tone(p) - 0.9F) * 0.9F) : tone(p);
  });
  return tone;
}

const RegisteredTexture kEnamelSign(TextureRecipe{
    .name = "Enamel_Sign",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Metals", "Distress (Medium)", "Weathered/Aged", "Industrial"},
    .seed = 3020,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
