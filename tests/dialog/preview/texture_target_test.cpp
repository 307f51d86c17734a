// The texture drawer over a preview: what is tried shows as a dialog that opens with it
// would show it, and Cancel brings everything back.
#include "dialog/edits/texture_target.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "dialog/preview/preview_stage.h"

namespace tarnwick {
namespace {

using testing::FirstDifference;
using testing::NoisyDocument;
using testing::Pnm;
using testing::PreviewStage;

constexpr PaneSize kPane = {60, 44};

void Name(char (&to)[kTextureNameSize], const char* texture) {
  std::snprintf(to, sizeof to, "%s.twk", texture);
}

struct Drawer {
  explicit Drawer(int tab) : stage(NoisyDocument(132, 96, 4)) {
    views.currentTab = static_cast<std::uint8_t>(tab);
    EffectSettings& s = stage.settings;
    Name(s.WashFileName1, "General_Store");
    Name(s.WashFileName2, "Scratched");
    Name(s.SurfaceFileName1, "Battleship");
    Name(s.SurfaceFileName2, "Fiberglass");
    Name(s.BackgroundFileName, "Rusted");
    s.SecondWashExists = 1;
  }
  [[nodiscard]] std::string Difference() {
    return FirstDifference(stage.Shown(ViewMode::kComposite, kPane),
                           stage.Fresh(ViewMode::kComposite, kPane));
  }

  PreviewStage stage;
  EffectViews views;
  TextureTarget target{stage.settings, stage.g.layers, stage.g.render, views};
};

TEST(TextureTarget, ShowsWhatIsTried) {
  for (const int tab : {kWashTab, kSurfaceTab, kBackgroundTab}) {
    SCOPED_TRACE(tab);
    Drawer drawer(tab);
    drawer.stage.Open(kPane);
    const Pnm first = drawer.stage.Shown(ViewMode::kComposite, kPane);
    const std::string name = drawer.target.Open(tab);
    for (const char* const tried : {"Fiberglass.twk", "No_Texture.twk", "Marble.twk"}) {
      const TextureWork work = drawer.target.Try(tried);
      EXPECT_TRUE(work.settingsChanged);
      EXPECT_FALSE(work.closeDrawer);
      EXPECT_EQ(drawer.Difference(), "") << tried;
    }
    const TextureWork work = drawer.target.Cancel();
    EXPECT_TRUE(work.closeDrawer && work.textureChosen && work.settingsChanged);
    EXPECT_FALSE(work.clearProgress);
    EXPECT_EQ(FirstDifference(drawer.stage.Shown(ViewMode::kComposite, kPane), first), "");
    EXPECT_FALSE(drawer.target.IsOpen());
  }
}

TEST(TextureTarget, EditsTheWashInView) {
  Drawer drawer(kWashTab);
  drawer.views.washView = ViewMode::kWashTwo;
  drawer.stage.Open(kPane);
  EXPECT_EQ(drawer.target.Open(kWashTab), "Scratched.twk");
  (void)drawer.target.Try("Rusted.twk");
  const EffectSettings& s = drawer.stage.settings;
  EXPECT_STREQ(s.WashFileName1, "General_Store.twk");
  EXPECT_STREQ(s.WashFileName2, "Rusted.twk");
  EXPECT_EQ(drawer.Difference(), "");
  const TextureWork work = drawer.target.Accept("Rusted.twk");
  EXPECT_TRUE(work.closeDrawer && work.textureChosen && work.clearProgress);
  EXPECT_FALSE(work.settingsChanged);  // it is shown already
  EXPECT_STREQ(s.WashFileName2, "Rusted.twk");
}

TEST(TextureTarget, SwitchesTheEffectOnAndOff) {
  Drawer drawer(kSurfaceTab);
  EffectSettings& s = drawer.stage.settings;
  Name(s.SurfaceFileName1, "No_Texture");
  drawer.stage.Open(kPane);
  ASSERT_EQ(s.SurfaceUse, 0);
  (void)drawer.target.Open(kSurfaceTab);
  (void)drawer.target.Try("Battleship.twk");
  EXPECT_EQ(s.SurfaceUse, 1);
  EXPECT_EQ(drawer.Difference(), "");
  (void)drawer.target.Try("No_Texture.twk");
  EXPECT_EQ(s.SurfaceUse, 0);
}

TEST(TextureTarget, ShowsAPlainFillUninverted) {
  Drawer drawer(kBackgroundTab);
  drawer.stage.settings.BackgroundInvert = 1;
  drawer.stage.Open(kPane);
  const EffectLayer& layer = drawer.stage.g.layers.background;
  (void)drawer.target.Open(kBackgroundTab);
  (void)drawer.target.Try("Solid.twk");
  EXPECT_EQ(layer.invert, 0);
  EXPECT_EQ(drawer.stage.settings.BackgroundInvert, 1);
  (void)drawer.target.Try("Marble.twk");
  EXPECT_EQ(layer.invert, 1);
  (void)drawer.target.Try("solid.TWK");
  (void)drawer.target.Cancel();
  EXPECT_EQ(layer.invert, 1);
  EXPECT_STREQ(drawer.stage.settings.BackgroundFileName, "Rusted.twk");
  EXPECT_EQ(drawer.Difference(), "");
}

TEST(TextureTarget, DoesNothingUnlessItIsOpen) {
  Drawer drawer(kWashTab);
  drawer.stage.Open(kPane);
  EffectSettings before;
  std::memcpy(static_cast<void*>(&before), &drawer.stage.settings, sizeof before);
  EXPECT_EQ(drawer.target.Open(kBasicTab), "");
  EXPECT_FALSE(drawer.target.Try("Rusted.twk").settingsChanged);
  EXPECT_FALSE(drawer.target.Accept("Rusted.twk").closeDrawer);
  EXPECT_FALSE(drawer.target.Cancel().closeDrawer);
  // Nor without a name, nor when nothing has been tried.
  EXPECT_EQ(drawer.target.Open(kWashTab), "General_Store.twk");
  EXPECT_FALSE(drawer.target.Try("").settingsChanged);
  const TextureWork work = drawer.target.Cancel();
  EXPECT_TRUE(work.closeDrawer);
  EXPECT_FALSE(work.textureChosen || work.settingsChanged);
  EXPECT_EQ(std::memcmp(&before, &drawer.stage.settings, sizeof before), 0);
}

}  // namespace
}  // namespace tarnwick
