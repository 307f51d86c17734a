#include "presets/color_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Strings = std::vector<std::string>;

Bytes BytesOf(const std::string& text) {
  return {text.begin(), text.end()};
}

TEST(ColorCategories, SplitAtBars) {
  EXPECT_THAT(SplitCategories("Red Tones"), ElementsAre("Red Tones"));
  EXPECT_THAT(SplitCategories("Red Tones|Dark Tones"), ElementsAre("Red Tones", "Dark Tones"));
  EXPECT_THAT(SplitCategories("|Red Tones||"), ElementsAre("Red Tones"));
  EXPECT_THAT(SplitCategories(""), IsEmpty());
}

TEST(ColorCategories, Filter) {
  const Strings red = {"Red Tones", "Dark Tones"};
  const struct {
    int row;
    std::string text;
    bool passes;
  } kRows[] = {
      {0, "All Categories", true},
      {1, "Red Tones", true},
      {12, "Dark Tones", true},
      {2, "Orange Tones", false},
      {1, "red tones", false},
      {1, "Red", false},
      {10, "", true},
      {10, std::string(kBlankCategory), false},
      {1, std::string(63, 'x'), false},
      {1, std::string(64, 'x'), true},
  };
  for (const auto& c : kRows) {
    EXPECT_EQ(PassesCategory(red, c.row, c.text), c.passes) << c.row << ' ' << c.text;
  }
}

TEST(ColorList, ResetFirstThenFilesInOrder) {
  const TempFolder folder;
  folder.Put("Rust.twkpst", BytesOf("h\nv\n;\nrgtC Red Tones|Rust Tones ;\n"));
  folder.Put("Plain.twkpst", BytesOf("h\nv\n;\n"));
  const Strings names = {"Rust.twkpst", "Plain.twkpst", "Gone.twkpst"};
  const std::vector<ColorRecord> records = ListColorPresets(folder.Path(), names);
  ASSERT_EQ(records.size(), 4U);
  EXPECT_EQ(records[0].fileName, "Reset Colors");
  EXPECT_EQ(records[1].fileName, "Rust.twkpst");
  EXPECT_THAT(records[1].categories, ElementsAre("Red Tones", "Rust Tones"));
  EXPECT_THAT(records[2].categories, IsEmpty());
  EXPECT_THAT(records[3].categories, IsEmpty());
  EXPECT_THAT(FilterColors(records, 0, "All Categories"), ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(FilterColors(records, 25, "Rust Tones"), ElementsAre(0, 1));
  EXPECT_THAT(FilterColors(records, 4, "Green Tones"), ElementsAre(0));
}

TEST(ColorList, DisplayNames) {
  const struct {
    const char* file;
    const char* shown;
  } kNames[] = {{"Dusk.twkpst", "Dusk"},
                {"Dusk.TWKPST", "Dusk.TWKPST"},
                {".twkpst", ""},
                {"twkpst", "twkpst"}};
  for (const auto& c : kNames) EXPECT_EQ(ColorDisplayName(c.file), c.shown);
}

TEST(ColorList, BackPalettes) {
  EXPECT_THAT(ListBackPalettes({}), IsEmpty());
  EXPECT_THAT(ListBackPalettes(Strings{"Note.txt", "Oak.bmp", ".twkpst"}), IsEmpty());
  EXPECT_THAT(ListBackPalettes(Strings{"Oak.twkpst", "Oak.bmp", "None.twkpst", "Elm.TWKPST"}),
              ElementsAre("none", "Oak", "Elm"));
}

}  // namespace
}  // namespace tarnwick::testing
