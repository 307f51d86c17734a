// Cheesecloth: two layers of gauze laid over the picture by hand, bunched here
// and pulled thin there. Threads are dark, what shows between them is white.
//
// What makes it read as that: holes larger than threads, threads that slide
// together into bundles and leave ladders, the moiré of two layers that lie
// at different angles.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"
#include "toolbox/weave.h"

namespace tarnwick::content {
namespace {

Field Layer(const Sheet& sheet, std::uint32_t seed, float turn) {
  const Weave gauze{.warpPitch = 19.0F,
                    .weftPitch = 21.0F,
                    .warpFill = 0.30F,
                    .weftFill = 0.32F,
                    .uneven = 0.4F,
                    .slub = 0.4F,
                    .slubLength = 60.0F,
                    .wander = 0.42F,
                    .crimp = 0.4F,
                    .seed = seed};
  const Warp draped{56.0F, {640.0F, 3, 0.5F, seed + 1}};
  const Warp pulled{7.0F, {110.0F, 2, 0.5F, seed + 2}};
  const Fbm fuzz{2.6F, 2, 0.7F, seed + 3};
  const float c = Cos(turn);
  const float s = Sin(turn);
  return Painted(sheet, [&](Spot p) {
    const Spot q = pulled(draped(p));
    const Weave::Place at = gauze.At(q.fx * c - q.fy * s, q.fx * s + q.fy * c);
    if (at.hole) return 0.0F;
    const float body = Sqrt(1.0F - at.across * at.across);
    return Clamp01(body * (0.80F + 0.25F * at.level + 0.30F * fuzz(p)) *
                   (0.65F + 0.5F * Unit(at.thread)));
  });
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const Field upper = Layer(sheet, seed, 0.06F);
  Field lower = Layer(sheet, seed + 100, -0.32F);
  Blur(sheet, lower, 1.2F);
  Field veil = upper;
  Blur(sheet, veil, 22.0F);
  const Fbm edge{260.0F, 4, 0.5F, seed + 200};
  Field tone = Painted(sheet, [&](Spot p) {
    // The second layer was thrown across a corner and ends in a soft hem.
    const float side = (p.fx / w) * 0.8F + (1.0F - p.fy / h) * 0.6F + 0.12F * edge(p);
    const float doubled = SmoothRamp(0.58F, 0.63F, side);
    const float hem = Exp(-Square((side - 0.618F) / 0.010F));
    float left = 1.0F - 0.92F * upper(p);
    left *= 1.0F - 0.60F * lower(p) * doubled - 0.22F * hem;
    return left - 0.35F * Max(0.0F, veil(p) - 0.22F) * (1.0F + doubled);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.004F, 0.80F);
  return tone;
}

const RegisteredTexture kCheesecloth(TextureRecipe{
    .name = "Cheesecloth",
    .set = TextureSet::kHidesAndCloth,
    .effects = {"Fabrics", "Texture (Light)", "Distress (Light)"},
    .seed = 1005,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
