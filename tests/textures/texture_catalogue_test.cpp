#include "textures/texture_catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"
#include "support/wash_bytes.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;
using Strings = std::vector<std::string>;

// A texture file's first 52 bytes with the words that the catalogue reads.
Bytes Header(std::uint32_t setId, std::uint32_t headerWord, std::uint32_t effectMask) {
  Bytes bytes = WashHeader(8, 8, 1);
  const auto put = [&](std::size_t at, std::uint32_t word) {
    for (std::size_t i = 0; i < 4; ++i) {
      bytes[at + i] = static_cast<std::uint8_t>(word >> (8 * i));
    }
  };
  put(20, setId);
  put(24, headerWord);
  put(28, effectMask);
  return bytes;
}

Strings NamesOf(const std::vector<TextureRecord>& records) {
  Strings names;
  for (const TextureRecord& record : records) names.push_back(record.fileName);
  return names;
}

TEST(TextureList, NoTextureComesFirst) {
  const struct {
    const char* name;
    Strings given, swapped, moved;
  } kLists[] = {
      {"in the middle",
       {"A.twk", "B.twk", "no_texture.TWK", "Z.twk"},
       {"no_texture.TWK", "B.twk", "A.twk", "Z.twk"},
       {"no_texture.TWK", "A.twk", "B.twk", "Z.twk"}},
      {"the first of two",
       {"A.twk", "No_Texture.twk", "NO_TEXTURE.twk"},
       {"No_Texture.twk", "A.twk", "NO_TEXTURE.twk"},
       {"No_Texture.twk", "A.twk", "NO_TEXTURE.twk"}},
      {"there already",
       {"No_Texture.twk", "A.twk"},
       {"No_Texture.twk", "A.twk"},
       {"No_Texture.twk", "A.twk"}},
      {"none", {"B.twk", "A.twk"}, {"B.twk", "A.twk"}, {"B.twk", "A.twk"}},
      {"empty", {}, {}, {}},
  };
  for (const auto& c : kLists) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(NamesOf(ListTextures("", c.given, FirstTexture::kSwap)), c.swapped);
    EXPECT_EQ(NamesOf(ListTextures("", c.given, FirstTexture::kMove)), c.moved);
  }
}

TEST(TextureList, Headers) {
  const TempFolder folder;
  // 32, 36 and 40 bytes: all of it, all but the extension, and less fit a list.
  const std::string fits = std::string(28, 'f') + ".twk";
  const std::string bare = std::string(32, 'b') + ".twk";
  const std::string tooLong = std::string(36, 't') + ".twk";
  folder.Put("Good.twk", Header(7, 0xFFFFFFFF, 0x80000002));
  folder.Put("Short.twk", Cut(Header(7, 1, 2), 1));
  Bytes other = Header(7, 1, 2);
  other[0] = '2';
  folder.Put("Other.twk", other);
  folder.Put(fits, Header(3, 0, 0));
  folder.Put(bare, Header(3, 0, 0));
  folder.Put(tooLong, Header(3, 0, 0));
  const struct {
    std::string name;
    std::uint32_t setId, headerWord, effectMask;
  } kFiles[] = {
      {"Good.twk", 7, 0xFFFFFFFF, 0x80000002},
      {"Good", 7, 0xFFFFFFFF, 0x80000002},  // gets its extension
      {"Short.twk", 0, 0, 0},
      {"Other.twk", 0, 0, 0},
      {"Gone.twk", 0, 0, 0},
      {fits, 3, 0, 0},
      {bare, 3, 0, 0},     // the extension comes back
      {tooLong, 0, 0, 0},  // its cut name opens no file
  };
  for (const auto& c : kFiles) {
    SCOPED_TRACE(c.name);
    for (const char* separator : {"", "/"}) {
      const auto records =
          ListTextures(folder.Path() + separator, Strings{c.name}, FirstTexture::kSwap);
      ASSERT_EQ(records.size(), 1U);
      EXPECT_EQ(records[0].fileName, c.name.substr(0, 32));
      EXPECT_EQ(records[0].setId, c.setId);
      EXPECT_EQ(records[0].headerWord, c.headerWord);
      EXPECT_EQ(records[0].effectMask, c.effectMask);
    }
  }
  folder.Put("Note.txt", {});
  EXPECT_THAT(ScanTextureNames(folder.Path()),
              UnorderedElementsAre("Good.twk", "Short.twk", "Other.twk", fits, bare, tooLong));
  EXPECT_THAT(ScanTextureNames(folder.Path() + "/none"), IsEmpty());
}

TextureRecord Record(const char* name, std::uint32_t setId, std::uint32_t mask) {
  TextureRecord record;
  record.fileName = name;
  record.setId = setId;
  record.effectMask = mask;
  return record;
}

// Sets out of the order of their numbers; effects 1 and 20 are bits 1 and 20.
const TextureSetTable kSets = {{40, "Forge"}, {5, "Paper"}};
const std::vector<TextureRecord> kRecords = {
    Record("No_Texture.twk", 1, 0), Record("A.twk", 40, 1U << 1),
    Record("B.twk", 5, 1U << 1 | 1U << 20), Record("Solid.twk", 40, 0),
    Record("solid.twk", 5, 1U << 20)};

const struct {
  TextureFilter filter;
  std::vector<int> picker, drawer;  // places in kRecords
} kFilters[] = {
    {{0, 0}, {0, 1, 2, 3, 4}, {0, 1, 2, 3, 4}},
    {{1, 0}, {1, 3}, {0, 3}},     // picker: Forge; drawer: plain ones, by case
    {{2, 0}, {2, 4}, {0, 1, 3}},  // Paper; Forge
    {{3, 0}, {}, {0, 2, 4}},      // no such set; Paper
    {{4, 0}, {}, {0}},
    {{0, 1}, {1, 2}, {0, 3}},  // effect 1; plain ones
    {{0, 2}, {}, {0, 1, 2}},   // effect 2, which none has; effect 1
    {{0, 20}, {2, 4}, {0}},    // effect 20; effect 19
    {{0, 21}, {}, {0, 2, 4}},
    {{1, 20}, {}, {0, 3}},  // the drawer's effect box is not asked
    {{2, 1}, {2}, {0, 3}},  // the drawer's set box is not asked
    {{3, 21}, {}, {0, 2, 4}},
    {{2, 21}, {}, {0}},
    {{-1, -1}, {}, {0}},
    {{0, 99}, {}, {0}},
};

TEST(TextureFilter, RowsOfBothPickers) {
  const auto places = [](const std::vector<TextureRecord>& kept) {
    std::vector<int> list;
    for (const TextureRecord& record : kept) list.push_back(record.listIndex);
    return list;
  };
  for (const auto& c : kFilters) {
    SCOPED_TRACE(::testing::Message() << c.filter.setRow << ' ' << c.filter.effectRow);
    EXPECT_EQ(places(FilterForPicker(kRecords, c.filter, kSets)), c.picker);
    EXPECT_EQ(places(FilterForDrawer(kRecords, c.filter, kSets)), c.drawer);
  }
  EXPECT_THAT(FilterForDrawer({}, {}, kSets), IsEmpty());
}

TEST(TextureCatalogue, FindsInWhatTheFiltersLeave) {
  const TempFolder folder;
  folder.Put("Old.twk", Header(40, 0, 0));
  folder.Put("Rusted.twk", Header(5, 0, 0));
  TextureCatalogue catalogue;
  catalogue.Build(folder.Path() + "/", Strings{"Old.twk", "Rusted.twk"}, {}, kSets);
  EXPECT_EQ(catalogue.folder, folder.Path());
  catalogue.FindByName("RUSTED.twk");
  EXPECT_EQ(catalogue.currentIndex, 1);
  EXPECT_EQ(catalogue.selectedName, "RUSTED.twk");
  catalogue.ApplyFilters({2, 0}, kSets);
  catalogue.FindByName("Rusted.twk");
  EXPECT_EQ(catalogue.currentIndex, 0);
  catalogue.FindByName("Old.twk");
  EXPECT_EQ(catalogue.currentIndex, -1);
  EXPECT_EQ(catalogue.selectedName, "Old.twk");
}

TEST(TextureRecord, DisplayNames) {
  const struct {
    const char* file;
    const char* shown;
  } kNames[] = {{"Rusted.twk", "Rusted"}, {"Rusted.TWK", "Rusted.TWK"},
                {"a.twk", "a"},           {".twk", ".twk"},
                {"twk", "twk"},           {"a.twk.bmp", "a.twk.bmp"}};
  for (const auto& c : kNames) EXPECT_EQ(TextureDisplayName(c.file), c.shown);
}

}  // namespace
}  // namespace tarnwick::testing
