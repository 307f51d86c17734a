// Postmarks: an envelope's corner as the post left it: round date stamps struck in
// a hurry, the wavy bars that kill a stamp, a boxed mark or two. White paper
// between, so the picture stays.
//
// What makes it read as that: rings and bars inked on one side and dry on the
// other, ink in the tooth of the paper only, a second strike over the first.
#include <string_view>
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/lettering.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

void AddRing(StrokeSet& strokes, float x, float y, float radius, float half) {
  std::vector<StrokePoint> line;
  constexpr int kSteps = 96;
  for (int i = 0; i <= kSteps; ++i) {
    const float angle = kTau * static_cast<float>(i) / kSteps;
    line.push_back({x + radius * Cos(angle), y + radius * Sin(angle), half, 1.0F});
  }
  strokes.Add(line);
}

// Text on a circle, centred on `middle` (radians, 0 to the right).
void AddAround(StrokeSet& strokes, float x, float y, float radius, float middle, float height,
               std::string_view text) {
  Lettering style{.height = height, .narrow = 0.6F, .space = 0.3F, .radius = 0.10F * height};
  const float half = 0.5F * LengthOf(style, text) / radius;
  const float from = middle - half;
  style.x = x + radius * Cos(from);
  style.y = y + radius * Sin(from);
  style.heading = from + 0.5F * kPi;
  style.bend = 1.0F / radius;
  AddLettering(strokes, style, text);
}

struct Strike {
  float x, y;    // shares of the sheet
  float radius;  // pixels
  float turn;    // radians
  int bars;      // wavy lines to its right
  float barLength;
  std::string_view town, county, day, year;
};

constexpr Strike kStrikes[] = {
    {0.335F, 0.52F, 215.0F, -0.13F, 7, 900.0F, "MARLOW HARBOUR", "SOUTH", "17 SEP", "1931"},
    {0.85F, 0.74F, 180.0F, 0.34F, 0, 0.0F, "NETHERBY", "STATION", "19 SEP", "6 PM"},
    {0.13F, 0.80F, 195.0F, 0.75F, 5, 560.0F, "COLD WINDLE", "RAILWAY", "4 JAN", "1928"},
    {0.60F, 0.86F, 150.0F, -0.42F, 0, 0.0F, "THORNE", "PAID", "21 OCT", "1931"}};

void AddStrike(StrokeSet& ink, const Sheet& sheet, const Strike& strike, float dx, float dy) {
  const float x = strike.x * static_cast<float>(sheet.width) + dx;
  const float y = strike.y * static_cast<float>(sheet.height) + dy;
  const float r = strike.radius;
  AddRing(ink, x, y, r, 0.022F * r);
  AddRing(ink, x, y, 0.60F * r, 0.012F * r);
  const float up = strike.turn - 0.5F * kPi;
  AddAround(ink, x, y, 0.70F * r, up, 0.19F * r, strike.town);
  AddAround(ink, x, y, 0.70F * r, up + kPi, 0.17F * r, strike.county);
  const float c = Cos(strike.turn);
  const float s = Sin(strike.turn);
  int row = 0;
  for (const std::string_view text : {strike.day, strike.year}) {
    Lettering style{.height = 0.24F * r,
                    .narrow = 0.58F,
                    .space = 0.26F,
                    .heading = strike.turn,
                    .radius = 0.025F * r};
    const float half = 0.5F * LengthOf(style, text) - 0.13F * style.height;
    const float down = row == 0 ? -0.05F * r : 0.31F * r;
    style.x = x - half * c - down * s;
    style.y = y - half * s + down * c;
    AddLettering(ink, style, text);
    ++row;
  }
  for (int i = 0; i < strike.bars; ++i) {
    const float aside = (static_cast<float>(i) - 0.5F * static_cast<float>(strike.bars - 1)) *
                        (1.7F * r / static_cast<float>(strike.bars));
    std::vector<StrokePoint> line;
    for (float at = 1.10F * r; at < r + strike.barLength; at += 10.0F) {
      const float wave = aside + 15.0F * Sin(at / 33.0F);
      line.push_back({x + at * c - wave * s, y + at * s + wave * c, 5.2F, 1.0F});
    }
    ink.Add(line);
  }
}

void AddBox(StrokeSet& ink, float x, float y, float turn, float height, std::string_view text) {
  Lettering style{.x = x,
                  .y = y,
                  .height = height,
                  .narrow = 0.62F,
                  .heading = turn,
                  .radius = 0.085F * height};
  AddLettering(ink, style, text);
  const float c = Cos(turn);
  const float s = Sin(turn);
  const float wide = LengthOf(style, text) + 0.5F * height;
  std::vector<StrokePoint> line;
  const float corners[5][2] = {{-0.5F * height, 0.45F * height},
                               {wide - 0.2F * height, 0.45F * height},
                               {wide - 0.2F * height, -1.45F * height},
                               {-0.5F * height, -1.45F * height},
                               {-0.5F * height, 0.45F * height}};
  for (const auto& at : corners) {
    line.push_back({x + at[0] * c - at[1] * s, y + at[0] * s + at[1] * c, 0.06F * height, 1.0F});
  }
  ink.Add(line);
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  StrokeSet strong, ghost;
  for (const Strike& strike : kStrikes) AddStrike(strong, sheet, strike, 0.0F, 0.0F);
  AddStrike(ghost, sheet, kStrikes[1], -52.0F, 34.0F);
  AddBox(strong, 0.60F * w, 0.20F * h, -0.08F, 62.0F, "REGISTERED 4417");
  AddBox(ghost, 0.20F * w, 0.15F * h, 0.13F, 48.0F, "MISSENT");
  Field ink(sheet);
  strong.Draw(sheet, ink, {.ragged = 1.6F, .raggedPeriod = 6.0F, .seed = seed + 1});
  Field faint(sheet);
  ghost.Draw(sheet, faint, {.ragged = 1.8F, .raggedPeriod = 5.0F, .seed = seed + 2});

  const Fbm pressure{330.0F, 3, 0.5F, seed + 3};
  const Fbm blotch{44.0F, 4, 0.62F, seed + 4};
  const Fbm tooth{4.5F, 3, 0.7F, seed + 5};
  const Fbm laid{8.0F, 2, 0.5F, seed + 6};
  const Fbm cloud{260.0F, 5, 0.55F, seed + 7};
  Field soak = ink;
  Blur(sheet, soak, 3.0F);
  Field tone = Painted(sheet, [&](Spot p) {
    const float bite = 0.30F * tooth(p) + 0.10F * laid(p.fx * 0.05F, p.fy);
    const float weight = 0.62F + 0.95F * pressure(p) + 0.55F * blotch(p);
    const float struck = ink(p) * SoftThreshold(weight + bite * 1.6F, 0.30F, 0.45F);
    const float second = faint(p) * SoftThreshold(weight + bite * 2.0F, 0.62F, 0.40F);
    const float mark = Max(0.97F * struck, 0.55F * second);
    const float smear = 0.18F * soak(p) * Clamp01(weight);
    return (1.0F - mark) * (1.0F - smear) * (0.975F + 0.03F * tooth(p) + 0.02F * cloud(p));
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.001F, 0.93F);
  return tone;
}

const RegisteredTexture kPostmarks(TextureRecipe{.name = "Postmarks",
                                                 .set = TextureSet::kPaperDrawer,
                                                 .effects = {"Ephemeral", "Distress (Light)"},
                                                 .seed = 1017,
                                                 .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
