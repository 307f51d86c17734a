// Torn_Posters: a hoarding after years of bills pasted over one another and
// torn off again.
//
// What makes it read as that: long tears that run down and across, each with a
// white lip where the paper split in its thickness; under every bill another
// with other letters and another screen of dots; wrinkles from the paste.
#include <string_view>
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/lettering.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Bill {
  float paper, ink;  // tones
  float height;      // of the letters, pixels
  float heading;     // radians
  float at;          // loss beyond which it is torn off
  bool reversed;     // letters left white in a field of ink
  std::string_view words[4];
};

constexpr Bill kBills[] = {
    {0.36F, 0.08F, 170.0F, 0.02F, 0.0F, true, {"CIRCUS TENT", "FRIDAY", "MUSIC HALL", "GRAND"}},
    {0.60F, 0.16F, 330.0F, -0.03F, 0.30F, false, {"DANCE", "ROYAL", "NIGHT", "SHOW"}},
    {0.78F,
     0.30F,
     120.0F,
     0.015F,
     0.17F,
     false,
     {"AUCTION SALE OF STOCK", "SATURDAY 14 MAY", "TERMS CASH ON THE DAY", "APPLY WITHIN"}},
    {0.90F, 0.06F, 430.0F, -0.012F, -0.02F, false, {"VOTE", "JAZZ", "SOAP", "TEA"}},
};

Field Print(const Sheet& sheet, const Bill& bill, std::uint32_t seed) {
  StrokeSet letters;
  Dice dice(seed);
  float y = bill.height * dice.Between(0.2F, 0.9F);
  for (int line = 0; y < static_cast<float>(sheet.height) + bill.height; ++line) {
    const Lettering style{.x = dice.Between(-0.12F, 0.08F) * static_cast<float>(sheet.width),
                          .y = y,
                          .height = bill.height,
                          .narrow = 0.56F,
                          .space = 0.26F,
                          .heading = bill.heading,
                          .radius = bill.height * 0.085F};
    Lettering next = style;
    for (int repeat = 0; next.x < static_cast<float>(sheet.width); ++repeat) {
      const std::string_view word = bill.words[(line + repeat) % 4];
      AddLettering(letters, next, word);
      next.x += LengthOf(next, word) + bill.height * 0.7F;
    }
    y += bill.height * dice.Between(1.35F, 1.6F);
  }
  Field ink(sheet);
  letters.Draw(sheet, ink);
  return ink;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Fbm broad{560.0F, 3, 0.5F, seed + 1};
  const Fbm rip{120.0F, 3, 0.58F, seed + 2};
  const Fbm nick{22.0F, 3, 0.6F, seed + 3};
  const Fbm paste{90.0F, 2, 0.5F, seed + 4};
  const Fbm grime{380.0F, 3, 0.58F, seed + 5};
  const Fbm pulp{4.0F, 2, 0.7F, seed + 6};
  const Warp jerk{30.0F, {150.0F, 3, 0.6F, seed + 7}};

  const Survey<Spot> jerked(sheet, [&](Spot p) { return jerk(p); });
  const Field fibre = Painted(sheet, pulp);
  Field tone(sheet, 0.5F);
  Field thickness(sheet);
  int layer = 0;
  for (const Bill& bill : kBills) {
    const std::uint32_t own = seed + 100U * static_cast<std::uint32_t>(layer + 1);
    const Field ink = Print(sheet, bill, own);
    const Fbm rubbed{60.0F, 3, 0.64F, own + 1};
    const Field wear = Painted(sheet, rubbed);
    const auto printed = [&](Spot p) {
      const float set = Clamp01(ink(p) * (0.92F + 0.5F * Min(0.0F, wear(p) + 0.1F)));
      const float mark = bill.reversed ? 1.0F - set : set;
      return Mix(bill.paper, bill.ink, mark) + 0.05F * fibre(p) + 0.06F * wear(p);
    };
    if (layer++ == 0) {
      Repaint(sheet, tone, printed);
      continue;
    }
    const float shift = 733.0F * static_cast<float>(layer);
    // Paper tears along its grain: down in long strips, across in short steps.
    const Field loss = Painted(sheet, [&](Spot p) {
      const Spot& q = jerked(p);
      return broad(q.fx * 1.25F + shift, q.fy * 0.6F) + 0.30F * rip(q.fx + shift, q.fy * 0.5F) +
             0.05F * nick(p.fx + shift, p.fy) - bill.at;
    });
    // The lip: the face goes first, the white core follows some way behind.
    const auto bare = [&](Spot p) { return SoftThreshold(loss(p), 0.0F, 0.010F); };
    const Field gone = Painted(sheet, [&](Spot p) {
      return SoftThreshold(loss(p) - 0.055F - 0.09F * wear(p), 0.0F, 0.012F);
    });
    Field shadow = Painted(sheet, [&](Spot p) { return 1.0F - gone(p); });
    Blur(sheet, shadow, 5.0F);
    Repaint(sheet, thickness,
            [&](Spot p) { return thickness(p) + 1.0F - 0.5F * gone(p) - 0.5F * bare(p); });
    Repaint(sheet, tone, [&](Spot p) {
      const float below = tone(p) * (1.0F - 0.45F * gone(p) * shadow(p));
      const float lip = 0.93F + 0.10F * fibre(p);
      return Mix(Mix(printed(p), lip, bare(p)), below, gone(p));
    });
  }
  const Fbm crease{36.0F, 3, 0.55F, seed + 8};
  Repaint(sheet, thickness, [&](Spot p) {
    const float loose = SoftThreshold(paste(p), 0.1F, 0.5F);
    if (loose <= 0.0F) return thickness(p);
    const float n = crease(p.fx * 0.9F, p.fy * 0.28F);
    return thickness(p) + 0.5F * SmoothRamp(0.08F, 0.0F, Abs(n)) * loose;
  });
  Blur(sheet, thickness, 0.8F);
  const Field light = Relief(sheet, thickness, 0.30F);
  Repaint(sheet, tone,
          [&](Spot p) { return tone(p) * (0.93F + 0.20F * grime(p)) + 0.16F * light(p); });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.003F, 0.99F);
  return tone;
}

const RegisteredTexture kTornPosters(TextureRecipe{
    .name = "Torn_Posters",
    .set = TextureSet::kPaperDrawer,
    .effects = {"Papers", "Distress (Heavy)", "Ephemeral", "Weathered/Aged"},
    .seed = 1012,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
