#include "presets/preset_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "presets/preset_samples.h"
#include "presets/preset_writer.h"
#include "settings/settings_changes.h"

namespace tarnwick {
namespace {

using ::testing::UnorderedElementsAreArray;
using Strings = std::vector<std::string>;

// Defaults with both seconds on: the state that the cases below change.
SettingsPair Before() {
  SettingsPair pair = DefaultSettings();
  pair.settings.SecondWashExists = pair.settings.SecondSurfaceExists = 1;
  pair.settings.WashType1 = pair.settings.WashType2 = 2;
  pair.settings.SurfaceType1 = pair.settings.SurfaceType2 = 3;
  pair.settings.SurfaceHue = pair.settings.BackgroundHue = 5;
  pair.settings.SurfaceBrightness = pair.settings.SurfaceContrast = 60;
  pair.settings.SurfaceHighlight = pair.settings.SurfaceShadow = 40;
  pair.settings.BackgroundEnhancedMode = 1;
  return pair;
}

const struct {
  const char* name;
  std::int32_t version;
  std::string body;
  Strings changes;
} kBodies[] = {
    {"nothing", 2, "", {}},
    {"lines that do nothing",
     2,
     "sBL\n;sBLN 1\n   ;sBLN 1\n\nSBLN 1\nsbln 1\nXXXX 1\nrgtC Red Tones\nOW1X 5\nX1WO 5\nLNLI 1\n",
     {}},
    {"blanks before the key and none after", 2, "  sBLN1\n", {"NewLayerEffect 1"}},
    {"the last of two lines counts", 2, "1cSW 5\n1cSW 6\n", {"WashScale1 6"}},
    {"a last line without its end is lost", 2, "1cSW 5\n1cSW 6", {"WashScale1 5"}},
    {"values that do not parse are 0", 2, "1tIW x\n", {"WashIntensity1 0"}},
    {"no range is asked", 2, "1cSW 5000\n1pTW 9\n", {"WashScale1 5000", "WashType1 9"}},
    {"bytes keep eight bits",
     2,
     "sBLN 513\n1pTW -1\nWkLI 258\n",
     {"NewLayerEffect 1", "WashType1 255", "WashLinked 2"}},
    {"colours",
     2,
     "1tSW 16711680\n2tSW -1\n",
     {"WashStainColor1 #0000ff", "WashStainColor2 4294967295"}},
    {"floats", 2, "1pAS 12.25 ;a\n1tBS 1,5\n", {"SurfaceLightAlpha 12.25", "SurfaceLightBeta 1"}},
    {"names",
     2,
     "1NFW Old Tin.twk \t\t\t\t;Name of Wash1 \n2NFW " + std::string(130, 'n') + "\n",
     {"WashFileName1 Old Tin.twk", "WashFileName2 \"" + std::string(127, 'n') + "\""}},
    {"an accented name breaks",
     2,
     "1NFW Caf\xE9.twk\n1cSW 3\n",
     {"WashFileName1 \"Caf\"", "WashScale1 3"}},
    {"keys of older files", 2, "1LHS 7\n1wSS 8\n", {"SurfaceHighlight 7", "SurfaceShadow 8"}},
    {"flips go by the key, not the comment",
     2,
     "2HFS 1 \t\t\t\t;Flip Surf2 Ver. \n",
     {"SurfaceFlipHor2 1"}},
    {"wash off",
     2,
     "nOSW 0\n",
     {"WashUse 0", "WashFileName1 No_Texture.twk", "WashFileName2 No_Texture.twk",
      "SecondWashExists 0"}},
    {"wash off, the second already is",
     2,
     "xE2W 0\nnOSW 0\n",
     {"WashUse 0", "WashFileName1 No_Texture.twk", "SecondWashExists 0"}},
    {"wash off by its low byte",
     2,
     "xE2W 0\nnOSW 256\n",
     {"WashUse 0", "WashFileName1 No_Texture.twk", "SecondWashExists 0"}},
    {"wash on keeps the number", 2, "nOSW 7\n", {"WashUse 7"}},
    {"surface off",
     2,
     "nOfS 0\n",
     {"SurfaceUse 0", "SurfaceFileName1 No_Texture.twk", "SurfaceFileName2 No_Texture.twk",
      "SecondSurfaceExists 0"}},
    {"surface on is 1",
     2,
     "nOfS 0\nnOfS 7\n",
     {"SurfaceFileName1 No_Texture.twk", "SurfaceFileName2 No_Texture.twk",
      "SecondSurfaceExists 0"}},
    {"background off", 2, "nOkB 0\n", {"BackgroundUse 0", "BackgroundFileName No_Texture.twk"}},
    {"background without texture",
     2,
     "nOkB 3\nNFkB No_Texture.twk\n",
     {"BackgroundUse 0", "BackgroundFileName No_Texture.twk"}},
    {"case counts in the name of no texture",
     2,
     "NFkB no_texture.twk\n",
     {"BackgroundFileName no_texture.twk"}},
    {"version 1: background without texture stays on",
     1,
     "NFkB No_Texture.twk\n",
     {"BackgroundFileName No_Texture.twk"}},
    {"version 1: coverage",
     1,
     "1voC 30\n2voC -2147483648\n",
     {"WashCoverage1 70", "WashCoverage2 -2147483548"}},
    {"version 1: wash", 1, "nOSW 1\n", {"WashType1 0"}},
    {"version 1: wash off",
     1,
     "nOSW 0\n",
     {"WashUse 0", "WashFileName1 No_Texture.twk", "WashFileName2 No_Texture.twk",
      "SecondWashExists 0", "WashType1 0"}},
    {"version 1: second wash", 1, "xE2W 1\n", {"WashType2 0"}},
    {"version 1: no second wash", 1, "xE2W 256\n", {"SecondWashExists 0"}},
    {"version 1: surface",
     1,
     "nOfS 1\n",
     {"SurfaceHue 0", "SurfaceBrightness 100", "SurfaceContrast 100", "SurfaceType1 0"}},
    {"version 1: second surface", 1, "E2fS 1\n", {"SurfaceType2 0"}},
    {"version 1: no second surface", 1, "E2fS 0\n", {"SecondSurfaceExists 0"}},
    {"version 1: surface name",
     1,
     "1NFS Tin.twk\n",
     {"SurfaceFileName1 Tin.twk", "SurfaceType1 0"}},
    {"version 1: no surface texture",
     1,
     "1NFS No_Texture.twk\n2NFS No_Texture.twk\n",
     {"SurfaceFileName1 General_Store.twk", "SurfaceDepth1 0", "SurfaceFileName2 General_Store.twk",
      "SurfaceDepth2 0", "SurfaceType1 0"}},
    {"version 1: no surface texture, surface off",
     1,
     "nOfS 0\n1NFS No_Texture.twk\n",
     {"SurfaceUse 0", "SurfaceFileName1 No_Texture.twk", "SurfaceFileName2 No_Texture.twk",
      "SecondSurfaceExists 0", "SurfaceHue 0", "SurfaceBrightness 100", "SurfaceContrast 100",
      "SurfaceType1 0"}},
    {"version 1: second surface's name",
     1,
     "2NFS Tin.twk\n",
     {"SurfaceFileName2 Tin.twk", "SurfaceType1 0"}},
    {"version 1: surface colour",
     1,
     "1CHS 1\n1CSS 1\n1CMS 255\n",
     {"SurfaceMidtoneColor #ff0000", "SurfaceHighlight 100", "SurfaceShadow 100",
      "SurfaceBrightness 100", "SurfaceContrast 100", "SurfaceHue 0", "SurfaceType1 0"}},
    {"version 1: background", 1, "nOkB 1\n", {"BackgroundHue 0", "BackgroundEnhancedMode 0"}},
    {"the version changes on the way",
     2,
     "1voC 30\nVersion 1;\n2voC 30\n",
     {"WashCoverage1 30", "WashCoverage2 70"}},
};

TEST(PresetReader, Bodies) {
  for (const auto& c : kBodies) {
    SettingsPair pair = Before();
    PresetSession session(pair.session);
    session.PresetVersion = c.version;
    PresetSource source{c.body};
    ReadPresetBody(source, pair.settings, session);
    EXPECT_THAT(Changes(Before(), pair), UnorderedElementsAreArray(c.changes)) << c.name;
  }
}

// 12950 is 0x3296, so red 0x96 and green 0x32: the default, which hides it.
TEST(PresetReader, Version1ShadowColor) {
  SettingsPair pair = Before();
  PresetSession session(pair.session);
  ASSERT_TRUE(ReadPreset("tarnwickstudi press preset;\nVersion 1;\n1CSS 1\n1CHS 1\n1CMS 255\n",
                         pair.settings, session));
  EXPECT_EQ(pair.settings.SurfaceShadowColor, 12950u);
  EXPECT_EQ(pair.settings.SurfaceHighlightColor, 0xFFFFFFu);
}

TEST(PresetReader, Headers) {
  const struct {
    std::string bytes;
    bool isPreset;
  } kHeaders[] = {
      {"TarnwickStudi Press Preset;\n1cSW 9\n", true},
      {"tARNWICKsTUDI pRESS pRESET;\n1cSW 9\n", true},
      {"TarnwickStudi Press Preset;\r\n1cSW 9\r\n", true},
      {"TarnwickStudi Press Preset; and more\n1cSW 9\n", true},
      {"TarnwickStudi Press Preset;", false},
      {"TarnwickStudi Press Preset\n1cSW 9\n", false},
      {" TarnwickStudi Press Preset;\n1cSW 9\n", false},
      {"\nTarnwickStudi Press Preset;\n1cSW 9\n", false},
      {"", false},
  };
  for (const auto& c : kHeaders) {
    SettingsPair pair = Before();
    PresetSession session(pair.session);
    EXPECT_EQ(ReadPreset(c.bytes, pair.settings, session), c.isPreset) << c.bytes;
    EXPECT_EQ(Changes(Before(), pair), c.isPreset ? Strings{"WashScale1 9"} : Strings{}) << c.bytes;
  }
}

TEST(PresetReader, VersionsLastUntilTheNextOne) {
  const std::string head = "TarnwickStudi Press Preset;\n";
  SettingsPair pair;
  PresetSession session(pair.session);
  const struct {
    std::string body;
    std::int32_t coverage;
  } kFiles[] = {
      {"1voC 30\n", 30},
      {"Version 1;\n1voC 30\n", 70},
      {"1voC 30\n", 70},
      {"Version 3;\n1voC 30\n", 70},
      {"Version 2;\n1voC 30\n", 30},
      {"Version 3;\n1voC 30\n", 30},
  };
  for (const auto& c : kFiles) {
    ASSERT_TRUE(ReadPreset(head + c.body, pair.settings, session));
    EXPECT_EQ(pair.settings.WashCoverage1, c.coverage) << c.body;
  }
}

TEST(PresetReader, EveryLine) {
  std::string bytes;
  SettingsPair want = DefaultSettings();
  for (const SampleLine& line : kEverything) {
    bytes += line.text;
    if (line.field == nullptr) continue;
    const SettingField& field = *FindSetting(line.field);
    ASSERT_EQ(SetSettingFromText(field, line.value, want.settings, want.session),
              SettingError::kNone);
    // The key is the field's scripting code from its last character on.
    EXPECT_EQ(field.key >> 24, static_cast<unsigned char>(line.text[3])) << line.text;
    EXPECT_EQ(field.key & 0xFF, static_cast<unsigned char>(line.text[0])) << line.text;
  }
  SettingsPair got = DefaultSettings();
  PresetSession session(got.session);
  ASSERT_TRUE(ReadPreset(bytes, got.settings, session));
  EXPECT_EQ(Changes(want, got), Strings());
}

TEST(PresetReader, ToneColorsGoToTheSession) {
  SettingsPair pair = Before();
  PresetSession session(pair.session);
  ASSERT_TRUE(
      ReadPreset("TarnwickStudi Press Preset;\nlCiH 1\nlCdM 2\nlCdS -3\n", pair.settings, session));
  EXPECT_EQ(Changes(Before(), pair), Strings());
  EXPECT_EQ(session.PresetHighlightColor, 1u);
  EXPECT_EQ(session.PresetMidtoneColor, 2u);
  EXPECT_EQ(session.PresetShadowColor, 0xFFFFFFFDu);
}

// What a kind writes comes back over whatever stood there; what it does not
// write stays.
TEST(PresetReader, WrittenPresetsReadBack) {
  std::mt19937 random(51);
  for (int round = 0; round < 500; ++round) {
    SettingsPair saved;
    for (const SettingField& field : SettingsTable()) {
      if (!UserMaySet(field)) continue;
      StoreSettingNumber(field, static_cast<std::int32_t>(random()), saved.settings, saved.session);
      StoreSettingFloat(field, static_cast<float>(random() % 100000) / 4, saved.settings);
      StoreSettingText(field, "T" + std::to_string(random()) + ".twk", saved.settings,
                       saved.session);
    }
    EffectSettings& s = saved.settings;
    for (std::uint8_t* flag : {&s.WashUse, &s.SurfaceUse, &s.BackgroundUse, &s.SecondWashExists,
                               &s.SecondSurfaceExists}) {
      *flag = random() % 4 != 0;
    }
    const auto kind = static_cast<PresetKind>(random() % 5);
    SettingsPair loaded = MarkedSettings();
    PresetSession session(loaded.session);
    const std::string text = PresetText(kind, saved.settings, saved.session);
    ASSERT_TRUE(ReadPreset(text, loaded.settings, session));
    for (const SettingField& field : SettingsTable()) {
      const bool isWritten = field.section != PresetSection::kNone &&
                             text.find('\n' +
                                       std::string({static_cast<char>(field.key & 0xFF),
                                                    static_cast<char>(field.key >> 8 & 0xFF),
                                                    static_cast<char>(field.key >> 16 & 0xFF),
                                                    static_cast<char>(field.key >> 24)}) +
                                       ' ') != text.npos;
      if (!isWritten) continue;
      // Two decimals hold quarters; a background that is off has its own name.
      if (std::string(field.name) == "BackgroundFileName" && s.BackgroundUse == 0) continue;
      EXPECT_EQ(SettingAsText(field, loaded.settings, loaded.session),
                SettingAsText(field, saved.settings, saved.session))
          << field.name;
    }
    if (kind == PresetKind::kUser && s.WashUse != 0 && s.SecondWashExists == 0) {
      EXPECT_EQ(loaded.settings.SecondWashExists, 0);
      EXPECT_STREQ(loaded.settings.WashFileName2, "Marked.twk");
      EXPECT_EQ(loaded.settings.WashScale2, 77);
    }
  }
}

}  // namespace
}  // namespace tarnwick
