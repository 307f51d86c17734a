#include "dialog/models/strip_commands.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <string_view>

#include "dialog/models/effect_strip.h"
#include "settings/settings_table.h"

namespace tarnwick {
namespace {

EffectViews OnTab(int tab) {
  EffectViews views;
  views.currentTab = static_cast<std::uint8_t>(tab);
  return views;
}

void SetName(char (&name)[kTextureNameSize], std::string_view text) {
  std::memset(name, 0, sizeof name);
  std::memcpy(name, text.data(), text.size());
}

TEST(StripCommands, EachButtonLeadsToItsView) {
  struct Case {
    int command, tab;
    ViewMode view;
    LayerWork work;
  };
  const Case kCases[] = {
      {kViewComposite, kBasicTab, ViewMode::kComposite, LayerWork::kNone},
      {kViewWashOne, kWashTab, ViewMode::kWashOne, LayerWork::kNone},
      {kViewWashTwo, kWashTab, ViewMode::kWashTwo, LayerWork::kNone},
      {kAddWash, kWashTab, ViewMode::kWashTwo, LayerWork::kMakeSecondWash},
      {kViewOriginal, kBasicTab, ViewMode::kOriginal, LayerWork::kNone},
      {kViewBackground, kBackgroundTab, ViewMode::kBackground, LayerWork::kNone},
      {kViewSurfaceOne, kSurfaceTab, ViewMode::kSurfaceOne, LayerWork::kNone},
      {kViewSurfaceTwo, kSurfaceTab, ViewMode::kSurfaceTwo, LayerWork::kNone},
      {kAddSurface, kSurfaceTab, ViewMode::kSurfaceTwo, LayerWork::kMakeSecondSurface},
      {kDeleteSurfaceTwo, kSurfaceTab, ViewMode::kSurfaceOne, LayerWork::kDropSecondSurface},
      {kDeleteSurfaceOne, kSurfaceTab, ViewMode::kSurfaceOne, LayerWork::kRemakeSurfaces},
      {kDeleteWashTwo, kWashTab, ViewMode::kWashOne, LayerWork::kDropSecondWash},
      {kDeleteWashOne, kWashTab, ViewMode::kWashOne, LayerWork::kRemakeWashes},
  };
  for (const Case& c : kCases) {
    EffectSettings settings;
    EffectViews views = OnTab(c.tab);
    views.Current() = ViewMode::kOriginal;
    EXPECT_EQ(ChangeEffects(views, settings, c.command), c.work) << c.command;
    // Links are carried on meanwhile, from what was in view.
    EXPECT_EQ(views.Current(), ViewMode::kOriginal) << c.command;
    ChooseView(views, c.command);
    EXPECT_EQ(views.Current(), c.view) << c.command;
    // What is drawn as selected is what has been pressed, unless that has gone.
    if (c.work == LayerWork::kNone) {
      EXPECT_EQ(ButtonOfView(views.Current()), c.command);
    }
    const bool shows = c.tab != kBasicTab && c.tab != kBackgroundTab;
    EXPECT_EQ(ShowsOneEffect(views), shows) << c.command;
  }
}

TEST(StripCommands, SecondEffectsComeAndGo) {
  EffectSettings settings;
  EffectViews views = OnTab(kWashTab);
  (void)ChangeEffects(views, settings, kAddWash);
  EXPECT_TRUE(views.hasSecondWash && settings.SecondWashExists == 1);
  EXPECT_FALSE(views.hasSecondSurface || settings.SecondSurfaceExists != 0);
  (void)ChangeEffects(views, settings, kDeleteWashTwo);
  EXPECT_FALSE(views.hasSecondWash || settings.SecondWashExists != 0);
  views.currentTab = kSurfaceTab;
  (void)ChangeEffects(views, settings, kAddSurface);
  EXPECT_TRUE(views.hasSecondSurface && settings.SecondSurfaceExists == 1);
  EXPECT_FALSE(views.hasSecondWash);
  (void)ChangeEffects(views, settings, kDeleteSurfaceTwo);
  EXPECT_FALSE(views.hasSecondSurface || settings.SecondSurfaceExists != 0);
  EXPECT_EQ(views.surfaceView, ViewMode::kComposite);
  ChooseView(views, kDeleteSurfaceTwo);
  // The page of the washes has its own.
  EXPECT_EQ(views.washView, ViewMode::kComposite);
  EXPECT_EQ(views.surfaceView, ViewMode::kSurfaceOne);
}

bool EndsIn(std::string_view name, char digit) {
  return !name.empty() && name.back() == digit;
}

bool IsOneOf(std::string_view name, std::initializer_list<std::string_view> stems) {
  for (const std::string_view stem : stems) {
    if (name.substr(0, name.size() - 1) == stem) return true;
  }
  return false;
}

// Every field of a pair gets another value in either place; those that move have to
// have changed places, and all the others have to stay. Which belong to a pair comes
// from the table of settings, so that a new field has to be thought of here.
void ExpectSwap(int command, int tab, std::string_view kind,
                std::initializer_list<std::string_view> staying) {
  EffectSettings before;
  auto* const bytes = reinterpret_cast<unsigned char*>(&before);
  for (std::size_t i = 0; i < sizeof before; ++i) bytes[i] = static_cast<unsigned char>(i % 251);
  EffectSettings after = before;
  EffectViews views = OnTab(tab);
  (void)ChangeEffects(views, after, command);
  const auto part = [](const EffectSettings& s, const SettingField& field) {
    return std::string(reinterpret_cast<const char*>(&s) + field.offset, field.size);
  };
  int moved = 0;
  for (const SettingField& one : SettingsTable()) {
    const std::string_view name = one.name;
    if (name.substr(0, kind.size()) != kind || !EndsIn(name, '1')) continue;
    for (const SettingField& two : SettingsTable()) {
      const std::string_view other = two.name;
      if (!EndsIn(other, '2') ||
          other.substr(0, other.size() - 1) != name.substr(0, name.size() - 1)) {
        continue;
      }
      const bool stays = IsOneOf(name, staying);
      EXPECT_EQ(part(after, one), part(before, stays ? one : two)) << name;
      EXPECT_EQ(part(after, two), part(before, stays ? two : one)) << other;
      moved += stays ? 0 : 1;
    }
  }
  EXPECT_GE(moved, 7);
}

TEST(StripCommands, TheSecondTakesThePlaceOfTheFirst) {
  ExpectSwap(kDeleteWashOne, kWashTab, "Wash",
             {"WashAngle", "WashEdgeDistance", "WashRandomize", "WashOffsetX", "WashOffsetY"});
  ExpectSwap(kDeleteSurfaceOne, kSurfaceTab, "Surface",
             {"SurfaceAngle", "SurfaceOffsetX", "SurfaceOffsetY"});
}

// A record in which nothing is at its default.
EffectSettings Worn() {
  EffectSettings s;
  SetName(s.WashFileName1, "Barn_Wood.twk");
  SetName(s.SurfaceFileName1, "Cracked_Plaster.twk");
  SetName(s.BackgroundFileName, "Battleship.twk");
  s.SecondWashExists = s.SecondSurfaceExists = 1;
  s.WashScale1 = s.SurfaceDepth1 = s.SurfaceMidtone = s.BackgroundScale = 77;
  return s;
}

TEST(StripCommands, ResetTakesItsPageOnly) {
  struct Case {
    int tab;
    bool wash, surface, background;  // is reset
  };
  for (const Case& c :
       {Case{kBasicTab, true, true, true}, Case{kWashTab, true, false, false},
        Case{kSurfaceTab, false, true, false}, Case{kBackgroundTab, false, false, true}}) {
    EffectSettings s = Worn();
    SettingsSession session;
    session.SurfaceColorCategory = session.BackgroundColorCategory = "Sepia";
    const KeptLayers kept = ResetPage(s, session, c.tab);
    EXPECT_EQ(kept, (KeptLayers{!c.wash, !c.surface, !c.background})) << c.tab;
    EXPECT_EQ(s.SnapshotHeld, 1);
    const std::string none = "No_Texture.twk";
    EXPECT_EQ(s.WashFileName1, c.wash ? none : "Barn_Wood.twk") << c.tab;
    EXPECT_EQ(s.SurfaceFileName1, c.surface ? none : "Cracked_Plaster.twk") << c.tab;
    EXPECT_EQ(s.BackgroundFileName, c.background ? none : "Battleship.twk") << c.tab;
    EXPECT_EQ(s.SecondWashExists, c.wash ? 0 : 1) << c.tab;
    EXPECT_EQ(s.SecondSurfaceExists, c.surface ? 0 : 1) << c.tab;
    EXPECT_EQ(s.WashScale1 == 77, !c.wash) << c.tab;
    EXPECT_EQ(s.SurfaceDepth1 == 77, !c.surface) << c.tab;
    EXPECT_EQ(s.SurfaceMidtone == 77, !c.surface) << c.tab;
    EXPECT_EQ(s.BackgroundScale == 77, !c.background) << c.tab;
    EXPECT_EQ(session.SurfaceColorCategory, c.surface ? "Custom" : "Sepia") << c.tab;
    EXPECT_EQ(session.BackgroundColorCategory, c.background ? "Custom" : "Sepia") << c.tab;
  }
}

TEST(StripCommands, TheStripFollowsTheSettings) {
  EffectSettings settings;
  EffectViews views = OnTab(kSurfaceTab);
  views.washView = ViewMode::kWashOne;
  views.surfaceView = ViewMode::kSurfaceOne;
  EXPECT_FALSE(SyncViews(views, settings).isChanged);
  EXPECT_EQ(views.washView, ViewMode::kWashOne);

  settings.SecondWashExists = 1;
  StripSync sync = SyncViews(views, settings);
  EXPECT_TRUE(sync.isChanged && views.hasSecondWash);
  EXPECT_EQ(sync.wash, LayerWork::kMakeSecondWash);
  EXPECT_EQ(sync.surface, LayerWork::kNone);
  EXPECT_EQ(views.washView, ViewMode::kComposite);
  EXPECT_EQ(views.surfaceView, ViewMode::kSurfaceOne);

  views.washView = ViewMode::kWashTwo;
  EXPECT_FALSE(SyncViews(views, settings).isChanged);
  EXPECT_EQ(views.washView, ViewMode::kWashTwo);

  settings.SecondWashExists = 0;
  settings.SecondSurfaceExists = 1;
  sync = SyncViews(views, settings);
  EXPECT_EQ(sync.wash, LayerWork::kDropSecondWash);
  EXPECT_EQ(sync.surface, LayerWork::kMakeSecondSurface);
  EXPECT_EQ(views.washView, ViewMode::kComposite);
  EXPECT_EQ(views.surfaceView, ViewMode::kComposite);
  EXPECT_TRUE(!views.hasSecondWash && views.hasSecondSurface);
}

}  // namespace
}  // namespace tarnwick
