#include "settings/settings_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

// Gaps are alignment, so shorter than an address; a member without a row would
// leave a longer one or show in the count.
TEST(SettingsTable, RowsTileTheRecord) {
  std::vector<const SettingField*> rows;
  for (const SettingField& field : SettingsTable()) {
    if (!field.inSession) rows.push_back(&field);
  }
  EXPECT_EQ(rows.size(), 113u);
  std::ranges::sort(rows, {}, &SettingField::offset);
  std::size_t end = 0;
  for (const SettingField* field : rows) {
    EXPECT_GE(field->offset, end) << field->name;
    EXPECT_LT(field->offset - end, sizeof(std::uintptr_t)) << field->name;
    end = field->offset + field->size;
  }
  EXPECT_LT(sizeof(EffectSettings) - end, sizeof(std::uintptr_t));
}

TEST(SettingsTable, SizesFitTheTypes) {
  const auto sizeOf = [](SettingType type) -> std::size_t {
    switch (type) {
      case SettingType::kFlag:
      case SettingType::kByte:
        return 1;
      case SettingType::kShort:
      case SettingType::kWord:
        return 2;
      case SettingType::kText:
        return 128;
      case SettingType::kCategory:
        return sizeof(std::string);
      case SettingType::kAddress:
        return sizeof(void*);
      default:
        return 4;
    }
  };
  for (const SettingField& field : SettingsTable()) {
    EXPECT_EQ(field.size, sizeOf(field.type)) << field.name;
    const bool isText = field.type == SettingType::kText || field.type == SettingType::kCategory;
    EXPECT_EQ(field.initial.text != nullptr, isText) << field.name;
  }
}

TEST(SettingsTable, NamesAndKeysAreUnique) {
  std::set<std::string> names;
  std::set<std::uint32_t> keys;
  for (const SettingField& field : SettingsTable()) {
    EXPECT_TRUE(names.insert(AsciiLowered(field.name)).second) << field.name;
    EXPECT_EQ(FindSetting(AsciiLowered(field.name)), &field);
    if (field.key == 0) continue;
    EXPECT_TRUE(keys.insert(field.key).second) << field.name;
    EXPECT_EQ(FindSettingByKey(field.key), &field);
  }
  EXPECT_EQ(FindSettingByKey(0), nullptr);
  EXPECT_EQ(FindSetting("WashScale"), nullptr);
}

// The keys that no preset line shows; those are tested with the presets.
TEST(SettingsTable, ScriptingKeys) {
  EXPECT_EQ(FourCharacterCode("NLBs"), 0x4E4C4273u);
  const struct {
    std::uint32_t key;
    const char* name;
  } kKeys[] = {
      {FourCharacterCode("ILNL"), "LinkNewLayer"},
      {FourCharacterCode("ILNW"), "LinkNewWash"},
      {FourCharacterCode("ILNB"), "LinkNewBackground"},
      {FourCharacterCode("ILNS"), "LinkNewSurface"},
      {FourCharacterCode("OW1X"), "WashOffsetX1"},
      {FourCharacterCode("OW1Y"), "WashOffsetY1"},
      {FourCharacterCode("OW2X"), "WashOffsetX2"},
      {FourCharacterCode("OW2Y"), "WashOffsetY2"},
      {FourCharacterCode("OfBX"), "BackgroundOffsetX"},
      {FourCharacterCode("OfBY"), "BackgroundOffsetY"},
      {FourCharacterCode("OS1X"), "SurfaceOffsetX1"},
      {FourCharacterCode("OS1Y"), "SurfaceOffsetY1"},
      {FourCharacterCode("OS2X"), "SurfaceOffsetX2"},
      {FourCharacterCode("OS2Y"), "SurfaceOffsetY2"},
      {FourCharacterCode("SHL1"), "SurfaceHighlight"},
      {FourCharacterCode("SSw1"), "SurfaceShadow"},
      {FourCharacterCode("SvE1"), "SavedWashMask1"},
      {FourCharacterCode("SvE2"), "SavedWashMask2"},
      {FourCharacterCode("SbSR"), "SavedSurfaceMask"},
      {FourCharacterCode("Amnt"), "Amount"},
      {FourCharacterCode("disP"), "Disposition"},
      {FourCharacterCode("ignS"), "IgnoreSelection"},
  };
  for (const auto& c : kKeys) {
    const SettingField* field = FindSettingByKey(c.key);
    ASSERT_NE(field, nullptr) << c.name;
    EXPECT_STREQ(field->name, c.name);
  }
}

TEST(SettingsTable, OnlyTheProgramSetsItsOwn) {
  std::set<std::string> own;
  for (const SettingField& field : SettingsTable()) {
    if (!UserMaySet(field)) own.insert(field.name);
  }
  const std::set<std::string> want = {"SavedWashMask1",  "SavedWashMask2", "SavedSurfaceMask",
                                      "SnapshotHeld",    "WindowLeft",     "WindowTop",
                                      "WindowWidth",     "WindowHeight",   "ApplyToAll",
                                      "ApplyToAllFirst", "BatchMode"};
  EXPECT_EQ(own, want);
}

}  // namespace
}  // namespace tarnwick
