// The colour presets that come with the program: what a program can tell of
// their tones. Whether they are beautiful, eyes have to say.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "presets/color_categories.h"
#include "presets/color_preset.h"
#include "shipped_presets.h"

namespace tarnwick::content {
namespace {

using Tone = std::array<int, 3>;  // red, green, blue

struct Colors {
  std::string name;
  std::array<Tone, 3> tones;  // highlight, midtone, shadow
  std::vector<std::string> categories;

  [[nodiscard]] const Tone& Middle() const { return tones[1]; }
};

Tone ToneOf(std::uint32_t word) {
  return {static_cast<int>(word & 255U), static_cast<int>(word >> 8U & 255U),
          static_cast<int>(word >> 16U & 255U)};
}

std::vector<Colors> AllColors() {
  std::vector<Colors> all;
  for (const Shipped& preset : ShippedPresets()) {
    if (preset.folder != "Colors") continue;
    ColorPreset read;
    EXPECT_EQ(ReadColorPreset(preset.bytes, read), PresetLoad::kLoaded) << preset.name;
    all.push_back({preset.name,
                   {ToneOf(read.highlight), ToneOf(read.midtone), ToneOf(read.shadow)},
                   SplitCategories(read.category)});
  }
  return all;
}

int Light(const Tone& tone) {
  return (tone[0] * 2 + tone[1] * 5 + tone[2]) / 8;
}

int MeanLight(const Colors& colors) {
  return (Light(colors.tones[0]) + Light(colors.tones[1]) + Light(colors.tones[2])) / 3;
}

int Chroma(const Tone& tone) {
  return std::ranges::max(tone) - std::ranges::min(tone);
}

// Degrees: red 0, green 120, blue 240; 0 for greys.
double Hue(const Tone& tone) {
  if (Chroma(tone) == 0) return 0;
  const auto top = static_cast<std::size_t>(std::ranges::max_element(tone) - tone.begin());
  const double rise = tone[(top + 1) % 3] - tone[(top + 2) % 3];
  const double hue = 120.0 * static_cast<double>(top) + 60.0 * rise / Chroma(tone);
  return hue < 0 ? hue + 360 : hue;
}

// How far apart two looks are, in levels: root mean square over the tones, with
// the channels weighed as eyes do.
double Distance(const Colors& a, const Colors& b) {
  constexpr std::array<int, 3> kWeights = {2, 4, 3};
  double sum = 0;
  for (std::size_t tone = 0; tone < 3; ++tone) {
    for (std::size_t i = 0; i < 3; ++i) {
      const int d = a.tones[tone][i] - b.tones[tone][i];
      sum += d * d * kWeights[i] / 9.0;
    }
  }
  return std::sqrt(sum / 3);
}

// The blank rows of the drawer's box part the groups, the first row takes all.
TEST(ColorPresets, FillEveryRowOfTheDrawer) {
  const std::set<std::string> kRows = {
      "Red Tones",           "Orange Tones",      "Yellow Tones",    "Green Tones",
      "Blue Tones",          "Pink Tones",        "Purple Tones",    "Black and White tones",
      "Brown Tones",         "Cool Tones",        "Dark Tones",      "Light Tones",
      "Medium Tones",        "Solid Tones",       "Pastel Tones",    "Vibrant Tones",
      "Warm Tones",          "Atmospheric Tones", "Ephemeral Tones", "Leather Tones",
      "Metal Tones",         "Paper Tones",       "Rust Tones",      "Plant/Natural Tones",
      "Stone/Mineral Tones", "Wood Tones"};
  std::map<std::string, int> counts;
  const std::vector<Colors> all = AllColors();
  for (const Colors& colors : all) {
    EXPECT_FALSE(colors.categories.empty()) << colors.name << " shows under no row";
    for (const std::string& category : colors.categories) {
      ++counts[category];
      EXPECT_TRUE(kRows.contains(category)) << colors.name << ": " << category;
      EXPECT_EQ(std::ranges::count(colors.categories, category), 1) << colors.name;
    }
  }
  for (const std::string& category : kRows) EXPECT_GE(counts[category], 4) << category;
}

// Tones in a wrong place or order, and red taken for blue, show here.
TEST(ColorPresets, AreFiledByTheirTones) {
  const auto hue = [](double from, double to) {
    return [=](const Colors& c) {
      const double h = Hue(c.Middle());
      return from < to ? h >= from && h <= to : h >= from || h <= to;
    };
  };
  const auto chroma = [](int most) {
    return [=](const Colors& c) {
      return std::ranges::all_of(c.tones, [&](const Tone& t) { return Chroma(t) <= most; });
    };
  };
  const std::map<std::string, std::function<bool(const Colors&)>> kRules = {
      {"Red Tones", hue(340, 20)},
      {"Orange Tones", hue(12, 32)},
      {"Yellow Tones", hue(36, 64)},
      {"Green Tones", hue(54, 185)},
      {"Blue Tones", hue(170, 245)},
      {"Purple Tones", hue(245, 335)},
      {"Pink Tones", hue(320, 20)},
      {"Brown Tones", hue(5, 50)},
      {"Black and White tones", chroma(20)},
      {"Dark Tones", [](const Colors& c) { return MeanLight(c) <= 125; }},
      {"Medium Tones", [](const Colors& c) { return MeanLight(c) >= 95 && MeanLight(c) <= 165; }},
      {"Light Tones", [](const Colors& c) { return MeanLight(c) >= 160; }},
      {"Cool Tones", [](const Colors& c) { return c.Middle()[2] >= c.Middle()[0]; }},
      {"Warm Tones", [](const Colors& c) { return c.Middle()[0] >= c.Middle()[2] + 20; }},
      {"Vibrant Tones", [](const Colors& c) { return Chroma(c.Middle()) >= 75; }},
      {"Pastel Tones",
       [](const Colors& c) { return Light(c.Middle()) >= 175 && Light(c.tones[2]) >= 90; }},
      {"Solid Tones", [](const Colors& c) { return Light(c.tones[0]) - Light(c.tones[2]) < 50; }},
  };
  for (const Colors& colors : AllColors()) {
    SCOPED_TRACE(colors.name);
    EXPECT_GT(Light(colors.tones[0]), Light(colors.tones[1]));
    EXPECT_GT(Light(colors.tones[1]), Light(colors.tones[2]));
    int brightnesses = 0;
    for (const std::string& category : colors.categories) {
      brightnesses +=
          category == "Dark Tones" || category == "Medium Tones" || category == "Light Tones";
      const auto rule = kRules.find(category);
      EXPECT_TRUE(rule == kRules.end() || rule->second(colors)) << category;
    }
    EXPECT_EQ(brightnesses, 1);
  }
}

// Black swallows the relief it should shade.
TEST(ColorPresets, KeepColourInTheirShadows) {
  for (const Colors& colors : AllColors()) {
    EXPECT_GE(std::ranges::max(colors.tones[2]), 12) << colors.name;
  }
}

TEST(ColorPresets, NoTwoAreAlike) {
  const std::vector<Colors> all = AllColors();
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_GE(Distance(all[i], all[j]), 12.0) << all[i].name << " and " << all[j].name;
    }
  }
}

}  // namespace
}  // namespace tarnwick::content
