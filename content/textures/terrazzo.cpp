// Terrazzo: a cinema foyer floor. Chips of marble in many tones, broken and not
// cut, cast in pale cement and ground flat; worn dull along the middle.
//
// What makes it read as that: chips are angular, of many sizes, with a grain or
// a vein of their own, and flat to the surface: nothing casts a shadow.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/packing.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const std::vector<Piece> large = Packed(
      sheet, {.maxRadius = 100.0F, .minRadius = 26.0F, .gap = 3.0F, .effort = 1.1F, .sizes = 6},
      seed);
  // Fine chips fill the cement; the large ones, laid later, push in among them.
  const std::vector<Piece> small = Packed(
      sheet, {.maxRadius = 24.0F, .minRadius = 4.0F, .gap = -1.0F, .effort = 1.7F, .sizes = 8},
      seed + 1);
  const Fbm nibble{12.0F, 3, 0.6F, seed + 10};
  const Fbm cement{60.0F, 6, 0.66F, seed + 20};
  const Fbm fine{2.6F, 2, 0.7F, seed + 26};
  const Fbm cloud{34.0F, 5, 0.58F, seed + 30};
  const Fbm wear{520.0F, 5, 0.55F, seed + 36};
  const Spots pinholes{34.0F, 0.30F, 0.8F, 3.0F, seed + 40};
  const Field ragged = Painted(sheet, [&](Spot p) { return nibble(p); });
  const Field body = Painted(sheet, [&](Spot p) { return cloud(p); });

  Field cover(sheet);
  Field stone(sheet);
  const auto lay = [&](const Piece& chip, Spot p, float dx, float dy) {
    // Broken along four to six planes.
    const int sides = 4 + static_cast<int>(Unit(Hash(chip.hash + 1)) * 3.0F);
    float inside = 1.0F - Length(dx, dy);
    const float first = Unit(Hash(chip.hash + 2)) * kTau;
    for (int i = 0; i < sides; ++i) {
      const std::uint32_t h = HashAt(i, 3, chip.hash);
      const float way =
          first + (static_cast<float>(i) + 0.55F * Unit(h)) * (kTau / static_cast<float>(sides));
      const float at = 0.50F + 0.48F * Unit(Hash(h + 1));
      inside = Min(inside, at - dx * Cos(way) - dy * Sin(way));
      if (inside < -0.1F) return;
    }
    const float pixels = inside * chip.radius + 1.3F * ragged(p);
    const float here = SmoothRamp(-0.8F, 0.8F, pixels);
    if (here <= 0.0F) return;
    const float kind = Unit(Hash(chip.hash + 4));
    const float c = body(p);
    float value = 0.62F + 0.20F * (Unit(Hash(chip.hash + 5)) - 0.5F) + 0.10F * c;
    if (kind < 0.24F) value = 0.13F + 0.07F * Unit(Hash(chip.hash + 5)) + 0.05F * c;
    if (kind > 0.78F) value = 0.93F + 0.05F * c;
    const float veined = Unit(Hash(chip.hash + 6));
    if (veined < 0.45F) {
      const float lean = veined * 14.0F;
      const float v = p.fy * Cos(lean) - p.fx * Sin(lean) + 14.0F * c;
      const float vein = SmoothRamp(0.66F, 0.92F, LineNoise(v / 9.0F, chip.hash));
      value = Mix(value, value < 0.4F ? 0.72F : 0.34F, 0.7F * vein);
    }
    value -= 0.06F * SmoothRamp(3.0F, 0.0F, pixels);
    float* below = stone.Row(p.y) + p.x;
    *below = cover(p) > 0.0F ? Mix(*below, value, here) : value;
    cover.Row(p.y)[p.x] = Max(cover(p), here);
  };
  ForPieces(sheet, small, 1.0F, lay);
  ForPieces(sheet, large, 1.0F, lay);
  Field tone = Painted(sheet, [&](Spot p) {
    const float worn = wear(p);
    float value = 0.78F + 0.12F * cement(p) + 0.07F * fine(p) + 0.06F * worn;
    value = Mix(value, stone(p) + 0.02F * fine(p) + 0.03F * worn, cover(p));
    return value * (1.0F - 0.65F * SmoothRamp(0.0F, 0.35F, pinholes(p).depth));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.003F, 0.995F);
  return tone;
}

const RegisteredTexture kTerrazzo(TextureRecipe{.name = "Terrazzo",
                                                .set = TextureSet::kQuarry,
                                                .effects = {"Stone/Minerals", "Texture (Light)"},
                                                .seed = 2080,
                                                .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
