// Gold_Leaf: an altar panel gilded with leaf. The leaves were laid in rows, each
// a little over the last and none quite straight; they tore, wrinkled and were
// rubbed thin by dusting, so that the dark clay below shows through.
//
// What makes it read as that: squares that are not a grid, a fine line where
// two overlap, tears with ragged rims, wear on every ridge.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Leaf {
  float inside;  // pixels from the rim of the uppermost leaf; negative: none is there
  float under;   // the same of the one below it
  std::uint32_t hash;
};

// Leaves are laid from the left to the right, row by row from the top.
Leaf LeafAt(float x, float y, std::uint32_t seed) {
  constexpr float kStep = 344.0F, kHalf = 188.0F;
  const int row = FloorInt(y / kStep);
  Leaf found{-99.0F, -99.0F, 0};
  for (int j = row - 1; j <= row + 1; ++j) {
    const float shift = kStep * Unit(HashAt(j, 77, seed));
    const int column = FloorInt((x - shift) / kStep);
    for (int i = column - 1; i <= column + 1; ++i) {
      const std::uint32_t h = HashAt(i, j, seed);
      const float cx = (static_cast<float>(i) + 0.5F) * kStep + shift + 22.0F * (Unit(h) - 0.5F);
      const float cy = (static_cast<float>(j) + 0.5F) * kStep + 26.0F * (Unit(Hash(h + 1)) - 0.5F);
      const float lean = 0.10F * (Unit(Hash(h + 2)) - 0.5F);
      const float dx = x - cx;
      const float dy = y - cy;
      const float inside = Min(kHalf - Abs(dx + lean * dy), kHalf - Abs(dy - lean * dx));
      if (inside <= 0.0F) continue;
      // The later one lies on top.
      found = {inside, found.inside, h};
    }
  }
  return found;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const Fbm ragged{70.0F, 5, 0.6F, seed + 1};
  const Survey<Leaf> leaves(sheet, [&](Spot p) {
    const float r = 9.0F * ragged(p);
    return LeafAt(p.fx + r, p.fy - r + 5.0F * ragged(p.fy + 400.0F, p.fx), seed);
  });
  const Fbm wrinkle{46.0F, 4, 0.55F, seed + 10};
  const Warp bent{22.0F, {110.0F, 3, 0.5F, seed + 11}};
  const Fbm tear{92.0F, 4, 0.55F, seed + 12};
  const Fbm board{220.0F, 3, 0.5F, seed + 13};
  const Fbm grain{3.0F, 2, 0.7F, seed + 14};
  const Fbm rub{260.0F, 6, 0.60F, seed + 15};
  const Fbm patina{330.0F, 5, 0.56F, seed + 16};
  // Wrinkles run in bundles, differently in each leaf.
  const Field fold = Painted(sheet, [&](Spot p) {
    const Leaf& at = leaves(p);
    const Spot q = bent(p);
    const bool upright = (at.hash & 1U) != 0;
    const float off = 900.0F * Unit(Hash(at.hash + 3));
    const float ridge = upright ? wrinkle.Ridged(q.fx + off, 0.22F * q.fy)
                                : wrinkle.Ridged(0.22F * q.fx, q.fy + off);
    return SmoothRamp(0.62F, 0.95F, ridge) * (0.3F + 0.7F * Unit(Hash(at.hash + 4)));
  });
  StrokeSet hairs;
  AddScratches(hairs, sheet,
               {.count = 150,
                .minLength = 40.0F,
                .maxLength = 420.0F,
                .heading = 0.2F,
                .spread = 0.8F,
                .stray = 0.3F,
                .minRadius = 0.3F,
                .maxRadius = 1.1F},
               seed + 20);
  AddScuffs(hairs, sheet, {.count = 30, .heading = 0.2F, .spread = 0.6F}, seed + 21);
  Field hair(sheet);
  hairs.Draw(sheet, hair);
  // How much clay shows, 0..1.
  const Field bare = Painted(sheet, [&](Spot p) {
    const Leaf& at = leaves(p);
    const Spot q = bent(p);
    const float side = Min(Min(p.fx, width - p.fx) / width, Min(p.fy, height - p.fy) / height);
    float loss =
        rub(p) + 0.22F * fold(p) + 0.10F * grain(p) + 0.35F * SmoothRamp(0.16F, 0.0F, side);
    loss -= at.under > 0.0F ? 0.30F : 0.0F;  // two leaves wear longer
    float gone = SoftThreshold(loss, 0.46F, 0.24F);
    const float slit = Abs(tear(q.fx + 700.0F * Unit(at.hash), q.fy));
    gone = Max(gone, SmoothRamp(0.030F, 0.012F, slit) *
                         SoftThreshold(rub(p.fx + 500.0F, p.fy), 0.05F, 0.3F));
    gone = Max(gone, at.inside > 0.0F
                         ? SmoothRamp(2.0F, 0.0F, at.inside) * (at.under > 0.0F ? 0.0F : 1.0F)
                         : 1.0F);
    return Max(gone, 0.75F * hair(p));
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    const Leaf& at = leaves(p);
    const float edge = at.under > 0.0F ? SmoothRamp(0.0F, 3.0F, at.inside) : 0.0F;
    return 1.6F * fold(p) + 1.0F * edge + 9.0F * board(p) + 0.30F * grain(p) - 0.9F * bare(p);
  });
  const Field light = Relief(sheet, relief, 0.26F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Leaf& at = leaves(p);
    const float own = Unit(Hash(at.hash + 5));
    float value = 0.70F + 0.15F * (own - 0.5F) + 0.16F * patina(p) + 0.05F * grain(p);
    value += at.under > 0.0F ? 0.08F : 0.0F;
    const float clay = 0.20F + 0.08F * patina(p) + 0.06F * grain(p);
    value = Mix(value, clay, bare(p));
    return value + (0.32F - 0.18F * bare(p)) * light(p);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kGoldLeaf(TextureRecipe{
    .name = "Gold_Leaf",
    .set = TextureSet::kForge,
    .effects = {"Metals", "Distress (Light)", "Texture (Light)"},
    .seed = 3016,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
