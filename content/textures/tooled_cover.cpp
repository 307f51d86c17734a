// Tooled_Cover: the board of an old book in calf. Fillets and a running vine
// were pressed in by hand round a plain panel, with a rosette in each corner
// and an arabesque in the middle; two centuries rubbed the edges pale, knocked
// the corners, and left some of the gold in the depths.
//
// What makes it read as that: lines pressed in, not drawn, of uneven depth;
// wear that follows the edges and the swell of the board; a dark band by the
// spine.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// A place in quarters of the board: mirrored so that one drawing serves four.
struct Pen {
  StrokeSet* strokes;
  float middleX, middleY;

  void Line(std::vector<StrokePoint> points) const {
    for (int i = 0; i < 4; ++i) {
      std::vector<StrokePoint> copy = points;
      for (StrokePoint& p : copy) {
        if (i % 2 == 1) p.x = 2.0F * middleX - p.x;
        if (i >= 2) p.y = 2.0F * middleY - p.y;
      }
      strokes->Add(copy);
    }
  }
};

// A leaf: from (x, y), `length` long, swelling in the middle.
std::vector<StrokePoint> Leaf(float x, float y, float way, float length, float breadth,
                              float curl) {
  std::vector<StrokePoint> points;
  for (int i = 0; i <= 8; ++i) {
    const float t = static_cast<float>(i) / 8.0F;
    points.push_back({x, y, 1.0F + breadth * 4.0F * t * (1.0F - t) * (1.2F - 0.6F * t), 1.0F});
    const float turn = way + curl * t;
    x += Cos(turn) * length / 8.0F;
    y += Sin(turn) * length / 8.0F;
  }
  return points;
}

// A scroll that winds in from (x, y).
std::vector<StrokePoint> Scroll(float x, float y, float way, float size, float wind) {
  std::vector<StrokePoint> points;
  constexpr int kSteps = 40;
  for (int i = 0; i <= kSteps; ++i) {
    const float t = static_cast<float>(i) / kSteps;
    points.push_back({x, y, 2.9F - 1.3F * t, 1.0F});
    const float step = size * (0.095F * (1.0F - t) + 0.012F);
    way += wind * (0.06F + 0.30F * t);
    x += Cos(way) * step;
    y += Sin(way) * step;
  }
  points.back().radius = 4.6F;
  return points;
}

// The vine of the border, along a side from (x, y) for `length` pixels.
void AddVine(StrokeSet& strokes, float x, float y, bool down, float length) {
  const int waves = FloorInt(length / 118.0F + 0.5F);
  if (waves < 1) return;
  const float pitch = length / static_cast<float>(waves);
  constexpr float kRise = 19.0F;
  std::vector<StrokePoint> stem;
  const auto place = [&](float along, float aside) {
    return down ? StrokePoint{x + aside, y + along, 2.0F, 1.0F}
                : StrokePoint{x + along, y + aside, 2.0F, 1.0F};
  };
  const int steps = waves * 16;
  for (int i = 0; i <= steps; ++i) {
    const float t = static_cast<float>(i) / 16.0F;
    stem.push_back(place(t * pitch, kRise * Sin(t * kTau)));
  }
  strokes.Add(stem);
  for (int i = 0; i < 2 * waves; ++i) {
    const float t = 0.5F * static_cast<float>(i) + 0.04F;
    const float side = i % 2 == 0 ? 1.0F : -1.0F;
    const StrokePoint root = place(t * pitch, kRise * Sin(t * kTau));
    const float ahead = down ? 0.25F * kTau : 0.0F;
    const float turn = (down ? 1.0F : -1.0F) * side;
    strokes.Add(Leaf(root.x, root.y, ahead + 0.95F * turn, 40.0F, 5.2F, -1.5F * turn));
    strokes.Add(Leaf(root.x, root.y, ahead + 0.15F * turn, 27.0F, 3.4F, 0.9F * turn));
    const StrokePoint dot = place((t + 0.24F) * pitch, -1.25F * kRise * side * 0.55F);
    const StrokePoint berry{dot.x, dot.y, 3.6F, 1.0F};
    strokes.Add({&berry, 1});
  }
}

void AddRosette(StrokeSet& strokes, float x, float y, float size) {
  for (int i = 0; i < 8; ++i) {
    const float way = static_cast<float>(i) * kTau / 8.0F;
    strokes.Add(Leaf(x + 0.22F * size * Cos(way), y + 0.22F * size * Sin(way), way, 0.72F * size,
                     0.13F * size, 0.25F));
  }
  const StrokePoint eye{x, y, 0.13F * size, 1.0F};
  strokes.Add({&eye, 1});
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  StrokeSet tool;
  const float outer = 0.060F * tall;
  const float inner = 0.175F * tall;
  const auto frame = [&](float inset, float radius) {
    const float x0 = inset, y0 = inset, x1 = width - inset, y1 = tall - inset;
    const std::vector<StrokePoint> line = {{x0, y0, radius, 1.0F},
                                           {x1, y0 + 1.5F, radius, 1.0F},
                                           {x1 - 1.0F, y1, radius, 1.0F},
                                           {x0 + 1.5F, y1 - 1.0F, radius, 1.0F},
                                           {x0, y0, radius, 1.0F}};
    tool.Add(line);
  };
  frame(outer, 4.2F);
  frame(outer + 15.0F, 1.6F);
  frame(inner - 15.0F, 1.6F);
  frame(inner, 4.2F);
  frame(inner + 40.0F, 1.4F);
  const float middle = 0.5F * (outer + inner);
  const float corner = inner - 8.0F;
  AddVine(tool, corner, middle, false, width - 2.0F * corner);
  AddVine(tool, corner, tall - middle, false, width - 2.0F * corner);
  AddVine(tool, middle, corner, true, tall - 2.0F * corner);
  AddVine(tool, width - middle, corner, true, tall - 2.0F * corner);
  for (int i = 0; i < 4; ++i) {
    AddRosette(tool, i % 2 == 0 ? middle : width - middle, i < 2 ? middle : tall - middle,
               0.24F * (inner - outer) * 1.6F);
  }
  // Corner pieces of the panel and the arabesque, drawn once, pressed four times.
  const Pen pen{&tool, 0.5F * width, 0.5F * tall};
  const float u = 0.11F * tall;
  const float px = inner + 62.0F, py = inner + 62.0F;
  pen.Line(Scroll(px + 0.2F * u, py + 0.2F * u, 0.15F, u, 1.0F));
  pen.Line(Scroll(px + 0.2F * u, py + 0.2F * u, 1.42F, u, -1.0F));
  pen.Line(Leaf(px, py, 0.785F, 0.9F * u, 0.10F * u, 0.0F));
  const float cx = 0.5F * width, cy = 0.5F * tall;
  pen.Line(Scroll(cx + 0.10F * u, cy - 1.0F * u, -0.2F, 1.25F * u, 1.0F));
  pen.Line(Scroll(cx + 0.55F * u, cy - 0.08F * u, -1.0F, 1.25F * u, 1.0F));
  pen.Line(Leaf(cx + 0.15F * u, cy - 1.75F * u, 1.1F, 0.8F * u, 0.11F * u, 0.9F));
  pen.Line(Leaf(cx + 0.02F * u, cy - 1.55F * u, -1.57F, 0.55F * u, 0.08F * u, 0.0F));
  pen.Line(Leaf(cx + 1.5F * u, cy - 0.04F * u, -0.35F, 0.75F * u, 0.09F * u, 0.7F));
  pen.Line(Leaf(cx + 0.08F * u, cy - 0.08F * u, -0.785F, 0.62F * u, 0.12F * u, 0.0F));
  Field press(sheet);
  tool.Draw(
      sheet, press,
      {.profile = StrokeProfile::kRound, .ragged = 0.7F, .raggedPeriod = 5.0F, .seed = seed + 1});

  const Fbm hand{120.0F, 4, 0.55F, seed + 10};
  const Fbm wear{300.0F, 5, 0.55F, seed + 16};
  const Fbm fine{3.0F, 3, 0.72F, seed + 22};
  const Fbm nibble{22.0F, 4, 0.62F, seed + 26};
  const Cells calf{9.0F, 1.0F, seed + 32};
  const Fbm stain{240.0F, 5, 0.56F, seed + 36};
  const Spots sprinkle{24.0F, 0.35F, 1.0F, 5.0F, seed + 42};
  StrokeSet marks;
  AddScratches(marks, sheet,
               {.count = 60,
                .minLength = 30.0F,
                .maxLength = 460.0F,
                .heading = 0.6F,
                .spread = 0.9F,
                .stray = 0.5F,
                .minRadius = 0.5F,
                .maxRadius = 1.9F,
                .minStrength = 0.3F,
                .maxStrength = 1.0F,
                .skip = 1.1F},
               seed + 44);
  AddScuffs(marks, sheet,
            {.count = 22,
             .minLength = 50.0F,
             .maxLength = 240.0F,
             .heading = 0.7F,
             .spread = 0.6F,
             .stray = 0.4F,
             .minLines = 12,
             .maxLines = 70,
             .minStrength = 0.2F,
             .maxStrength = 0.7F},
            seed + 45);
  Field mark(sheet);
  marks.Draw(sheet, mark, {.ragged = 0.5F, .seed = seed + 46});

  const Field ragged = Painted(sheet, [&](Spot p) { return nibble(p); });
  const Field uneven = Painted(sheet, [&](Spot p) { return hand(p); });
  const Field rub = Painted(sheet, [&](Spot p) {
    const float dx = Min(p.fx, width - 1.0F - p.fx);
    const float dy = Min(p.fy, tall - 1.0F - p.fy);
    const float edge = Exp(-Min(dx, dy) / 26.0F);
    const float knock = Exp(-Length(dx, dy) / 95.0F);
    return 0.95F * edge + 1.25F * knock + 0.42F * wear(p) + 0.16F * ragged(p) + 0.05F * fine(p) -
           0.25F;
  });
  const Field grain = Painted(sheet, [&](Spot p) {
    const CellSample cell = calf(p.fx, p.fy);
    return SmoothRamp(0.0F, 0.35F, cell.f2 - cell.f1);
  });
  const auto pressed = [&](Spot p) { return press(p) * Clamp01(0.80F + 0.55F * uneven(p)); };
  const Field height = Painted(sheet, [&](Spot p) {
    return 0.55F * grain(p) + 0.18F * fine(p) + 1.0F * wear(p) - 2.6F * pressed(p) - 0.7F * mark(p);
  });
  const Field light = Relief(sheet, height, 0.36F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float rubbed = SmoothRamp(0.02F, 0.62F, rub(p));
    const float gone = SoftThreshold(rub(p), 0.56F, 0.16F);
    float value = 0.36F + 0.12F * stain(p) + 0.03F * fine(p) + 0.03F * grain(p) -
                  0.12F * SmoothRamp(0.0F, 0.4F, sprinkle(p).depth);
    value *= 1.0F - 0.38F * SmoothRamp(0.12F, 0.02F, p.fx / width + 0.01F * ragged(p));
    value += 0.26F * light(p);
    // Burnt by the hot tool; gold stays where no hand can rub.
    const float deep = SmoothRamp(0.15F, 0.8F, pressed(p));
    value *= 1.0F - 0.52F * deep;
    const float gold =
        deep * SmoothRamp(-0.05F, 0.22F, uneven(p) * 0.8F + 0.5F * ragged(p) - 0.35F * rubbed);
    value = Mix(value, 0.93F + 0.10F * light(p), 0.80F * gold);
    value = Mix(value, 0.62F + 0.10F * fine(p) + 0.16F * light(p),
                0.62F * rubbed * (1.0F - 0.6F * deep));
    value = Mix(value, 0.86F + 0.10F * fine(p) + 0.10F * ragged(p), gone);
    return Mix(value, 0.74F, 0.45F * mark(p) * (1.0F - gone));
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kTooledCover(TextureRecipe{
    .name = "Tooled_Cover",
    .set = TextureSet::kHidesAndCloth,
    .effects = {"Leather", "Distress (Medium)", "Weathered/Aged"},
    .seed = 2260,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
