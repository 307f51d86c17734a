// The main dialog's template, in this program's resources as in the module's.
#include <windows.h>

#include <gtest/gtest.h>

#include "controls/control_classes.h"
#include "resources/dialog_ids.h"

namespace tarnwick {
namespace {

constexpr int kPane = 1002;

INT_PTR CALLBACK AnswerNothing(HWND, UINT, WPARAM, LPARAM) {
  return FALSE;
}

HWND Make() {
  return CreateDialogParamA(GetModuleHandleA(nullptr), TARNWICK_MAIN_DIALOG, nullptr, AnswerNothing,
                            0);
}

TEST(MainTemplate, ComesUpWithoutTheClassesOfItsControls) {
  const HWND dialog = Make();
  ASSERT_NE(dialog, nullptr);
  EXPECT_NE(GetDlgItem(dialog, IDOK), nullptr);
  EXPECT_EQ(GetDlgItem(dialog, kPane), nullptr);
  DestroyWindow(dialog);
}

// Another part of the host has the first class already.
TEST(MainTemplate, MissesNoMoreThanTheClassThatIsTaken) {
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  WNDCLASSA taken{};
  taken.lpfnWndProc = DefWindowProcA;
  taken.hInstance = instance;
  taken.lpszClassName = kFilmstripClass;
  ASSERT_NE(RegisterClassA(&taken), 0);
  EXPECT_FALSE(RegisterControlClasses(instance));
  const HWND dialog = Make();
  ASSERT_NE(dialog, nullptr);
  EXPECT_NE(GetDlgItem(dialog, kPane), nullptr);
  DestroyWindow(dialog);
  UnregisterControlClasses(instance);
}

}  // namespace
}  // namespace tarnwick
