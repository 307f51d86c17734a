// Tread_Plate: the step of a lorry, chequer plate with raised lozenges. Boots
// polished their tops along the way where people walk; mud and grease lie dark
// in the corners between, and stay where nobody treads.
//
// What makes it read as that: lozenges in pairs that cross, each with a lit and
// a dark flank, worn bright by use and not evenly, scratches over them all.
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

struct Lozenge {
  float rise;  // 0 on the plate, 1 on a top
  float near;  // pixels to the nearest flank, outside
};

// Rolled plates are exact, but this one lies askew and is bent.
Lozenge LozengeAt(float x, float y) {
  constexpr float kPitch = 112.0F;
  const float u = (0.966F * x + 0.259F * y) / kPitch;
  const float v = (0.966F * y - 0.259F * x) / kPitch;
  const int iu = FloorInt(u);
  const int iv = FloorInt(v);
  float most = -99.0F;
  for (int j = -1; j <= 1; ++j) {
    for (int i = -1; i <= 1; ++i) {
      const int cu = iu + i;
      const int cv = iv + j;
      const float du = (u - static_cast<float>(cu) - 0.5F) * kPitch;
      const float dv = (v - static_cast<float>(cv) - 0.5F) * kPitch;
      const bool crossed = ((cu + cv) & 1) != 0;
      const float along = Abs((crossed ? du + dv : du - dv) * 0.70710678F);
      const float across = Abs((crossed ? du - dv : du + dv) * 0.70710678F);
      // A lens: the overlap of two circles.
      constexpr float kHalf = 54.0F, kWide = 14.0F;
      constexpr float kRound = (kHalf * kHalf + kWide * kWide) / (2.0F * kWide);
      const float inside = kRound - Length(along, across + kRound - kWide);
      most = Max(most, inside);
    }
  }
  return {SmoothRamp(-1.0F, 7.0F, most), Max(0.0F, -most)};
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const Warp bent{7.0F, {420.0F, 2, 0.5F, seed + 1}};
  const Fbm edge{30.0F, 3, 0.6F, seed + 2};
  const Survey<Lozenge> plate(sheet, [&](Spot p) {
    const Spot q = bent(p);
    const float nick = 1.6F * edge(p);
    return LozengeAt(q.fx + nick, q.fy - nick);
  });
  StrokeSet strokes;
  AddScratches(strokes, sheet,
               {.count = 150,
                .minLength = 60.0F,
                .maxLength = 800.0F,
                .heading = 1.2F,
                .spread = 0.6F,
                .stray = 0.3F,
                .minRadius = 0.4F,
                .maxRadius = 1.6F},
               seed + 3);
  AddScuffs(strokes, sheet, {.count = 40, .maxLength = 320.0F, .heading = 1.2F, .spread = 0.5F},
            seed + 4);
  Field scratch(sheet);
  strokes.Draw(sheet, scratch);

  const Fbm pit{5.0F, 3, 0.7F, seed + 10};
  const Fbm skin{34.0F, 4, 0.6F, seed + 11};
  const Fbm tread{300.0F, 5, 0.55F, seed + 12};
  const Fbm mud{190.0F, 6, 0.62F, seed + 13};
  // The way people take, from the lower left to the upper right.
  const Field worn = Painted(sheet, [&](Spot p) {
    const float way = (p.fx - 0.85F * p.fy) / width - 0.20F;
    return SmoothRamp(0.45F, 0.0F, Abs(way)) + 0.65F * tread(p);
  });
  const Field dirt = Painted(sheet, [&](Spot p) {
    const float corner = SmoothRamp(20.0F, 0.0F, plate(p).near) * (1.0F - plate(p).rise);
    return SoftThreshold(mud(p) + 0.16F * corner - 0.30F * worn(p) + 0.10F * pit(p), 0.06F, 0.36F) *
           (1.0F - 0.85F * plate(p).rise);
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    return 6.5F * plate(p).rise + 0.30F * pit(p) * (1.0F - 0.6F * plate(p).rise) + 0.8F * skin(p) -
           0.5F * scratch(p);
  });
  const Field light = Relief(sheet, relief, 0.34F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float rise = plate(p).rise;
    const float bright = SmoothRamp(0.05F, 0.85F, worn(p));
    float value = 0.44F + 0.10F * skin(p) + 0.06F * pit(p) + 0.12F * bright + 0.10F * tread(p);
    value = Mix(value, 0.56F + 0.38F * bright + 0.05F * skin(p), 0.9F * rise);
    value = Mix(value, 0.13F + 0.10F * pit(p) + 0.06F * skin(p), 0.88F * dirt(p));
    value += (0.34F - 0.20F * dirt(p)) * light(p);
    return value + scratch(p) * (0.10F + 0.22F * bright);
  });
  Soften(sheet, tone, 0.30F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kTreadPlate(TextureRecipe{
    .name = "Tread_Plate",
    .set = TextureSet::kForge,
    .effects = {"Metals", "Industrial", "Texture (Heavy)", "Distress (Light)"},
    .seed = 3014,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
