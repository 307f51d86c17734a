// Halftone_Newsprint: the rim of a press photograph under a magnifying glass. Dots
// grow until they run together at the edge of the sheet and shrink to nothing
// in the middle, which leaves the picture.
//
// What makes it read as that: a screen at an angle, dots that swell and clog
// instead of being round, worn ones that left no ink, wood fibres in the
// paper, the shadow of what is printed on the other side.
#include <array>
#include <string_view>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/lettering.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// Lines of type seen through the paper, the wrong way round.
Field ShowThrough(const Sheet& sheet) {
  constexpr std::array<std::string_view, 10> kWords = {
      "THE", "MARKET", "OF", "YESTERDAY", "AND", "WITH", "SHIPS", "TRADE", "COUNCIL", "IN"};
  StrokeSet type;
  Dice dice(sheet.seed + 70);
  for (float y = 40.0F; y < static_cast<float>(sheet.height) + 40.0F; y += 52.0F) {
    Lettering line{.x = -40.0F,
                   .y = y,
                   .height = 30.0F,
                   .narrow = 0.55F,
                   .space = 0.2F,
                   .heading = 0.006F,
                   .radius = 2.4F};
    while (line.x < static_cast<float>(sheet.width)) {
      const std::string_view word = kWords[dice.Word() % kWords.size()];
      AddLettering(type, line, word);
      line.x += LengthOf(line, word) + 18.0F;
    }
  }
  Field ink(sheet);
  type.Draw(sheet, ink);
  Blur(sheet, ink, 2.2F);
  return ink;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const Field back = ShowThrough(sheet);
  StrokeSet fibres;
  for (int i = 0; i < FloorInt(w * h / 5200.0F); ++i) {
    Dice dice(seed + 40, i);
    AddWalk(fibres, {.x = dice.Unit() * w,
                     .y = dice.Unit() * h,
                     .length = dice.Between(12.0F, 60.0F),
                     .heading = dice.Around(0.0F, 0.8F),
                     .wobble = 1.5F,
                     .wobblePeriod = 22.0F,
                     .radius = dice.Between(0.4F, 1.2F),
                     .strength = dice.Between(0.15F, 0.8F),
                     .step = 6.0F,
                     .seed = dice.Word()});
  }
  Field fibre(sheet);
  fibres.Draw(sheet, fibre, {.profile = StrokeProfile::kRound});

  const Fbm picture{620.0F, 4, 0.5F, seed + 1};
  const Fbm press{230.0F, 4, 0.55F, seed + 2};
  const Fbm gain{9.0F, 4, 0.62F, seed + 3};
  const Fbm grain{3.2F, 3, 0.7F, seed + 4};
  const Warp slip{1.5F, {30.0F, 3, 0.6F, seed + 5}};
  const Warp stretch{7.0F, {600.0F, 2, 0.5F, seed + 6}};
  constexpr float kPitch = 14.5F;
  Field tone = Painted(sheet, [&](Spot p) {
    const float dx = (p.fx - 0.47F * w) / (0.54F * w);
    const float dy = (p.fy - 0.52F * h) / (0.56F * h);
    const float far = Sqrt(Sqrt(Square(dx * dx) + Square(dy * dy) + dx * dx * dy * dy));
    const float dark = SmoothRamp(0.50F, 1.14F, far + 0.34F * picture(p)) * 1.12F;
    const Spot q = slip(stretch(p));
    const float u = (q.fx * 0.829F + q.fy * 0.559F) / kPitch;
    const float v = (q.fy * 0.829F - q.fx * 0.559F) / kPitch;
    const std::uint32_t dot = HashAt(FloorInt(u), FloorInt(v), seed + 7);
    const float cell = 0.5F + 0.25F * (Cos(kTau * (u - 0.5F)) + Cos(kTau * (v - 0.5F)));
    const float luck = 0.10F * (Unit(dot) - 0.5F) - (Unit(Hash(dot)) < 0.012F ? 0.5F : 0.0F);
    const float level = dark + luck + 0.10F * press(p) - 0.02F;
    const float ink =
        SoftThreshold(level - cell + 0.13F * gain(p), 0.0F, 0.16F) * SmoothRamp(0.03F, 0.10F, dark);
    // Ink lies thinner in the middle of a dot than at its squeezed rim.
    const float laid = ink * (0.90F + 0.16F * grain(p) + 0.12F * press(p));
    const float paper =
        0.96F + 0.035F * grain(p) - 0.11F * fibre(p) - 0.045F * back(sheet.width - 1 - p.x, p.y);
    return paper * (1.0F - 0.95F * Clamp01(laid));
  });
  Soften(sheet, tone, 0.3F);
  StretchTo(sheet, tone, 0.002F, 0.93F);
  return tone;
}

const RegisteredTexture kHalftoneNewsprint(TextureRecipe{
    .name = "Halftone_Newsprint",
    .set = TextureSet::kPaperDrawer,
    .effects = {"Papers", "Ephemeral", "Texture (Medium)"},
    .seed = 1015,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
