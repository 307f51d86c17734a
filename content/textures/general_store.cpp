// General_Store: the boards of a shop front, painted twice and left to the sun
// for forty years. The top coat (lightest) has cracked along the grain and come
// off in flakes; the first coat shows in patches, and bare grey wood below.
//
// What makes it read as that: losses that follow the grain and respect the
// boards, flakes whose rims stand up and throw a shadow, raised grain in the
// bare wood, nails in line with a rust run under each.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/peel.h"
#include "toolbox/planks.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Planks planks{.length = 2700.0F, .seed = seed};
  const Survey<Planks::Place> places(sheet, [&](Spot p) { return planks.At(p.fx, p.fy); });
  const Survey<Planks::Nail> nails(sheet, [&](Spot p) { return planks.NailAt(p.fx, p.fy); });
  // Every plank is cut from another tree and painted on another day.
  const auto shift = [](const Planks::Place& at) { return Unit(at.plank) * 9000.0F; };

  const Fbm bend{420.0F, 3, 0.5F, seed + 10};
  const Fbm bands{26.0F, 3, 0.6F, seed + 11};
  const Fbm fibre{3.6F, 3, 0.7F, seed + 12};
  const Field grain = Painted(sheet, [&](Spot p) {
    const float x = p.fx + shift(places(p));
    const float y = p.fy + 26.0F * bend(x * 0.35F, p.fy);
    return 0.6F * bands(x * 0.035F, y) + 0.5F * fibre(x * 0.022F, y);
  });

  const Fbm weather{330.0F, 5, 0.55F, seed + 20};
  const Fbm nibble{30.0F, 4, 0.62F, seed + 21};
  const Cells flakes{44.0F, 1.0F, seed + 22};
  const Warp crooked{9.0F, {26.0F, 3, 0.6F, seed + 23}};
  const Field loss = Painted(sheet, [&](Spot p) {
    const Planks::Place& at = places(p);
    const float x = p.fx + shift(at);
    const float luck = Unit(Hash(at.plank)) - 0.5F;
    const Spot q = crooked(p);
    const CellSample flake = flakes((q.fx + shift(at)) * 0.42F, q.fy);
    return 0.95F * weather(x * 0.5F, p.fy) + 0.34F * (flake.id - 0.5F) + 0.22F * grain(p) +
           0.16F * nibble(x * 0.4F, p.fy) + 0.34F * luck + 0.40F * Exp(-at.toGap / 14.0F) +
           0.45F * Exp(-at.toEnd / 22.0F) - 0.02F;
  });
  const PeelingCoat top = Peel(sheet, loss, {.at = 0.10F, .softness = 0.035F});
  const PeelingCoat first = Peel(sheet, loss, {.at = 0.34F, .softness = 0.04F, .thickness = 2.0F});

  // Paint bridged the gaps here and there and dirt filled them, so that they
  // are broken lines and no grid.
  const Fbm bridged{70.0F, 4, 0.6F, seed + 32};
  const Field gap = Painted(sheet, [&](Spot p) {
    const Planks::Place& at = places(p);
    const float line =
        Max(SmoothRamp(3.4F, 0.7F, at.toGap), 0.8F * SmoothRamp(2.6F, 0.6F, at.toEnd));
    return line * Clamp01(0.62F + 0.25F * loss(p) + 0.75F * bridged(p.fx * 0.6F, p.fy));
  });
  const auto nailHead = [&](Spot p) {
    const float d = nails(p).distance / 7.0F;
    return d < 1.0F ? Sqrt(1.0F - d * d) : 0.0F;
  };
  const Fbm brush{4.0F, 2, 0.6F, seed + 30};
  const Fbm dirt{180.0F, 5, 0.58F, seed + 31};
  const Field height = Painted(sheet, [&](Spot p) {
    return 0.45F * top.cover(p) + 0.30F * first.cover(p) + 1.1F * top.lift(p) +
           0.3F * first.lift(p) + (1.0F - 0.75F * first.cover(p)) * 0.40F * grain(p) +
           0.06F * brush(p.fx * 0.06F, p.fy) - 1.4F * gap(p) + 1.2F * nailHead(p);
  });
  const Field light = Relief(sheet, height, 0.20F);

  // Hair cracks where the coat still holds, wide in some places and a mere
  // thought in others.
  const Cells crazing{30.0F, 1.0F, seed + 40};
  const Fbm open{46.0F, 3, 0.6F, seed + 41};
  const auto crack = [&](Spot p) {
    const float tired = SmoothRamp(-0.50F, 0.02F, loss(p)) * top.cover(p);
    if (tired <= 0.0F) return 0.0F;
    const Spot q = crooked(p);
    const CellSample cell = crazing.WithEdge((q.fx + shift(places(p))) * 0.38F, q.fy);
    const float width = 0.05F + 0.05F * open(p);
    return tired * SmoothRamp(Max(width, 0.02F), 0.012F, cell.edge) * (0.5F + 0.7F * open(p));
  };
  Field tone = Painted(sheet, [&](Spot p) {
    const Planks::Place& at = places(p);
    const float fade = 0.06F * (Unit(Hash(at.plank + 1)) - 0.5F);
    const float wood = 0.28F + 0.26F * grain(p) + 0.07F * dirt(p) + fade;
    const float primer = 0.55F + 0.10F * dirt(p) + 0.07F * grain(p) - fade;
    const float paint = 0.87F + 0.13F * dirt(p) + 0.05F * brush(p.fx * 0.06F, p.fy) + fade;
    float value = Mix(Mix(wood, primer, first.cover(p)), paint, top.cover(p));
    value -= 0.40F * Max(0.0F, crack(p));
    value *= 1.0F - 0.55F * top.shadow(p) - 0.20F * first.shadow(p) * (1.0F - top.cover(p));
    value += 0.17F * light(p);
    const Planks::Nail& nail = nails(p);
    const float trail = SmoothRamp(4.0F + 3.0F * nail.age, 0.0F, Abs(nail.aside + 2.0F * open(p))) *
                        SmoothRamp(40.0F + 150.0F * nail.age, 4.0F, nail.below) *
                        (nail.below > 0.0F ? 1.0F : 0.0F);
    const float ring = SmoothRamp(17.0F, 6.0F, nail.distance);
    value *= 1.0F - (0.25F + 0.35F * nail.age) * Max(trail, ring) * (0.8F + 0.4F * open(p));
    if (nail.distance < 7.0F) value = 0.24F + 0.3F * light(p);
    return value * (1.0F - 0.90F * gap(p)) * (1.0F - 0.16F * Exp(-Min(at.toGap, at.toEnd) / 8.0F));
  });
  Soften(sheet, tone, 0.5F);
  StretchTo(sheet, tone, 0.002F, 0.995F);
  return tone;
}

const RegisteredTexture kGeneralStore(TextureRecipe{
    .name = "General_Store",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Weathered/Aged", "Distress (Heavy)", "Woods", "Erosion (Heavy)"},
    .seed = 1887,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
