// Parquet: herringbone in an old flat, oak, waxed and danced on. Each block was
// cut from another board and lies a little lower or higher than its
// neighbours; dirt is in the joints, wax has gone along the way to the door.
//
// What makes it read as that: blocks that meet at right angles in a zigzag,
// every one with a tone and a grain of its own; scuffs that ignore the blocks.
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

constexpr float kBreadth = 78.0F;
constexpr int kBlocks = 5;  // a block's length in breadths

struct Block {
  float along, across;  // pixels from its end and its side
  float toJoint;        // pixels to the nearest joint
  std::uint32_t hash;
};

// Steps of squares: each run of five belongs to a block that lies, the next
// five to one that stands.
Block BlockAt(float x, float y, std::uint32_t seed) {
  const float u = (0.74F * x + 0.6726F * y) / kBreadth;
  const float v = (0.74F * y - 0.6726F * x) / kBreadth;
  const int i = FloorInt(u);
  const int j = FloorInt(v);
  constexpr int kPeriod = 2 * kBlocks;
  const int step = (((i - j) % kPeriod) + kPeriod) % kPeriod;
  float along = 0.0F;
  float across = 0.0F;
  std::uint32_t hash = 0;
  if (step < kBlocks) {
    along = u - static_cast<float>(i - step);
    across = v - static_cast<float>(j);
    hash = HashAt(i - step, j, seed);
  } else {
    const int first = j - (kPeriod - 1 - step);
    along = v - static_cast<float>(first);
    across = u - static_cast<float>(i);
    hash = HashAt(i, first, seed + 1);
  }
  const float side = Min(across, 1.0F - across);
  const float end = Min(along, static_cast<float>(kBlocks) - along);
  return {along * kBreadth, across * kBreadth, Min(side, end) * kBreadth, hash};
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float height = static_cast<float>(sheet.height);
  const Fbm waver{280.0F, 3, 0.5F, seed + 1};
  const Survey<Block> floor(sheet, [&](Spot p) {
    const float slip = 2.6F * waver(p);
    return BlockAt(p.fx + slip, p.fy - slip, seed);
  });
  const Fbm fibre{3.2F, 3, 0.7F, seed + 10};
  const Fbm years{30.0F, 2, 0.55F, seed + 11};
  const Fbm pores{4.4F, 2, 0.7F, seed + 12};
  struct Grain {
    float tone, pore;
  };
  const Survey<Grain> grain(sheet, [&](Spot p) {
    const Block& at = floor(p);
    const float x = at.along + 4000.0F * Unit(Hash(at.hash + 1));
    // Years lie slanting or arched, as the board happened to be cut.
    const float arch = 0.0016F * (Unit(Hash(at.hash + 2)) - 0.5F) * Square(at.along - 195.0F);
    const float y = at.across + arch + 0.10F * (Unit(Hash(at.hash + 3)) - 0.5F) * at.along +
                    3000.0F * Unit(Hash(at.hash + 4));
    const float t = Fraction(y / 15.0F + 1.6F * years(x * 0.10F, y));
    const float late = t < 0.75F ? t / 0.75F : SmoothRamp(1.0F, 0.75F, t);
    return Grain{0.55F * (late - 0.4F) + 0.5F * fibre(x * 0.03F, y),
                 SoftThreshold(pores(x * 0.06F, y), 0.36F, 0.22F)};
  });
  StrokeSet marks;
  AddScratches(marks, sheet,
               {.count = 120,
                .minLength = 50.0F,
                .maxLength = 620.0F,
                .heading = 0.4F,
                .spread = 1.2F,
                .stray = 0.3F,
                .minRadius = 0.4F,
                .maxRadius = 1.4F,
                .companions = 2},
               seed + 20);
  AddScuffs(marks, sheet, {.count = 46, .maxLength = 300.0F, .heading = 0.4F, .spread = 1.0F},
            seed + 21);
  Field mark(sheet);
  marks.Draw(sheet, mark);
  const Fbm wax{330.0F, 5, 0.56F, seed + 22};
  const Fbm dirt{90.0F, 4, 0.6F, seed + 23};
  const Field worn = Painted(sheet, [&](Spot p) {
    const float way = (0.35F * p.fx / width + p.fy / height) - 0.72F;
    return SmoothRamp(0.42F, 0.0F, Abs(way)) + 0.85F * wax(p);
  });
  const Field joint = Painted(sheet, [&](Spot p) {
    const Block& at = floor(p);
    const float wide = 1.1F + 1.3F * Unit(Hash(at.hash + 5)) + 1.2F * dirt(p);
    return SmoothRamp(wide + 1.3F, 0.4F * wide, at.toJoint) * Clamp01(0.75F + 0.9F * dirt(p));
  });
  const Field relief = Painted(sheet, [&](Spot p) {
    const Block& at = floor(p);
    const float high = 2.2F * Unit(Hash(at.hash + 6)) +
                       0.010F * (Unit(Hash(at.hash + 7)) - 0.5F) * at.along +
                       0.03F * (Unit(Hash(at.hash + 8)) - 0.5F) * at.across;
    return high - 2.4F * SmoothRamp(5.0F, 0.0F, at.toJoint) - 0.5F * grain(p).pore +
           0.4F * grain(p).tone - 0.5F * mark(p);
  });
  const Field light = Relief(sheet, relief, 0.42F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Block& at = floor(p);
    const float own = Unit(Hash(at.hash + 9));
    const float dull = SmoothRamp(0.15F, 0.95F, worn(p));
    float value = 0.42F + 0.30F * (own - 0.5F) + 0.10F * wax(p) - 0.18F * grain(p).tone;
    value = Mix(value, 0.66F + 0.16F * (own - 0.5F) - 0.24F * grain(p).tone, 0.8F * dull);
    value -= 0.15F * grain(p).pore * (1.0F + 0.6F * dull);
    value += 0.24F * light(p) + (0.10F + 0.18F * dull) * mark(p);
    return value * (1.0F - 0.82F * joint(p));
  });
  Soften(sheet, tone, 0.30F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kParquet(TextureRecipe{
    .name = "Parquet",
    .set = TextureSet::kTimberYard,
    .effects = {"Woods", "Distress (Light)", "Scratches"},
    .seed = 3007,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
