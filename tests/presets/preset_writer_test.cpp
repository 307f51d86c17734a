#include "presets/preset_writer.h"

#include <gtest/gtest.h>

#include <limits>

#include "presets/preset_lines.h"
#include "presets/preset_samples.h"
#include "settings/settings_changes.h"

namespace tarnwick {
namespace {

const std::string kHead = "TarnwickStudi Press Preset;\nVersion 2;\n";
const std::string kLinks =
    "WkLI 0 \t\t\t\t;Is Wash Linked\n"
    "SkLI 0 \t\t\t\t;Is Surface Linked\n"
    "BkLI 0 \t\t\t\t;Is Background Linked\n";

// The text of `pair` without header and link lines, which are looked at here.
std::string MiddleOf(PresetKind kind, const SettingsPair& pair) {
  const std::string text = PresetText(kind, pair.settings, pair.session);
  EXPECT_TRUE(text.starts_with(kHead));
  EXPECT_TRUE(text.ends_with(kLinks));
  if (text.size() < kHead.size() + kLinks.size()) return text;
  return text.substr(kHead.size(), text.size() - kHead.size() - kLinks.size());
}

TEST(PresetWriter, EveryLine) {
  SettingsPair pair;
  std::string want;
  for (const SampleLine& line : kEverything) {
    want += line.text;
    if (line.field == nullptr) continue;
    ASSERT_EQ(SetSettingFromText(*FindSetting(line.field), line.value, pair.settings, pair.session),
              SettingError::kNone)
        << line.field;
  }
  EXPECT_EQ(PresetText(PresetKind::kUser, pair.settings, pair.session), want);
}

TEST(PresetWriter, GroupsThatAreOff) {
  SettingsPair pair = DefaultSettings();
  pair.settings.WashUse = pair.settings.SurfaceUse = pair.settings.BackgroundUse = 0;
  pair.settings.SecondWashExists = pair.settings.SecondSurfaceExists = 1;
  const std::string wash =
      ";------Wash parameters------\n"
      "nOSW 0 \t\t\t\t;Use Wash \n";
  const std::string surface =
      ";------Surface parameters------\n"
      "nOfS 0 \t\t\t\t;Surface Use \n";
  const std::string background =
      ";------Background parameters------\n"
      "nOkB 0 \t\t\t\t;Use Background \n"
      "NFkB No_Texture.twk \t\t\t\t;Name of Background \n";
  EXPECT_EQ(MiddleOf(PresetKind::kWash, pair), wash);
  EXPECT_EQ(MiddleOf(PresetKind::kSurface, pair), surface);
  EXPECT_EQ(MiddleOf(PresetKind::kBackground, pair), background);
  EXPECT_EQ(MiddleOf(PresetKind::kUser, pair),
            ";------Common parameters------\n"
            "sBLN 0 \t\t\t\t;Effect in new layer \n" +
                wash + surface + background);
  for (const int kind : {0, 7, 8, -1}) {
    EXPECT_EQ(MiddleOf(static_cast<PresetKind>(kind), pair), "") << kind;
  }
}

// The second of a pair is left out; its switch is the last line.
TEST(PresetWriter, GroupsWithOneMember) {
  const SettingsPair pair = DefaultSettings();
  const std::string wash = MiddleOf(PresetKind::kWash, pair);
  EXPECT_TRUE(
      wash.ends_with("1dnR 123 \t\t\t\t;Wash1 Ransomize\nxE2W 0 \t\t\t\t;Second Wash Exist \n"));
  const std::string surface = MiddleOf(PresetKind::kSurface, pair);
  EXPECT_TRUE(
      surface.ends_with("1pAS 58.00 ;Surface light alpha \n"
                        "1tBS 35.00 ;Surface light beta \n"
                        "E2fS 0 \t\t\t\t;Surface2 Exists \n"));
}

TEST(PresetWriter, Colors) {
  EffectSettings settings;
  settings.SurfaceHighlightColor = 0xFFFFFF;
  settings.SurfaceMidtoneColor = 12950;
  settings.SurfaceShadowColor = 0xFFFFFFFE;  // as a signed number
  settings.BackgroundMidtoneColor = 1;
  EXPECT_EQ(PresetText(PresetKind::kSurfaceColor, settings, {}),
            kHead +
                ";------Color Preset------\n"
                "rgtC Empty \t\t\t\t;Preset Category \n"
                "lCiH 16777215 \t\t\t\t;Hightlight Color\n"
                "lCdM 12950 \t\t\t\t;Midtone Color\n"
                "lCdS -2 \t\t\t\t;Shadow Color\n");
  EXPECT_EQ(PresetText(PresetKind::kBackgroundColor, settings, {}),
            kHead +
                ";------Color Preset------\n"
                "rgtC Empty \t\t\t\t;Preset Category \n"
                "lCiH 0 \t\t\t\t;Hightlight Color\n"
                "lCdM 1 \t\t\t\t;Midtone Color\n"
                "lCdS 0 \t\t\t\t;Shadow Color\n");
}

TEST(PresetWriter, SingleLines) {
  std::string out;
  WritePresetFlag(out, PresetKey("abcd"), 255, ";c");
  WritePresetInteger(out, PresetKey("thgH"), -5, "\t\t\t\t;h");
  WritePresetText(out, PresetKey("abcd"), "", ";c");
  WritePresetText(out, PresetKey("abcd"), nullptr, ";c");
  WritePresetComment(out, "x");
  WritePresetComment(out, ";x");
  WritePresetComment(out, "");
  WritePresetComment(out, nullptr);
  EXPECT_EQ(out, "abcd 255 ;c \nthgH -5 \t\t\t\t;h\nabcd  ;c \n;x\n;x\n;\n");
}

TEST(PresetWriter, Floats) {
  const struct {
    float value;
    const char* text;
  } kFloats[] = {
      {0.0f, "0.00"},
      {-0.0f, "-0.00"},
      {58.0f, "58.00"},
      {0.125f, "0.12"},
      {0.375f, "0.38"},
      {359.999f, "360.00"},
      {-0.004f, "-0.00"},
      {1.005f, "1.00"},  // the float lies just below
      {1e10f, "10000000000.00"},
      {std::numeric_limits<float>::max(), "340282346638528859811704183484516925440.00"},
  };
  for (const auto& c : kFloats) {
    std::string out;
    WritePresetFloat(out, PresetKey("1pAS"), c.value, ";a");
    EXPECT_EQ(out, std::string("1pAS ") + c.text + " ;a \n");
  }
}

}  // namespace
}  // namespace tarnwick
