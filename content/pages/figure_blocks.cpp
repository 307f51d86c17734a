// Blocks that draw figures on a sheet: strokes, and what is made of them.
#include "pages/toolbox_blocks.h"
#include "toolbox/cracks.h"
#include "toolbox/filters.h"
#include "toolbox/folds.h"
#include "toolbox/frost.h"
#include "toolbox/handwriting.h"
#include "toolbox/hash.h"
#include "toolbox/lettering.h"
#include "toolbox/maths.h"
#include "toolbox/scratches.h"
#include "toolbox/stains.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// The strokes in black on white.
Field Inked(const Sheet& sheet, const StrokeSet& strokes, const StrokeLook& look = {}) {
  Field ink(sheet);
  strokes.Draw(sheet, ink, look);
  return Painted(sheet, [&](Spot p) { return 1.0F - ink(p); });
}

// From hairs to a dry brush, one below the other.
Field Strokes(const Sheet& sheet) {
  Dice dice(sheet.seed);
  StrokeSet hairs, wires, brush;
  for (int i = 0; i < 26; ++i) {
    AddWalk(hairs, {.x = dice.Between(20.0F, 520.0F),
                    .y = dice.Between(20.0F, 140.0F),
                    .length = dice.Between(60.0F, 220.0F),
                    .heading = dice.Between(0.0F, kTau),
                    .bend = dice.Between(-1.2F, 1.2F),
                    .wobble = 1.5F,
                    .radius = 1.2F,
                    .seed = dice.Word()});
  }
  for (int i = 0; i < 5; ++i) {
    AddWalk(wires, {.x = 30.0F,
                    .y = 170.0F + 26.0F * static_cast<float>(i),
                    .length = 540.0F,
                    .wobble = 0.12F,
                    .wobblePeriod = 140.0F,
                    .radius = 5.0F + 2.5F * static_cast<float>(i),
                    .taper = 0.15F,
                    .seed = dice.Word()});
  }
  for (int i = 0; i < 70; ++i) {
    const float y = dice.Between(340.0F, 430.0F);
    AddWalk(brush, {.x = dice.Between(20.0F, 70.0F),
                    .y = y,
                    .length = dice.Between(380.0F, 530.0F),
                    .bend = 0.04F,
                    .radius = dice.Between(0.6F, 2.2F),
                    .strength = dice.Between(0.4F, 1.0F),
                    .skip = 0.9F,
                    .skipPeriod = 120.0F,
                    .seed = dice.Word()});
  }
  Field ink(sheet);
  hairs.Draw(sheet, ink);
  wires.Draw(sheet, ink, {.profile = StrokeProfile::kRound});
  brush.Draw(sheet, ink, {.ragged = 0.6F});
  return Painted(sheet, [&](Spot p) { return 1.0F - ink(p); });
}

// Counts are for a whole texture, of which the sheet is a twelfth.
Field Scratches(const Sheet& sheet) {
  StrokeSet strokes;
  AddScratches(
      strokes, sheet,
      {.count = 480, .minLength = 80.0F, .maxLength = 460.0F, .heading = 0.5F, .maxRadius = 2.4F},
      sheet.seed);
  AddScuffs(strokes, sheet,
            {.count = 220, .minLength = 70.0F, .maxLength = 200.0F, .heading = -0.6F},
            sheet.seed + 1);
  return Inked(sheet, strokes);
}

Field Cracked(const Sheet& sheet) {
  StrokeSet cracks;
  const CrackStyle style{.length = 620.0F, .radius = 3.4F, .branchEvery = 75.0F};
  AddCrack(cracks, sheet, style, 10.0F, 60.0F, 0.5F, sheet.seed);
  AddCrack(cracks, sheet, style, 590.0F, 30.0F, 2.2F, sheet.seed + 1);
  AddCrack(cracks, sheet, style, 300.0F, 445.0F, -0.6F, sheet.seed + 2);
  return Inked(sheet, cracks, {.profile = StrokeProfile::kVee, .ragged = 0.8F});
}

Field Stains(const Sheet& sheet) {
  const Puddle puddle{165.0F, 150.0F, 115.0F, 0.35F, 1.6F, sheet.seed};
  const TideMark tide;
  const CupRing ring{430.0F, 130.0F, 95.0F, 9.0F, 0.7F, sheet.seed + 1};
  StrokeSet drops;
  AddDrips(drops, sheet, {.count = 160, .minLength = 40.0F, .maxLength = 150.0F}, sheet.seed + 2);
  AddSplash(drops, 430.0F, 330.0F, 120.0F, 60, sheet.seed + 3);
  Field wet(sheet);
  drops.Draw(sheet, wet, {.ragged = 0.8F});
  return Painted(sheet, [&](Spot p) {
    const float dried = Max(tide(puddle.Inside(p.fx, p.fy)), 0.8F * ring.At(p.fx, p.fy));
    return (1.0F - dried) * (1.0F - 0.85F * wet(p));
  });
}

Field Writing(const Sheet& sheet) {
  StrokeSet strokes;
  for (int i = 0; i < 7; ++i) {
    AddScript(strokes, {.x = 40.0F,
                        .y = 70.0F + 55.0F * static_cast<float>(i),
                        .length = i == 6 ? 260.0F : 520.0F,
                        .heading = -0.03F,
                        .seed = sheet.seed + static_cast<std::uint32_t>(i)});
  }
  return Inked(sheet, strokes, {.ragged = 0.4F});
}

Field Letters(const Sheet& sheet) {
  StrokeSet strokes;
  AddLettering(strokes, {.x = 60.0F, .y = 145.0F, .height = 78.0F, .radius = 8.0F}, "GENERAL");
  Lettering round{.height = 30.0F, .radius = 3.0F};
  round.x = 300.0F - 110.0F;
  round.y = 325.0F;
  round.heading = -1.52F;
  round.bend = 1.0F / 110.0F;
  AddLettering(strokes, round, "TARNWICK POST");
  AddLettering(strokes, {.x = 240.0F, .y = 345.0F, .height = 40.0F, .radius = 4.0F}, "1887");
  return Inked(sheet, strokes, {.ragged = 1.2F});
}

Field Folded(const Sheet& sheet) {
  const Folds folds({{200.0F, 0.0F, kPi / 2.0F, 0.9F, true},
                     {405.0F, 0.0F, kPi / 2.0F + 0.01F, 0.6F, false},
                     {0.0F, 230.0F, 0.01F, 0.8F, true}},
                    sheet.seed);
  return Painted(sheet, [&](Spot p) {
    const FoldSpot at = folds.At(p.fx, p.fy);
    return 0.62F + 0.28F * at.shade + 0.3F * at.wear;
  });
}

Field Ferns(const Sheet& sheet) {
  // Cold at the sill and at the left.
  const Field cold = Painted(sheet, [](Spot p) {
    return Clamp01(SmoothRamp(260.0F, 0.0F, p.fx) + SmoothRamp(230.0F, 430.0F, p.fy));
  });
  StrokeSet ferns;
  AddFrost(ferns, sheet, cold, {.tries = 500, .minLength = 40.0F, .maxLength = 380.0F}, sheet.seed);
  return Inked(sheet, ferns, {.profile = StrokeProfile::kRound});
}

}  // namespace

ToolboxChapter FigureBlocks() {
  return {"Figures",
          "figures.jpg",
          {{"strokes", "Hairs, fibres, wires and brushes: lines that wander, press and lift off.",
            Strokes},
           {"scratches", "Single scratches that share a direction, and scuffs of many hair lines.",
            Scratches},
           {"cracks", "Cracks that jerk along, branch, and end where they meet another.", Cracked},
           {"stains", "Puddles that dried with a rim, rings of cups, drips and splashes.", Stains},
           {"handwriting", "Lines of a steel pen's writing that nobody can read.", Writing},
           {"lettering", "Capitals and figures for print, signs and stamps, straight or round.",
            Letters},
           {"folds", "Creases of a sheet that was folded: light on the flaps, wear on the lines.",
            Folded},
           {"frost", "Ferns of ice that grow from a cold rim and end where they meet.", Ferns}}};
}

}  // namespace tarnwick::content
