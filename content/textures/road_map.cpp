// Road_Map: a motorist's map that lived in a glove box: folded in eight by five,
// worn through where folds cross, with the route of some holiday in pencil.
//
// What makes it read as that: main roads drawn as double lines that join the
// towns, by-roads between them, a river that ignores both; names beside the
// dots; panels that face the light by turns; white stars of wear.
#include <array>
#include <string_view>
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/folds.h"
#include "toolbox/lettering.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/strokes.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

struct Town {
  float x, y;
};

std::vector<Town> MakeTowns(const Sheet& sheet) {
  std::vector<Town> towns;
  constexpr float kApart = 250.0F;
  const int columns = FloorInt(static_cast<float>(sheet.width) / kApart) + 3;
  const int rows = FloorInt(static_cast<float>(sheet.height) / kApart) + 3;
  for (int j = -1; j < rows - 1; ++j) {
    for (int i = -1; i < columns - 1; ++i) {
      Dice dice(sheet.seed + 1, i + 50 * j + 5000);
      if (dice.Chance(0.16F)) continue;
      towns.push_back({(static_cast<float>(i) + dice.Between(0.1F, 0.9F)) * kApart,
                       (static_cast<float>(j) + dice.Between(0.1F, 0.9F)) * kApart});
    }
  }
  return towns;
}

// A road from town to town that winds as the country makes it.
void AddRoad(StrokeSet& strokes, Town a, Town b, float radius, float winding, std::uint32_t seed) {
  const float length = Length(b.x - a.x, b.y - a.y);
  const float ux = (b.x - a.x) / length;
  const float uy = (b.y - a.y) / length;
  std::vector<StrokePoint> line;
  const int steps = FloorInt(length / 9.0F) + 2;
  for (int i = 0; i <= steps; ++i) {
    const float t = static_cast<float>(i) / static_cast<float>(steps);
    const float free = 4.0F * t * (1.0F - t);
    const float at = t * length;
    const float aside =
        free * winding *
        (0.16F * length * LineNoise(at / 170.0F, seed) + 9.0F * LineNoise(at / 38.0F, seed + 1));
    line.push_back({a.x + ux * at - uy * aside, a.y + uy * at + ux * aside, radius, 1.0F});
  }
  strokes.Add(line);
}

struct Print {
  Field mainRoads, casings, lanes, rivers, names;
};

constexpr std::array<std::string_view, 12> kNames = {"ASHWELL", "KIRBY",    "THORNE", "MARLOW END",
                                                     "OAKLEY",  "NETHERBY", "STOKE",  "WINDLE",
                                                     "HAVEN",   "RUSHMERE", "COLD",   "BRAMFORD"};

Print MakePrint(const Sheet& sheet) {
  const std::vector<Town> towns = MakeTowns(sheet);
  StrokeSet mains, casings, lanes, rivers, names;
  for (std::size_t i = 0; i < towns.size(); ++i) {
    Dice dice(sheet.seed + 2, static_cast<int>(i));
    const Town& a = towns[i];
    for (std::size_t j = i + 1; j < towns.size(); ++j) {
      const Town& b = towns[j];
      const float length = Length(b.x - a.x, b.y - a.y);
      if (length > 380.0F || length < 40.0F) continue;
      const float luck = dice.Unit();
      const std::uint32_t word = dice.Word();
      if (luck < 0.30F) {
        AddRoad(casings, a, b, 6.4F, 0.6F, word);
        AddRoad(mains, a, b, 4.0F, 0.6F, word);
      }
      if (luck > 0.40F && luck < 0.80F) AddRoad(lanes, a, b, 1.3F, 1.5F, word);
    }
    // By-roads that end at a farm.
    for (int k = 0; k < 3; ++k) {
      AddWalk(lanes, {.x = a.x,
                      .y = a.y,
                      .length = dice.Between(60.0F, 210.0F),
                      .heading = dice.Between(0.0F, kTau),
                      .wobble = 1.6F,
                      .wobblePeriod = 55.0F,
                      .radius = 0.9F,
                      .taper = 0.0F,
                      .seed = dice.Word()});
    }
    const bool large = dice.Chance(0.3F);
    const StrokePoint dot[] = {{a.x, a.y, large ? 11.0F : 7.0F, 1.0F}};
    names.Add(dot);
    const float size = large ? 26.0F : 17.0F;
    AddLettering(names,
                 {.x = a.x + 17.0F,
                  .y = a.y - 9.0F,
                  .height = size,
                  .narrow = 0.6F,
                  .heading = 0.0F,
                  .radius = large ? 2.0F : 1.4F,
                  .strength = 0.95F},
                 kNames[dice.Word() % kNames.size()]);
  }
  for (int i = 0; i < 2; ++i) {
    Dice dice(sheet.seed + 3, i);
    AddWalk(rivers, {.x = -20.0F,
                     .y = (0.2F + 0.5F * static_cast<float>(i)) * static_cast<float>(sheet.height),
                     .length = 1.5F * static_cast<float>(sheet.width),
                     .heading = dice.Between(-0.2F, 0.3F),
                     .wobble = 0.9F,
                     .wobblePeriod = 130.0F,
                     .radius = 4.5F,
                     .taper = 0.0F,
                     .seed = dice.Word()});
  }
  Print print{Field(sheet), Field(sheet), Field(sheet), Field(sheet), Field(sheet)};
  mains.Draw(sheet, print.mainRoads);
  casings.Draw(sheet, print.casings);
  lanes.Draw(sheet, print.lanes);
  rivers.Draw(sheet, print.rivers, {.ragged = 2.0F, .raggedPeriod = 26.0F});
  names.Draw(sheet, print.names);
  return print;
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const float w = static_cast<float>(sheet.width);
  const float h = static_cast<float>(sheet.height);
  const Print print = MakePrint(sheet);

  std::vector<Fold> creases;
  for (int i = 1; i < 8; ++i) {
    creases.push_back({w * static_cast<float>(i) / 8.0F, 0.0F, 0.5F * kPi + 0.004F,
                       i % 4 == 0 ? 1.0F : 0.72F, i % 2 == 0});
  }
  for (int j = 1; j < 4; ++j) {
    creases.push_back({0.0F, h * static_cast<float>(j) / 4.0F, -0.003F, 0.85F, j % 2 == 1});
  }
  const Folds folds(creases, seed + 20);
  const Survey<FoldSpot> folded(sheet, [&](Spot p) { return folds.At(p.fx, p.fy); });

  const Fbm torn{46.0F, 5, 0.6F, seed + 21};
  const Fbm stain{330.0F, 5, 0.55F, seed + 22};
  const Fbm grain{3.0F, 3, 0.7F, seed + 23};
  const Fbm woods{150.0F, 5, 0.58F, seed + 24};
  const auto toLine = [](float v, float apart) {
    const float t = v / apart;
    return Abs(t - static_cast<float>(FloorInt(t + 0.5F))) * apart;
  };
  Field tone = Painted(sheet, [&](Spot p) {
    const FoldSpot& fold = folded(p);
    float ink = 0.16F * SoftThreshold(woods(p), 0.22F, 0.03F);
    ink = Max(ink, 0.46F * print.rivers(p));
    ink = Max(ink, 0.62F * print.lanes(p));
    ink = Max(ink, 0.85F * print.casings(p));
    ink = Mix(ink, 0.12F, print.mainRoads(p));
    ink = Max(ink, 0.95F * print.names(p));
    const float graticule = Min(toLine(p.fx + 90.0F, 412.0F), toLine(p.fy + 40.0F, 396.0F));
    ink = Max(ink, 0.30F * SmoothRamp(1.4F, 0.5F, graticule));
    // Wear takes the ink from both sides of a crease, most at crossings.
    const float crossX = toLine(p.fx, w / 8.0F);
    const float crossY = toLine(p.fy, h / 4.0F);
    const float crossing = Exp(-(crossX + crossY) / 26.0F);
    const float rubbed = SoftThreshold(
        1.15F * crossing + 0.55F * Exp(-fold.toCrease / 6.0F) + 0.45F * torn(p), 0.52F, 0.22F);
    const float through = SoftThreshold(1.25F * crossing + 0.5F * torn(p), 0.86F, 0.04F);
    const float age = 0.05F * grain(p) + 0.09F * stain(p);
    float value = 0.83F + age - 0.76F * ink * (1.0F - 0.92F * rubbed) * (0.9F + 0.5F * grain(p));
    value += 0.17F * fold.shade + 0.16F * rubbed + 0.25F * fold.wear;
    return Mix(value, 0.02F, through);
  });
  Soften(sheet, tone, 0.35F);
  StretchTo(sheet, tone, 0.002F, 0.985F);
  return tone;
}

const RegisteredTexture kRoadMap(TextureRecipe{.name = "Road_Map",
                                               .set = TextureSet::kPaperDrawer,
                                               .effects = {"Papers", "Ephemeral"},
                                               .seed = 1011,
                                               .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
