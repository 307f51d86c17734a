#include "settings/effect_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>

#include "settings/settings_changes.h"

namespace tarnwick {
namespace {

using ::testing::UnorderedElementsAreArray;
using Names = std::vector<std::string>;

// What a fresh block holds besides zeros.
SettingsPair FreshByHand() {
  SettingsPair pair;
  EffectSettings& s = pair.settings;
  s.WashUse = s.SurfaceUse = s.BackgroundUse = 1;
  StoreTextureName(s.WashFileName1, "Scratched.twk");
  StoreTextureName(s.WashFileName2, "General_Store.twk");
  StoreTextureName(s.BackgroundFileName, "Rusted.twk");
  StoreTextureName(s.SurfaceFileName1, "Battleship.twk");
  StoreTextureName(s.SurfaceFileName2, "Fiberglass.twk");
  s.WashIntensity1 = s.WashIntensity2 = 100;
  s.WashCoverageScale1 = s.WashCoverageScale2 = 100;
  s.WashInside1 = s.WashInside2 = 1;
  s.WashRandomize1 = s.WashRandomize2 = 123;
  s.WashStainColor2 = 100 + 256 * 100;  // red and green 100
  s.WashType2 = 1;
  s.BackgroundHighlight = s.BackgroundMidtone = s.BackgroundShadow = 100;
  s.BackgroundHighlightColor = 255 + 256 * 200;
  s.BackgroundMidtoneColor = 155 + 256 * 50 + 65536 * 50;
  s.BackgroundShadowColor = 100 + 256 * 30;
  s.SurfaceDepth1 = s.SurfaceDepth2 = 50;
  s.SurfaceBrightness = s.SurfaceContrast = s.SurfaceIntensity = 100;
  s.SurfaceType1 = 1;
  s.SurfaceHighlight = s.SurfaceShadow = 100;
  s.SurfaceMidtone = 50;
  s.SurfaceLightAlpha = std::bit_cast<float>(0x42680000u);
  s.SurfaceLightBeta = std::bit_cast<float>(0x420C0000u);
  s.SurfaceHighlightColor = 0xFFFFFF;
  s.SurfaceMidtoneColor = 200 + 256 * 200;
  s.SurfaceShadowColor = 150 + 256 * 50;
  s.WindowLeft = s.WindowTop = 100;
  s.WindowWidth = 828;
  s.WindowHeight = 602;
  s.Amount = 50;
  s.Disposition = 1;
  s.ApplyToAllFirst = 1;
  return pair;
}

TEST(EffectSettings, FreshBlock) {
  SettingsPair fresh = MarkedSettings();
  fresh.session = {};
  fresh.session.PickerLivePreview = 1;
  InitSettingsToDefaults(fresh.settings, fresh.session);
  EXPECT_EQ(Changes(FreshByHand(), fresh), Names());
  EXPECT_EQ(fresh.session.PickerLivePreview, 0);
}

TEST(EffectSettings, ResettingAllLeavesLinksAndBatch) {
  const SettingsPair marked = MarkedSettings();
  SettingsPair reset = marked;
  ResetAllSettings(reset.settings, reset.session);
  EXPECT_EQ(Changes(DefaultSettings(), reset),
            (Names{"WashLinked 77", "SurfaceLinked 77", "BackgroundLinked 77", "SnapshotHeld 77",
                   "ApplyToAll 77", "ApplyToAllFirst 77", "BatchMode 77"}));
}

void ResetWash1Of(SettingsPair& pair) {
  ResetWash1(pair.settings);
}
void ResetWash2Of(SettingsPair& pair) {
  ResetWash2(pair.settings);
}
void ResetBackgroundOf(SettingsPair& pair) {
  ResetBackground(pair.settings, pair.session);
}
void ResetSurface1Of(SettingsPair& pair) {
  ResetSurface1(pair.settings, pair.session);
}
void ResetSurface2Of(SettingsPair& pair) {
  ResetSurface2(pair.settings);
}
void ResetSurfaceCommonOf(SettingsPair& pair) {
  ResetSurfaceCommon(pair.settings);
}
void ResetSurfaceColorsOf(SettingsPair& pair) {
  ResetSurfaceColors(pair.settings);
}

Names WashFields(const char* number, const char* type, const char* stain) {
  Names fields;
  for (const char* field :
       {"Scale_ 0", "Intensity_ 100", "FlipHor_ 0", "FlipVer_ 0", "Invert_ 0", "Angle_ 0",
        "Coverage_ 0", "CoverageScale_ 100", "EdgeDistance_ 0", "EdgeSoftness_ 0", "Inside_ 1",
        "Randomize_ 123", "OffsetX_ 0", "OffsetY_ 0"}) {
    fields.push_back(std::string("Wash") + field);
  }
  fields.push_back(std::string("WashType_ ") + type);
  fields.push_back(std::string("WashStainColor_ ") + stain);
  for (std::string& field : fields) field.replace(field.find('_'), 1, number);
  return fields;
}

const struct {
  const char* name;
  void (*reset)(SettingsPair&);
  Names changes;
} kResets[] = {
    {"wash 1", ResetWash1Of, WashFields("1", "0", "#000000")},
    {"wash 2", ResetWash2Of, WashFields("2", "1", "#646400")},
    {"background",
     ResetBackgroundOf,
     {"BackgroundUse 1", "BackgroundEntire 0", "BackgroundScale 0", "BackgroundFlipHor 0",
      "BackgroundFlipVer 0", "BackgroundInvert 0", "BackgroundAngle 0", "BackgroundHighlight 100",
      "BackgroundMidtone 100", "BackgroundShadow 100", "BackgroundHue 0",
      "BackgroundEnhancedMode 0", "BackgroundHighlightColor #ffc800",
      "BackgroundMidtoneColor #9b3232", "BackgroundShadowColor #641e00", "BackgroundOffsetX 0",
      "BackgroundOffsetY 0", "BackgroundColorCategory Custom"}},
    {"surface 1",
     ResetSurface1Of,
     {"SurfaceDepth1 50", "SurfaceScale1 0", "SurfaceInvert1 0", "SurfaceFlipHor1 0",
      "SurfaceFlipVer1 0", "SurfaceAngle1 0", "SurfaceOffsetX1 0", "SurfaceOffsetY1 0",
      "SurfaceType1 1", "SurfaceColorCategory Custom"}},
    {"surface 2",
     ResetSurface2Of,
     {"SurfaceDepth2 50", "SurfaceScale2 0", "SurfaceInvert2 0", "SurfaceFlipHor2 0",
      "SurfaceFlipVer2 0", "SurfaceAngle2 0", "SurfaceOffsetX2 0", "SurfaceOffsetY2 0",
      "SurfaceType2 0"}},
    {"surface, shared",
     ResetSurfaceCommonOf,
     {"SurfaceEntire 0", "SurfaceIncludeWashArea 0", "SurfaceBrightness 100", "SurfaceContrast 100",
      "SurfaceHue 0", "SurfaceIntensity 100", "SurfaceHighlight 100", "SurfaceMidtone 50",
      "SurfaceShadow 100", "SurfacePerspectiveOn 0", "SurfaceLightAlpha 58", "SurfaceLightBeta 35",
      "SurfaceHighlightColor #ffffff", "SurfaceMidtoneColor #c8c800",
      "SurfaceShadowColor #963200"}},
    {"surface colours",
     ResetSurfaceColorsOf,
     {"SurfaceHighlightColor #ffffff", "SurfaceMidtoneColor #c8c800",
      "SurfaceShadowColor #963200"}},
};

TEST(EffectSettings, PartialResetsTouchTheirOwn) {
  for (const auto& c : kResets) {
    const SettingsPair marked = MarkedSettings();
    SettingsPair reset = marked;
    c.reset(reset);
    EXPECT_THAT(Changes(marked, reset), UnorderedElementsAreArray(c.changes)) << c.name;
  }
}

}  // namespace
}  // namespace tarnwick
