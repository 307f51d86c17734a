// The lists of presets on a real page, over real folders.
#include "dialog/presets/preset_library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "dialog/windows/box_script.h"
#include "dialog/windows/preset_page.h"

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kBasicList = 1084, kUserList = 1013, kWashList = 1085, kSurfaceList = 1086,
              kBackgroundList = 1012;
constexpr int kWashDelete = 1087, kWashPath = 1094, kWashSave = 1382;

constexpr char kNameBox[] = "Save Parameters Preset";
constexpr char kWarning[] = "File Save Warning";
constexpr char kAlert[] = "Plugins Alert";

constexpr char kWashPreset[] =
    "TarnwickStudi Press Preset;\nVersion 2;\n;------Wash parameters------\n"
    "nOSW 1 \t\t\t\t;Use Wash \n1NFW Barn.twk \t\t\t\t;Name of Wash1 \n"
    "1cSW 77 \t\t\t\t;Scale of Wash1\nxE2W 0 \t\t\t\t;Second Wash Exist \n";

std::string SurfacePreset(const std::string& texture) {
  return "TarnwickStudi Press Preset;\nVersion 2;\nnOfS 1 ;\n1NFS " + texture + " ;\n";
}

// Types a name and presses Save.
BoxScript::Answer Type(const std::string& name) {
  return [name](HWND box) {
    SetDlgItemTextA(box, 1358, name.c_str());
    PressButton(box, IDOK);
  };
}

TEST(PresetLibrary, ShowsFoldersAndFollowsThem) {
  PresetPage page;
  page.Put("Wash/Zinc.twkpst", kWashPreset);
  page.Put("Wash/Aged.TWKPST", kWashPreset);
  page.Put("Wash/Notes.txt", "");
  page.Put("Wash/Wood/Oak/Deep.twkpst", kWashPreset);
  page.Put("Wash/Wood/Board.twkpst", kWashPreset);
  page.library->Fill(page.window, PresetKind::kWash);
  EXPECT_THAT(page.Rows(kWashList), ElementsAre("\tWood", "Aged", "Zinc"));
  EXPECT_EQ(page.TextOf(kWashPath), "");

  page.DoubleClick(kWashList, "\tWood");
  EXPECT_THAT(page.Rows(kWashList), ElementsAre("\t..", "\tOak", "Board"));
  EXPECT_EQ(page.TextOf(kWashPath), "Wood\\");
  EXPECT_FALSE(page.IsEnabled(kWashDelete));
  page.DoubleClick(kWashList, "\tOak");
  EXPECT_THAT(page.Rows(kWashList), ElementsAre("\t..", "Deep"));
  EXPECT_EQ(page.TextOf(kWashPath), "Wood\\Oak\\");
  EXPECT_THAT(page.Asked(), IsEmpty());
  page.DoubleClick(kWashList, "\t..");
  page.DoubleClick(kWashList, "\t..");
  EXPECT_THAT(page.Rows(kWashList), ElementsAre("\tWood", "Aged", "Zinc"));
  // A preset is not opened but loaded, once.
  page.DoubleClick(kWashList, "Zinc");
  EXPECT_THAT(page.Rows(kWashList), ElementsAre("\tWood", "Aged", "Zinc"));
  EXPECT_EQ(page.Asked().size(), 5U);
}

TEST(PresetLibrary, WithoutFoldersOnlyTheBuiltInRowsAreThere) {
  PresetPage page;
  page.library->Fill(page.window, PresetKind::kBasic);
  page.library->Fill(page.window, PresetKind::kUser);
  EXPECT_THAT(page.Rows(kBasicList), ElementsAre("Reset All", "Last Used Settings"));
  EXPECT_THAT(page.Rows(kUserList), IsEmpty());
}

TEST(PresetLibrary, LoadsWhatIsSelected) {
  PresetPage page;
  page.Put("Wash/Aged.twkpst", kWashPreset);
  page.Put("Wash/Wood/Board.twkpst", kWashPreset);
  page.Put("Wash/Broken.twkpst", "Something else\n1cSW 13 ;\n");
  page.library->Fill(page.window, PresetKind::kWash);
  page.settings.MaskLayerEffect = 1;
  page.settings.NewLayerBackground = 0;

  page.Select(kWashList, "Aged");
  EXPECT_EQ(page.settings.WashScale1, 77);
  EXPECT_STREQ(page.settings.WashFileName1, "Barn.twk");
  EXPECT_EQ(page.settings.NewLayerBackground, 1);
  EXPECT_TRUE(page.IsEnabled(kWashDelete));
  // All groups of a fresh record are on.
  EXPECT_THAT(page.Asked(), ElementsAre("strip", "options", "layers ---", "changed, held", "page"));

  page.settings.WashScale1 = 5;
  page.Select(kWashList, "Broken");
  EXPECT_EQ(page.settings.WashScale1, 5);
  EXPECT_EQ(page.settings.SnapshotHeld, 0);
  EXPECT_TRUE(page.IsEnabled(kWashDelete));
  EXPECT_THAT(page.Asked(), IsEmpty());

  page.settings.SnapshotHeld = 1;
  page.Select(kWashList, "\tWood");
  EXPECT_EQ(page.settings.SnapshotHeld, 0);
  EXPECT_FALSE(page.IsEnabled(kWashDelete));
  EXPECT_THAT(page.Asked(), IsEmpty());

  // A selection that has gone.
  page.Select(kWashList, "Aged");
  SendMessageA(page.Item(kWashList), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  (void)page.Asked();
  EXPECT_TRUE(page.library->Command(page.window, MAKEWPARAM(kWashList, LBN_SELCHANGE)));
  EXPECT_FALSE(page.IsEnabled(kWashDelete));
  EXPECT_THAT(page.Asked(), IsEmpty());
  EXPECT_FALSE(page.library->Command(page.window, MAKEWPARAM(1033, LBN_SELCHANGE)));
}

TEST(PresetLibrary, DerivesWhatIsUsedBeforeLayersAreMade) {
  PresetPage page;
  page.Put("Surface/Plain.twkpst", SurfacePreset("No_Texture.twk"));
  page.Put("Surface/Clay.twkpst", SurfacePreset("Clay.twk"));
  page.library->Fill(page.window, PresetKind::kSurface);
  page.g.session.SurfaceColorCategory = "Rust";
  page.Select(kSurfaceList, "Clay");
  EXPECT_EQ(page.g.session.SurfaceColorCategory, "Custom");
  EXPECT_THAT(page.Asked(), ElementsAre("strip", "options", "layers w-b", "changed, held", "page"));
  // It says that it is on, but has no texture.
  page.Select(kSurfaceList, "Plain");
  EXPECT_EQ(page.settings.SurfaceUse, 0);
  EXPECT_THAT(page.Asked(), ElementsAre("strip", "options", "layers wsb", "changed, held", "page"));
}

TEST(PresetLibrary, ResetsAllAndBringsTheLastBack) {
  PresetPage page;
  page.library->Fill(page.window, PresetKind::kBasic);
  page.settings.WashIntensity1 = 3;
  std::strcpy(page.lastUsed.WashFileName1, "Hand.twk");
  page.lastUsed.WashScale1 = 44;
  page.lastUsed.SnapshotHeld = 1;
  page.lastUsed.BackgroundUse = 0;
  page.Select(kBasicList, "Reset All");
  EXPECT_EQ(page.settings.WashIntensity1, 100);
  for (const char* name : {page.settings.WashFileName1, page.settings.SurfaceFileName1,
                           page.settings.BackgroundFileName}) {
    EXPECT_STREQ(name, "No_Texture.twk");
  }
  EXPECT_THAT(page.Asked(), ElementsAre("strip", "options", "layers ---", "changed, held", "page"));

  page.Select(kBasicList, "Last Used Settings");
  EXPECT_EQ(page.settings.WashScale1, 44);
  EXPECT_STREQ(page.settings.WashFileName1, "Hand.twk");
  EXPECT_THAT(page.Asked(), ElementsAre("strip", "options", "layers --b", "changed", "page"));
}

TEST(PresetLibrary, DeletesFileAndRow) {
  PresetPage page;
  page.Put("Wash/Wood/Board.twkpst", kWashPreset);
  page.Put("Wash/Wood/Plank.twkpst", kWashPreset);
  page.Put("Wash/Board.twkpst", kWashPreset);
  page.library->Fill(page.window, PresetKind::kWash);
  page.DoubleClick(kWashList, "\tWood");
  page.Select(kWashList, "Board");
  SetFocus(page.Item(kWashDelete));
  page.Press(kWashDelete);
  EXPECT_FALSE(page.Has("Wash/Wood/Board.twkpst"));
  EXPECT_TRUE(page.Has("Wash/Board.twkpst"));
  EXPECT_THAT(page.Rows(kWashList), ElementsAre("\t..", "Plank"));
  EXPECT_FALSE(page.IsEnabled(kWashDelete));
  EXPECT_EQ(GetFocus(), page.Item(kWashList)) << "keys are not lost with the button";

  // The row goes even if the file is not there any more; a folder's does not.
  page.Select(kWashList, "Plank");
  DeleteFileA((page.library->Folders().File(PresetKind::kWash, "Plank")).c_str());
  page.Press(kWashDelete);
  page.Select(kWashList, "\t..");
  page.Press(kWashDelete);
  EXPECT_THAT(page.Rows(kWashList), ElementsAre("\t.."));
}

TEST(PresetLibrary, SavesUnderANewName) {
  PresetPage page;
  page.Put("Wash/Worn.twkpst", kWashPreset);
  page.library->Fill(page.window, PresetKind::kWash);
  page.settings.WashScale1 = 66;
  BoxScript boxes;
  boxes.Expect(kNameBox, Type("Aged.twkpst"));
  page.Press(kWashSave);
  EXPECT_THAT(page.Rows(kWashList), ElementsAre("Aged", "Worn"));
  EXPECT_TRUE(page.Has("Wash/Aged.twkpst"));
  EXPECT_FALSE(page.Has("Wash/Aged.twkpst.twkpst"));
  EXPECT_THAT(page.Read("Wash/Aged.twkpst"),
              ::testing::HasSubstr("1cSW 66 \t\t\t\t;Scale of Wash1\n"));
  EXPECT_THAT(page.Asked(), IsEmpty());
}

// The question is about the top folder, the file goes into the sub-folder.
TEST(PresetLibrary, SavesInASubFolder) {
  PresetPage page;
  page.Put("Wash/Top.twkpst", "top");
  page.Put("Wash/Wood/Inner.twkpst", "inner");
  page.library->Fill(page.window, PresetKind::kWash);
  page.DoubleClick(kWashList, "\tWood");
  BoxScript boxes;
  boxes.Expect(kNameBox, Type("Inner"));
  page.Press(kWashSave);
  EXPECT_THAT(page.Read("Wash/Wood/Inner.twkpst"), ::testing::StartsWith("Tarnwick"));
  EXPECT_FALSE(page.Has("Wash/Inner.twkpst"));
  EXPECT_THAT(page.Rows(kWashList), ElementsAre("\t..", "Inner", "Inner"));

  boxes.Expect(kNameBox, Type("Top"));
  boxes.ExpectPress(kWarning, IDYES);
  page.Press(kWashSave);
  EXPECT_EQ(page.Read("Wash/Top.twkpst"), "top");
  EXPECT_TRUE(page.Has("Wash/Wood/Top.twkpst"));
  EXPECT_THAT(page.Rows(kWashList), ElementsAre("\t..", "Inner", "Inner"));
}

TEST(PresetLibrary, TellsWhenItCannotSave) {
  PresetPage page;  // without a folder "Wash"
  page.library->Fill(page.window, PresetKind::kWash);
  BoxScript boxes;
  boxes.Expect(kNameBox, Type("Aged"));
  std::string text;
  boxes.Expect(kAlert, [&](HWND box) {
    char line[64] = "";
    GetDlgItemTextA(box, 0xFFFF, line, sizeof line);
    text = line;
    PressButton(box, IDOK);
  });
  page.Press(kWashSave);
  EXPECT_EQ(text, "Cannot Save File!");
  EXPECT_THAT(page.Rows(kWashList), IsEmpty());
}

TEST(PresetLibrary, ColorsAreSavedToTheirFolderAndReadFromIt) {
  PresetPage page;
  page.Put("Colors/Rust.twkpst",
           "TarnwickStudi Press Preset;\nVersion 2;\n;\nrgtC Red Tones ;\n"
           "lCiH 300 ;\nlCdM 200 ;\nlCdS 100 ;\n");
  const EffectSettings before = page.settings;
  EXPECT_TRUE(page.library->LoadPreset("Rust.twkpst", PresetKind::kSurfaceColor));
  EXPECT_EQ(std::memcmp(&page.settings, &before, sizeof before), 0);
  EXPECT_EQ(PresetsOf(page.g).PresetHighlightColor, 300U);
  EXPECT_EQ(PresetsOf(page.g).PresetMidtoneColor, 200U);
  EXPECT_EQ(PresetsOf(page.g).PresetShadowColor, 100U);
  EXPECT_FALSE(page.library->LoadPreset("", PresetKind::kSurfaceColor));
  EXPECT_FALSE(page.library->LoadPreset("Gone", PresetKind::kSurfaceColor));

  BoxScript boxes;
  boxes.Expect(kNameBox, Type("Mine"));
  page.library->Save(PresetKind::kBackgroundColor);
  EXPECT_THAT(page.Read("Colors/Mine.twkpst"), ::testing::HasSubstr("rgtC Empty "));
}

TEST(PresetLibrary, ABackPaletteLeavesTheStripAlone) {
  PresetPage page;
  page.Put("BackPalette/Dusk.twkpst",
           "TarnwickStudi Press Preset;\nVersion 2;\nnOkB 1 ;\nNFkB Dusk.twk ;\n");
  page.g.session.BackgroundColorCategory = "Moss";
  EXPECT_TRUE(page.library->LoadBackPalette("Dusk"));
  EXPECT_STREQ(page.settings.BackgroundFileName, "Dusk.twk");
  EXPECT_EQ(page.g.session.BackgroundColorCategory, "Custom");
  EXPECT_THAT(page.Asked(), IsEmpty());
  EXPECT_FALSE(page.library->LoadBackPalette("none"));
}

// A folder with a letter of the system's code page that is no UTF-8.
TEST(PresetLibrary, WorksInAFolderWithAnUmlaut) {
  PresetPage page(
      "\xDC"
      "bung");
  page.Put("User/Gr\xFCn/\xC4hren.twkpst", kWashPreset);
  page.library->Fill(page.window, PresetKind::kUser);
  page.DoubleClick(kUserList, "\tGr\xFCn");
  EXPECT_EQ(page.TextOf(1093), "Gr\xFCn\\");
  page.Select(kUserList, "\xC4hren");
  EXPECT_EQ(page.settings.WashScale1, 77);
  BoxScript boxes;
  boxes.Expect(kNameBox, Type("M\xF6"
                              "bel"));
  page.Press(1300);
  EXPECT_TRUE(
      page.Has("User/Gr\xFCn/M\xF6"
               "bel.twkpst"));
  page.Select(kUserList, "\xC4hren");
  page.Press(1092);
  EXPECT_FALSE(page.Has("User/Gr\xFCn/\xC4hren.twkpst"));
}

// What a row's place shows. Counts pixels of a colour.
class DrawnList {
 public:
  explicit DrawnList(HWND list) : list_(list) {
    RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
  }
  [[nodiscard]] RECT Row(int row) const {
    RECT place{};
    SendMessageA(list_, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    return place;
  }
  [[nodiscard]] COLORREF Pixel(int x, int y) const {
    const HDC dc = GetDC(list_);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(list_, dc);
    return color;
  }
  // The first column, from the row's left, that differs from the row's ground in any
  // row of pixels, within [from, to).
  [[nodiscard]] int FirstInk(int row, int from, int to) const {
    const RECT place = Row(row);
    const COLORREF ground = Pixel(place.right - 4, place.top + 3);
    for (int x = from; x < to; ++x) {
      for (int y = place.top + 1; y < place.bottom - 1; ++y) {
        if (Pixel(place.left + x, y) != ground) return x;
      }
    }
    return -1;
  }

 private:
  HWND list_;
};

TEST(PresetLibrary, DrawsFoldersPresetsAndTheSelection) {
  PresetPage page;
  page.Put("Background/Hhh.twkpst", "");
  page.Put("Background/Lll.twkpst", "");
  page.Put("Background/Hhh/Hhh.twkpst", "");
  page.library->Fill(page.window, PresetKind::kBackground);
  ShowWindow(page.window, SW_SHOWNOACTIVATE);
  const HWND list = page.Item(kBackgroundList);
  const DrawnList drawn(list);
  // The icon begins at 2, a folder's text at 23 and a preset's at 5; an H stands a pixel
  // from its place's left.
  EXPECT_GE(drawn.FirstInk(0, 1, 18), 2);
  EXPECT_NEAR(drawn.FirstInk(0, 19, 60), 24, 1);
  EXPECT_NEAR(drawn.FirstInk(1, 1, 60), 6, 1);
  EXPECT_GE(drawn.Row(0).bottom - drawn.Row(0).top, 16);
  const RECT plain = drawn.Row(2);
  EXPECT_EQ(drawn.Pixel(plain.left + 1, plain.top + 1), GetSysColor(COLOR_WINDOW));

  SendMessageA(list, LB_SETCURSEL, 1, 0);
  const DrawnList selected(list);
  const RECT row = selected.Row(1);
  EXPECT_EQ(selected.Pixel(row.left, row.top), GetSysColor(COLOR_HIGHLIGHT));
  EXPECT_EQ(selected.Pixel(row.right - 1, row.bottom - 1), GetSysColor(COLOR_HIGHLIGHT));
  const COLORREF ground = selected.Pixel(row.right - 4, row.top + 3);
  EXPECT_NE(ground, GetSysColor(COLOR_WINDOW));
  EXPECT_NE(ground, GetSysColor(COLOR_HIGHLIGHT));
  // The text is as dark as elsewhere, the ground lighter than the middle.
  EXPECT_GT(GetRValue(ground) + GetGValue(ground) + GetBValue(ground), 3 * 128);
  EXPECT_NEAR(selected.FirstInk(1, 2, 60), 6, 1);
}

}  // namespace
}  // namespace tarnwick
