// Fiberglass: chopped strand mat under thin resin, as a boat or a bumper shows
// it where the gel coat has gone.
//
// What makes it read as that: flat bundles of straight filaments, all of one
// length, thrown in every direction and lying over one another, each with its
// own sheen; loose filaments between them; resin that drowns some and leaves
// pinholes.
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

constexpr int kLayers = 6;

struct Layer {
  Field body;      // where bundles lie, 0..1
  Field filament;  // their threads
};

// The bundles of one layer. Those of a later layer lie higher.
Layer MakeLayer(const Sheet& sheet, int layer, int count) {
  StrokeSet bodies;
  StrokeSet threads;
  Dice dice(sheet.seed, layer);
  for (int i = 0; i < count; ++i) {
    const float x = dice.Between(-0.06F, 1.06F) * static_cast<float>(sheet.width);
    const float y = dice.Between(-0.06F, 1.06F) * static_cast<float>(sheet.height);
    const float heading = dice.Between(0.0F, kPi);
    const float length = dice.Between(290.0F, 380.0F);
    const float bend = dice.Around(0.0F, 0.18F);
    const float half = dice.Between(3.0F, 9.5F);
    const auto start = [&](float side) {
      return StrokePoint{x - Cos(heading) * 0.5F * length - Sin(heading) * side,
                         y - Sin(heading) * 0.5F * length + Cos(heading) * side, 0.0F, 0.0F};
    };
    const float sheen = dice.Between(0.55F, 1.0F);
    const StrokePoint middle = start(0.0F);
    AddWalk(bodies, {.x = middle.x,
                     .y = middle.y,
                     .length = length,
                     .heading = heading,
                     .bend = bend,
                     .radius = half,
                     .strength = sheen,
                     .taper = 0.03F,
                     .step = 24.0F,
                     .seed = dice.Word()});
    for (float side = -half; side <= half; side += dice.Between(1.3F, 2.6F)) {
      const StrokePoint from = start(side);
      AddWalk(threads, {.x = from.x,
                        .y = from.y,
                        .length = length * dice.Between(0.9F, 1.06F),
                        .heading = heading + dice.Around(0.0F, 0.008F),
                        .bend = bend + dice.Around(0.0F, 0.012F),
                        .radius = dice.Between(0.7F, 1.2F),
                        .strength = sheen * dice.Between(0.35F, 1.0F),
                        .taper = 0.05F,
                        .skip = 0.5F,
                        .skipPeriod = 110.0F,
                        .step = 24.0F,
                        .seed = dice.Word()});
    }
  }
  Layer made{Field(sheet), Field(sheet)};
  bodies.Draw(sheet, made.body, {.ragged = 1.0F, .raggedPeriod = 9.0F});
  threads.Draw(sheet, made.filament, {.profile = StrokeProfile::kRound});
  return made;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float area = static_cast<float>(sheet.width) * static_cast<float>(sheet.height);
  const int count = FloorInt(area / 9500.0F) + 1;
  const Fbm resin{260.0F, 5, 0.55F, seed + 10};
  const Fbm haze{40.0F, 4, 0.6F, seed + 11};
  const Spots pinholes{38.0F, 0.30F, 0.8F, 4.5F, seed + 12};

  Field mat = Painted(sheet, [&](Spot p) { return 0.36F + 0.10F * haze(p); });
  for (int i = 0; i < kLayers; ++i) {
    const Layer layer = MakeLayer(sheet, i, count);
    // A bundle darkens what lies right beside it: it stands clear of it.
    Field shadow = layer.body;
    Blur(sheet, shadow, 3.0F);
    const float depth = static_cast<float>(i + 1) / kLayers;
    Repaint(sheet, mat, [&](Spot p) {
      const float body = layer.body(p);
      const float cover = SmoothRamp(0.1F, 0.5F, body);
      const float below = mat(p) * (1.0F - 0.38F * (shadow(p) - 0.6F * body) * depth);
      const float drowned = Clamp01(0.72F - 0.70F * Max(0.0F, resin(p)) - 0.12F * (1.0F - depth));
      const float face = 0.12F + 0.34F * body + 0.55F * layer.filament(p);
      return Mix(below, face, cover * drowned);
    });
  }
  StrokeSet loose;
  for (int i = 0; i < FloorInt(area / 5000.0F); ++i) {
    Dice dice(seed + 30, i);
    AddWalk(loose, {.x = dice.Unit() * static_cast<float>(sheet.width),
                    .y = dice.Unit() * static_cast<float>(sheet.height),
                    .length = dice.Between(90.0F, 330.0F),
                    .heading = dice.Between(0.0F, kTau),
                    .bend = dice.Around(0.0F, 0.25F),
                    .wobble = 0.1F,
                    .radius = dice.Between(0.4F, 0.9F),
                    .strength = dice.Between(0.3F, 1.0F),
                    .taper = 0.05F,
                    .skip = 0.6F,
                    .step = 12.0F,
                    .seed = dice.Word()});
  }
  Field hair(sheet);
  loose.Draw(sheet, hair, {.profile = StrokeProfile::kRound});
  Repaint(sheet, mat, [&](Spot p) {
    const float hole = pinholes(p).depth;
    const float lit = SmoothRamp(0.0F, 0.25F, hole) - 1.7F * SmoothRamp(0.25F, 0.6F, hole);
    return Mix(mat(p), 0.85F, 0.45F * hair(p)) + 0.04F * haze(p) + 0.08F * resin(p) + 0.16F * lit;
  });
  StretchTo(sheet, mat, 0.001F, 0.998F);
  return mat;
}

const RegisteredTexture kFiberglass(TextureRecipe{
    .name = "Fiberglass",
    .set = TextureSet::kEssentials,
    .effects = {"Industrial", "Texture (Medium)", "Fabrics"},
    .seed = 5309,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
