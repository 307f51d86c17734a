// Blocks that know how one material is built.
#include "pages/toolbox_blocks.h"
#include "toolbox/filters.h"
#include "toolbox/fur.h"
#include "toolbox/grown_pattern.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/packing.h"
#include "toolbox/peel.h"
#include "toolbox/planks.h"
#include "toolbox/rust.h"
#include "toolbox/tone.h"
#include "toolbox/weave.h"
#include "toolbox/wood.h"

namespace tarnwick::content {
namespace {

// The four bindings, from the left; cloth seen through where it is thin.
Field Woven(const Sheet& sheet) {
  constexpr Binding kBindings[] = {Binding::kPlain, Binding::kTwill, Binding::kBasket,
                                   Binding::kSatin};
  return Painted(sheet, [&](Spot p) {
    Weave weave{.warpPitch = 20.0F,
                .weftPitch = 20.0F,
                .warpFill = 0.86F,
                .weftFill = 0.86F,
                .seed = sheet.seed};
    weave.binding = kBindings[p.x * 4 / sheet.width];
    const Weave::Place at = weave.At(p);
    return at.hole ? 0.0F : 0.62F + 0.30F * at.height - 0.2F * Abs(at.across);
  });
}

Field Board(const Sheet& sheet) {
  const Wood wood{.pith = 260.0F, .slope = 0.10F, .knotPeriod = 300.0F, .seed = sheet.seed};
  return Painted(sheet, [&](Spot p) {
    const Wood::Place at = wood.At(p.fx, p.fy);
    const float grain = 0.80F - 0.38F * at.ring + 0.07F * at.fibre;
    return Mix(grain, 0.25F, 0.7F * at.knot) * (1.0F - 0.9F * at.split);
  });
}

Field Boards(const Sheet& sheet) {
  const Planks planks{.breadth = 96.0F, .length = 620.0F, .studs = 210.0F, .seed = sheet.seed};
  const Fbm grain{60.0F, 4, 0.6F, sheet.seed + 1};
  return Painted(sheet, [&](Spot p) {
    const Planks::Place at = planks.At(p.fx, p.fy);
    const Planks::Nail nail = planks.NailAt(p.fx, p.fy);
    const float shift = 900.0F * Unit(Hash(at.plank));
    float tone = 0.55F + 0.25F * Unit(Hash(at.plank + 1)) + 0.2F * grain(p.fx * 0.2F + shift, p.fy);
    tone *= SmoothRamp(0.5F, 3.5F, Min(at.toGap, at.toEnd));
    return tone * (1.0F - 0.8F * SmoothRamp(6.0F, 4.5F, nail.distance));
  });
}

Field Peeled(const Sheet& sheet) {
  const Fbm wear{170.0F, 6, 0.55F, sheet.seed}, grain{40.0F, 3, 0.6F, sheet.seed + 1};
  const Field loss = Painted(sheet, [&](Spot p) { return wear(p); });
  const PeelingCoat top = Peel(sheet, loss, {.at = 0.02F});
  const PeelingCoat first = Peel(sheet, loss, {.at = 0.22F, .thickness = 2.5F});
  return Painted(sheet, [&](Spot p) {
    const float below = 0.30F + 0.25F * grain(p.fx * 0.15F, p.fy);
    const float coats = Mix(Mix(below, 0.55F, first.cover(p)), 0.84F, top.cover(p));
    return coats * (1.0F - 0.6F * top.shadow(p)) + 0.16F * top.lift(p);
  });
}

// A bloom that starts at the lower left and runs out.
Field Rusty(const Sheet& sheet) {
  const RustBloom bloom(sheet.seed);
  const Warp warp{26.0F, {90.0F, 4, 0.5F, sheet.seed + 50}};
  const Fbm patchy{190.0F, 4, 0.5F, sheet.seed + 51}, grain{30.0F, 4, 0.7F, sheet.seed + 52};
  return Painted(sheet, [&](Spot p) {
    const float far = Length(p.fx, p.fy - 450.0F) / 520.0F;
    const float rust = bloom.At(p, warp(p), 0.95F - far + 0.6F * patchy(p));
    return 0.9F - (0.62F + 0.3F * grain(p)) * rust;
  });
}

// Stones: domes, each darker or lighter than its neighbour.
Field Stones(const Sheet& sheet) {
  const std::vector<Piece> pieces =
      Packed(sheet, {.maxRadius = 58.0F, .minRadius = 6.0F, .effort = 5.0F}, sheet.seed);
  Field height(sheet), tone(sheet, 0.12F);
  ForPieces(sheet, pieces, 1.0F, [&](const Piece& piece, Spot p, float dx, float dy) {
    const float inside = 1.0F - Square(dx) - Square(dy);
    if (inside <= 0.0F) return;
    height.Row(p.y)[p.x] = piece.radius * Sqrt(inside);
    tone.Row(p.y)[p.x] = 0.35F + 0.4F * Unit(piece.hash);
  });
  const Field light = Relief(sheet, height, 1.2F);
  return Painted(sheet, [&](Spot p) { return tone(p) + 0.32F * light(p); });
}

// Stripes, blotches and spots.
Field Grown(const Sheet& sheet) {
  const GrownPattern stripes(sheet, {.spacing = 54.0F, .aligned = true, .seed = sheet.seed});
  const GrownPattern maze(sheet, {.spacing = 40.0F, .seed = sheet.seed + 1});
  const GrownPattern spots(sheet, {.spacing = 40.0F, .bias = 0.6F, .seed = sheet.seed + 2});
  return Painted(sheet, [&](Spot p) {
    const int column = p.x * 3 / sheet.width;
    const GrownPattern& pattern = column == 0 ? stripes : (column == 1 ? maze : spots);
    return SoftThreshold(pattern.At(p.fx, p.fy), 0.0F, 0.25F);
  });
}

Field Haired(const Sheet& sheet) {
  const Fbm lie{260.0F, 2, 0.5F, sheet.seed};
  const GrownPattern pattern(sheet, {.spacing = 110.0F, .bias = 0.2F, .seed = sheet.seed + 1});
  const Fur fur(sheet, {.length = 30.0F, .radius = 1.6F, .spacing = 3.0F, .seed = sheet.seed + 2},
                [&](float x, float y) { return 0.3F + 0.9F * lie(x, y); });
  return Painted(sheet, [&](Spot p) {
    const FurSpot& hair = fur(p);
    const float coat = SoftThreshold(pattern.At(hair.rootX, hair.rootY), 0.0F, 0.1F);
    const float sheen = (1.0F - Square(hair.across)) * (0.5F + 0.5F * hair.along);
    return 0.2F + 0.5F * coat + 0.22F * sheen + 0.12F * (Unit(hair.hash) - 0.5F);
  });
}

}  // namespace

ToolboxChapter MaterialBlocks() {
  return {
      "Materials",
      "materials.jpg",
      {{"weave", "Cloth as a height, thread by thread: plain, twill, basket and satin.", Woven},
       {"wood", "A sawn board: arched rings, knots about which they flow, pores and splits.",
        Board},
       {"planks", "A wall or floor of unequal planks, nailed to studs.", Boards},
       {"peel", "Coats of paint or plaster that come off what lies below and curl.", Peeled},
       {"rust", "Young rust: powder where it grows, thinning out in drops and specks.", Rusty},
       {"packing", "Round pieces that do not overlap, small ones in the gaps: pebbles, chips.",
        Stones},
       {"grown_pattern", "Stripes, mazes and spots that keep their distance, as coats have them.",
        Grown},
       {"fur", "Short hair over hair, each with the colour of the place where it grows.", Haired}}};
}

}  // namespace tarnwick::content
