#include "dialog/models/texture_matches.h"

#include <gtest/gtest.h>

#include <cstring>

namespace tarnwick {
namespace {

const char kNone[] = "No_Texture.twk";

// Null for a second texture: there is only one layer.
struct Names {
  const char *wash1, *wash2, *surface1, *surface2, *background;
};

template <std::size_t size>
void SetName(char (&name)[size], const char* text) {
  std::memset(name, 0, size);
  std::memcpy(name, text, std::strlen(text));
}

EffectSettings WithNames(const Names& names) {
  EffectSettings settings;
  SetName(settings.WashFileName1, names.wash1);
  SetName(settings.WashFileName2, names.wash2 != nullptr ? names.wash2 : "Left.twk");
  settings.SecondWashExists = names.wash2 != nullptr ? 1 : 0;
  SetName(settings.SurfaceFileName1, names.surface1);
  SetName(settings.SurfaceFileName2, names.surface2 != nullptr ? names.surface2 : "Left.twk");
  settings.SecondSurfaceExists = names.surface2 != nullptr ? 1 : 0;
  SetName(settings.BackgroundFileName, names.background);
  return settings;
}

TEST(TextureMatches, UseFollowsTheTextureInView) {
  struct Case {
    const char* name;
    Names names;
    int tab;
    ViewMode view;
    int wash, surface;
  };
  const ViewMode kAll = ViewMode::kComposite;
  const Case kCases[] = {
      {"one of each", {"A", nullptr, "B", nullptr, kNone}, kBasicTab, kAll, 1, 1},
      {"a texture left behind in a second one that is gone",
       {kNone, nullptr, kNone, nullptr, kNone},
       kBasicTab,
       kAll,
       0,
       0},
      {"two empty ones", {kNone, kNone, kNone, kNone, kNone}, kWashTab, ViewMode::kWashTwo, 0, 0},
      {"composite of a half", {kNone, "A", "B", kNone, kNone}, kWashTab, kAll, 1, 1},
      {"empty wash in view", {kNone, "A", kNone, "A", kNone}, kWashTab, ViewMode::kWashOne, 0, 1},
      {"other wash in view", {kNone, "A", kNone, "A", kNone}, kWashTab, ViewMode::kWashTwo, 1, 1},
      {"empty surface in view",
       {"A", kNone, "A", kNone, kNone},
       kSurfaceTab,
       ViewMode::kSurfaceTwo,
       1,
       0},
      {"other surface in view",
       {"A", kNone, "A", kNone, kNone},
       kSurfaceTab,
       ViewMode::kSurfaceOne,
       1,
       1},
  };
  for (const Case& c : kCases) {
    EffectSettings settings = WithNames(c.names);
    EffectViews views;
    // The pages keep views of their own: only the one that is up counts.
    views.washView = ViewMode::kWashOne;
    views.surfaceView = ViewMode::kSurfaceTwo;
    views.currentTab = static_cast<std::uint8_t>(c.tab);
    views.Current() = c.view;
    UpdateUseFlags(views, settings);
    EXPECT_EQ(settings.WashUse, c.wash) << c.name;
    EXPECT_EQ(settings.SurfaceUse, c.surface) << c.name;
    EXPECT_EQ(settings.BackgroundUse, 0) << c.name;
  }
}

TEST(TextureMatches, LinksHoldOnlyWhereTexturesMatch) {
  struct Case {
    const char* name;
    Names names;
    TextureMatches matches;
    int wash, surface, background;  // links that stay
  };
  const Case kCases[] = {
      {"all three", {"A", nullptr, "A", nullptr, "A"}, {false, false, true, true, true}, 1, 1, 1},
      {"all different", {"A", nullptr, "B", nullptr, "C"}, {}, 0, 0, 0},
      {"wash and surface",
       {"A", nullptr, "A", nullptr, "B"},
       {false, false, true, false, false},
       1,
       1,
       0},
      {"wash and background",
       {"A", nullptr, "B", nullptr, "A"},
       {false, false, false, true, false},
       1,
       0,
       1},
      {"surface and background",
       {"A", nullptr, "B", nullptr, "B"},
       {false, false, false, false, true},
       0,
       1,
       1},
      {"no texture is nothing in common", {kNone, nullptr, kNone, nullptr, kNone}, {}, 0, 0, 0},
      {"a second wash apart",
       {"A", "B", "A", nullptr, "A"},
       {false, false, false, false, true},
       0,
       1,
       1},
      {"a second wash alike",
       {"A", "A", "A", nullptr, "B"},
       {true, false, true, false, false},
       1,
       1,
       0},
      {"a second surface apart",
       {"A", nullptr, "A", "B", "A"},
       {false, false, false, true, false},
       1,
       0,
       1},
      {"two alike, but nothing else",
       {"A", "A", "B", "B", kNone},
       {true, true, false, false, false},
       0,
       0,
       0},
  };
  for (const Case& c : kCases) {
    EffectSettings settings = WithNames(c.names);
    SettingsSession session;
    EXPECT_EQ(UpdateTextureMatches({}, settings, session), c.matches) << c.name;
    EXPECT_EQ(session.WashLinked + session.SurfaceLinked + session.BackgroundLinked, 0) << c.name;

    session.WashLinked = session.SurfaceLinked = session.BackgroundLinked = 1;
    UpdateTextureMatches({}, settings, session);
    EXPECT_EQ(session.WashLinked, c.wash) << c.name;
    EXPECT_EQ(session.SurfaceLinked, c.surface) << c.name;
    EXPECT_EQ(session.BackgroundLinked, c.background) << c.name;
  }
}

}  // namespace
}  // namespace tarnwick
