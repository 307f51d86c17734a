#include "presets/auto_randomize.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "presets/color_list.h"
#include "settings/settings_changes.h"
#include "support/temp_folder.h"

namespace tarnwick::testing {
namespace {

using ::testing::Contains;
using ::testing::UnorderedElementsAre;
using ::testing::UnorderedElementsAreArray;
using Strings = std::vector<std::string>;

// What rand() of that runtime is known to give after srand(1).
TEST(AutoDice, ThrowsTheKnownSequence) {
  AutoDice dice(1);
  for (const int want : {41, 18467, 6334, 26500, 19169, 15724, 11478, 29358, 26962, 24464}) {
    EXPECT_EQ(dice.Throw(), want);
  }
}

// A small library whose presets are told apart by what they set.
class AutoTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Put("Basic/Metal/Iron.twkpst", "1cSW 10 ;\n");
    Put("Basic/Metal/Zinc.twkpst", "1cSW 30 ;\n");
    Put("Basic/Note.txt", "no preset");
    Put("Basic/Plain.twkpst", "1cSW 20 ;\nnOkB 0 ;\n");
    Put("Background/Pine.twkpst", "nOkB 1 ;\nNFkB Pine.twk ;\n");
    Put("Surface/Hide.twkpst", "nOfS 1 ;\n1NFS Hide.twk ;\n");
    Put("Surface/Slab.twkpst", "nOfS 1 ;\n1NFS Slab.twk ;\n");
    Put("Colors/Dawn.twkpst", ";\nrgtC Empty ;\nlCiH 1 ;\nlCdM 2 ;\nlCdS 3 ;\n");
    Put("Colors/Dusk.twkpst", ";\nrgtC Empty ;\nlCiH 4 ;\nlCdM 5 ;\nlCdS 6 ;\n");
    library_.presetRoot = folder_.Path();
    library_.order = FolderOrder::kByName;
    library_.textures = {"No_Texture.twk", "A.twk", "B.twk", "C.twk", "D.twk"};
    library_.colors = {kResetColorsName, "Dawn", "Dusk"};
  }

  void Put(const std::string& name, const std::string& body) {
    const std::filesystem::path path = std::filesystem::path(folder_.Path()) / name;
    std::filesystem::create_directories(path.parent_path());
    const bool isPreset = path.extension() == ".twkpst";
    std::ofstream(path, std::ios::binary)
        << (isPreset ? "TarnwickStudi Press Preset;\nVersion 2;\n" : "") << body;
  }

  Strings ChangesOf(std::uint32_t seed) {
    library_.seconds = [seed] { return seed; };
    // Whatever was there before must not show.
    SettingsPair pair = MarkedSettings();
    PresetSession session(pair.session);
    thrown_ = AutoRandomize(library_, pair.settings, session);
    // Nor is it touched, where a reset leaves it alone.
    SettingsPair fresh = MarkedSettings();
    ResetAllSettings(fresh.settings, fresh.session);
    return Changes(fresh, pair);
  }

  Strings PresetNames() const {
    Strings names;
    for (const auto& path : thrown_.presets) {
      names.push_back(path.lexically_relative(folder_.Path()).generic_string());
    }
    return names;
  }

  TempFolder folder_;
  AutoLibrary library_;
  AutoThrow thrown_;
};

// Worked out with a model of the throw in another language. Each seed shows
// something that the others do not.
const struct {
  std::uint32_t seed;
  const char* shows;
  Strings presets;
  Strings changes;
} kThrows[] = {
    {3,
     "one wash with coverage, whose seed is its throw",
     {"Background/Pine.twkpst", "Surface/Slab.twkpst"},
     {"WashStainColor1 #c3b111", "WashFileName1 D.twk", "WashFlipHor1 1", "WashAngle1 90",
      "WashCoverage1 -28", "WashRandomize1 453", "BackgroundFileName Pine.twk",
      "SurfaceFileName1 Slab.twk"}},
    {44,
     "a kind of wash without a name",
     {"Background/Pine.twkpst", "Surface/Hide.twkpst"},
     {"WashType1 4", "WashStainColor1 #214a77", "WashFileName1 C.twk", "WashFlipHor1 1",
      "WashAngle1 270", "BackgroundFileName Pine.twk", "SurfaceFileName1 Hide.twk"}},
    {31,
     "two washes, which a clock that stands makes alike; colours for the surface",
     {"Background/Pine.twkpst", "Surface/Slab.twkpst"},
     {"WashType1 3",
      "WashStainColor1 #b80482",
      "WashFileName1 No_Texture.twk",
      "WashFlipHor1 1",
      "WashFlipVer1 1",
      "WashAngle1 90",
      "SecondWashExists 1",
      "WashFileName2 No_Texture.twk",
      "WashType2 3",
      "WashStainColor2 #b80482",
      "WashFlipHor2 1",
      "WashFlipVer2 1",
      "WashInvert2 1",
      "WashAngle2 90",
      "BackgroundFileName Pine.twk",
      "SurfaceFileName1 Slab.twk",
      "SurfaceHighlightColor #010000",
      "SurfaceMidtoneColor #020000",
      "SurfaceShadowColor #030000",
      "SurfaceColorCategory Dawn"}},
    {6,
     "the second wash has its own scale and seed of coverage",
     {"Background/Pine.twkpst", "Surface/Slab.twkpst"},
     {"WashStainColor1 #f91bdd", "WashFileName1 No_Texture.twk", "WashIntensity1 64",
      "WashFlipHor1 1", "WashAngle1 270", "WashCoverage1 -79", "WashCoverageScale1 90",
      "WashRandomize1 51", "SecondWashExists 1", "WashFileName2 No_Texture.twk",
      "WashIntensity2 64", "WashType2 4", "WashStainColor2 #f91bdd", "WashFlipHor2 1",
      "WashAngle2 270", "WashCoverage2 -79", "WashRandomize2 590", "BackgroundFileName Pine.twk",
      "SurfaceFileName1 Slab.twk"}},
    {1035,
     "a coverage scale of 0",
     {"Background/Pine.twkpst", "Surface/Hide.twkpst"},
     {"WashStainColor1 #4e89dc", "WashFileName1 A.twk", "WashIntensity1 148", "WashFlipHor1 1",
      "WashAngle1 270", "WashCoverage1 -17", "WashCoverageScale1 0", "WashRandomize1 367",
      "BackgroundFileName Pine.twk", "SurfaceFileName1 Hide.twk", "SurfaceHighlightColor #040000",
      "SurfaceMidtoneColor #050000", "SurfaceShadowColor #060000", "SurfaceColorCategory Dusk"}},
    {13,
     "inverted, which is rare",
     {"Background/Pine.twkpst", "Surface/Hide.twkpst"},
     {"WashType1 3", "WashStainColor1 #f68fb9", "WashFileName1 A.twk", "WashInvert1 1",
      "WashCoverage1 -90", "WashCoverageScale1 24", "WashRandomize1 780",
      "BackgroundFileName Pine.twk", "SurfaceFileName1 Hide.twk"}},
    {2,
     "a Basic preset from a sub-folder, and more on top of it",
     {"Basic/Metal/Zinc.twkpst", "Background/Pine.twkpst", "Surface/Hide.twkpst"},
     {"WashType1 1", "WashStainColor1 #328e4d", "WashFileName1 B.twk", "WashScale1 30",
      "WashFlipVer1 1", "BackgroundFileName Pine.twk", "SurfaceFileName1 Hide.twk"}},
    {56,
     "a Basic preset as it is, with colours for both groups",
     {"Basic/Metal/Iron.twkpst"},
     {"WashScale1 10", "SurfaceHighlightColor #040000", "SurfaceMidtoneColor #050000",
      "SurfaceShadowColor #060000", "SurfaceColorCategory Dusk", "BackgroundHighlightColor #040000",
      "BackgroundMidtoneColor #050000", "BackgroundShadowColor #060000",
      "BackgroundColorCategory Dusk"}},
    {92,
     "colours for a background that is off",
     {"Basic/Plain.twkpst"},
     {"WashScale1 20", "BackgroundUse 0", "BackgroundFileName No_Texture.twk"}},
    {39,
     "colours for the surface alone",
     {"Basic/Plain.twkpst"},
     {"WashScale1 20", "BackgroundUse 0", "BackgroundFileName No_Texture.twk",
      "SurfaceHighlightColor #040000", "SurfaceMidtoneColor #050000", "SurfaceShadowColor #060000",
      "SurfaceColorCategory Dusk"}},
    {19,
     "no wash",
     {"Basic/Plain.twkpst", "Background/Pine.twkpst", "Surface/Slab.twkpst"},
     {"WashFileName1 No_Texture.twk", "WashScale1 20", "BackgroundFileName Pine.twk",
      "SurfaceFileName1 Slab.twk"}},
};

TEST_F(AutoTest, SeedsThrowTheirLooks) {
  for (const auto& c : kThrows) {
    SCOPED_TRACE(c.shows);
    EXPECT_THAT(ChangesOf(c.seed), UnorderedElementsAreArray(c.changes));
    EXPECT_EQ(PresetNames(), c.presets);
  }
}

// Seed 32 draws "Reset Colors" for the background: the record is left alone.
TEST_F(AutoTest, ResetColorsTakesTheCategoryOnly) {
  Put("Background/Pine.twkpst", "nOkB 1 ;\nNFkB Pine.twk ;\nlCHB 77 ;\n");
  const Strings changes = ChangesOf(32);
  EXPECT_EQ(thrown_.backgroundColors, kResetColorsName);
  EXPECT_THAT(changes, Contains("BackgroundHighlightColor #4d0000"));
}

// For the surface the record takes them.
TEST_F(AutoTest, ResetColorsTakesThoseOfThePresetAway) {
  for (const char* name : {"Surface/Hide.twkpst", "Surface/Slab.twkpst"}) {
    Put(name, "nOfS 1 ;\n1NFS Hide.twk ;\n1CHS 77 ;\n");
  }
  EXPECT_THAT(ChangesOf(3), Contains("SurfaceHighlightColor #4d0000"));
  std::uint32_t seed = 0;
  Strings changes;
  do {
    changes = ChangesOf(++seed);
  } while (thrown_.surfaceColors != kResetColorsName && seed < 5000);
  ASSERT_EQ(thrown_.surfaceColors, kResetColorsName);
  for (const std::string& change : changes) {
    EXPECT_FALSE(change.starts_with("SurfaceHighlightColor")) << change;
  }
}

TEST_F(AutoTest, ReadsColorsWhateverTheCapitalsOfTheirFile) {
  for (const char* name : {"Dawn", "Dusk"}) {
    const auto colors = std::filesystem::path(folder_.Path()) / "Colors";
    std::filesystem::rename(colors / (std::string(name) + ".twkpst"),
                            colors / (std::string(name) + ".TWKPST"));
  }
  EXPECT_THAT(ChangesOf(31), Contains("SurfaceHighlightColor #010000"));
}

TEST_F(AutoTest, PoorLibraries) {
  library_.colors.clear();
  EXPECT_THAT(ChangesOf(39),
              UnorderedElementsAre("WashScale1 20", "BackgroundUse 0",
                                   "BackgroundFileName No_Texture.twk"));  // no colour drawer
  library_.textures.clear();
  EXPECT_THAT(ChangesOf(44), Contains("WashFileName1 No_Texture.twk"));
  library_.presetRoot = std::filesystem::path(folder_.Path()) / "nowhere";
  (void)ChangesOf(2);
  EXPECT_TRUE(thrown_.presets.empty());
}

TEST(RandomPreset, FindsNothingInEmptyFolders) {
  const TempFolder folder;
  const std::filesystem::path root = folder.Path();
  std::filesystem::create_directory(root / "empty");
  AutoDice dice(5);
  EXPECT_FALSE(PickRandomPreset(root / "none", FolderOrder::kByName, dice));
  EXPECT_FALSE(PickRandomPreset(root / "empty", FolderOrder::kByName, dice));
  AutoDice unthrown(5);
  EXPECT_EQ(dice.Throw(), unthrown.Throw());
}

}  // namespace
}  // namespace tarnwick::testing
