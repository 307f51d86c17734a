#include "dialog/models/preset_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "dialog/models/preset_choice.h"
#include "dialog/models/preset_folders.h"

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A folder as a system lists it: by name, whatever the entries are.
const std::vector<FolderEntry> kMixedFolder = {
    {".", true},
    {"..", true},
    {".hidden", true},
    {"Aged.twkpst", false, true},
    {"Barn", true},
    {"Cold.TWKPST", false, true},
    {"Old.twkpst", true},           // a folder that is called like a preset
    {"Seen.twkpst", false, false},  // without the attribute
    {"Notes.txt", false, true},
    {"twkpst", false, true},
    {"Worn.twkpst.bak", false, true},
    {"", true},
};

TEST(PresetLists, RowsAreFoldersThenPresets) {
  EXPECT_THAT(PresetRows(PresetKind::kWash, false, kMixedFolder),
              ElementsAre("\tBarn", "\tOld.twkpst", "Aged", "Cold"));
  EXPECT_THAT(PresetRows(PresetKind::kUser, true, kMixedFolder),
              ElementsAre("\t..", "\tBarn", "\tOld.twkpst", "Aged", "Cold"));
  EXPECT_THAT(PresetRows(PresetKind::kBasic, true, kMixedFolder),
              ElementsAre("Reset All", "Last Used Settings", "\t..", "\tBarn", "\tOld.twkpst",
                          "Aged", "Cold"));
  EXPECT_THAT(PresetRows(PresetKind::kBasic, false, {}),
              ElementsAre("Reset All", "Last Used Settings"));
  EXPECT_THAT(PresetRows(PresetKind::kSurface, false, {}), IsEmpty());
}

TEST(PresetLists, NamesLoseOneExtension) {
  const std::pair<const char*, const char*> kNames[] = {
      {"Aged.twkpst", "Aged"},
      {"Aged.TwkPst", "Aged"},
      {"Aged", "Aged"},
      {"Aged.twkpst.twkpst", "Aged.twkpst"},
      {".twkpst", ".twkpst"},  // seven characters are too few
      {"a.twkpst", "a"},
      {"Agedtwkpst", "Age"},  // the point is not looked at
      {"Aged.twkpst ", "Aged.twkpst "},
      {"", ""},
  };
  for (const auto& [typed, name] : kNames) EXPECT_EQ(PresetNameOf(typed), name) << typed;
}

TEST(PresetLists, EveryControlIsKnown) {
  const auto event = [](int id, int code) {
    const PresetCommand command = PresetCommandOf(id, code);
    return command.list == nullptr ? std::pair{PresetEvent::kNone, PresetKind::kBackPalette}
                                   : std::pair{command.event, command.list->kind};
  };
  struct Case {
    int id, code;
    PresetEvent event;
    PresetKind kind;
  };
  // 1 a selection, 2 a double click, 0 a click.
  const Case kCases[] = {
      {1084, 1, PresetEvent::kSelect, PresetKind::kBasic},
      {1013, 2, PresetEvent::kOpen, PresetKind::kUser},
      {1085, 1, PresetEvent::kSelect, PresetKind::kWash},
      {1086, 2, PresetEvent::kOpen, PresetKind::kSurface},
      {1012, 1, PresetEvent::kSelect, PresetKind::kBackground},
      {1300, 0, PresetEvent::kSave, PresetKind::kUser},
      {1382, 0, PresetEvent::kSave, PresetKind::kWash},
      {1383, 0, PresetEvent::kSave, PresetKind::kSurface},
      {1045, 0, PresetEvent::kSave, PresetKind::kBackground},
      {1092, 0, PresetEvent::kDelete, PresetKind::kUser},
      {1087, 0, PresetEvent::kDelete, PresetKind::kWash},
      {1088, 0, PresetEvent::kDelete, PresetKind::kSurface},
      {1046, 0, PresetEvent::kDelete, PresetKind::kBackground},
  };
  for (const Case& c : kCases) {
    EXPECT_EQ(event(c.id, c.code), std::pair(c.event, c.kind)) << c.id;
  }
  // The focus comes and goes; 0 stands for a button that the Basic list lacks.
  for (const auto& [id, code] :
       {std::pair{1084, 4}, {1013, 0}, {1300, 1}, {1092, 6}, {0, 0}, {1091, 0}}) {
    EXPECT_EQ(event(id, code).first, PresetEvent::kNone) << id;
  }
}

TEST(PresetFolders, FollowFoldersDownAndUp) {
  PresetFolders folders("C:\\Data\\Presets\\");
  const auto kind = PresetKind::kWash;
  EXPECT_EQ(folders.Folder(kind), "C:\\Data\\Presets\\Wash\\");
  EXPECT_FALSE(folders.Enter(kind, "Aged"));
  EXPECT_TRUE(folders.Enter(kind, "\tWood"));
  EXPECT_TRUE(folders.Enter(kind, "\tOld Barn"));
  EXPECT_EQ(folders.SubFolder(kind), "Wood\\Old Barn\\");
  EXPECT_EQ(folders.Folder(kind), "C:\\Data\\Presets\\Wash\\Wood\\Old Barn\\");
  EXPECT_EQ(folders.File(kind, "Aged"), "C:\\Data\\Presets\\Wash\\Wood\\Old Barn\\Aged.twkpst");
  EXPECT_EQ(folders.TopFile(kind, "Aged"), "C:\\Data\\Presets\\Wash\\Aged.twkpst");
  // Each list stands in a folder of its own.
  EXPECT_EQ(folders.Folder(PresetKind::kUser), "C:\\Data\\Presets\\User\\");
  EXPECT_TRUE(folders.Enter(kind, "\t.."));
  EXPECT_EQ(folders.SubFolder(kind), "Wood\\");
  EXPECT_TRUE(folders.Enter(kind, "\t.."));
  EXPECT_EQ(folders.SubFolder(kind), "");
  EXPECT_TRUE(folders.Enter(kind, "\t.."));
  EXPECT_EQ(folders.SubFolder(kind), "");
}

TEST(PresetFolders, ColorsAndPalettesLieInOnePlace) {
  PresetFolders folders("P\\");
  for (const auto kind : {PresetKind::kSurfaceColor, PresetKind::kBackgroundColor}) {
    EXPECT_FALSE(folders.Enter(kind, "\tWood"));
    EXPECT_EQ(folders.File(kind, "Sepia"), "P\\Colors\\Sepia.twkpst");
  }
  EXPECT_EQ(folders.File(PresetKind::kBackPalette, "Dusk"), "P\\BackPalette\\Dusk.twkpst");
}

TEST(PresetFolders, GoNoDeeperThanTheirLength) {
  PresetFolders folders("P\\");
  const auto kind = PresetKind::kBackground;
  const std::string row = '\t' + std::string(126, 'a');
  EXPECT_TRUE(folders.Enter(kind, row));
  EXPECT_TRUE(folders.Enter(kind, row));
  const std::string before = folders.SubFolder(kind);
  EXPECT_EQ(before.size(), 254U);
  EXPECT_FALSE(folders.Enter(kind, "\ta"));  // would be 256 with its separator
  EXPECT_EQ(folders.SubFolder(kind), before);
}

TEST(PresetChoice, LayersStayThatCannotHaveChanged) {
  struct Case {
    PresetKind kind;
    KeptLayers whenAllAreOn;
  };
  const Case kCases[] = {
      {PresetKind::kBasic, {false, false, false}},    {PresetKind::kUser, {false, false, false}},
      {PresetKind::kWash, {false, false, false}},     {PresetKind::kSurface, {true, false, true}},
      {PresetKind::kBackground, {true, true, false}},
  };
  for (const Case& c : kCases) {
    EffectSettings settings;
    EXPECT_EQ(LayersThatStay(c.kind, settings), (KeptLayers{true, true, true}));
    settings.WashUse = settings.SurfaceUse = settings.BackgroundUse = 1;
    EXPECT_EQ(LayersThatStay(c.kind, settings), c.whenAllAreOn) << PresetFolder(c.kind);
    settings.SurfaceUse = 0;
    KeptLayers wanted = c.whenAllAreOn;
    wanted.surfaces = true;
    EXPECT_EQ(LayersThatStay(c.kind, settings), wanted) << PresetFolder(c.kind);
  }
}

TEST(PresetChoice, ForgetsTheNamesOfColorsThatMayChange) {
  const std::set<PresetKind> surface = {PresetKind::kBasic, PresetKind::kUser,
                                        PresetKind::kSurface};
  const std::set<PresetKind> background = {PresetKind::kBasic, PresetKind::kUser,
                                           PresetKind::kBackground, PresetKind::kBackPalette};
  for (const PresetKind kind : kPresetKinds) {
    SettingsSession session;
    session.SurfaceColorCategory = "Rust";
    session.BackgroundColorCategory = "Moss";
    ForgetColorNames(kind, session);
    EXPECT_EQ(session.SurfaceColorCategory, surface.contains(kind) ? "Custom" : "Rust");
    EXPECT_EQ(session.BackgroundColorCategory, background.contains(kind) ? "Custom" : "Moss");
  }
}

}  // namespace
}  // namespace tarnwick
