// Water_Stained_Ledger: a page of a shop's accounts, ruled in columns, written
// with a steel pen, and flooded from one corner.
//
// What makes it read as that: rules printed across and red lines down; entries
// of a hand and figures in their columns; ink that ran where the water stood,
// and three tide lines where it stopped to dry.
#include <string_view>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/handwriting.h"
#include "toolbox/hash.h"
#include "toolbox/lettering.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/stains.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

constexpr float kLine = 57.0F;  // from rule to rule
constexpr float kTop = 150.0F;  // first rule

Field WriteEntries(const Sheet& sheet) {
  const float w = static_cast<float>(sheet.width);
  StrokeSet ink;
  const int lines = FloorInt((static_cast<float>(sheet.height) - kTop) / kLine);
  AddScript(ink, {.x = 0.30F * w,
                  .y = kTop - 38.0F,
                  .length = 0.30F * w,
                  .xHeight = 26.0F,
                  .radius = 2.6F,
                  .seed = sheet.seed + 900});
  for (int i = 0; i < lines; ++i) {
    Dice dice(sheet.seed + 1, i);
    if (dice.Chance(0.16F)) continue;
    const float y = kTop + kLine * static_cast<float>(i + 1) - 7.0F + dice.Around(0.0F, 1.5F);
    const bool indented = dice.Chance(0.4F);
    AddScript(ink, {.x = 0.135F * w + (indented ? 60.0F : 8.0F),
                    .y = y,
                    .length = dice.Between(0.20F, 0.50F) * w,
                    .xHeight = dice.Between(14.0F, 16.5F),
                    .heading = dice.Around(0.0F, 0.004F),
                    .radius = 1.9F,
                    .strength = dice.Between(0.7F, 1.0F),
                    .seed = dice.Word()});
    const float columns[] = {0.055F, 0.775F, 0.865F, 0.935F};
    for (const float column : columns) {
      if (dice.Chance(0.25F)) continue;
      const int figures = 1 + static_cast<int>(dice.Word() % 2U);
      char text[3] = {};
      for (int k = 0; k < figures; ++k) text[k] = static_cast<char>('0' + dice.Word() % 10U);
      AddLettering(ink,
                   {.x = column * w + dice.Around(6.0F, 4.0F),
                    .y = y,
                    .height = dice.Between(25.0F, 29.0F),
                    .narrow = 0.5F,
                    .heading = dice.Around(-0.06F, 0.05F),
                    .radius = 1.5F,
                    .strength = 0.85F},
                   std::string_view(text, static_cast<std::size_t>(figures)));
    }
  }
  Field written(sheet);
  ink.Draw(sheet, written, {.ragged = 0.5F, .raggedPeriod = 4.0F, .seed = sheet.seed});
  return written;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const Field ink = WriteEntries(sheet);
  Field run = ink;
  Blur(sheet, run, 7.0F);

  const Puddle flood{0.98F * w, 1.02F * h, 0.62F * w, 0.26F, 2.4F, seed + 10};
  const Puddle second{1.02F * w, 1.06F * h, 0.44F * w, 0.30F, 2.2F, seed + 11};
  const Puddle splash{0.16F * w, 0.10F * h, 170.0F, 0.4F, 1.6F, seed + 12};
  const TideMark strong{.rim = 3.4F, .fade = 70.0F, .body = 0.20F, .edge = 0.85F};
  const TideMark pale{.rim = 2.4F, .fade = 110.0F, .body = 0.10F, .edge = 0.50F};
  const Fbm cloud{210.0F, 5, 0.56F, seed + 13};
  const Fbm fibre{3.4F, 3, 0.7F, seed + 14};
  const Fbm bow{900.0F, 2, 0.4F, seed + 15};
  const Fbm skip{50.0F, 4, 0.6F, seed + 16};
  const auto line = [](float v, float radius) {
    return SmoothRamp(radius + 0.7F, radius - 0.5F, Abs(v));
  };
  Field tone = Painted(sheet, [&](Spot p) {
    const float inside = flood.Inside(p.fx, p.fy);
    const float wet = SmoothRamp(-4.0F, 60.0F, inside);
    const float x = p.fx + 9.0F * bow(p.fy, 3.0F);
    const float y = p.fy + 9.0F * bow(p.fx, 0.0F);
    const float t = (y - kTop) / kLine;
    const float toRule = (t - static_cast<float>(FloorInt(t + 0.5F))) * kLine;
    float rules = y > kTop - 0.5F * kLine ? 0.34F * line(toRule, 1.3F) : 0.0F;
    rules = Max(rules, 0.55F * line(y - kTop + 6.0F, 1.4F));
    for (const float column : {0.125F, 0.128F, 0.76F, 0.85F, 0.925F, 0.922F}) {
      rules = Max(rules, 0.46F * line(x - column * w, 1.6F));
    }
    rules *= 0.85F + 0.5F * skip(p);
    float light = 1.0F - rules * (1.0F - 0.75F * wet);
    const float script = Mix(0.92F * ink(p), 0.38F * ink(p) + 0.55F * run(p), wet);
    light *= 1.0F - Clamp01(script);
    light *= 1.0F - 0.80F * strong(inside) * Clamp01(0.9F + 0.6F * cloud(p));
    light *= 1.0F - 0.75F * pale(second.Inside(p.fx, p.fy));
    light *= 1.0F - 0.60F * pale(splash.Inside(p.fx, p.fy));
    const float rim = Min(Min(p.fx, w - p.fx), Min(p.fy, h - p.fy));
    const float toned = 0.26F * Exp(-rim / (70.0F + 50.0F * cloud(p)));
    return light * (0.97F + 0.06F * cloud(p) + 0.05F * fibre(p) - toned);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.002F, 0.97F);
  return tone;
}

const RegisteredTexture kWaterStainedLedger(TextureRecipe{
    .name = "Water_Stained_Ledger",
    .set = TextureSet::kPaperDrawer,
    .effects = {"Papers", "Ephemeral", "Distress (Light)"},
    .seed = 1013,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
