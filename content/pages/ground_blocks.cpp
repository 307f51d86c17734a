// Blocks that give every place of a sheet a number.
#include "pages/toolbox_blocks.h"
#include "toolbox/busy_steps.h"
#include "toolbox/cells.h"
#include "toolbox/facets.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"
#include "toolbox/turn.h"

namespace tarnwick::content {
namespace {

// Which of `count` equal columns a place is in.
int ColumnOf(const Sheet& sheet, const Spot& spot, int count) {
  return spot.x * count / sheet.width;
}

Field Maths(const Sheet& sheet) {
  return Painted(sheet, [](Spot p) {
    const float out = Length(p.fx - 300.0F, p.fy - 225.0F);
    return 0.5F + 0.5F * Sin(out * out * 0.0009F) * Exp(-out / 260.0F);
  });
}

Field Hashes(const Sheet& sheet) {
  return Painted(sheet, [&](Spot p) { return Unit(HashAt(p.x / 15, p.y / 15, sheet.seed)); });
}

// The same few samples: the nearest one, and between them.
Field Fields(const Sheet& sheet) {
  Field coarse(12, 9);
  for (int y = 0; y < 9; ++y) {
    for (int x = 0; x < 12; ++x) coarse.Row(y)[x] = Unit(HashAt(x, y, sheet.seed));
  }
  return Painted(sheet, [&](Spot p) {
    return ColumnOf(sheet, p, 2) == 0 ? coarse.Clamped(p.x / 50, p.y / 50)
                                      : coarse.Sample(p.fx / 50.0F - 0.5F, p.fy / 50.0F - 0.5F);
  });
}

Field Noise(const Sheet& sheet) {
  const Fbm clouds{130.0F, 6, 0.5F, sheet.seed}, crests{150.0F, 5, 0.5F, sheet.seed + 1};
  const Warp warp{45.0F, {170.0F, 4, 0.5F, sheet.seed + 2}};
  return Painted(sheet, [&](Spot p) {
    if (ColumnOf(sheet, p, 3) == 0) return 0.5F + 0.9F * clouds(p);
    if (ColumnOf(sheet, p, 3) == 1) return crests.Ridged(p.fx, p.fy);
    return 0.5F + 0.5F * Sin(warp(p).fx * 0.28F);
  });
}

Field CellsAndSpots(const Sheet& sheet) {
  const Cells cells{70.0F, 1.0F, sheet.seed};
  const Spots spots{44.0F, 0.7F, 4.0F, 21.0F, sheet.seed + 1};
  return Painted(sheet, [&](Spot p) {
    if (ColumnOf(sheet, p, 3) == 0) return 1.0F - cells(p.fx, p.fy).f1;
    if (ColumnOf(sheet, p, 3) == 2) return 1.0F - Sqrt(spots(p).depth);
    const CellSample cell = cells.WithEdge(p.fx, p.fy);
    return SmoothRamp(0.01F, 0.06F, cell.edge) * (0.35F + 0.6F * cell.id);
  });
}

Field Creased(const Sheet& sheet) {
  const Facets large{170.0F, 0.7F, sheet.seed}, small{60.0F, 0.7F, sheet.seed + 1};
  const auto lit = [&](float share) {
    const auto height = [&](Spot p) { return large(p.fx, p.fy) + share * small(p.fx, p.fy); };
    return Relief(sheet, Painted(sheet, height), 0.02F);
  };
  const Field stone = lit(0.0F), paper = lit(0.3F);
  return Painted(sheet, [&](Spot p) {
    return 0.58F + 0.5F * (ColumnOf(sheet, p, 2) == 0 ? stone(p) : paper(p));
  });
}

Field Sweep(const Sheet& sheet) {
  return Painted(sheet, [](Spot p) {
    const float x = p.fx - 300.0F, y = p.fy - 225.0F;
    const float out = Length(x, y);
    if (out < 120.0F) return 0.5F + Turn(x, y);
    return 0.5F + 0.5F * Sin(kTau * (36.0F * Turn(x, y) + out / 150.0F));
  });
}

// Blurred, measured, lit, run down.
Field Filtered(const Sheet& sheet) {
  const Spots spots{80.0F, 0.95F, 12.0F, 38.0F, sheet.seed};
  const Fbm wander{40.0F, 3, 0.5F, sheet.seed + 1};
  const Field discs =
      Painted(sheet, [&](Spot p) { return SoftThreshold(spots(p).depth, 0.02F, 0.04F); });
  Field blurred = discs;
  Blur(sheet, blurred, 9.0F);
  const Field distance = DistanceTo(sheet, discs);
  const Field light =
      Relief(sheet, Painted(sheet, [&](Spot p) { return Sqrt(spots(p).depth); }), 0.05F);
  const Field runs = RunDown(
      discs, [&](Spot p) { return 0.985F + 0.012F * wander(p); },
      [&](Spot p) { return 0.8F * wander(p.fx, p.fy * 0.4F); });
  return Painted(sheet, [&](Spot p) {
    switch (ColumnOf(sheet, p, 4)) {
      case 0:
        return 1.0F - blurred(p);
      case 1:
        return Fraction(distance(p) / 14.0F);
      case 2:
        return 0.55F + 0.45F * light(p);
      default:
        return 1.0F - runs(p);
    }
  });
}

Field Toned(const Sheet& sheet) {
  const Fbm clouds{110.0F, 6, 0.55F, sheet.seed};
  Field tone = Painted(sheet, [&](Spot p) { return clouds(p); });
  StretchTo(sheet, tone, 0.01F, 0.99F);
  const Levels levels{0.25F, 0.75F, 1.3F};
  const Curve curve{{0.0F, 1.0F}, {0.3F, 0.2F}, {0.5F, 0.9F}, {0.7F, 0.1F}, {1.0F, 1.0F}};
  Repaint(sheet, tone, [&](Spot p) {
    const float v = tone(p);
    switch (ColumnOf(sheet, p, 4)) {
      case 0:
        return v;
      case 1:
        return levels(v);
      case 2:
        return SoftThreshold(v, 0.5F, 0.06F);
      default:
        return curve(v);
    }
  });
  return tone;
}

// Grit that comes down over a smooth slope: before, after, and what was changed.
Field Coarsened(const Sheet& sheet) {
  const Fbm grit{9.0F, 3, 0.7F, sheet.seed};
  const Field before = Painted(sheet, [&](Spot p) {
    const float depth = p.fy / static_cast<float>(sheet.height);
    return 0.35F + 0.3F * depth + 0.9F * SmoothRamp(0.25F, 1.0F, depth) * grit(p);
  });
  std::vector<std::uint8_t> after = ToBytes(sheet, before);
  const std::vector<std::uint8_t> fine = after;
  CoarsenBusySteps(after, sheet.width, sheet.pool);
  return Painted(sheet, [&](Spot p) {
    const std::size_t at = static_cast<std::size_t>(p.y) * static_cast<std::size_t>(sheet.width) +
                           static_cast<std::size_t>(p.x);
    if (ColumnOf(sheet, p, 3) == 0) return before(p);
    const float value = static_cast<float>(after[at]);
    if (ColumnOf(sheet, p, 3) == 1) return value / 255.0F;
    return 1.0F - Abs(value - static_cast<float>(fine[at])) / 5.0F;
  });
}

}  // namespace

ToolboxChapter GroundBlocks() {
  return {
      "Grounds",
      "grounds.jpg",
      {{"maths", "Sines, powers and ramps that come out the same from every compiler.", Maths},
       {"hash", "A random number for every place, whoever asks first; dice for lists.", Hashes},
       {"field", "The grey picture of floats that recipes paint, read at samples and between them.",
        Fields},
       {"noise", "Clouds, sharp crests, and places moved about so that a line runs like a grain.",
        Noise},
       {"cells", "What lies about scattered points: domes, cells with seams, round spots.",
        CellsAndSpots},
       {"facets", "Flat faces between sharp creases: cut stone, crushed paper and foil.", Creased},
       {"turn", "The direction of a place from a middle, for rays, sweeps and whatever goes round.",
        Sweep},
       {"filters", "Blur, distance to the nearest mark, light from the top left, runs downwards.",
        Filtered},
       {"tone", "Levels, thresholds and curves, and the stretch to the whole range.", Toned},
       {"busy_steps",
        "Coarser steps where grit hides them, which makes smaller files; smooth places keep all.",
        Coarsened}}};
}

}  // namespace tarnwick::content
