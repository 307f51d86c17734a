#include "dialog/models/drawer_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "support/temp_folder.h"

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TempFolder;
using ::testing::UnorderedElementsAre;

void Touch(const TempFolder& folder, const char* name) {
  std::ofstream(std::filesystem::path(folder.Path()) / name) << "x";
}

std::vector<std::string> AllButFirst(std::vector<std::string> names) {
  if (!names.empty()) names.erase(names.begin());
  return names;
}

TEST(DrawerLists, AreTheFoldersAsTheyAreNow) {
  const TempFolder data;
  const TempFolder colors;
  const DrawerLists lists = UnfilteredDrawers(data.Path(), colors.Path() + "/");
  EXPECT_THAT(lists.textures(), IsEmpty());
  EXPECT_THAT(lists.colors(), ElementsAre("Reset Colors"));

  // One of them would come before the empty texture by any order of a platform's.
  for (const char* name : {"A.twk", "No_Texture.twk", "Zinc.TWK", "A.twk.bmp", "notes.txt"}) {
    Touch(data, name);
  }
  for (const char* name : {"Dawn.twkpst", "Dusk.TWKPST", "Dusk.bmp", ".twkpst", "twkpst"}) {
    Touch(colors, name);
  }
  std::filesystem::create_directory(std::filesystem::path(colors.Path()) / "More.twkpst");
  EXPECT_EQ(lists.textures().at(0), "No_Texture.twk");
  EXPECT_THAT(AllButFirst(lists.textures()), UnorderedElementsAre("A.twk", "Zinc.TWK"));
  EXPECT_EQ(lists.colors().at(0), "Reset Colors");
  EXPECT_THAT(AllButFirst(lists.colors()), UnorderedElementsAre("Dawn", "Dusk"));
}

TEST(DrawerLists, AMissingFolderOffersNothing) {
  const DrawerLists lists = UnfilteredDrawers("/no such folder", "/no such folder/Colors");
  EXPECT_THAT(lists.textures(), IsEmpty());
  EXPECT_THAT(lists.colors(), ElementsAre("Reset Colors"));
}

// A drawer that could not be made, or one whose filters let nothing through.
TEST(DrawerLists, AThrowGoesWithoutThem) {
  const TempFolder presets;
  EffectSettings settings;
  SettingsSession session;
  PresetSession presetSession(session);
  const DrawerLists nothing{{}, [] { return std::vector<std::string>(); }};
  for (std::uint32_t seed = 0; seed < 200; ++seed) {
    const AutoLibrary library = AutoLibraryOf(presets.Path(), nothing, [seed] { return seed; });
    const AutoThrow thrown = AutoRandomize(library, settings, presetSession);
    ASSERT_STREQ(settings.WashFileName1, kNoTextureName);
    ASSERT_THAT(thrown.presets, IsEmpty());
    ASSERT_EQ(thrown.surfaceColors + thrown.backgroundColors, "");
  }
}

}  // namespace
}  // namespace tarnwick
