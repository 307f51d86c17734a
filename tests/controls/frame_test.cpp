// Classes, buttons, labels, images, skins and tips.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "controls/control_button.h"
#include "controls/control_classes.h"
#include "controls/control_page.h"
#include "controls/control_shape.h"
#include "controls/control_shared.h"
#include "controls/image_button.h"
#include "controls/image_control.h"
#include "controls/label_control.h"
#include "controls/tool_tip.h"

namespace tarnwick {
namespace {

using Message = ControlPage::Message;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

HBITMAP Filled(int width, int height, COLORREF color) {
  const HDC screen = GetDC(nullptr);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  const HDC dc = CreateCompatibleDC(screen);
  const HGDIOBJ before = SelectObject(dc, bitmap);
  const RECT all = {0, 0, width, height};
  const HBRUSH brush = CreateSolidBrush(color);
  FillRect(dc, &all, brush);
  DeleteObject(brush);
  SelectObject(dc, before);
  DeleteDC(dc);
  ReleaseDC(nullptr, screen);
  return bitmap;
}

constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255),
                   kYellow = RGB(255, 255, 0);

TEST(ControlClasses, AreThereByTheirExactNames) {
  ControlPage page;
  for (const char* name :
       {"DexTWK2Class", "Control CPP", "Control Button Fire CPP", "Control Glass CPP",
        "Control Button CPP", "Contaner Anim CPP", "Contaner CPP", "Rotor CPP", "Mac Slider CPP",
        "Glass Slider CPP", "Preview Contaner CPP", "Contaner Color CPP", "Spin Edit CPP",
        "Color Equalizer CPP", "ContainerLinkC", "DexDrawerClass"}) {
    const HWND window = page.Add(name, 7, 0, 0, 30, 20);
    SendMessageA(window, WM_PAINT, 0, 0);
    DestroyWindow(window);
  }
  const HWND label = page.Add("Contaner CPP", 8, 0, 0, 60, 20);
  const auto* const record = GetControlRecord<TContaner>(label, "Contaner CPP");
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(record->id, 8);
  EXPECT_EQ(record->width, 60);
  EXPECT_EQ(record->window, label);
  EXPECT_EQ(FindControlRecord(label, "Container CPP"), nullptr);
  EXPECT_EQ(FindControlRecord(label, "contaner CPP"), nullptr);
  EXPECT_EQ(FindControlRecord(nullptr, "Contaner CPP"), nullptr);
}

TEST(ControlClasses, HaveTheirCursorsAndBackgrounds) {
  ControlPage page;
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  const HBRUSH black = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
  const HBRUSH face = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
  const HCURSOR arrow = LoadCursorA(nullptr, IDC_ARROW);
  const HCURSOR move = LoadCursorA(nullptr, IDC_SIZEALL);
  const struct {
    const char* name;
    UINT style;
    HBRUSH background;
    HCURSOR cursor;
  } kCases[] = {{"Control Button CPP", 0, face, arrow},
                {"Contaner Color CPP", 0, face, arrow},
                {"Preview Contaner CPP", 0, black, move},
                {"DexDrawerClass", CS_DBLCLKS, black, arrow}};
  for (const auto& c : kCases) {
    WNDCLASSA found{};
    ASSERT_TRUE(GetClassInfoA(instance, c.name, &found)) << c.name;
    EXPECT_EQ(found.style, c.style) << c.name;
    EXPECT_EQ(found.hbrBackground, c.background) << c.name;
    EXPECT_EQ(found.hCursor, c.cursor) << c.name;
    EXPECT_GE(found.cbWndExtra, 4) << c.name;
    EXPECT_EQ(found.hIcon, nullptr) << c.name;
  }
  // A class deletes its own brush when it goes.
  UnregisterControlClasses(instance);
  EXPECT_EQ(GetObjectType(SharedControls().faceBrush), static_cast<DWORD>(OBJ_BRUSH));
}

TEST(ControlButton, ShowsItsStateAndTells) {
  ControlPage page;
  ControlButton* const button =
      CreateButtonControl(page.Window(), GetModuleHandleA(nullptr), 10, 11, 20, 12, 1126);
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->x, 10);
  EXPECT_EQ(button->y, 11);
  EXPECT_EQ(ControlPage::PixelOf(button->window, 5, 5), GetSysColor(COLOR_BTNFACE));
  // Larger than the window: the top left is seen.
  button->normalBitmap = Filled(40, 40, kRed);
  button->hoverBitmap = Filled(40, 40, kGreen);
  button->pressedBitmap = Filled(40, 40, kBlue);
  const HWND window = button->window;
  RedrawControl(window);
  EXPECT_EQ(ControlPage::PixelOf(window, 19, 11), kRed);
  Point(window, WM_MOUSEMOVE, 5, 5);
  EXPECT_EQ(ControlPage::PixelOf(window, 5, 5), kGreen);
  EXPECT_EQ(GetCapture(), window);
  Point(window, WM_MOUSEMOVE, 50, 5);
  EXPECT_EQ(ControlPage::PixelOf(window, 5, 5), kRed);
  EXPECT_NE(GetCapture(), window);
  Point(window, WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
  EXPECT_EQ(ControlPage::PixelOf(window, 5, 5), kBlue);
  EXPECT_EQ(GetFocus(), window);
  EXPECT_THAT(page.TakeMessages(), IsEmpty());
  Point(window, WM_LBUTTONUP, 500, 500);
  EXPECT_THAT(page.TakeMessages(), ElementsAre(Message{WM_COMMAND, 1126, 0}));
  EXPECT_EQ(ControlPage::PixelOf(window, 5, 5), kRed);
  EnableWindow(window, FALSE);
  button->disabledBitmap = Filled(40, 40, kYellow);
  RedrawControl(window);
  EXPECT_EQ(ControlPage::PixelOf(window, 5, 5), kYellow);
  SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_THAT(page.TakeMessages(), IsEmpty());
}

TEST(ControlButton, AToggleStaysDown) {
  ControlPage page;
  ControlButton* const button =
      CreateButtonControl(page.Window(), GetModuleHandleA(nullptr), 10, 10, 20, 12, 1443);
  ASSERT_NE(button, nullptr);
  button->toggle = 1;
  button->normalBitmap = Filled(20, 12, kRed);
  button->pressedBitmap = Filled(20, 12, kBlue);
  for (const COLORREF color : {kBlue, kRed, kBlue}) {
    Point(button->window, WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    Point(button->window, WM_LBUTTONUP, 5, 5);
    EXPECT_EQ(ControlPage::PixelOf(button->window, 5, 5), color);
  }
  EXPECT_EQ(page.TakeMessages().size(), 3U);
}

// How much of a window has a colour.
int CountOf(HWND window, COLORREF color) {
  RECT client{};
  GetClientRect(window, &client);
  int count = 0;
  for (int y = 0; y < client.bottom; ++y) {
    for (int x = 0; x < client.right; ++x) count += ControlPage::PixelOf(window, x, y) == color;
  }
  return count;
}

TEST(ControlButton, BorrowsSharedBitmaps) {
  ControlPage page;
  auto& shared = SharedControls().buttonBitmaps;
  shared = {Filled(20, 12, kRed), Filled(20, 12, kGreen), Filled(20, 12, kBlue)};
  ControlButton* const button =
      CreateButtonControl(page.Window(), GetModuleHandleA(nullptr), 10, 10, 20, 12, 7);
  ASSERT_NE(button, nullptr);
  const HWND window = button->window;
  SetButtonBitmaps(*button, -1, -2, -3, -4);
  EXPECT_EQ(button->disabledBitmap, nullptr);
  RedrawControl(window);
  EXPECT_EQ(ControlPage::PixelOf(window, 5, 5), kRed);
  Point(window, WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
  EXPECT_EQ(ControlPage::PixelOf(window, 5, 5), kBlue);
  Point(window, WM_LBUTTONUP, 5, 5);
  // Another takes a slot over; then the button goes. The bitmaps stay whole.
  SetButtonBitmaps(*button, -2, 0, 0, 0);
  RedrawControl(window);
  EXPECT_EQ(ControlPage::PixelOf(window, 5, 5), kGreen);
  DestroyWindow(window);
  for (HBITMAP& bitmap : shared) {
    BITMAP size{};
    EXPECT_NE(GetObjectA(bitmap, sizeof size, &size), 0);
    DeleteObject(bitmap);
    bitmap = nullptr;
  }
}

TEST(Label, TracksThePointerInItsColours) {
  ControlPage page;
  TContaner* const label =
      CreateLabelControl(10, 10, 60, 20, page.Window(), 9111, "IIII", true, true);
  ASSERT_NE(label, nullptr);
  label->style = kTrackingLabel;
  label->colorNormal = kRed;
  label->colorHover = kGreen;
  label->colorActive = kBlue;
  RedrawControl(label->window);
  EXPECT_GT(CountOf(label->window, kRed), 10);
  EXPECT_GT(CountOf(label->window, RGB(0, 0, 0)), 200);  // the brush behind it
  Point(label->window, WM_MOUSEMOVE, 5, 5);
  EXPECT_GT(CountOf(label->window, kGreen), 10);
  label->state = kPressed;
  Point(label->window, WM_MOUSEMOVE, 200, 5);
  EXPECT_GT(CountOf(label->window, kBlue), 10);
  Point(label->window, WM_LBUTTONUP, 5, 5);
  EXPECT_EQ(label->state, kPressed);
  EXPECT_THAT(page.TakeMessages(), ElementsAre(Message{WM_COMMAND, 9111, 0}));
  label->enabled = 0;
  Point(label->window, WM_LBUTTONUP, 5, 5);
  EXPECT_THAT(page.TakeMessages(), IsEmpty());
}

TEST(Label, APlainLinkIsBlueOnTheFace) {
  ControlPage page;
  TContaner* const label =
      CreateLabelControl(10, 10, 60, 20, page.Window(), 9, "link", true, false);
  ASSERT_NE(label, nullptr);
  RedrawControl(label->window);
  EXPECT_GT(CountOf(label->window, RGB(0, 0, 255)), 10);
  EXPECT_GT(CountOf(label->window, GetSysColor(COLOR_BTNFACE)), 400);
  label->enabled = 0;
  RedrawControl(label->window);
  EXPECT_GT(CountOf(label->window, RGB(0, 0, 0)), 10);
}

TEST(ImageControl, ShowsItsBitmapAndPassesCommandsOn) {
  ControlPage page;
  ImageControl* const image = CreateImageControl(page.Window(), GetModuleHandleA(nullptr), 10, 10,
                                                 30, 20, 5, Filled(10, 10, kRed), nullptr);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(ControlPage::PixelOf(image->window, 9, 9), kRed);
  SendMessageA(image->window, WM_COMMAND, 77, 0);
  EXPECT_THAT(page.TakeMessages(), ElementsAre(Message{WM_COMMAND, 77, 0}));
}

TEST(ImageButton, HasAPictureForEachState) {
  ControlPage page;
  const HWND button = page.Add("BUTTON", 3, 10, 10, 30, 20, BS_BITMAP | BS_CHECKBOX | BS_PUSHLIKE);
  const HBITMAP normal = Filled(10, 10, kRed), hot = Filled(10, 10, kGreen),
                disabled = Filled(10, 10, kBlue), checked = Filled(10, 10, kYellow);
  static ImageButtonState state;
  state = {};
  SkinStockButton(state, button, normal, hot, disabled, checked, nullptr, nullptr);
  const auto shown = [&] {
    return reinterpret_cast<HBITMAP>(SendMessageA(button, BM_GETIMAGE, IMAGE_BITMAP, 0));
  };
  EXPECT_EQ(shown(), normal);
  Point(button, WM_MOUSEMOVE, 5, 5);
  EXPECT_EQ(shown(), hot);
  // The first column outside.
  Point(button, WM_MOUSEMOVE, 30, 5);
  EXPECT_EQ(shown(), normal);
  EnableWindow(button, FALSE);
  EXPECT_EQ(shown(), disabled);
  // In the middle, and not greyed once more.
  EXPECT_EQ(ControlPage::PixelOf(button, 10, 5), kBlue);
  EXPECT_EQ(ControlPage::PixelOf(button, 19, 14), kBlue);
  EnableWindow(button, TRUE);
  EXPECT_EQ(shown(), normal);
  SendMessageA(button, BM_SETCHECK, BST_CHECKED, 0);
  EXPECT_EQ(shown(), checked);
  SendMessageA(button, BM_SETCHECK, BST_UNCHECKED, 0);
  EXPECT_EQ(shown(), normal);
  // On a disabled one the state before it counts.
  EnableWindow(button, FALSE);
  state.checkedDisabledBitmap = hot;
  SendMessageA(button, BM_SETCHECK, BST_CHECKED, 0);
  EXPECT_EQ(shown(), disabled);
  SendMessageA(button, BM_SETCHECK, BST_UNCHECKED, 0);
  EXPECT_EQ(shown(), hot);
  EnableWindow(button, TRUE);
  EXPECT_EQ(shown(), normal);
  // Skinned again: not called twice for one message.
  SkinStockButton(state, button, hot, hot, disabled, nullptr, nullptr, nullptr);
  EXPECT_EQ(shown(), hot);
  EXPECT_EQ(SendMessageA(button, BM_GETCHECK, 0, 0), BST_UNCHECKED);
  DestroyWindow(button);
  for (const HBITMAP bitmap : {normal, hot, disabled, checked}) DeleteObject(bitmap);
}

TEST(ToolTip, IsOneForAControl) {
  ControlPage page;
  const HWND label = page.Add("Contaner CPP", 8, 0, 0, 60, 20);
  AddToolTip(label, nullptr, nullptr);
  EXPECT_EQ(FindWindowExA(nullptr, nullptr, TOOLTIPS_CLASSA, nullptr), nullptr);
  AddToolTip(label, "Preview scale", nullptr);
  const HWND tip = FindWindowExA(nullptr, nullptr, TOOLTIPS_CLASSA, nullptr);
  ASSERT_NE(tip, nullptr);
  EXPECT_EQ(SendMessageA(tip, TTM_GETTOOLCOUNT, 0, 0), 1);
  EXPECT_EQ(SendMessageA(tip, TTM_GETMAXTIPWIDTH, 0, 0), 100);
  char text[80] = {};
  TOOLINFOA tool{};
  tool.cbSize = TTTOOLINFOA_V1_SIZE;
  tool.lpszText = text;
  ASSERT_TRUE(SendMessageA(tip, TTM_ENUMTOOLSA, 0, reinterpret_cast<LPARAM>(&tool)));
  EXPECT_STREQ(text, "Preview scale");
  EXPECT_EQ(tool.hwnd, label);
  EXPECT_EQ(tool.uFlags, UINT{TTF_SUBCLASS | TTF_CENTERTIP | TTF_TRANSPARENT});
  const RECT whole = {0, 0, 60, 20};
  EXPECT_TRUE(EqualRect(&tool.rect, &whole));
}

TEST(ControlShape, IsWhatTheStyleTells) {
  ControlPage page;
  const HWND window = page.Add("Contaner CPP", 8, 0, 0, 60, 20);
  auto* const record = GetControlRecord<TContaner>(window, "Contaner CPP");
  ASSERT_NE(record, nullptr);
  const HRGN region = CreateRectRgn(0, 0, 0, 0);
  SetControlShape(*record);
  EXPECT_EQ(GetWindowRgn(window, region), ERROR);
  for (const std::uint32_t style : {1U, 2U, 4U}) {
    record->style = style;
    SetControlShape(*record);
    EXPECT_EQ(GetWindowRgn(window, region), COMPLEXREGION) << style;
    EXPECT_FALSE(PtInRegion(region, 0, 0)) << style;
    EXPECT_TRUE(PtInRegion(region, 30, 10)) << style;
    // Corners of 15 by 5 leave (8, 1) in, an ellipse of 30 by 10 does not; one of 31
    // by 11 takes (2, 5) in.
    EXPECT_EQ(PtInRegion(region, 8, 1) != FALSE, style == 2) << style;
    EXPECT_EQ(PtInRegion(region, 2, 5) != FALSE, style != 1) << style;
  }
  DeleteObject(region);
}

}  // namespace
}  // namespace tarnwick
