// Log_End: the sawn end of an old trunk that lay in the yard for some summers.
// It dried from the rim inwards, so that checks run from the rim towards the
// pith, widest outside; the heart is darker than the sapwood; the chain saw
// left shallow strokes across everything.
//
// What makes it read as that: rings of fat and lean years about a middle that
// is not the picture's, wedges that are black and straight along the rays, and
// the saw's marks, which care for neither.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"
#include "toolbox/turn.h"

namespace tarnwick::content {
namespace {

struct Pith {
  float x, y, reach;  // reach: to the farthest corner, about
};

Pith PithOf(const Sheet& sheet) {
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  return {0.43F * width, 0.54F * height, 0.62F * Length(width, height)};
}

// Drying checks: outwards from somewhere along a ray, wider as they go.
void AddChecks(StrokeSet& strokes, const Pith& pith, int count, float longest, float widest,
               std::uint32_t seed) {
  for (int i = 0; i < count; ++i) {
    Dice dice(seed, i);
    const float angle =
        kTau * (static_cast<float>(i) + dice.Between(-0.38F, 0.38F)) / static_cast<float>(count);
    const float luck = dice.Unit();
    const float inner = pith.reach * Mix(0.75F, 0.75F - longest, luck * luck);
    const float wide = widest * (0.25F + 0.75F * luck);
    const float outer = inner + pith.reach * dice.Between(0.25F, 0.6F);
    std::vector<StrokePoint> points;
    float aside = 0.0F;
    for (float at = inner; at < outer; at += 9.0F) {
      aside += dice.Around(0.0F, 0.9F);
      const float share = Ramp(inner, outer, at);
      const float open = Sqrt(share) * SmoothRamp(1.0F, 0.75F, share) * wide + 0.4F;
      points.push_back({pith.x + at * Cos(angle) - aside * Sin(angle),
                        pith.y + at * Sin(angle) + aside * Cos(angle), open,
                        SmoothRamp(0.0F, 0.06F, share)});
    }
    strokes.Add(points);
  }
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Pith pith = PithOf(sheet);

  StrokeSet wedges;
  AddChecks(wedges, pith, 11, 0.66F, 7.0F, seed + 1);
  AddChecks(wedges, pith, 46, 0.38F, 2.2F, seed + 2);
  Field check(sheet);
  wedges.Draw(sheet, check, {.ragged = 1.6F, .raggedPeriod = 9.0F, .seed = seed + 3});
  StrokeSet star;
  for (int i = 0; i < 7; ++i) {
    Dice dice(seed + 4, i);
    const float heading = (static_cast<float>(i) + dice.Between(-0.3F, 0.3F)) * kTau / 7.0F;
    AddWalk(star, {.x = pith.x,
                   .y = pith.y,
                   .length = dice.Between(40.0F, 230.0F),
                   .heading = heading,
                   .wobble = 0.8F,
                   .radius = dice.Between(1.0F, 3.2F),
                   .taper = 0.9F,
                   .seed = dice.Word()});
  }
  star.Draw(sheet, check, {.ragged = 1.0F, .seed = seed + 5});
  Soften(sheet, check, 0.5F);

  const Fbm lobes{0.9F, 3, 0.5F, seed + 10};
  const Fbm uneven{420.0F, 3, 0.5F, seed + 11};
  const Fbm shiver{34.0F, 2, 0.5F, seed + 12};
  const Fbm growth{6.0F, 3, 0.62F, seed + 13};
  const Field years = Painted(sheet, [&](Spot p) {
    const float dx = p.fx - pith.x;
    const float dy = p.fy - pith.y;
    const float far = Length(dx, dy);
    const float inverse = 1.0F / Max(far, 1.0F);
    const float out = SmoothRamp(0.0F, 260.0F, far);
    const float r = far * (1.0F + 0.10F * out * lobes(dx * inverse, dy * inverse)) +
                    out * 26.0F * uneven(p) + 1.6F * shiver(p);
    const float rings = r / 15.0F;
    return rings + 1.7F * growth(rings, 0.5F);
  });
  const Fbm ray{1.0F, 2, 0.7F, seed + 20};
  const Fbm saw{30.0F, 4, 0.62F, seed + 30};
  const Fbm pass{240.0F, 3, 0.5F, seed + 31};
  const Fbm pore{2.6F, 2, 0.7F, seed + 40};
  const Fbm cloud{380.0F, 5, 0.55F, seed + 41};
  const auto late = [&](float year) {
    const float t = Fraction(year);
    const float rise = t < 0.86F ? t / 0.86F : SmoothRamp(1.0F, 0.86F, t);
    return rise * rise * (0.40F + 0.60F * Unit(HashAt(FloorInt(year), 7, seed)));
  };
  // The saw swung about the sawyer's hip, well off the picture.
  const Field stroke = Painted(sheet, [&](Spot p) {
    const float along = 0.94F * p.fx + 0.34F * p.fy;
    const float across = 0.94F * p.fy - 0.34F * p.fx + 0.00012F * along * along;
    return saw(along * 0.012F, across) * (0.55F + 0.9F * pass(along * 0.3F, across));
  });
  const Field rays = Painted(sheet, [&](Spot p) {
    const float dx = p.fx - pith.x;
    const float dy = p.fy - pith.y;
    const float far = Length(dx, dy);
    // Twice as many from ring to ring as the wood widens.
    return ray(Turn(dx, dy) * 330.0F * (far > 520.0F ? 2.0F : 1.0F), far * 0.011F) *
           SmoothRamp(30.0F, 200.0F, far);
  });
  const Field height = Painted(sheet, [&](Spot p) {
    return 0.5F * late(years(p)) + 0.8F * stroke(p) + 0.25F * rays(p) + 0.12F * pore(p) -
           2.2F * check(p);
  });
  const Field light = Relief(sheet, height, 0.22F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float year = years(p);
    const float heart = SmoothRamp(38.0F, 34.0F, year + 1.2F * cloud(p));
    const float grey = SmoothRamp(0.15F, 0.9F, Length(p.fx - pith.x, p.fy - pith.y) / pith.reach);
    float value = 0.80F - 0.15F * heart - 0.10F * grey - 0.33F * late(year) + 0.14F * cloud(p) +
                  0.10F * rays(p) + 0.05F * pore(p) + 0.05F * stroke(p);
    value += 0.17F * light(p);
    return value * (1.0F - 0.95F * Min(1.0F, check(p)));
  });
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kLogEnd(TextureRecipe{
    .name = "Log_End",
    .set = TextureSet::kTimberYard,
    .effects = {"Woods", "Texture (Medium)", "Weathered/Aged", "Distress (Medium)"},
    .seed = 3001,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
