// The filmstrip in a real window, over real folders.
#include "dialog/filmstrip/filmstrip_control.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "controls/control_classes.h"
#include "dialog/windows/preset_page.h"
#include "support/wash_bytes.h"
#include "textures/thumbnail_file.h"

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kStrip = 1157;
constexpr int kNext = 1003, kPrevious = 1004;
constexpr COLORREF kBlack = RGB(0, 0, 0), kWhite = RGB(255, 255, 255);

std::string AsText(const testing::Bytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

// A look whose shadow has this colour; its texture is black all over.
std::string Look(unsigned shadow) {
  return "TarnwickStudi Press Preset;\nVersion 2;\nnOkB 1 ;\nNFkB Night.twk ;\nvnIB 0 ;\n"
         "tLHB 100 ;\ntdMB 100 ;\nwdSB 100 ;\neuHB 0 ;\nlCSB " +
         std::to_string(shadow) + " ;\nWkLI 1 ;\n";
}

using File = std::pair<std::string, std::string>;

// Looks are given beforehand.
class StripStage {
 public:
  explicit StripStage(const std::vector<File>& files) {
    EXPECT_TRUE(RegisterControlClasses(GetModuleHandleA(nullptr)));
    page.g.folders.dataFolder = page.g.folders.presetFolder + "Textures";
    page.Put("Textures/Night.twk", AsText(testing::GrayWash(2, {0, 0, 0, 0})));
    for (const auto& [name, text] : files) page.Put("BackPalette/" + name, text);
    EXPECT_NE(
        CreateWindowExA(0, kFilmstripClass, "", WS_CHILD | WS_VISIBLE, 10, 10, 344, 70, page.window,
                        reinterpret_cast<HMENU>(kStrip), GetModuleHandleA(nullptr), nullptr),
        nullptr);
    page.g.session.BackgroundColorCategory = "Moss";
    strip = std::make_unique<TFilmstripControl>(
        page.g, *page.library, bitmaps_,
        FilmstripHooks{[this] { heard.emplace_back("about"); },
                       [this] { heard.emplace_back("applied"); },
                       [this] { heard.emplace_back("failed"); }});
    count = strip->ScanPresets(PresetKind::kBackPalette);
    strip->AttachToDialogItem(page.window, kStrip);
    strip->CreateStrip(GetModuleHandleA(nullptr));
    strip->LoadThumbnails(PresetKind::kBackPalette);
    ShowWindow(page.window, SW_SHOWNOACTIVATE);
    UpdateWindow(strip->window);
  }
  ~StripStage() {
    DestroyWindow(page.window);
    strip.reset();
    UnregisterControlClasses(GetModuleHandleA(nullptr));
  }
  StripStage(const StripStage&) = delete;
  StripStage& operator=(const StripStage&) = delete;

  LRESULT Send(UINT message, WPARAM wParam, int x, int y) {
    return SendMessageA(strip->window, message, wParam, MAKELPARAM(x, y));
  }
  void Press(int x) {
    Send(WM_LBUTTONDOWN, MK_LBUTTON, x, 30);
    Send(WM_LBUTTONUP, 0, x, 30);
  }
  // The arrow is pressed, and its slide runs to its end.
  void Slide(int arrow) {
    SendMessageA(strip->window, WM_COMMAND, static_cast<WPARAM>(arrow), 0);
    for (int i = 0; i < 11; ++i) SendMessageA(strip->window, WM_TIMER, 1, 0);
  }
  [[nodiscard]] bool IsEnabled(int arrow) const {
    return IsWindowEnabled(GetDlgItem(strip->window, arrow)) != FALSE;
  }
  [[nodiscard]] COLORREF Pixel(int x, int y) const {
    const HDC dc = GetDC(strip->window);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(strip->window, dc);
    return color;
  }
  // In a cell's middle, left of its diagonals.
  [[nodiscard]] COLORREF Cell(int place) const { return Pixel(20 + 63 * place + 12, 31); }

  PresetPage page;
  std::unique_ptr<TFilmstripControl> strip;
  int count = 0;
  std::vector<std::string> heard;

 private:
  BitmapSet bitmaps_;
};

const std::vector<File> kSixLooks = {{"A.twkpst", Look(0x0000FF)}, {"B.twkpst", Look(0x00FF00)},
                                     {"C.twkpst", Look(0xFF0000)}, {"D.twkpst", Look(0x00FFFF)},
                                     {"E.twkpst", Look(0xFFFF00)}, {"none.twkpst", Look(0x123456)}};

TEST(FilmstripControl, ShowsWhatEachLookMakesOfItsTexture) {
  StripStage stage(kSixLooks);
  EXPECT_EQ(stage.count, 6);
  RECT size{};
  GetClientRect(stage.strip->window, &size);
  EXPECT_EQ(size.right, 355);
  EXPECT_EQ(size.bottom, 63);
  EXPECT_EQ(stage.Cell(0), RGB(128, 128, 128));
  EXPECT_EQ(stage.Pixel(21 + 30, 1 + 30), RGB(192, 192, 192));
  EXPECT_EQ(stage.Cell(1), RGB(255, 0, 0));
  EXPECT_EQ(stage.Cell(2), RGB(0, 255, 0));
  EXPECT_EQ(stage.Cell(4), RGB(255, 255, 0));
  EXPECT_EQ(stage.Pixel(20, 0), kWhite);
  EXPECT_EQ(stage.Pixel(334, 62), kWhite);
  // The user's own settings have not been touched, and nothing was asked for.
  EXPECT_EQ(stage.page.g.session.BackgroundColorCategory, "Moss");
  EXPECT_EQ(stage.page.g.session.WashLinked, 0);
  EXPECT_EQ(std::memcmp(&stage.page.settings, &stage.page.lastUsed, sizeof(EffectSettings)), 0);
  EXPECT_THAT(stage.page.Asked(), IsEmpty());
  EXPECT_TRUE(stage.page.Has("BackPalette/E.bmp"));
  EXPECT_FALSE(stage.page.Has("BackPalette/none.bmp"));
}

TEST(FilmstripControl, MendsDamagedPicturesAndCrossesOutWhatIsNoLook) {
  StripStage stage({{"A.twkpst", Look(0x0000FF)},
                    {"A.bmp", "BM is no bitmap"},
                    {"B.twkpst", Look(0x00FF00)},
                    {"C.twkpst", "no preset"},
                    {"D.txt", Look(0)}});
  EXPECT_EQ(stage.count, 4);
  EXPECT_EQ(stage.Cell(1), RGB(255, 0, 0));
  EXPECT_TRUE(
      ReadThumbnail(stage.page.g.folders.presetFolder + "BackPalette\\A.bmp", kFilmstripThumbnail));
  // White, with two black diagonals.
  EXPECT_EQ(stage.Cell(3), kWhite);
  EXPECT_EQ(stage.Pixel(20 + 63 * 3 + 31, 31), kBlack);
  EXPECT_FALSE(stage.page.Has("BackPalette/C.bmp"));
  // No name at all.
  EXPECT_EQ(stage.Cell(4), GetSysColor(COLOR_BTNFACE));
  stage.Press(20 + 63 * 4 + 10);
  EXPECT_THAT(stage.heard, IsEmpty());

  stage.page.settings.SnapshotHeld = 1;
  const std::string texture = stage.page.settings.BackgroundFileName;
  stage.Press(20 + 63 * 3 + 10);
  EXPECT_THAT(stage.heard, ElementsAre("about"));
  EXPECT_THAT(stage.page.Asked(), IsEmpty());
  EXPECT_EQ(stage.page.settings.SnapshotHeld, 0);
  EXPECT_EQ(stage.page.settings.BackgroundFileName, texture);
}

TEST(FilmstripControl, MakesAPictureOfAnotherSizeAnew) {
  StripStage first({File{"A.twkpst", Look(0x0000FF)}});
  const std::string file = first.page.g.folders.presetFolder + "BackPalette\\A.bmp";
  ASSERT_TRUE(WriteThumbnail(file, ThumbnailPicture(61, 60)));
  first.strip->LoadThumbnails(PresetKind::kBackPalette);
  EXPECT_EQ(first.Cell(1), RGB(255, 0, 0));
  // One of the right size is trusted, whatever it shows.
  ASSERT_TRUE(WriteThumbnail(file, ThumbnailPicture(61, 61)));
  first.strip->LoadThumbnails(PresetKind::kBackPalette);
  EXPECT_EQ(first.Cell(1), kBlack);
}

TEST(FilmstripControl, APressAppliesTheLook) {
  StripStage stage(kSixLooks);
  stage.Send(WM_MOUSEMOVE, 0, 20 + 63 * 2 + 5, 30);
  EXPECT_EQ(GetCapture(), stage.strip->window);
  EXPECT_EQ(stage.Pixel(20 + 63 * 2, 0), kBlack);
  EXPECT_EQ(stage.Pixel(20 + 63, 0), kWhite);
  stage.Send(WM_LBUTTONDOWN, MK_LBUTTON, 20 + 63 * 2 + 5, 30);
  EXPECT_EQ(stage.Pixel(20 + 63 * 2, 0), kWhite);
  stage.Send(WM_MOUSEMOVE, MK_LBUTTON, 20 + 63 + 5, 30);
  EXPECT_EQ(stage.Pixel(20 + 63, 0), kWhite);
  stage.Send(WM_LBUTTONUP, 0, 20 + 63 + 5, 30);
  EXPECT_EQ(stage.Pixel(20 + 63, 0), kBlack);
  EXPECT_THAT(stage.heard, ElementsAre("about", "applied"));
  EXPECT_THAT(stage.page.Asked(), ElementsAre("layers ws-", "changed, held"));
  EXPECT_EQ(stage.page.settings.BackgroundShadowColor, 0x00FF00U);
  EXPECT_STREQ(stage.page.settings.BackgroundFileName, "Night.twk");
  stage.Send(WM_MOUSEMOVE, 0, 5, 30);
  EXPECT_NE(GetCapture(), stage.strip->window);
  EXPECT_EQ(stage.Pixel(20 + 63, 0), kWhite);
}

TEST(FilmstripControl, ArrowsSlideToTheSixthName) {
  StripStage stage(kSixLooks);
  EXPECT_FALSE(stage.IsEnabled(kPrevious));
  EXPECT_TRUE(stage.IsEnabled(kNext));
  SendMessageA(stage.strip->window, WM_COMMAND, kNext, 0);
  for (int i = 0; i < 4; ++i) SendMessageA(stage.strip->window, WM_TIMER, 1, 0);
  // Three cells and ten pixels on.
  EXPECT_EQ(stage.Pixel(22, 31), RGB(0, 0, 255));
  EXPECT_EQ(stage.Pixel(80, 31), RGB(255, 255, 0));
  EXPECT_EQ(stage.Pixel(150, 31), RGB(0, 255, 255));
  SendMessageA(stage.strip->window, WM_COMMAND, kPrevious, 0);
  stage.Press(100);
  EXPECT_THAT(stage.heard, IsEmpty());
  for (int i = 0; i < 7; ++i) SendMessageA(stage.strip->window, WM_TIMER, 1, 0);
  EXPECT_EQ(stage.Cell(0), RGB(0, 255, 255));
  EXPECT_EQ(stage.Cell(1), GetSysColor(COLOR_BTNFACE));
  EXPECT_TRUE(stage.IsEnabled(kPrevious));
  EXPECT_FALSE(stage.IsEnabled(kNext));
  stage.Press(30);
  EXPECT_EQ(stage.page.settings.BackgroundShadowColor, 0xFFFF00U);
  stage.Slide(kPrevious);
  EXPECT_EQ(stage.Cell(1), RGB(255, 0, 0));
  EXPECT_FALSE(stage.IsEnabled(kPrevious));
}

// Whatever is pressed next, keys do not end in an arrow that is grey.
TEST(FilmstripControl, TheLastArrowHandsTheKeysOn) {
  StripStage stage(kSixLooks);
  const HWND next = GetDlgItem(stage.strip->window, kNext);
  SetFocus(next);
  stage.Slide(kNext);
  EXPECT_NE(GetFocus(), next);
}

TEST(FilmstripControl, AnEmptyFolderIsAnEmptyStrip) {
  StripStage stage({File{"Notes.txt", ""}});
  EXPECT_EQ(stage.count, 0);
  EXPECT_FALSE(stage.IsEnabled(kPrevious));
  EXPECT_FALSE(stage.IsEnabled(kNext));
  stage.Send(WM_MOUSEMOVE, 0, 50, 30);
  stage.Press(50);
  stage.strip->ApplyFirstPreset();
  AutoDice dice(1);
  stage.strip->ApplyRandomPreset(dice);
  EXPECT_EQ(stage.Cell(0), GetSysColor(COLOR_BTNFACE));
  EXPECT_THAT(stage.heard, IsEmpty());
  EXPECT_EQ(std::memcmp(&stage.page.settings, &stage.page.lastUsed, sizeof(EffectSettings)), 0);
}

TEST(FilmstripControl, LoadsTheFirstLookOrAnyOfThem) {
  StripStage stage(kSixLooks);
  stage.strip->ApplyFirstPreset();
  EXPECT_EQ(stage.page.settings.BackgroundShadowColor, 0x123456U);
  EXPECT_EQ(stage.page.settings.SnapshotHeld, 1);
  // The first throw of this seed is 41: the sixth name.
  AutoDice dice(1);
  stage.strip->ApplyRandomPreset(dice);
  EXPECT_EQ(stage.page.settings.BackgroundShadowColor, 0xFFFF00U);
  EXPECT_THAT(stage.page.Asked(), IsEmpty());
}

TEST(FilmstripControl, SeesNewLooksAfterPresetsHaveChanged) {
  StripStage stage(kSixLooks);
  stage.page.library->TellOfChanges([&] { stage.strip->RescanAndLoad(PresetKind::kBackPalette); });
  stage.page.Put("Wash/Old.twkpst", "");
  stage.page.Put("Wash/Older.twkpst", "");
  stage.page.library->Fill(stage.page.window, PresetKind::kWash);
  stage.Slide(kNext);
  stage.page.Select(1085, "Old");
  stage.page.Press(1087);
  // The same names: the page stays.
  EXPECT_TRUE(stage.IsEnabled(kPrevious));
  stage.page.Put("BackPalette/AA.twkpst", Look(0x808080));
  stage.page.Select(1085, "Older");
  stage.page.Press(1087);
  EXPECT_FALSE(stage.IsEnabled(kPrevious));
  EXPECT_EQ(stage.Cell(2), RGB(128, 128, 128));
  stage.page.library->TellOfChanges({});
}

}  // namespace
}  // namespace tarnwick
