// Hammered_Copper: a tray beaten by hand. The smith went round and round from
// the middle, mark beside mark, each a shallow bowl with a sharp border to the
// next; years of polish brightened borders, tarnish kept to the bowls.
//
// What makes it read as that: marks in rows about a middle yet none like
// another, each lit on one side and dark on the other, a glow over the whole.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"
#include "toolbox/turn.h"

namespace tarnwick::content {
namespace {

struct Mark {
  float depth;  // squared distance to the mark that is nearest, in marks
  float second;
  float own;  // 0..1
};

constexpr float kRow = 74.0F;  // pixels from round to round

// The two nearest marks of those that lie in rounds about (0, 0).
Mark MarkAt(float x, float y, std::uint32_t seed) {
  const float far = Length(x, y) / kRow;
  const float turn = Turn(x, y);
  const int row = FloorInt(far + 0.5F);
  Mark found{9.0F, 9.0F, 0.0F};
  for (int k = row > 1 ? row - 1 : 0; k <= row + 1; ++k) {
    const int count = k == 0 ? 1 : FloorInt(6.2F * static_cast<float>(k) + 0.5F);
    const float share = static_cast<float>(count);
    const float offset = Unit(HashAt(k, -1, seed));
    const int near = FloorInt((turn + offset) * share + 0.5F);
    for (int j = near - 1; j <= near + 1; ++j) {
      const int wrapped = ((j % count) + count) % count;
      const std::uint32_t h = HashAt(wrapped, k, seed);
      const float angle =
          ((static_cast<float>(j) + 0.40F * (Unit(h) - 0.5F)) / share - offset) * kTau;
      const float at = static_cast<float>(k) + 0.30F * (Unit(Hash(h + 1)) - 0.5F);
      const float dx = x / kRow - at * Cos(angle);
      const float dy = y / kRow - at * Sin(angle);
      // Harder blows reach farther.
      const float d = (dx * dx + dy * dy) * (0.80F + 0.4F * Unit(Hash(h + 2)));
      if (d < found.depth) {
        found = {d, found.depth, Unit(Hash(h + 3))};
      } else if (d < found.second) {
        found.second = d;
      }
    }
  }
  return found;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float cx = 0.56F * static_cast<float>(sheet.width);
  const float cy = 0.45F * static_cast<float>(sheet.height);
  const Warp uneven{9.0F, {90.0F, 3, 0.55F, seed + 1}};
  const Survey<Mark> marks(sheet, [&](Spot p) {
    const Spot q = uneven(p);
    return MarkAt(q.fx - cx, q.fy - cy, seed + 2);
  });
  StrokeSet worn;
  AddScratches(worn, sheet,
               {.count = 130,
                .minLength = 30.0F,
                .maxLength = 360.0F,
                .spread = 3.0F,
                .stray = 0.6F,
                .minRadius = 0.3F,
                .maxRadius = 0.9F},
               seed + 3);
  Field scratch(sheet);
  worn.Draw(sheet, scratch);

  const Fbm skin{7.0F, 3, 0.65F, seed + 10};
  const Fbm bumps{40.0F, 3, 0.5F, seed + 11};
  Field height = Painted(sheet, [&](Spot p) {
    const Mark& at = marks(p);
    // Copper flows: no border is quite a knife's edge.
    const float border = Max(0.0F, 0.20F - (at.second - at.depth)) / 0.20F;
    return 42.0F * (at.depth - 0.06F * border * border) + 1.6F * bumps(p) + 0.20F * skin(p);
  });
  Soften(sheet, height, 0.6F);
  const Field light = Relief(sheet, height, 0.62F);
  const Fbm tarnish{280.0F, 5, 0.58F, seed + 20};
  const Fbm speck{9.0F, 4, 0.68F, seed + 21};
  Field tone = Painted(sheet, [&](Spot p) {
    const Mark& at = marks(p);
    const float bowl = SmoothRamp(0.34F, 0.0F, at.depth);
    const float ridge = SmoothRamp(0.16F, 0.0F, at.second - at.depth);
    const float dull = SoftThreshold(tarnish(p) + 0.12F * speck(p) + 0.16F * bowl, 0.18F, 0.5F);
    float value = 0.50F + 0.66F * light(p) + 0.10F * tarnish(p) + 0.07F * (at.own - 0.5F);
    value = Mix(value, value * 0.62F, dull * (1.0F - 0.7F * ridge));
    value += 0.05F * ridge + 0.06F * skin(p) + 0.18F * scratch(p) - 0.05F * bowl;
    const float far = Length(p.fx - cx, p.fy - cy) / static_cast<float>(sheet.width);
    return value - 0.22F * SmoothRamp(0.25F, 0.75F, far);
  });
  Soften(sheet, tone, 0.30F);
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kHammeredCopper(TextureRecipe{.name = "Hammered_Copper",
                                                      .set = TextureSet::kForge,
                                                      .effects = {"Metals", "Texture (Medium)"},
                                                      .seed = 3011,
                                                      .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
