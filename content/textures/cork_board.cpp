// Cork_Board: the pin board of an office. Crumbs of cork, light and dark, were
// pressed and ground flat; the sun bleached it except where notices hung, and
// pins left their holes, in corners mostly and in a swarm where the calendar
// was.
//
// What makes it read as that: crumbs of all sizes with dark seams, oblong
// places that stayed dark and have sharp borders, holes at their corners.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Notice {
  float x, y, halfWidth, halfHeight, lean, weight;
};

std::vector<Notice> Notices(const Sheet& sheet, std::uint32_t seed) {
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  std::vector<Notice> notices = {{0.27F * width, 0.40F * height, 230.0F, 320.0F, -0.02F, 1.0F},
                                 {0.67F * width, 0.30F * height, 290.0F, 205.0F, 0.03F, 0.8F},
                                 {0.76F * width, 0.78F * height, 170.0F, 240.0F, 0.05F, 0.9F},
                                 {0.48F * width, 0.76F * height, 150.0F, 105.0F, -0.07F, 0.55F},
                                 {0.07F * width, 0.88F * height, 160.0F, 110.0F, 0.02F, 0.7F}};
  for (int i = 0; i < 7; ++i) {
    Dice dice(seed, i);
    notices.push_back({dice.Unit() * width, dice.Unit() * height, dice.Between(60.0F, 150.0F),
                       dice.Between(50.0F, 130.0F), dice.Around(0.0F, 0.09F),
                       dice.Between(0.2F, 0.5F)});
  }
  return notices;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const std::vector<Notice> notices = Notices(sheet, seed + 1);
  StrokeSet pins;
  for (std::size_t k = 0; k < notices.size(); ++k) {
    Dice dice(seed + 2, static_cast<int>(k));
    const Notice& note = notices[k];
    for (int i = 0; i < 14; ++i) {
      const float sx = dice.Chance(0.5F) ? 1.0F : -1.0F;
      const float sy = dice.Chance(0.6F) ? -1.0F : 1.0F;
      const float u = sx * (note.halfWidth - 16.0F) + dice.Around(0.0F, 12.0F);
      const float v = sy * (note.halfHeight - 16.0F) + dice.Around(0.0F, 12.0F);
      const StrokePoint pin[] = {
          {note.x + u - note.lean * v, note.y + v + note.lean * u, dice.Between(1.6F, 3.4F), 1.0F}};
      pins.Add(pin);
    }
  }
  for (int i = 0; i < 170; ++i) {
    Dice dice(seed + 3, i);
    const bool swarm = i < 70;
    const float x = swarm ? width * dice.Around(0.52F, 0.05F) : width * dice.Unit();
    const float y = swarm ? height * dice.Around(0.10F, 0.04F) : height * dice.Unit();
    const StrokePoint pin[] = {{x, y, dice.Between(1.4F, 3.0F), 1.0F}};
    pins.Add(pin);
  }
  Field hole(sheet);
  pins.Draw(sheet, hole, {.ragged = 0.8F, .raggedPeriod = 4.0F, .seed = seed + 4});
  Field dented = hole;
  Blur(sheet, dented, 3.5F);

  const Warp odd{6.0F, {22.0F, 3, 0.6F, seed + 10}};
  const Cells large{58.0F, 1.0F, seed + 11};
  const Cells small{23.0F, 1.0F, seed + 12};
  struct Crumb {
    float seam, own, kind;
  };
  const Survey<Crumb> crumbs(sheet, [&](Spot p) {
    const Spot q = odd(p);
    const CellSample a = large(q.fx, q.fy);
    // Large crumbs lie scattered among small ones.
    if (Unit(a.hash) < 0.36F) {
      const float seam = (a.f2 - a.f1) * large.period;
      if (seam > 2.5F) return Crumb{SmoothRamp(7.0F, 2.5F, seam), a.id, Unit(Hash(a.hash + 1))};
    }
    const CellSample b = small(q.fx, q.fy);
    return Crumb{SmoothRamp(3.6F, 0.6F, (b.f2 - b.f1) * small.period), b.id,
                 Unit(Hash(b.hash + 1))};
  });
  const Fbm pore{4.2F, 3, 0.72F, seed + 20};
  const Fbm lenticel{13.0F, 3, 0.6F, seed + 21};
  const Fbm sun{420.0F, 4, 0.55F, seed + 22};
  const Fbm edge{30.0F, 3, 0.6F, seed + 23};
  const Field shade = Painted(sheet, [&](Spot p) {
    float dark = 0.0F;
    const float wave = 1.5F * edge(p);
    for (const Notice& note : notices) {
      const float dx = p.fx - note.x;
      const float dy = p.fy - note.y;
      const float u = Abs(dx + note.lean * dy);
      const float v = Abs(dy - note.lean * dx);
      const float inside = Min(note.halfWidth - u, note.halfHeight - v) + wave;
      dark = Max(dark, note.weight * SmoothRamp(-4.0F, 6.0F, inside));
    }
    return dark;
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    const Crumb& at = crumbs(p);
    return 1.3F * at.own - 1.6F * at.seam + 0.55F * pore(p) - 3.5F * dented(p) - 2.0F * hole(p);
  });
  const Field light = Relief(sheet, relief, 0.42F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Crumb& at = crumbs(p);
    float value = 0.62F + 0.28F * (at.own - 0.5F) + 0.10F * pore(p) + 0.10F * sun(p);
    // Some crumbs are bark, nearly black, or streaked.
    if (at.kind < 0.13F) value = 0.24F + 0.12F * at.own + 0.10F * pore(p);
    value -=
        0.22F * SoftThreshold(lenticel(p.fx * 0.6F, p.fy) + 0.3F * (at.kind - 0.5F), 0.34F, 0.2F);
    value -= 0.17F * at.seam;
    value *= 1.0F - 0.36F * shade(p);
    value += 0.08F * (1.0F - shade(p));
    value += 0.24F * light(p);
    return Mix(value, 0.03F, 0.95F * SmoothRamp(0.3F, 0.8F, hole(p)));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.003F, 0.996F);
  return tone;
}

const RegisteredTexture kCorkBoard(TextureRecipe{
    .name = "Cork_Board",
    .set = TextureSet::kTimberYard,
    .effects = {"Woods", "Texture (Medium)", "Distress (Light)"},
    .seed = 3051,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
