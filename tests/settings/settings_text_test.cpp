#include "settings/settings_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <random>

#include "settings/near_names.h"
#include "settings/settings_changes.h"
#include "settings/settings_reference.h"

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string k123Bytes(123, 'n');

const struct {
  const char* field;
  std::string text;
  SettingError error;
  std::string stored;  // as printed; unchanged on an error
} kTexts[] = {
    {"washuse", "OFF", SettingError::kNone, "0"},
    {"WASHUSE", "no", SettingError::kNone, "0"},
    {"SecondWashExists", "True", SettingError::kNone, "1"},
    {"SecondWashExists", "255", SettingError::kNone, "255"},
    {"SecondWashExists", "256", SettingError::kDoesNotFit, "0"},
    {"SecondWashExists", "-1", SettingError::kDoesNotFit, "0"},
    {"SecondWashExists", "", SettingError::kNotANumber, "0"},
    {"SurfaceLinked", "on", SettingError::kNone, "1"},
    {"BackgroundEnhancedMode", "yes", SettingError::kNone, "1"},
    {"WashType1", "bleach", SettingError::kNone, "2"},
    {"WashType1", "Vivid", SettingError::kNotANumber, "0"},
    {"WashType1", "on", SettingError::kNotANumber, "0"},
    {"SurfaceType2", "Vivid", SettingError::kNone, "4"},
    {"WashScale1", "-2147483648", SettingError::kNone, "-2147483648"},
    {"WashScale1", "2147483648", SettingError::kDoesNotFit, "0"},
    {"WashScale1", "99999999999999999999", SettingError::kDoesNotFit, "0"},
    {"WashScale1", "50 ", SettingError::kNotANumber, "0"},
    {"WashScale1", "1.5", SettingError::kNotANumber, "0"},
    {"WashStainColor1", "#01A2ff", SettingError::kNone, "#01a2ff"},
    {"WashStainColor1", "13119", SettingError::kNone, "#3f3300"},  // 0x333F: red 0x3F
    {"WashStainColor1", "4294967295", SettingError::kNone, "4294967295"},
    {"WashStainColor1", "4294967296", SettingError::kDoesNotFit, "#000000"},
    {"WashStainColor1", "#12345", SettingError::kNotAColor, "#000000"},
    {"WashStainColor1", "#1234567", SettingError::kNotAColor, "#000000"},
    {"WashStainColor1", "#12345g", SettingError::kNotAColor, "#000000"},
    {"WashStainColor1", "#-12345", SettingError::kNotAColor, "#000000"},
    {"WashStainColor1", "red", SettingError::kNotAColor, "#000000"},
    {"SurfaceLightAlpha", "-0.25", SettingError::kNone, "-0.25"},
    {"SurfaceLightAlpha", "0,25", SettingError::kNotANumber, "58"},
    {"SurfaceLightAlpha", "1e39", SettingError::kDoesNotFit, "58"},
    {"SurfaceLightAlpha", "nan", SettingError::kNotANumber, "58"},
    {"SurfaceLightAlpha", "inf", SettingError::kNotANumber, "58"},
    {"WashFileName1", "Old Tin", SettingError::kNone, "Old Tin.twk"},
    {"WashFileName1", "Old Tin.TWK", SettingError::kNone, "Old Tin.TWK"},
    {"WashFileName1", "\"Old Tin\"", SettingError::kNone, "\"Old Tin\""},
    {"WashFileName1", "", SettingError::kNone, ""},
    {"WashFileName1", k123Bytes, SettingError::kNone, k123Bytes + ".twk"},
    {"WashFileName1", k123Bytes + "n", SettingError::kTooLong, "Scratched.twk"},
    {"SurfaceColorCategory", std::string(63, 'c'), SettingError::kNone, std::string(63, 'c')},
    {"SurfaceColorCategory", std::string(64, 'c'), SettingError::kTooLong, "Custom"},
    {"Amount", "-32769", SettingError::kDoesNotFit, "50"},
    {"Disposition", "65535", SettingError::kNone, "65535"},
    {"SavedWashMask1", "1", SettingError::kNotSettable, "0"},
    {"WindowLeft", "1", SettingError::kNotSettable, "100"},
};

TEST(SettingsText, Values) {
  for (const auto& c : kTexts) {
    const SettingField* field = FindSetting(c.field);
    ASSERT_NE(field, nullptr) << c.field;
    SettingsPair pair = DefaultSettings();
    EXPECT_EQ(SetSettingFromText(*field, c.text, pair.settings, pair.session), c.error)
        << c.field << '=' << c.text;
    EXPECT_EQ(SettingAsText(*field, pair.settings, pair.session), c.stored)
        << c.field << '=' << c.text;
  }
}

const struct {
  const char* field;
  const char* text;
  bool isInRange;
} kRanges[] = {
    {"WashScale1", "0", true},           {"WashScale1", "200", true},
    {"WashScale1", "201", false},        {"WashScale1", "-1", false},
    {"WashIntensity2", "0", false},      {"WashCoverage1", "-100", true},
    {"WashAngle2", "270", true},         {"WashAngle2", "45", false},
    {"WashAngle2", "360", false},        {"WashType1", "4", false},
    {"SurfaceType1", "4", true},         {"WashInside1", "2", false},
    {"WashRandomize1", "-99999", true},  {"WashStainColor1", "16777216", false},
    {"SurfaceLightAlpha", "-900", true}, {"LinkNewSurface", "-7", true},
};

TEST(SettingsText, Ranges) {
  for (const auto& c : kRanges) {
    const SettingField& field = *FindSetting(c.field);
    SettingsPair pair = DefaultSettings();
    ASSERT_EQ(SetSettingFromText(field, c.text, pair.settings, pair.session), SettingError::kNone);
    EXPECT_EQ(SettingIsInRange(field, pair.settings, pair.session), c.isInRange)
        << c.field << '=' << c.text;
  }
  const SettingsPair fresh = DefaultSettings();
  for (const SettingField& field : SettingsTable()) {
    EXPECT_TRUE(SettingIsInRange(field, fresh.settings, fresh.session)) << field.name;
  }
}

TEST(SettingsText, PrintedValuesReadBack) {
  std::mt19937 random(4);
  for (int round = 0; round < 200; ++round) {
    SettingsPair want;
    SettingsPair got = DefaultSettings();
    for (const SettingField& field : SettingsTable()) {
      if (!UserMaySet(field)) continue;
      StoreSettingNumber(field, static_cast<std::int32_t>(random()), want.settings, want.session);
      // Any finite float: an exponent of all ones is none.
      StoreSettingFloat(field,
                        std::bit_cast<float>(static_cast<std::uint32_t>(random()) & 0xBFFFFFFF),
                        want.settings);
      StoreSettingText(field, std::string(random() % 64, static_cast<char>(1 + random() % 255)),
                       want.settings, want.session);
      const std::string text = SettingAsText(field, want.settings, want.session);
      EXPECT_EQ(SetSettingFromText(field, text, got.settings, got.session), SettingError::kNone)
          << field.name << '=' << text;
      EXPECT_EQ(SettingNumber(field, got.settings, got.session),
                SettingNumber(field, want.settings, want.session));
      EXPECT_EQ(std::bit_cast<std::uint32_t>(SettingFloat(field, got.settings)),
                std::bit_cast<std::uint32_t>(SettingFloat(field, want.settings)));
      EXPECT_EQ(SettingText(field, got.settings, got.session),
                SettingText(field, want.settings, want.session));
    }
  }
}

TEST(SettingsText, ANameWithoutTerminatorEndsWithItsArray) {
  SettingsPair pair;
  std::fill(std::begin(pair.settings.WashFileName1), std::end(pair.settings.WashFileName1), 'x');
  EXPECT_EQ(SettingText(*FindSetting("WashFileName1"), pair.settings, pair.session).size(), 128u);
}

TEST(SettingsReference, Values) {
  EXPECT_EQ(DescribeSettingValues(*FindSetting("WashCoverage1")), "-100 to 100");
  EXPECT_EQ(DescribeSettingValues(*FindSetting("BackgroundAngle")), "0, 90, 180, 270");
  EXPECT_EQ(DescribeSettingValues(*FindSetting("WashType2")),
            "0 Erosion, 1 Stain, 2 Bleach, 3 Color");
  EXPECT_EQ(DescribeSettingValues(*FindSetting("WashInside1")), "0 or 1");
  EXPECT_THAT(SettingsReference(),
              ::testing::HasSubstr("| `BackgroundHighlightColor` | #rrggbb | #ffc800 | `BHCl` |"));
  EXPECT_THAT(SettingsHelp(), ::testing::Not(::testing::HasSubstr("SavedWashMask")));
}

TEST(NearNames, Distance) {
  const struct {
    const char* a;
    const char* b;
    std::size_t slips;
  } kPairs[] = {
      {"", "", 0},         {"", "abc", 3},  {"abc", "", 3},     {"kitten", "sitting", 3},
      {"Wash", "wAsH", 0}, {"ab", "ba", 2}, {"abcd", "acd", 1}, {"acd", "abcd", 1},
  };
  for (const auto& c : kPairs) EXPECT_EQ(EditDistance(c.a, c.b), c.slips) << c.a << ' ' << c.b;
}

TEST(NearNames, Candidates) {
  EXPECT_THAT(NearSettingNames("WashScal1"), ::testing::Contains("WashScale1"));
  EXPECT_EQ(NearSettingNames("surfacehu").front(), "SurfaceHue");
  EXPECT_THAT(NearSettingNames("backgroundscale1"), ElementsAre("BackgroundScale"));
  EXPECT_THAT(NearSettingNames("perspective"), ElementsAre("SurfacePerspectiveOn"));
  EXPECT_THAT(NearSettingNames("WindowLeft"), IsEmpty());
  EXPECT_THAT(NearSettingNames("qq"), IsEmpty());
  EXPECT_THAT(NearSettingNames(""), IsEmpty());
  const std::vector<std::string> names = {"Ash", "Bark", "Barn"};
  EXPECT_THAT(NearNames("Bar", names, 1), ElementsAre("Bark"));
}

}  // namespace
}  // namespace tarnwick
