// Leopard_Coat: the side of a leopard. Rosettes of a few black blots round a
// darker middle, solid spots between them and towards the belly.
//
// What makes it read as that: no rosette closes, none repeats, they keep their
// distance and shrink downwards; the hair makes every edge soft in one
// direction and ragged in the other.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/fur.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/packing.h"
#include "toolbox/tone.h"
#include "toolbox/turn.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float tall = static_cast<float>(sheet.height);
  const std::vector<Piece> marks = Packed(
      sheet, {.maxRadius = 66.0F, .minRadius = 15.0F, .gap = 13.0F, .effort = 5.0F, .sizes = 8},
      seed);
  const Fbm blot{30.0F, 3, 0.5F, seed + 10};
  const Fbm lie{560.0F, 2, 0.5F, seed + 14};
  const Fbm tuft{48.0F, 3, 0.55F, seed + 18};
  const Fbm ground{420.0F, 4, 0.52F, seed + 22};
  const Field edge = Painted(sheet, [&](Spot p) { return blot(p); });

  Field black(sheet);
  Field middle(sheet);
  ForPieces(sheet, marks, 1.12F, [&](const Piece& mark, Spot p, float dx, float dy) {
    const float stretch = 0.88F + 0.24F * Unit(Hash(mark.hash + 1));
    const float n = edge(p);
    const float r = Length(dx * stretch, dy / stretch) + 0.24F * n;
    const float turn = Turn(dx, dy) + 0.06F * n;
    float* ink = black.Row(p.y) + p.x;
    if (mark.radius < 27.0F) {
      const float solid = SmoothRamp(0.90F, 0.72F, r);
      if (solid > *ink) *ink = solid;
      return;
    }
    // Three to five blots with gaps of unequal breadth between them.
    const int blots = 3 + static_cast<int>(Unit(Hash(mark.hash + 2)) * 3.0F);
    const float at = (turn + Unit(Hash(mark.hash + 3))) * static_cast<float>(blots);
    const int which = FloorInt(at);
    const std::uint32_t h = HashAt((which % blots + blots) % blots, 5, mark.hash);
    const float fromMiddle = Abs(Fraction(at) - 0.5F) * 2.0F;
    const float present = 0.66F + 0.42F * Unit(h);
    const float thick = (0.17F + 0.12F * Unit(Hash(h + 1))) *
                        SmoothRamp(present + 0.12F, present - 0.45F, fromMiddle);
    const float ring =
        thick > 0.02F ? SmoothRamp(thick + 0.04F, thick - 0.04F, Abs(r - 0.74F)) : 0.0F;
    if (ring > *ink) *ink = ring;
    float* inside = middle.Row(p.y) + p.x;
    const float in = SmoothRamp(0.95F, 0.60F, r);
    if (in > *inside) *inside = in;
  });
  const auto heading = [&](float x, float y) { return 0.30F + 0.5F * lie(x, y); };
  const Fur fur(sheet,
                {.length = 22.0F,
                 .radius = 1.4F,
                 .spacing = 2.7F,
                 .unruly = 0.17F,
                 .bend = 3.0F,
                 .seed = seed + 30},
                heading);
  const Field locks = Painted(sheet, [&](Spot p) { return tuft(p.fx, p.fy * 0.55F); });
  Field tone = Painted(sheet, [&](Spot p) {
    const FurSpot& hair = fur(p);
    const float ink =
        SoftThreshold(black.Sample(Clamp(hair.rootX, 0.0F, static_cast<float>(sheet.width - 1)),
                                   Clamp(hair.rootY, 0.0F, tall - 1.0F)),
                      0.45F, 0.35F);
    const float in = middle.Sample(Clamp(hair.rootX, 0.0F, static_cast<float>(sheet.width - 1)),
                                   Clamp(hair.rootY, 0.0F, tall - 1.0F));
    const float luck = Unit(Hash(hair.hash + 2)) - 0.5F;
    const float gold =
        0.72F + 0.20F * (p.fy / tall - 0.4F) + 0.10F * ground(p) - 0.17F * in + 0.22F * luck;
    const float soot = 0.11F + 0.09F * luck;
    const float round = 1.0F - 0.30F * hair.across * hair.across + 0.22F * hair.across;
    float value = Mix(gold, soot, ink) * (0.76F + 0.32F * hair.along) * round;
    value *= 1.0F + 0.18F * locks(p);
    return value + 0.04F * ink * hair.along;
  });
  Soften(sheet, tone, 0.5F);
  StretchTo(sheet, tone, 0.004F, 0.995F);
  return tone;
}

const RegisteredTexture kLeopardCoat(TextureRecipe{.name = "Leopard_Coat",
                                                   .set = TextureSet::kHidesAndCloth,
                                                   .effects = {"Animal Patterns"},
                                                   .seed = 2180,
                                                   .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
