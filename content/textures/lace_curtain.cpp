// Lace_Curtain: a machine-made lace curtain and its hem against the light. Thread is
// dark, the holes are white.
//
// What makes it read as that: a net of small cells; flowers and leaves woven
// close and outlined with a heavier thread; a scalloped border with eyelets;
// folds that crowd the pattern together.
#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// What the draft of the pattern asks for at a place.
struct Draft {
  float solid = 0.0F;    // close weave, 0..1
  float outline = 0.0F;  // heavy thread, 0..1
};

void Include(Draft& draft, float inside, float weave) {
  if (inside > 0.0F) draft.solid = Max(draft.solid, weave);
  draft.outline = Max(draft.outline, SmoothRamp(4.4F, 2.4F, Abs(inside)));
}

// The cosine of n times the angle whose cosine and sine are given.
float CosineOfMultiple(float c, float s, int n) {
  float re = 1.0F;
  float im = 0.0F;
  for (int i = 0; i < n; ++i) {
    const float next = re * c - im * s;
    im = re * s + im * c;
    re = next;
  }
  return re;
}

void AddFlower(Draft& draft, float dx, float dy, float size, int petals) {
  const float far = Length(dx, dy);
  if (far > 1.3F * size) return;
  const float c = far > 0.01F ? dx / far : 1.0F;
  const float s = far > 0.01F ? dy / far : 0.0F;
  const float wave = CosineOfMultiple(c, s, petals);
  const float rim = size * (0.76F + 0.24F * wave);
  Include(draft, rim - far, 0.85F);
  // Veins part the petals; the eye is open net.
  draft.outline = Max(draft.outline, SmoothRamp(-0.90F, -0.97F, wave) * (far < rim ? 0.9F : 0.0F));
  const float eye = 0.26F * size - far;
  if (eye > 0.0F) draft.solid = 0.0F;
  draft.outline = Max(draft.outline, SmoothRamp(4.0F, 2.0F, Abs(eye)));
  draft.outline = Max(draft.outline, SmoothRamp(6.0F, 3.5F, Abs(far - 0.10F * size)));
}

void AddLeaf(Draft& draft, float dx, float dy, float heading, float length) {
  const float c = Cos(heading);
  const float s = Sin(heading);
  const float along = (dx * c + dy * s) / length;  // 0..1 from stalk to tip
  if (along < -0.05F || along > 1.05F) return;
  const float bent = dy * c - dx * s - 0.25F * length * along * along;
  const float half = 0.24F * length * Sqrt(Max(0.0F, along * (1.0F - along))) * 2.0F;
  Include(draft, half - Abs(bent), 0.62F);
  if (along > 0.0F && along < 1.0F) {
    draft.outline = Max(draft.outline, SmoothRamp(3.4F, 1.6F, Abs(bent)));
  }
}

Draft DraftAt(float x, float y, float hem, std::uint32_t seed) {
  Draft draft;
  constexpr float kWide = 470.0F;
  constexpr float kHigh = 400.0F;
  const int row = FloorInt(y / kHigh);
  const float shifted = x + (row % 2 == 0 ? 0.0F : 0.5F * kWide);
  const int column = FloorInt(shifted / kWide);
  const float dx = shifted - (static_cast<float>(column) + 0.5F) * kWide;
  const float dy = y - (static_cast<float>(row) + 0.5F) * kHigh;
  if ((static_cast<float>(row) + 1.0F) * kHigh < hem - 40.0F) {
    AddFlower(draft, dx, dy, 104.0F, 6);
    const bool mirrored = HashAt(column, row, seed) & 1U;
    const float mx = mirrored ? -dx : dx;
    AddLeaf(draft, mx - 70.0F, dy - 62.0F, 0.45F, 150.0F);
    AddLeaf(draft, mx + 66.0F, dy + 62.0F, 3.5F, 150.0F);
    AddLeaf(draft, mx - 10.0F, dy - 96.0F, 1.9F, 96.0F);
    AddFlower(draft, mx + 150.0F, dy - 110.0F, 42.0F, 5);
    // A tendril of small rings to the next flower.
    for (int i = 0; i < 4; ++i) {
      const float t = static_cast<float>(i);
      const float off = Length(mx - 128.0F - 25.0F * t, dy + 84.0F + 20.0F * t - 5.0F * t * t);
      Include(draft, 11.0F - off, 0.8F);
    }
  }
  // The hem: a band of close weave, a row of eyelets, scallops.
  const float below = y - hem;
  if (below > -30.0F) {
    const float wide = 236.0F;
    const float at = x / wide;
    const float u = (at - static_cast<float>(FloorInt(at)) - 0.5F) * wide;
    const float scallop = 96.0F + 78.0F * Sqrt(Max(0.0F, 1.0F - Square(u / (0.5F * wide)))) - below;
    draft.outline = Max(draft.outline, SmoothRamp(6.0F, 3.5F, Abs(scallop)));
    if (scallop > 0.0F && below > 0.0F) draft.solid = Max(draft.solid, 0.45F);
    draft.outline = Max(draft.outline, SmoothRamp(5.0F, 3.0F, Abs(below)));
    draft.outline = Max(draft.outline, SmoothRamp(4.0F, 2.0F, Abs(below - 56.0F)));
    const float step = x / 59.0F;
    const float ex = (step - static_cast<float>(FloorInt(step)) - 0.5F) * 59.0F;
    const float eyelet = 17.0F - Length(ex, below - 28.0F);
    if (eyelet > 0.0F) draft.solid = 0.0F;
    draft.outline = Max(draft.outline, SmoothRamp(4.4F, 2.2F, Abs(eyelet)));
    if (scallop > 4.0F && below > 56.0F) AddFlower(draft, u, below - 112.0F, 44.0F, 8);
    if (scallop < -5.0F) draft.solid = -1.0F;  // below the curtain
  }
  return draft;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float h = static_cast<float>(sheet.height);
  const Fbm hang{340.0F, 3, 0.5F, seed + 1};
  const Warp stretched{9.0F, {170.0F, 3, 0.55F, seed + 2}};
  const Warp worn{1.3F, {9.0F, 3, 0.6F, seed + 3}};
  const Fbm thread{6.0F, 3, 0.65F, seed + 4};
  const Fbm fade{360.0F, 4, 0.55F, seed + 5};
  const float hem = h - 240.0F;
  // Folds run down: they move the pattern sideways, more towards the hem.
  const auto folded = [&](Spot p) {
    Spot q = worn(stretched(p));
    q.fx += 74.0F * hang(p.fx, p.fy * 0.16F);
    q.fy += 20.0F * hang(p.fx, 3000.0F);
    return q;
  };
  const Field cloth = Painted(sheet, [&](Spot p) {
    const Spot q = folded(p);
    const Draft draft = DraftAt(q.fx, q.fy, hem, seed);
    if (draft.solid < 0.0F && draft.outline < 0.05F) return 0.0F;
    // The net: cells between three families of threads.
    constexpr float kMesh = 15.5F;
    const float a = q.fy / kMesh;
    const float b = (q.fx * 0.866F + q.fy * 0.5F) / kMesh;
    const float c = (q.fx * 0.866F - q.fy * 0.5F) / kMesh;
    const auto line = [](float v, float half) {
      return SmoothRamp(half + 0.06F, half - 0.06F,
                        Abs(v - static_cast<float>(FloorInt(v + 0.5F))));
    };
    const float net = Max(0.55F * line(a, 0.10F), Max(line(b, 0.11F), line(c, 0.11F)));
    const float close = Max(line(b, 0.30F), Max(line(c, 0.30F), line(a, 0.24F)));
    float cover = draft.solid < 0.0F ? 0.0F : 0.62F * net;
    if (draft.solid > 0.0F) cover = Max(cover, draft.solid * (0.42F + 0.52F * close));
    cover = Max(cover, 0.95F * draft.outline);
    return Clamp01(cover * (1.0F + 0.30F * thread(p)));
  });
  Field shade = cloth;
  Blur(sheet, shade, 3.0F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float crowd = Clamp01(
        0.5F - 1.6F * (hang(p.fx + 20.0F, p.fy * 0.16F) - hang(p.fx - 20.0F, p.fy * 0.16F)));
    const float inCloth = SmoothRamp(hem + 200.0F, hem + 120.0F, p.fy);
    const float back = 1.0F - inCloth * (0.10F + 0.24F * Square(crowd) + 0.06F * fade(p));
    return back * (1.0F - 0.88F * cloth(p)) - 0.10F * shade(p);
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.004F, 0.97F);
  return tone;
}

const RegisteredTexture kLaceCurtain(TextureRecipe{.name = "Lace_Curtain",
                                                   .set = TextureSet::kHidesAndCloth,
                                                   .effects = {"Fabrics", "Ephemeral"},
                                                   .seed = 1008,
                                                   .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
