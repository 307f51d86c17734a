// The box that asks for a preset's name, driven as a user does.
#include "dialog/presets/preset_name_box.h"

#include <gtest/gtest.h>

#include <string>

#include "dialog/windows/box_script.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

constexpr char kNameBox[] = "Save Parameters Preset";
constexpr char kWarning[] = "File Save Warning";
constexpr int kEdit = 1358;

std::string TextIn(HWND box, int id) {
  char text[300] = "";
  GetDlgItemTextA(box, id, text, sizeof text);
  return text;
}

class NameBox : public ::testing::Test {
 protected:
  NameBox() { folder_.Put("Taken.twkpst", {}); }

  NameAnswer Ask() {
    return AskPresetName(GetModuleHandleA(nullptr), nullptr, name_, [this](std::string_view name) {
      return folder_.Path() + "\\" + std::string(name) + ".twkpst";
    });
  }
  static BoxScript::Answer Type(const std::string& text) {
    return [text](HWND box) {
      SetDlgItemTextA(box, kEdit, text.c_str());
      PressButton(box, IDOK);
    };
  }

  const testing::TempFolder folder_;
  BoxScript boxes_;
  std::string name_;
};

TEST_F(NameBox, StartsWithItsTextAndWaitsForOne) {
  name_ = "Old";
  boxes_.Expect(kNameBox, [](HWND box) {
    EXPECT_EQ(TextIn(box, kEdit), "Old");
    EXPECT_EQ(TextIn(box, IDOK), "Save");
    EXPECT_EQ(TextIn(box, IDCANCEL), "Cancel");
    EXPECT_EQ(GetFocus(), GetDlgItem(box, kEdit));
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(box, IDOK)));
    SetDlgItemTextA(box, kEdit, "");
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(box, IDOK)));
    // Saves nothing.
    SendMessageA(box, WM_COMMAND, IDOK, 0);
    SendMessageA(GetDlgItem(box, kEdit), WM_CHAR, 'N', 1);
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(box, IDOK)));
    SendMessageA(GetDlgItem(box, kEdit), WM_CHAR, 'o', 1);
    PressKey(GetDlgItem(box, kEdit), VK_RETURN);
  });
  EXPECT_EQ(Ask(), NameAnswer::kNew);
  EXPECT_EQ(name_, "No");
}

TEST_F(NameBox, EscapeAndCancelSaveNothing) {
  boxes_.Expect(kNameBox, [](HWND box) {
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(box, IDOK)));
    SetDlgItemTextA(box, kEdit, "Aged");
    PressKey(GetDlgItem(box, kEdit), VK_ESCAPE);
  });
  EXPECT_EQ(Ask(), NameAnswer::kCancelled);
  boxes_.ExpectPress(kNameBox, IDCANCEL);
  EXPECT_EQ(Ask(), NameAnswer::kCancelled);
}

TEST_F(NameBox, TakesTheExtensionOff) {
  boxes_.Expect(kNameBox, Type("Aged.TwkPst"));
  EXPECT_EQ(Ask(), NameAnswer::kNew);
  EXPECT_EQ(name_, "Aged");
}

TEST_F(NameBox, AsksAgainUntilItMayOverwrite) {
  boxes_.Expect(kNameBox, Type("Taken.twkpst"));
  boxes_.Expect(kWarning, [](HWND box) {
    EXPECT_EQ(TextIn(box, 0xFFFF), "The file already exist!\n Do you want rewrite it?");
    PressButton(box, IDNO);
  });
  boxes_.Expect(kNameBox, [](HWND box) {
    EXPECT_EQ(TextIn(box, kEdit), "Taken");
    PressButton(box, IDOK);
  });
  boxes_.ExpectPress(kWarning, IDYES);
  EXPECT_EQ(Ask(), NameAnswer::kOverwrite);
  EXPECT_EQ(name_, "Taken");

  boxes_.Expect(kNameBox, Type("Taken"));
  boxes_.ExpectPress(kWarning, IDCANCEL);
  EXPECT_EQ(Ask(), NameAnswer::kCancelled);

  boxes_.Expect(kNameBox, Type("Taken"));
  boxes_.ExpectPress(kWarning, IDNO);
  boxes_.Expect(kNameBox, Type("Free"));
  EXPECT_EQ(Ask(), NameAnswer::kNew);
  EXPECT_EQ(name_, "Free");
}

TEST_F(NameBox, ReadsNoMoreThan255Letters) {
  boxes_.Expect(kNameBox, Type(std::string(300, 'n')));
  EXPECT_EQ(Ask(), NameAnswer::kNew);
  EXPECT_EQ(name_, std::string(255, 'n'));
}

}  // namespace
}  // namespace tarnwick
