// Fingerprints: a sheet of glass that everybody touched. Clean glass is white and
// leaves the picture.
//
// What makes it read as that: ridges that flow round a core, fork and end, with
// pores along them; prints of one hand beside each other; some pressed full,
// some only at a rim, some dragged into a smear.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Touch {
  float x, y;      // shares of the sheet
  float size;      // half length of the print, pixels
  float turn;      // radians; 0 points up
  float pressure;  // 0..1
  float drag;      // pixels by which the finger slid
  bool loop;       // a loop, or else a whorl
};

constexpr Touch kTouches[] = {{0.16F, 0.30F, 185.0F, -0.50F, 0.85F, 0.0F, true},
                              {0.275F, 0.20F, 196.0F, -0.24F, 0.95F, 0.0F, false},
                              {0.40F, 0.205F, 188.0F, -0.04F, 0.80F, 0.0F, true},
                              {0.515F, 0.30F, 160.0F, 0.20F, 0.60F, 0.0F, true},
                              {0.79F, 0.73F, 250.0F, 0.85F, 1.0F, 0.0F, false},
                              {0.66F, 0.62F, 190.0F, 0.55F, 0.65F, 120.0F, true},
                              {0.10F, 0.84F, 200.0F, -1.10F, 0.75F, 0.0F, true},
                              {0.87F, 0.16F, 190.0F, 0.30F, 0.55F, 170.0F, false},
                              {0.485F, 0.555F, 205.0F, 0.16F, 0.72F, 0.0F, false},
                              {0.95F, 0.44F, 200.0F, 1.30F, 0.80F, 0.0F, true},
                              {0.52F, 0.985F, 210.0F, -0.20F, 0.80F, 0.0F, true}};

// How much grease a touch left at a place, 0..1.
float PrintAt(const Touch& touch, float dx, float dy, std::uint32_t seed) {
  const float c = Cos(touch.turn);
  const float s = Sin(touch.turn);
  const float x = (dx * c + dy * s) / touch.size;
  float y = (dy * c - dx * s) / touch.size;
  const float slid = touch.drag / touch.size;
  // Behind a finger that slid lies its trail.
  const float trail = slid > 0.0F ? Clamp01((y - 0.2F) / (slid + 0.8F)) : 0.0F;
  y -= slid * trail;
  const float oval = Length(x / 0.66F, y);
  if (oval > 1.12F) return 0.0F;
  const Fbm flesh{0.55F, 3, 0.5F, seed};
  const Fbm pressed{0.30F, 4, 0.6F, seed + 1};
  const Fbm fork{0.17F, 2, 0.5F, seed + 2};
  const float bend = 0.10F * flesh(x, y);
  // Distance from the core along which ridges are counted: circles for a
  // whorl; for a loop the lower half opens to one side.
  const float cx = x + bend;
  const float cy = y + 0.12F;
  float count = Length(cx, 0.72F * cy);
  if (touch.loop && cy > 0.0F) {
    const float lean = Length(cx + 0.55F * cy, 0.16F * cy);
    count = Mix(count, lean, SmoothRamp(0.0F, 0.55F, cy));
  }
  // Below, ridges lie flat along the crease of the joint.
  const float joint = SmoothRamp(0.30F, 0.85F, cy);
  count = Mix(count, 0.35F + 0.9F * cy - 0.12F * cx * cx, 0.7F * joint);
  const float ridges = count * touch.size / 11.5F + 0.55F * fork(x, y) + bend * 5.0F;
  const float wave = 0.5F + 0.5F * Cos(kTau * ridges);
  const float pore =
      0.5F + 0.5F * Cos((Abs(x) + Abs(y) * 1.3F) * touch.size * 0.55F + 9.0F * flesh(y, x));
  const float weight = touch.pressure * (0.75F + 0.75F * pressed(x, y));
  const float line = SmoothRamp(0.72F - 0.5F * weight, 0.98F - 0.45F * weight, wave);
  const float shape = SmoothRamp(1.06F, 0.80F, oval + 0.22F * pressed(x * 2.0F, y * 2.0F));
  const float smear = SmoothRamp(0.05F, 0.6F, trail);
  const float ink = Mix(line * (1.0F - 0.35F * pore), 0.45F, 0.75F * smear);
  return Clamp01(shape * ink * (0.35F + 0.75F * weight) * (1.0F - 0.55F * smear));
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const Fbm grease{4.6F, 3, 0.7F, seed + 1};
  const Fbm breath{420.0F, 4, 0.55F, seed + 2};
  const Fbm wiped{16.0F, 3, 0.6F, seed + 3};
  Field tone = Painted(sheet, [&](Spot p) {
    float light = 1.0F;
    std::uint32_t own = seed + 100;
    for (const Touch& touch : kTouches) {
      own += 10;
      const float dx = p.fx - touch.x * w;
      const float dy = p.fy - touch.y * h;
      const float reach = 1.2F * touch.size + 2.0F * touch.drag;
      if (Abs(dx) > reach || Abs(dy) > reach) continue;
      const float print = PrintAt(touch, dx, dy, own);
      if (print > 0.0F) light *= 1.0F - Clamp01(print * (0.95F + 0.75F * grease(p)));
    }
    // The sweep of a sleeve that tried to clean it.
    const float along = p.fx * 0.94F + p.fy * 0.34F;
    const float across = p.fy * 0.94F - p.fx * 0.34F + 0.0001F * along * along;
    const float sweep =
        SmoothRamp(0.12F, 0.55F, breath(p)) * Clamp01(0.25F + 1.1F * wiped(along * 0.02F, across));
    return light * (1.0F - 0.10F * sweep);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.002F, 0.6F);
  return tone;
}

const RegisteredTexture kFingerprints(TextureRecipe{.name = "Fingerprints",
                                                    .set = TextureSet::kEssentials,
                                                    .effects = {"Distress (Light)", "Ephemeral"},
                                                    .seed = 1035,
                                                    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
