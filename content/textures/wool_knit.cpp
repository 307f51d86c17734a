// Wool_Knit: a fisherman's jumper in plain knitting, felted by rain and pulled out of
// shape at the elbow.
//
// What makes it read as that: columns of stitches like plaits, each leg a plump
// strand of two plies; rows that sag; stray hairs over everything; a pulled
// place where stitches open and one sees between them.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

constexpr float kColumn = 46.0F;
constexpr float kRow = 34.0F;

struct Stitch {
  float height;  // 0 between strands, 1 on top
  float ply;     // -1..1, the twist of the yarn
  float luck;    // 0..1, one for each
};

Stitch StitchAt(float x, float y, std::uint32_t seed) {
  const int column = FloorInt(x / kColumn);
  const float across = x / kColumn - static_cast<float>(column) - 0.5F;  // -0.5..0.5
  const float side = across < 0.0F ? -1.0F : 1.0F;
  const float out = Abs(across) * 2.0F;  // 0 in the middle of a plait, 1 at its border
  // Legs rise outwards and bow; both of one stitch start from its foot.
  const float rise = 1.06F * out + 0.24F * Sin(out * kPi);
  const float t = y / kRow + rise + 0.5F * static_cast<float>(column % 2 == 0);
  const int row = FloorInt(t);
  const std::uint32_t word = HashAt(column * 2 + (side > 0.0F ? 1 : 0), row, seed);
  const float thick = 0.48F + 0.05F * (Unit(word) - 0.5F);
  const float d = (t - static_cast<float>(row) - 0.5F) / thick;
  if (Abs(d) >= 1.0F) return {0.0F, 0.0F, 0.5F};
  const float round = Sqrt(1.0F - d * d);
  // A leg dives below its neighbours at both ends.
  const float lie = Sqrt(Max(0.0F, 1.0F - Square((out - 0.47F) / 0.60F)));
  const float ply = Sin(6.5F * out + 3.4F * d + Unit(Hash(word)) * 0.8F);
  return {round * (0.30F + 0.70F * lie), ply * round, Unit(Hash(word + 3))};
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet fuzz;
  for (int i = 0; i < FloorInt(w * h / 520.0F); ++i) {
    Dice dice(seed + 1, i);
    AddWalk(fuzz, {.x = dice.Unit() * w,
                   .y = dice.Unit() * h,
                   .length = dice.Between(18.0F, 95.0F),
                   .heading = dice.Between(0.0F, kTau),
                   .bend = dice.Around(0.0F, 1.6F),
                   .wobble = 2.2F,
                   .wobblePeriod = 24.0F,
                   .radius = dice.Between(0.35F, 0.8F),
                   .strength = dice.Between(0.2F, 0.9F),
                   .step = 6.0F,
                   .seed = dice.Word()});
  }
  Field hair(sheet);
  fuzz.Draw(sheet, hair, {.profile = StrokeProfile::kRound});

  const Warp sag{62.0F, {620.0F, 3, 0.5F, seed + 2}};
  const Warp uneven{5.0F, {52.0F, 3, 0.55F, seed + 3}};
  const Warp woolly{2.2F, {7.0F, 3, 0.62F, seed + 4}};
  const Survey<Stitch> stitches(sheet, [&](Spot p) {
    const Spot q = woolly(uneven(sag(p)));
    return StitchAt(q.fx, q.fy, seed + 5);
  });
  const Fbm fibre{3.0F, 2, 0.7F, seed + 6};
  const Field height = Painted(sheet, [&](Spot p) {
    const Stitch& at = stitches(p);
    return at.height + 0.13F * at.ply + 0.09F * fibre(p);
  });
  const Field light = Relief(sheet, height, 0.13F);
  Field low = height;
  Blur(sheet, low, 9.0F);
  const Fbm drape{560.0F, 3, 0.5F, seed + 7};
  const Field bulge = Painted(sheet, [&](Spot p) { return 6.0F * drape(p); });
  const Field bend = Relief(sheet, bulge, 0.03F);
  const Fbm dye{240.0F, 4, 0.55F, seed + 8};
  Field tone = Painted(sheet, [&](Spot p) {
    const Stitch& at = stitches(p);
    const float open = SmoothRamp(0.30F, 0.02F, height(p));
    float value = 0.40F + 0.34F * (height(p) - low(p)) + 0.20F * height(p) + 0.22F * light(p) +
                  0.10F * (at.luck - 0.5F) + 0.16F * bend(p) + 0.07F * dye(p);
    value = Mix(value, 0.04F, 0.85F * open);
    return Mix(value, 0.88F, 0.36F * hair(p));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kWoolKnit(TextureRecipe{.name = "Wool_Knit",
                                                .set = TextureSet::kHidesAndCloth,
                                                .effects = {"Fabrics", "Texture (Heavy)"},
                                                .seed = 1007,
                                                .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
