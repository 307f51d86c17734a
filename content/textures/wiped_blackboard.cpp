// Wiped_Blackboard: a school blackboard after the last lesson. The dry felt went
// over it in arcs and left chalk in veils, streaks and the ghost of a rim.
//
// What makes it read as that: arcs of an arm that swings from one side, each
// with fine parallel streaks and a hard outer edge; clean black only where the
// felt turned; dust in the grain of the slate, and bits of chalk scratch.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/handwriting.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/scratches.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"
#include "toolbox/turn.h"

namespace tarnwick::content {
namespace {

struct Swipe {
  float x, y;      // the shoulder it swings about
  float radius;    // of its middle line
  float half;      // half the felt's breadth
  float from, to;  // turns
  float load;      // chalk it leaves, below 0: takes away
  std::uint32_t hash;
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float width = static_cast<float>(sheet.width);
  const float tall = static_cast<float>(sheet.height);
  std::vector<Swipe> swipes;
  Dice dice(seed + 1);
  for (int i = 0; i < 84; ++i) {
    const float side = dice.Chance(0.72F) ? 0.25F : 0.75F;
    const float radius = dice.Between(420.0F, 1300.0F);
    const float cx = dice.Between(-0.05F, 1.05F) * width;
    const float cy = dice.Between(0.0F, 1.0F) * tall;
    const float middle = dice.Around(side, 0.05F);
    const float reach = dice.Between(0.04F, 0.13F);
    const float half = dice.Between(48.0F, 105.0F);
    const float load = dice.Between(-0.55F, 0.75F);
    swipes.push_back({cx - radius * Cos(middle * kTau), cy - radius * Sin(middle * kTau), radius,
                      half, middle - reach, middle + reach, load, dice.Word()});
  }
  const Fbm veil{460.0F, 5, 0.54F, seed + 10};
  const Fbm grain{3.0F, 3, 0.75F, seed + 16};
  const Fbm patch{34.0F, 4, 0.6F, seed + 20};

  StrokeSet marks;
  AddScratches(marks, sheet,
               {.count = 60,
                .minLength = 20.0F,
                .maxLength = 420.0F,
                .heading = 0.2F,
                .spread = 0.9F,
                .stray = 0.5F,
                .minRadius = 0.5F,
                .maxRadius = 1.6F,
                .minStrength = 0.2F,
                .maxStrength = 0.8F,
                .skip = 1.4F},
               seed + 30);
  Field scratch(sheet);
  marks.Draw(sheet, scratch, {.ragged = 0.8F, .raggedPeriod = 2.5F, .seed = seed + 31});

  // What was written there shows through, where the felt was light.
  StrokeSet lines;
  Dice hand(seed + 40);
  for (const float at : {0.20F, 0.385F, 0.61F, 0.885F}) {
    Script line;
    line.x = hand.Between(0.06F, 0.34F) * width;
    line.y = hand.Around(at, 0.02F) * tall;
    line.length = hand.Between(0.26F, 0.58F) * width;
    line.xHeight = hand.Between(34.0F, 47.0F);
    line.heading = hand.Around(-0.025F, 0.02F);
    line.radius = 4.4F;
    line.strength = hand.Between(0.65F, 1.0F);
    line.seed = hand.Word();
    AddScript(lines, line);
  }
  Field writing(sheet);
  lines.Draw(
      sheet, writing,
      {.profile = StrokeProfile::kRound, .ragged = 2.2F, .raggedPeriod = 7.0F, .seed = seed + 41});
  Blur(sheet, writing, 1.5F);

  const Field body = Painted(sheet, [&](Spot p) { return patch(p); });
  // The stick skips on the board's tooth and lies thin where the hand was quick.
  const Field tooth = Painted(sheet, [&](Spot p) { return grain(p); });
  const Fbm pressed{90.0F, 3, 0.6F, seed + 22};
  Repaint(sheet, writing, [&](Spot p) {
    const float here = writing(p);
    if (here <= 0.002F) return 0.0F;
    const float hold = here * (1.0F + 0.7F * pressed(p)) + 0.9F * tooth(p) + 0.25F * body(p);
    return here * SmoothRamp(0.05F, 0.85F, hold);
  });
  Field chalk = Painted(sheet, [&](Spot p) {
    return 0.30F + 0.22F * veil(p) + 0.03F * body(p) + 0.75F * writing(p);
  });
  ForRows(sheet.pool, 0, sheet.height, [&](int first, int last) {
    for (const Swipe& s : swipes) {
      for (int y = first; y < last; ++y) {
        float* row = chalk.Row(y);
        const float dy = static_cast<float>(y) - s.y;
        if (Abs(dy) > s.radius + s.half) continue;
        for (int x = 0; x < sheet.width; ++x) {
          const float dx = static_cast<float>(x) - s.x;
          const float r2 = dx * dx + dy * dy;
          const float outer = s.radius + s.half;
          const float inner = s.radius - s.half;
          if (r2 > outer * outer || r2 < inner * inner) continue;
          const float r = Sqrt(r2);
          float turn = Turn(dx, dy);
          if (turn < 0.0F) turn += 1.0F;
          const float along = (turn - s.from) / (s.to - s.from);
          if (along < 0.0F || along > 1.0F) continue;
          const float across = r - s.radius;
          const float fibre = 0.5F + 0.30F * LineNoise(r / 19.0F, s.hash) +
                              0.30F * LineNoise(r / 5.0F + 3.0F * along, s.hash + 1) +
                              0.25F * LineNoise(r / 1.8F, s.hash + 2);
          const float rim = SmoothRamp(s.half, s.half - 5.0F, Abs(across));
          const float fade = SmoothRamp(0.0F, 0.10F, along) * SmoothRamp(1.0F, 0.55F, along);
          const float ghost =
              s.load > 0.0F ? 0.35F * Exp(-Square((Abs(across) - s.half + 6.0F) / 5.0F)) : 0.0F;
          const float strength = rim * fade * Clamp01(fibre);
          // The felt evens out what was there and adds or takes chalk.
          const float was = row[x];
          row[x] = was + strength * (0.55F * (0.30F - was) + 0.42F * s.load) +
                   0.4F * ghost * rim * fade * Clamp01(fibre) * s.load;
        }
      }
    }
  });
  Field tone = Painted(sheet, [&](Spot p) {
    const float g = tooth(p);
    // Chalk sits on the grain's tops: thin veils speckle, thick ones cover.
    const float amount = Clamp01(chalk(p));
    const float speckle = SmoothRamp(-0.9F, 0.9F, g + 2.6F * (amount - 0.42F));
    float value = 0.08F + 0.80F * amount * (0.55F + 0.75F * speckle) + 0.02F * g + 0.03F * body(p);
    return Screen(Clamp01(value), 0.75F * scratch(p) * SmoothRamp(-0.3F, 0.3F, g + 0.1F));
  });
  Soften(sheet, tone, 0.3F);
  StretchTo(sheet, tone, 0.01F, 0.998F);
  return tone;
}

const RegisteredTexture kWipedBlackboard(TextureRecipe{
    .name = "Wiped_Blackboard",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Texture (Light)", "Ephemeral", "Scratches"},
    .seed = 2150,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
