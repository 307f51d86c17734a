#include "dialog/models/page_enable.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace tarnwick {
namespace {

void Name(char (&to)[kTextureNameSize], const char* texture) {
  std::snprintf(to, sizeof to, "%s.twk", texture);
}

// A dialog with one layer of each kind and a texture in each.
struct Scene {
  Scene() {
    Name(settings.WashFileName1, "A");
    Name(settings.WashFileName2, "B");
    Name(settings.SurfaceFileName1, "C");
    Name(settings.SurfaceFileName2, "D");
    Name(settings.BackgroundFileName, "E");
    settings.WashUse = settings.SurfaceUse = settings.BackgroundUse = 1;
  }
  // Of the row with this id.
  bool Can(int tab, int id, bool canMove = true) const {
    const PageFacts facts = FactsOf(tab, views, settings, matches, document, canMove);
    for (const ControlRow& row : RowsOf(tab)) {
      if (row.id == id) return IsEnabled(row.needs, facts);
    }
    ADD_FAILURE() << "no control " << id;
    return false;
  }
  EffectSettings settings;
  EffectViews views;
  TextureMatches matches;
  DocumentFacts document;
};

// Sliders, seed, sides and type of a wash.
constexpr int kWash[] = {1023, 1026, 1033, 1036, 1039, 1042, 1029, 1030, 1031, 1129};
// What turns and moves its texture.
constexpr int kWashShape[] = {1005, 1020, 1021, 2001, 1002, 1231};

TEST(PageEnable, AWashIsEditedWhereItIsSeen) {
  Scene scene;
  const auto all = [&](bool want, const char* what) {
    for (const int id : kWash) EXPECT_EQ(scene.Can(kWashTab, id), want) << what << " " << id;
    for (const int id : kWashShape) EXPECT_EQ(scene.Can(kWashTab, id), want) << what << " " << id;
    for (const int id : {1015, 1077}) EXPECT_TRUE(scene.Can(kWashTab, id)) << what << " " << id;
  };
  all(true, "one wash");
  scene.views.washView = ViewMode::kOriginal;
  all(false, "the original");
  scene.views.washView = ViewMode::kComposite;
  scene.settings.SecondWashExists = 1;
  all(false, "two washes together");
  scene.views.washView = ViewMode::kWashTwo;
  all(true, "the second of two");
  scene.settings.WashUse = 0;
  all(false, "no texture");
}

TEST(PageEnable, ATextureWithoutShapeIsNeitherTurnedNorMoved) {
  Scene scene;
  Name(scene.settings.WashFileName1, "Solid");
  for (const int id : kWash) EXPECT_TRUE(scene.Can(kWashTab, id)) << id;
  for (const int id : kWashShape) EXPECT_FALSE(scene.Can(kWashTab, id)) << id;
  // The other one has a shape.
  scene.settings.SecondWashExists = 1;
  scene.views.washView = ViewMode::kWashTwo;
  for (const int id : kWashShape) EXPECT_TRUE(scene.Can(kWashTab, id)) << id;
  EXPECT_FALSE(scene.Can(kWashTab, 1231, false)) << "as large as the picture";
  EXPECT_TRUE(scene.Can(kWashTab, 1005, false));

  Name(scene.settings.SurfaceFileName1, "Solid");
  Name(scene.settings.BackgroundFileName, "Solid");
  for (const int id : {1007, 1006, 1090, 1089, 1202, 1201}) {
    EXPECT_FALSE(scene.Can(kSurfaceTab, id)) << id;
  }
  for (const int id : {1061, 1352, 1132}) EXPECT_TRUE(scene.Can(kSurfaceTab, id)) << id;
  for (const int id : {1306, 1052, 1053, 1078, 1079}) {
    EXPECT_FALSE(scene.Can(kBackgroundTab, id)) << id;
  }
  EXPECT_TRUE(scene.Can(kBackgroundTab, 1050));
}

TEST(PageEnable, ASwatchNeedsATypeWithAColor) {
  Scene scene;
  for (const int type : {0, 1, 2, 3}) {
    scene.settings.WashType1 = static_cast<std::uint8_t>(type);
    EXPECT_EQ(scene.Can(kWashTab, 1130), type != 0) << type;
  }
  scene.settings.WashUse = 0;
  EXPECT_FALSE(scene.Can(kWashTab, 1130));
}

// Light and colours belong to both surfaces.
TEST(PageEnable, TwoSurfacesShareTheirColors) {
  Scene scene;
  scene.settings.SecondSurfaceExists = 1;
  for (const int id : {1178, 1068, 1353, 1354, 1150, 1402, 1073, 1071, 1072, 1058}) {
    EXPECT_TRUE(scene.Can(kSurfaceTab, id)) << id;
  }
  for (const int id : {1061, 1352, 1132, 1090}) EXPECT_FALSE(scene.Can(kSurfaceTab, id)) << id;
  scene.views.surfaceView = ViewMode::kOriginal;
  EXPECT_FALSE(scene.Can(kSurfaceTab, 1058));
}

TEST(PageEnable, ABackgroundIsEditedWhateverIsSeen) {
  Scene scene;
  scene.views.backgroundView = ViewMode::kOriginal;
  for (const int id : {1050, 1326, 1329, 1047, 1405, 1200, 1015, 1306}) {
    EXPECT_TRUE(scene.Can(kBackgroundTab, id)) << id;
  }
  scene.settings.BackgroundUse = 0;
  for (const int id : {1050, 1326, 1329, 1047, 1405, 1200, 1015, 1306}) {
    EXPECT_FALSE(scene.Can(kBackgroundTab, id)) << id;
  }
}

TEST(PageEnable, TheCanvasIsFilledWhereItCanBeTransparent) {
  struct Case {
    int planes;
    bool isCmyk, want;
  };
  for (const Case& c :
       {Case{3, false, false}, Case{4, false, true}, Case{4, true, false}, Case{5, true, true}}) {
    Scene scene;
    scene.document = {c.planes, c.isCmyk};
    scene.settings.SurfaceUse = scene.settings.BackgroundUse = 0;
    EXPECT_EQ(scene.Can(kSurfaceTab, 1235), c.want) << c.planes;
    EXPECT_EQ(scene.Can(kBackgroundTab, 1335), c.want) << c.planes;
    EXPECT_FALSE(scene.Can(kSurfaceTab, 1205)) << "no canvas to fill";
    scene.settings.SurfaceEntire = 1;
    EXPECT_EQ(scene.Can(kSurfaceTab, 1205), c.want) << c.planes;
    scene.settings.WashUse = 0;
    EXPECT_FALSE(scene.Can(kSurfaceTab, 1205)) << "no wash to fill";
  }
}

TEST(PageEnable, ALinkNeedsAnotherEffectWithTheTexture) {
  Scene scene;
  for (const auto& [tab, id] :
       {std::pair{kWashTab, 2000}, {kSurfaceTab, 1001}, {kBackgroundTab, 1098}}) {
    EXPECT_FALSE(scene.Can(tab, id)) << tab;
  }
  scene.matches.washBackground = true;
  EXPECT_TRUE(scene.Can(kWashTab, 2000));
  EXPECT_FALSE(scene.Can(kSurfaceTab, 1001));
  EXPECT_TRUE(scene.Can(kBackgroundTab, 1098));
}

}  // namespace
}  // namespace tarnwick
