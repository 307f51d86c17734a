// Slider, rotor and swatch.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "controls/color_swatch.h"
#include "controls/control_classes.h"
#include "controls/control_page.h"
#include "controls/mac_slider.h"
#include "controls/rotor_control.h"

namespace tarnwick {
namespace {

using Message = ControlPage::Message;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kSliderId = 1200, kEditId = 1201, kSpinId = 1202;

// A slider beside an edit field and an up-down, as the pages have them.
class BoundSlider : public ::testing::Test {
 protected:
  BoundSlider() {
    page_.Add("EDIT", kEditId, 250, 10, 50, 20);
    page_.Add(UPDOWN_CLASSA, kSpinId, 300, 10, 20, 20, UDS_ARROWKEYS);
    window_ = page_.Add(kSliderClass, kSliderId, 10, 10, 200, 24);
    slider_ = GetControlRecord<TMacSlider>(window_, kSliderClass);
    BindSlider(*slider_);
    slider_->editId = kEditId;
    slider_->spinId = kSpinId;
    SetSliderRange(*slider_, -100, 100);
    SetSliderValue(*slider_, 12.7F, false);
    page_.TakeMessages();
  }
  void Track(int position, int code) {
    SendMessageA(slider_->trackbar, TBM_SETPOS, TRUE, position);
    SendMessageA(window_, WM_HSCROLL, static_cast<WPARAM>(code),
                 reinterpret_cast<LPARAM>(slider_->trackbar));
  }
  [[nodiscard]] int SpinPosition() const {
    return static_cast<short>(
        LOWORD(SendDlgItemMessageA(page_.Window(), kSpinId, UDM_GETPOS, 0, 0)));
  }
  [[nodiscard]] int TrackPosition() const {
    return static_cast<int>(SendMessageA(slider_->trackbar, TBM_GETPOS, 0, 0));
  }

  ControlPage page_;
  HWND window_ = nullptr;
  TMacSlider* slider_ = nullptr;
};

TEST_F(BoundSlider, ShowsAValueOnAllThreeControls) {
  EXPECT_EQ(page_.TextOf(kEditId), "12");
  EXPECT_EQ(SpinPosition(), 12);
  EXPECT_EQ(TrackPosition(), 12);
  EXPECT_EQ(SendMessageA(slider_->trackbar, TBM_GETPAGESIZE, 0, 0), 10);
  EXPECT_EQ(SendMessageA(slider_->trackbar, TBM_GETRANGEMIN, 0, 0), -100);
  EXPECT_EQ(SendMessageA(slider_->trackbar, TBM_GETRANGEMAX, 0, 0), 100);
  SetSliderValue(*slider_, -55, true);
  EXPECT_EQ(page_.TextOf(kEditId), "-55");
  EXPECT_EQ(TrackPosition(), -55);
  EXPECT_EQ(SpinPosition(), 12);
}

TEST_F(BoundSlider, HoldsItsValueUntilTheTrackEnds) {
  Track(40, TB_THUMBTRACK);
  EXPECT_EQ(page_.TextOf(kEditId), "40");
  EXPECT_EQ(SpinPosition(), 40);
  EXPECT_EQ(slider_->value, 12.7F);
  EXPECT_THAT(page_.TakeMessages(), IsEmpty());
  Track(41, TB_ENDTRACK);
  EXPECT_EQ(slider_->value, 41);
  EXPECT_THAT(page_.TakeMessages(), ElementsAre(Message{WM_COMMAND, kSliderId, 1}));
}

TEST_F(BoundSlider, SnapsToAValue) {
  slider_->snap = 1;
  for (const auto& [position, snapped] : {std::pair{9, 0}, {10, 10}, {-3, 0}}) {
    Track(position, TB_THUMBTRACK);
    EXPECT_EQ(TrackPosition(), snapped);
    EXPECT_EQ(page_.TextOf(kEditId), std::to_string(snapped));
  }
}

TEST_F(BoundSlider, IsDisabledAsAWhole) {
  EnableWindow(window_, FALSE);
  EXPECT_FALSE(IsWindowEnabled(slider_->trackbar));
  EXPECT_FALSE(IsWindowEnabled(GetDlgItem(page_.Window(), kEditId)));
  EXPECT_FALSE(IsWindowEnabled(GetDlgItem(page_.Window(), kSpinId)));
  EnableWindow(window_, TRUE);
  EXPECT_TRUE(IsWindowEnabled(GetDlgItem(page_.Window(), kEditId)));
}

TEST(OwnSlider, IsDragged) {
  ControlPage page;
  const HWND window = page.Add(kSliderClass, 5, 10, 10, 110, 24);
  auto* const slider = GetControlRecord<TMacSlider>(window, kSliderClass);
  ASSERT_NE(slider, nullptr);
  Point(window, WM_LBUTTONDOWN, 55, 10, MK_LBUTTON);
  EXPECT_EQ(slider->value, 50);
  Point(window, WM_MOUSEMOVE, 65, 10, MK_LBUTTON);
  EXPECT_EQ(slider->value, 60);
  EXPECT_THAT(page.TakeMessages(), ElementsAre(Message{WM_HSCROLL, 0, 0}));
  slider->continuous = 1;
  Point(window, WM_MOUSEMOVE, 66, 10, MK_LBUTTON);
  EXPECT_THAT(page.TakeMessages(),
              ElementsAre(Message{WM_HSCROLL, 0, 0}, Message{WM_COMMAND, 5, 1}));
  // With another key down it is not a drag.
  Point(window, WM_MOUSEMOVE, 90, 10, MK_LBUTTON | MK_SHIFT);
  EXPECT_EQ(slider->value, 61);
  Point(window, WM_LBUTTONUP, 105, 10);
  EXPECT_EQ(slider->value, 100);
  EXPECT_THAT(page.TakeMessages(),
              ElementsAre(Message{WM_HSCROLL, 0, 0}, Message{WM_COMMAND, 5, 0}));
}

// 110 by 24, at 50 of 100: the pointer is at 55.
TEST(OwnSlider, IsPaintedInTwoLooks) {
  ControlPage page;
  const HWND window = page.Add(kSliderClass, 5, 10, 10, 110, 24);
  auto* const slider = GetControlRecord<TMacSlider>(window, kSliderClass);
  ASSERT_NE(slider, nullptr);
  SetSliderLimits(*slider, 20, 80, true);
  SetSliderValue(*slider, 50, false);
  constexpr COLORREF kBlack = RGB(0, 0, 0), kGrey = RGB(127, 127, 127), kRed = RGB(155, 0, 0);
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  const struct {
    const char* what;
    std::uint8_t look, orientation;
    int x, y;
    COLORREF on, off;
  } kCases[] = {
      {"the bar starts after the margin", kGaugeLook, kHorizontal, 5, 10, kBlack, kGrey},
      {"the margin", kGaugeLook, kHorizontal, 4, 10, face, face},
      {"a quarter of 24 down", kGaugeLook, kHorizontal, 40, 6, kBlack, kGrey},
      {"and up", kGaugeLook, kHorizontal, 40, 17, kBlack, kGrey},
      {"the pointer's base at the far side", kGaugeLook, kHorizontal, 55, 23, kBlack, kGrey},
      {"low limit", kGaugeLook, kHorizontal, 25, 23, kRed, kRed},
      {"high limit", kGaugeLook, kHorizontal, 85, 23, kRed, kRed},
      {"a quarter of 110 across", kGaugeLook, kVertical, 27, 12, kBlack, kGrey},
      {"the tip in the middle of 24", kGaugeLook, kVertical, 104, 12, kBlack, kGrey},
      {"line", kLineLook, kHorizontal, 30, 12, kBlack, kGrey},
      {"left tick", kLineLook, kHorizontal, 5, 7, kBlack, kGrey},
      {"above it", kLineLook, kHorizontal, 5, 6, face, face},
      {"right tick", kLineLook, kHorizontal, 105, 7, kBlack, kGrey},
      {"behind the line", kLineLook, kHorizontal, 106, 12, face, face},
      {"the pointer's base", kLineLook, kHorizontal, 52, 22, kBlack, kGrey},
      {"beside it", kLineLook, kHorizontal, 51, 22, face, face},
  };
  for (const bool isOn : {true, false}) {
    EnableWindow(window, isOn ? TRUE : FALSE);
    for (const auto& c : kCases) {
      slider->look = c.look;
      slider->orientation = c.orientation;
      RedrawControl(window);
      EXPECT_EQ(ControlPage::PixelOf(window, c.x, c.y), isOn ? c.on : c.off) << c.what;
    }
  }
}

TEST(RotorControl, KeepsItsFieldsCurrentAndTellsAtTheEnd) {
  ControlPage page;
  const HWND window = page.Add(kRotorClass, 1058, 10, 10, 100, 100);
  auto* const rotor = GetControlRecord<Rotor>(window, kRotorClass);
  ASSERT_NE(rotor, nullptr);
  rotor->azimuthEdit = page.Add("EDIT", 1015, 200, 10, 60, 20);
  rotor->altitudeEdit = page.Add("EDIT", 1016, 200, 40, 60, 20);
  page.TakeMessages();
  SetRotorAngles(*rotor, 30, 60);
  EXPECT_EQ(page.TextOf(1015), "30.00");
  EXPECT_EQ(page.TextOf(1016), "60.00");
  Point(window, WM_LBUTTONDOWN, 50, 2, MK_LBUTTON);
  EXPECT_EQ(page.TextOf(1015), "90.00");
  EXPECT_EQ(page.TextOf(1016), "0.00");
  EXPECT_THAT(page.TakeMessages(), IsEmpty());
  Point(window, WM_MOUSEMOVE, 75, 25, MK_LBUTTON);
  EXPECT_EQ(page.TextOf(1015), "45.00");
  EXPECT_EQ(page.TextOf(1016), "45.00");  // 25 sqrt 2 of 50
  rotor->continuous = 1;
  Point(window, WM_MOUSEMOVE, 75, 25, MK_LBUTTON);
  EXPECT_THAT(page.TakeMessages(), ElementsAre(Message{WM_COMMAND, 1058, 0}));
  Point(window, WM_LBUTTONUP, 75, 25);
  EXPECT_THAT(page.TakeMessages(), ElementsAre(Message{WM_COMMAND, 1058, 0}));
  rotor->offsetMode = 1;
  SetRotorOffset(*rotor, {100, -50});
  EXPECT_EQ(page.TextOf(1015), "100.00");
  EXPECT_EQ(page.TextOf(1016), "-50.00");
}

TEST(RotorControl, OneIsHotAtATime) {
  ControlPage page;
  const HWND first = page.Add(kRotorClass, 1, 10, 10, 60, 60);
  const HWND second = page.Add(kRotorClass, 2, 90, 10, 60, 60);
  Point(first, WM_MOUSEMOVE, 5, 5);
  EXPECT_EQ(GetControlRecord<Rotor>(first, kRotorClass)->hot, 1U);
  Point(second, WM_MOUSEMOVE, 5, 5);
  EXPECT_EQ(GetControlRecord<Rotor>(first, kRotorClass)->hot, 0U);
  EXPECT_EQ(GetControlRecord<Rotor>(second, kRotorClass)->hot, 1U);
  DestroyWindow(second);
  Point(first, WM_MOUSEMOVE, 5, 5);
}

TEST(Swatch, AsksTheHostForAColour) {
  ControlPage page;
  const HWND window = page.Add(kSwatchClass, 1130, 10, 10, 40, 20);
  auto* const swatch = GetControlRecord<ColorSwatch>(window, kSwatchClass);
  ASSERT_NE(swatch, nullptr);
  swatch->color = RGB(128, 255, 0);
  RedrawControl(window);
  EXPECT_EQ(ControlPage::PixelOf(window, 20, 10), RGB(128, 255, 0));
  EXPECT_EQ(ControlPage::PixelOf(window, 0, 10), RGB(254, 127, 127));
  Point(window, WM_MOUSEMOVE, 5, 5);
  EXPECT_EQ(ControlPage::PixelOf(window, 0, 10), RGB(127, 0, 255));

  Choice choice = Choice::kCancelled;
  COLORREF asked = 0;
  ColorPickers().host = [&](COLORREF& color) {
    asked = color;
    color = RGB(1, 2, 3);
    return choice;
  };
  Point(window, WM_LBUTTONUP, 5, 5);
  EXPECT_EQ(asked, RGB(128, 255, 0));
  EXPECT_EQ(swatch->color, RGB(128, 255, 0));
  EXPECT_EQ(swatch->hot, 0U);
  EXPECT_THAT(page.TakeMessages(), IsEmpty());
  choice = Choice::kChosen;
  Point(window, WM_RBUTTONUP, 5, 5);
  EXPECT_EQ(swatch->color, RGB(1, 2, 3));
  EXPECT_THAT(page.TakeMessages(), ElementsAre(Message{WM_COMMAND, 1130, 0}));
  ColorPickers() = {};

  EnableWindow(window, FALSE);
  EXPECT_EQ(ControlPage::PixelOf(window, 4, 3), RGB(1, 2, 3));
  EXPECT_EQ(ControlPage::PixelOf(window, 3, 3), GetSysColor(COLOR_BTNFACE));
}

}  // namespace
}  // namespace tarnwick
