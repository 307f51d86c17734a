// Scratched: a photographic print that went from hand to hand. The emulsion is
// whole over most of it (white); nails and grit have cut it, a drawer has
// scuffed it, the rim is rubbed down to the paper and one corner was folded.
//
// What makes it read as that: scratches in bundles that share a direction, each
// with its own pressure and skips; scuffs that are many hair lines and not a
// grey veil; wear that gathers at the rim and is torn, not blurred; emulsion
// that breaks off in little plates along a crease.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// Most damage runs the long way, as the print slid in and out of its sleeve.
constexpr float kLongWay = 0.14F;

void AddAllScratches(StrokeSet& cuts, StrokeSet& hairs, const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  AddScratches(cuts, sheet,
               {.count = 40,
                .minLength = 200.0F,
                .maxLength = 1500.0F,
                .heading = kLongWay,
                .spread = 0.30F,
                .stray = 0.3F,
                .minRadius = 0.5F,
                .maxRadius = 1.7F,
                .minStrength = 0.55F,
                .maxStrength = 1.1F,
                .skip = 1.3F,
                .companions = 3},
               seed);
  // A few that went deep: a coin or a key, which cuts several lines at once.
  AddScuffs(cuts, sheet,
            {.count = 11,
             .minLength = 70.0F,
             .maxLength = 460.0F,
             .heading = 0.5F,
             .spread = 0.9F,
             .stray = 0.3F,
             .slender = 0.12F,
             .minLines = 7,
             .maxLines = 16,
             .minRadius = 0.5F,
             .maxRadius = 1.5F,
             .minStrength = 0.6F,
             .maxStrength = 1.1F},
            seed + 1);
  AddScuffs(hairs, sheet,
            {.count = 64,
             .minLength = 60.0F,
             .maxLength = 300.0F,
             .heading = kLongWay,
             .spread = 0.45F,
             .stray = 0.35F,
             .minLines = 20,
             .maxLines = 170,
             .minRadius = 0.2F,
             .maxRadius = 0.65F,
             .minStrength = 0.2F,
             .maxStrength = 0.85F},
            seed + 2);
  // Single hairs everywhere keep the ground from looking new.
  AddScratches(hairs, sheet,
               {.count = 1300,
                .minLength = 15.0F,
                .maxLength = 170.0F,
                .heading = kLongWay,
                .spread = 0.5F,
                .stray = 0.6F,
                .minRadius = 0.15F,
                .maxRadius = 0.5F,
                .minStrength = 0.12F,
                .maxStrength = 0.6F,
                .skip = 0.8F,
                .companions = 1},
               seed + 3);
}

// How much a place was handled: the rim most, here more and there less, and
// some patches within.
float Handling(const Sheet& sheet, Spot p) {
  const float toSide = Min(p.fx, static_cast<float>(sheet.width - 1) - p.fx);
  const float toEnd = Min(p.fy, static_cast<float>(sheet.height - 1) - p.fy);
  const Fbm uneven{300.0F, 3, 0.55F, sheet.seed + 21};
  const float luck = Clamp01(0.55F + 0.9F * uneven(p));
  const float rim = Exp(-Min(toSide, toEnd) / (6.0F + 34.0F * luck));
  const float corner = Exp(-(toSide + toEnd) / 95.0F);
  const Fbm patches{380.0F, 3, 0.5F, sheet.seed + 20};
  return 0.80F * rim * (0.45F + 0.55F * luck) + 0.7F * corner +
         0.42F * SmoothRamp(0.15F, 0.85F, patches(p));
}

// The crease of a corner that was folded over: pixels to its line.
float ToCrease(const Sheet& sheet, Spot p) {
  const float x = static_cast<float>(sheet.width) - p.fx;
  const Fbm bow{160.0F, 4, 0.5F, sheet.seed + 25};
  return Abs(x * 0.79F + p.fy * 0.61F - 330.0F + 5.0F * bow(p));
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  StrokeSet cuts;
  StrokeSet hairs;
  AddAllScratches(cuts, hairs, sheet);
  Field cut(sheet);
  cuts.Draw(sheet, cut, {.ragged = 0.9F, .raggedPeriod = 4.0F, .seed = seed + 5});
  Field hair(sheet);
  hairs.Draw(sheet, hair, {.ragged = 0.25F, .raggedPeriod = 3.0F, .seed = seed + 6});

  const Fbm grit{6.0F, 3, 0.75F, seed + 30};
  // Rubbing leaves grit in lines, so the noise is drawn out along the way.
  const Fbm rub{9.0F, 4, 0.7F, seed + 31};
  const Fbm tear{64.0F, 5, 0.62F, seed + 32};
  const Warp torn{11.0F, {17.0F, 4, 0.62F, seed + 33}};
  const Spots chips{90.0F, 0.30F, 0.8F, 13.0F, seed + 34};
  const Fbm brittle{240.0F, 4, 0.55F, seed + 35};
  const Cells shards{15.0F, 1.0F, seed + 38};
  const Cells plates{12.0F, 1.0F, seed + 36};
  const Spots dust{16.0F, 0.10F, 0.5F, 1.9F, seed + 37};
  Field print = Painted(sheet, [&](Spot p) {
    const float handling = Handling(sheet, p);
    const float along = p.fx * Cos(kLongWay) + p.fy * Sin(kLongWay);
    const float across = p.fy * Cos(kLongWay) - p.fx * Sin(kLongWay);
    const float line = rub(along * 0.14F, across);
    const float edge = 0.24F * tear(p) + 0.13F * grit(p) + 0.20F * line;
    const float rubbed = SoftThreshold(handling + edge, 0.62F, 0.13F);
    const float veil = 0.50F * SmoothRamp(0.24F, 0.85F, handling + 0.6F * line + 0.2F * grit(p));

    // Chips break off in shards: whole plates near a weak point, no discs.
    const Spot q = torn(p);
    const float weak = brittle(p);
    const CellSample shard = shards(q.fx, q.fy);
    const Spots::Hit hit = chips(p.fx + shard.dx * 9.0F, p.fy + shard.dy * 9.0F);
    const float chip = SoftThreshold(hit.depth + 0.5F * shard.id, 0.62F - 0.2F * weak, 0.05F) *
                       SoftThreshold(hit.depth, 0.06F, 0.05F) *
                       SoftThreshold(weak + 0.5F * handling, -0.08F, 0.1F);
    // The fold cracked the emulsion on both sides of its line and took some.
    const float crease = ToCrease(sheet, p);
    const CellSample plate = plates.WithEdge(q.fx, q.fy);
    const float lost = SoftThreshold(plate.id + 0.5F * weak, 0.62F + crease / 26.0F, 0.05F);
    const float cracks = SmoothRamp(0.08F, 0.02F, plate.edge) *
                         SmoothRamp(Max(8.0F, 30.0F + 40.0F * weak), 4.0F, crease);
    const float ridge = SmoothRamp(1.7F + weak, 0.4F, crease) * (0.75F + 0.5F * weak);
    const float fold = Max(lost, Max(0.55F * cracks, ridge));

    const float speck = SoftThreshold(dust(p).depth, 0.25F, 0.4F) * 0.8F;
    const float broken = Max(Max(chip, rubbed), Max(cut(p), fold));
    return 1.0F - Clamp01(Max(Max(broken, speck), Max(hair(p), veil)));
  });
  Soften(sheet, print, 0.4F);
  return print;
}

const RegisteredTexture kScratched(TextureRecipe{
    .name = "Scratched",
    .set = TextureSet::kDarkroom,
    .effects = {"Scratches", "Distress (Medium)", "Erosion (Light)"},
    .seed = 1931,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
