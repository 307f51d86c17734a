// Frost_Ferns: a bedroom window on a winter morning, the snow outside brighter
// than the room. Ferns of ice grew in from the frame, feather upon feather, each
// up to where it met another; against the light ice is dark. Along the frame the
// pane is grey with rime, a place beside the middle breath kept clear, and there
// it leaves the picture alone.
//
// What makes it read as that: stems that curve, feathers at one angle on both
// sides, borders where two ferns met and neither went on.
#include "toolbox/frost.h"

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  // Breath and the sun keep a part of the pane clear, right of the middle.
  const Fbm breath{340.0F, 4, 0.5F, seed + 12};
  const Field cold = Painted(sheet, [&](Spot p) {
    const float dx = (p.fx / width - 0.62F) / 0.52F;
    const float dy = (p.fy / height - 0.40F) / 0.50F;
    return Length(dx, dy) + 0.42F * breath(p);
  });
  const Field chance = Painted(sheet, [&](Spot p) { return SmoothRamp(0.40F, 0.75F, cold(p)); });
  StrokeSet ferns;
  AddFrost(ferns, sheet, chance, {.tries = 4200, .minLength = 46.0F, .maxLength = 0.46F * width},
           seed + 1);
  Field ice(sheet);
  ferns.Draw(sheet, ice, {.profile = StrokeProfile::kRound});
  Soften(sheet, ice, 0.35F);
  Field thick = ice;
  Blur(sheet, thick, 17.0F);

  const Fbm needles{13.0F, 3, 0.6F, seed + 10};
  const Warp bent{26.0F, {120.0F, 3, 0.5F, seed + 11}};
  const Fbm rime{8.0F, 4, 0.7F, seed + 13};
  const Spots drops{26.0F, 0.30F, 1.2F, 7.0F, seed + 14};
  const Field relief = Painted(sheet, [&](Spot p) { return 2.2F * ice(p) + 3.0F * thick(p); });
  const Field light = Relief(sheet, relief, 0.5F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Spot q = bent(p);
    const float fine = needles(q.fx * 0.5F + q.fy * 0.5F, (q.fy - q.fx) * 1.4F);
    const float film = SmoothRamp(0.35F, 1.35F, cold(p));
    float value =
        0.17F + 0.10F * breath(p) + 0.24F * film + 0.16F * film * fine + 0.12F * film * rime(p);
    value += 0.34F * Min(1.0F, 1.3F * thick(p));
    value = Mix(value, 0.98F, Min(1.0F, ice(p) * (0.75F + 0.5F * film)));
    value += 0.20F * light(p);
    const float white = SoftThreshold(cold(p) + 0.20F * rime(p), 1.55F, 0.50F);
    value = Mix(value, 0.90F + 0.12F * rime(p) + 0.15F * light(p), 0.75F * white);
    // Where breath thawed the pane, drops froze again.
    const Spots::Hit drop = drops(p);
    const float rim = SmoothRamp(0.0F, 0.25F, drop.depth) * SmoothRamp(0.75F, 0.3F, drop.depth);
    return value + 0.22F * rim * (1.0F - film) * (drop.dy < -0.1F ? 1.0F : 0.35F);
  });
  StretchTo(sheet, tone, 0.004F, 0.99F);
  // All above is frost seen from outside; from the room it is the other way round.
  Repaint(sheet, tone, [&](Spot p) { return 1.06F - 1.06F * tone(p); });
  return tone;
}

const RegisteredTexture kFrostFerns(TextureRecipe{.name = "Frost_Ferns",
                                                  .set = TextureSet::kWeatherStation,
                                                  .effects = {"Ephemeral", "Texture (Light)"},
                                                  .seed = 3030,
                                                  .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
