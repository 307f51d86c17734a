#include "dialog/models/page_rows.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <set>
#include <string>

#include "settings/settings_access.h"
#include "settings/settings_table.h"

namespace tarnwick {
namespace {

// A control as a designer would list it. Fields without a number stand for both.
struct Listed {
  int tab, id, edit, spin;
  int minimum, maximum;
  const char* field;  // of the first layer
  bool isLinked, changesSurface;
  const char* tip;
};

const Listed kNumbers[] = {
    {1, 1023, 1024, 1025, 0, 200, "WashScale1", true, false,
     "Reduce or enlarge the size of the wash effect"},
    {1, 1026, 1027, 1328, 1, 200, "WashIntensity1", false, false,
     "Reduce or enlarge the intensity of the wash effect"},
    {1, 1033, 1034, 1035, -100, 100, "WashCoverage1", false, false,
     "Adjust the area the wash effect is applied"},
    {1, 1036, 1037, 1038, 1, 200, "WashCoverageScale1", false, false,
     "Reduce or enlarge the size of effect area patches"},
    {1, 1039, 1040, 1041, 0, 100, "WashEdgeDistance1", false, false,
     "Adjust the distance of the wash effect from the edge"},
    {1, 1042, 1043, 1044, 0, 200, "WashEdgeSoftness1", false, false,
     "Adjust the blur or sharpness of the wash effect at the edge of the image selection"},
    {2, 1061, 1062, 1063, 0, 200, "SurfaceScale1", true, false,
     "Reduce or enlarge the size of the surface effect"},
    {2, 1352, 1056, 1357, 0, 100, "SurfaceDepth1", false, true,
     "Reduce or increase the intensity of the surface effect"},
    {2, 1178, 1276, 1077, 0, 100, "SurfaceMidtone", false, true,
     "Adjust the amount of colorization applied to the surface effect"},
    {2, 1068, 1069, 1070, -100, 100, "SurfaceHue", false, true, "Adjust surface color hue"},
    {2, 1353, 1057, 1358, 0, 200, "SurfaceBrightness", false, true,
     "Reduce or increase the strength of the image brightness"},
    {2, 1354, 1059, 1359, 0, 200, "SurfaceContrast", false, true,
     "Reduce or increase the strength of the image contrast"},
    {3, 1050, 1054, 1055, 0, 200, "BackgroundScale", true, false,
     "Reduce or enlarge the size of the background effect"},
    {3, 1326, 1327, 1028, -100, 100, "BackgroundHue", false, false, "Adjust background color hue"},
    {3, 1329, 1330, 1331, 0, 100, "BackgroundMidtone", false, false,
     "Adjust background color saturation"},
};

// Boxes, lists, swatches and turns. The boxes that say horizontal write the fields that
// say vertical, and the background's tips are crossed once more.
const Listed kOthers[] = {
    {1, 1129, 0, 0, 0, 3, "WashType1", false, false, "Select desired wash type"},
    {1, 1130, 0, 0, 0, 0, "WashStainColor1", false, false, "Select wash color"},
    {1, 1005, 0, 0, 0, 0, "WashFlipVer1", true, false, "Flip wash effect horizontally"},
    {1, 1020, 0, 0, 0, 0, "WashFlipHor1", true, false, "Flip wash effect vertically"},
    {1, 1021, 0, 0, 0, 0, "WashInvert1", false, false, "Invert wash effect"},
    {1, 2001, 0, 0, 0, 0, "WashAngle1", true, false,
     "Rotate wash effect 90 degrees counter-clockwise"},
    {1, 1002, 0, 0, 0, 0, "WashAngle1", true, false, "Rotate wash effect 90 degrees clockwise"},
    {1, 1029, 0, 0, 0, 0, "WashRandomize1", false, false,
     "Randomize the wash effect coverage area"},
    {1, 1030, 0, 0, 0, 0, "WashRandomize1", false, false,
     "Randomize the wash effect coverage area"},
    {1, 1031, 1032, 0, 0, 0, "WashInside1", false, false,
     "Apply wash effect inside image selection"},
    {2, 1007, 0, 0, 0, 0, "SurfacePerspectiveOn", false, true, "Apply depth perspective to image"},
    {2, 1235, 0, 0, 0, 0, "SurfaceEntire", false, false, "Apply surface effect to entire image"},
    {2, 1205, 0, 0, 0, 0, "SurfaceIncludeWashArea", false, false,
     "Apply surface effect to wash effected areas"},
    {2, 1090, 0, 0, 0, 0, "SurfaceFlipVer1", true, false, "Flip surface effect horizontally"},
    {2, 1089, 0, 0, 0, 0, "SurfaceFlipHor1", true, false, "Flip surface effect vertically"},
    {2, 1006, 0, 0, 0, 0, "SurfaceInvert1", false, true, "Invert surface texture"},
    {2, 1202, 0, 0, 0, 0, "SurfaceAngle1", true, false,
     "Rotate surface effect 90 degrees counter-clockwise"},
    {2, 1201, 0, 0, 0, 0, "SurfaceAngle1", true, false,
     "Rotate surface effect 90 degrees clockwise"},
    {2, 1132, 0, 0, 0, 4, "SurfaceType1", false, true, "Type of Surface"},
    {2, 1073, 0, 0, 0, 0, "SurfaceHighlightColor", false, true,
     "Launch the color picker to update the surface tone color"},
    {2, 1071, 0, 0, 0, 0, "SurfaceMidtoneColor", false, true,
     "Launch the color picker to update the surface tone color"},
    {2, 1072, 0, 0, 0, 0, "SurfaceShadowColor", false, true,
     "Launch the color picker to update the surface tone color"},
    {3, 1335, 0, 0, 0, 0, "BackgroundEntire", false, false,
     "Apply background effect to entire image"},
    {3, 1405, 0, 0, 0, 0, "BackgroundEnhancedMode", false, false, "Enhanced mode"},
    {3, 1306, 0, 0, 0, 0, "BackgroundFlipVer", true, false, "Flip background effect vertically"},
    {3, 1052, 0, 0, 0, 0, "BackgroundFlipHor", true, false, "Flip background effect horizontally"},
    {3, 1053, 0, 0, 0, 0, "BackgroundInvert", false, false, "Invert background effect"},
    {3, 1078, 0, 0, 0, 0, "BackgroundAngle", true, false,
     "Rotate background effect 90 degrees counter-clockwise"},
    {3, 1079, 0, 0, 0, 0, "BackgroundAngle", true, false,
     "Rotate background effect 90 degrees clockwise"},
    {3, 1047, 0, 0, 0, 0, "BackgroundHighlightColor", false, false,
     "Launch the color picker to update the background tone color"},
    {3, 1048, 0, 0, 0, 0, "BackgroundMidtoneColor", false, false,
     "Launch the color picker to update the background tone color"},
    {3, 1049, 0, 0, 0, 0, "BackgroundShadowColor", false, false,
     "Launch the color picker to update the background tone color"},
};

// Controls that edit no number.
const Listed kPlain[] = {
    {1, 1015, 0, 0, 0, 0, nullptr, false, false, "Select texture to apply wash effect"},
    {1, 1077, 0, 0, 0, 0, nullptr, false, false, "Select texture to apply wash effect"},
    {1, 2000, 0, 0, 0, 0, nullptr, false, false,
     "Link/Unlink texture settings for the same texture"},
    {1, 1231, 1245, 1146, 0, 0, nullptr, true, false,
     "Set offset of wash effect (Hold CTRL + Drag in Preview Area)"},
    {2, 1060, 0, 0, 0, 0, nullptr, false, false, "Select texture to apply surface effect"},
    {2, 1000, 0, 0, 0, 0, nullptr, false, false, "Select texture to apply surface effect"},
    {2, 1001, 0, 0, 0, 0, nullptr, false, false,
     "Link/Unlink texture settings for the same texture"},
    {2, 1150, 0, 0, 0, 0, nullptr, false, false, "Select preset colors to apply to surface effect"},
    {2, 1402, 0, 0, 0, 0, nullptr, false, false, "Select preset colors to apply to surface effect"},
    {2, 1058, 1015, 1016, 0, 0, nullptr, false, true,
     "Adjust the lighting direction applied to surface effect"},
    {3, 1051, 0, 0, 0, 0, nullptr, false, false, " Select texture to apply background effect"},
    {3, 1076, 0, 0, 0, 0, nullptr, false, false, " Select texture to apply background effect"},
    {3, 1098, 0, 0, 0, 0, nullptr, false, false,
     "Link/Unlink texture settings for the same texture"},
    {3, 1015, 0, 0, 0, 0, nullptr, false, false,
     "Select preset colors to apply to background effect"},
    {3, 1200, 0, 0, 0, 0, nullptr, false, false,
     "Select preset colors to apply to background effect"},
};

const ControlRow* RowOf(int tab, int id) {
  for (const ControlRow& row : RowsOf(tab)) {
    if (row.id == id) return &row;
  }
  return nullptr;
}

// The setting of this name, or of its second form.
const SettingField* FieldNamed(std::string name, bool second) {
  if (second && name.back() == '1') name.back() = '2';
  for (const SettingField& field : SettingsTable()) {
    if (field.name == name) return &field;
  }
  return nullptr;
}

void ExpectField(const Listed& listed, const ControlRow& row, bool second) {
  const SettingField* const field = FieldNamed(listed.field, second);
  ASSERT_NE(field, nullptr) << listed.field;
  SettingsSession session;
  EffectSettings byRow;
  EffectSettings byName;
  // Whole, with what lies between the fields.
  std::memset(static_cast<void*>(&byRow), 0, sizeof byRow);
  std::memset(static_cast<void*>(&byName), 0, sizeof byName);
  for (const int value : {1, 0, 3}) {
    row.field.set(byRow, second, value);
    StoreSettingNumber(*field, value, byName, session);
    EXPECT_EQ(std::memcmp(&byRow, &byName, sizeof byRow), 0) << listed.field << " " << value;
    EXPECT_EQ(row.field.get(byName, second), value) << listed.field;
  }
}

void ExpectListed(const Listed& listed) {
  SCOPED_TRACE(std::to_string(listed.tab) + "/" + std::to_string(listed.id));
  const ControlRow* const row = RowOf(listed.tab, listed.id);
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->editId, listed.edit);
  EXPECT_EQ(row->spinId, listed.spin);
  EXPECT_STREQ(row->tip, listed.tip);
  EXPECT_EQ(row->isLinked, listed.isLinked);
  EXPECT_EQ(row->changesSurface, listed.changesSurface);
  if (listed.field == nullptr) {
    EXPECT_EQ(row->field.set, nullptr);
    return;
  }
  ExpectField(listed, *row, false);
  ExpectField(listed, *row, true);
}

TEST(PageRows, AreTheListedControls) {
  std::set<std::pair<int, int>> seen;
  for (const Listed& listed : kNumbers) {
    ExpectListed(listed);
    const ControlRow* const row = RowOf(listed.tab, listed.id);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->kind, RowKind::kValue) << listed.id;
    EXPECT_EQ(row->minimum, listed.minimum) << listed.id;
    EXPECT_EQ(row->maximum, listed.maximum) << listed.id;
    seen.emplace(listed.tab, listed.id);
  }
  for (const Listed& listed : kOthers) {
    ExpectListed(listed);
    seen.emplace(listed.tab, listed.id);
  }
  for (const Listed& listed : kPlain) {
    ExpectListed(listed);
    seen.emplace(listed.tab, listed.id);
  }
  std::size_t rows = 0;
  for (const int tab : {0, 1, 2, 3}) rows += RowsOf(tab).size();
  EXPECT_EQ(rows, seen.size()) << "controls that are not listed";
  EXPECT_TRUE(RowsOf(0).empty());
  EXPECT_STREQ(RowOf(1, 1031)->secondTip, "Apply wash effect outside image selection");
}

TEST(PageRows, ChoicesAreInTheirOrder) {
  const auto texts = [](int tab, int id) {
    std::string all;
    for (const char* const choice : RowOf(tab, id)->choices) all += std::string(choice) + " ";
    return all;
  };
  EXPECT_EQ(texts(1, 1129), "Erosion Stain Bleach Color ");
  EXPECT_EQ(texts(2, 1132), "Colorize Tint Boost Enhance Vivid ");
}

TEST(PageRows, NumbersOfAPageAreItsOwn) {
  for (const int tab : {1, 2, 3}) {
    std::map<int, int> uses;
    for (const ControlRow& row : RowsOf(tab)) {
      for (const int id : {row.id, row.editId, row.spinId, row.labelId, row.secondLabelId}) {
        if (id != 0) ++uses[id];
      }
    }
    for (const int group : GroupsOf(tab)) ++uses[group];
    for (const auto& [id, count] : uses) EXPECT_EQ(count, 1) << tab << "/" << id;
  }
}

}  // namespace
}  // namespace tarnwick
