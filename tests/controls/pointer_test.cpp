// What is left of the pointer when another window takes it, or a control is switched
// off.
#include <windows.h>

#include <gtest/gtest.h>

#include "controls/color_swatch.h"
#include "controls/control_button.h"
#include "controls/control_classes.h"
#include "controls/control_page.h"
#include "controls/image_button.h"
#include "controls/label_control.h"
#include "controls/mac_slider.h"
#include "controls/rotor_control.h"

namespace tarnwick {
namespace {

using ::testing::IsEmpty;

TContaner* AddTrackingLabel(const ControlPage& page) {
  TContaner* const label = CreateLabelControl(10, 10, 60, 20, page.Window(), 9, "ab", true, true);
  if (label != nullptr) label->style = kTrackingLabel;
  return label;
}

// Another program comes to the front: the pointer leaves unseen. When it is back, the
// control has to see it leave.
TEST(LostCapture, IsTakenAgainWhenThePointerIsBack) {
  ControlPage page;
  TContaner* const label = AddTrackingLabel(page);
  ASSERT_NE(label, nullptr);
  const HWND swatch = page.Add(kSwatchClass, 2, 100, 10, 60, 20);
  const HWND image = page.Add("BUTTON", 3, 200, 10, 60, 20, BS_BITMAP);
  static ImageButtonState state;
  state = {};
  SkinStockButton(state, image, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
  const auto* const record = GetControlRecord<ColorSwatch>(swatch, kSwatchClass);
  for (const HWND window : {label->window, swatch, image}) {
    Point(window, WM_MOUSEMOVE, 5, 5);
    SetCapture(page.Window());
    ReleaseCapture();
    Point(window, WM_MOUSEMOVE, 6, 5);
    EXPECT_EQ(GetCapture(), window);
    Point(window, WM_MOUSEMOVE, 100, 5);
    EXPECT_EQ(GetCapture(), nullptr);
  }
  EXPECT_EQ(label->state, kIdle);
  EXPECT_EQ(record->hot, 0U);
  EXPECT_EQ(state.inside, 0U);
}

TEST(SwitchedOff, ControlsLetThePointerGoAndStaySilent) {
  ControlPage page;
  const HWND button =
      CreateButtonControl(page.Window(), GetModuleHandleA(nullptr), 10, 40, 40, 20, 1)->window;
  const HWND label = AddTrackingLabel(page)->window;
  const HWND slider = page.Add(kSliderClass, 3, 10, 70, 110, 24);
  const HWND rotor = page.Add(kRotorClass, 4, 10, 100, 60, 60);
  const HWND swatch = page.Add(kSwatchClass, 5, 100, 10, 60, 20);
  GetControlRecord<Rotor>(rotor, kRotorClass)->continuous = 1;
  bool isAsked = false;
  ColorPickers().host = [&](COLORREF&) {
    isAsked = true;
    return Choice::kCancelled;
  };
  const struct {
    HWND window;
    TContaner* record;
  } kCases[] = {{button, GetControlRecord<ControlButton>(button, kButtonClass)},
                {label, GetControlRecord<TContaner>(label, kLabelClass)},
                {slider, GetControlRecord<TMacSlider>(slider, kSliderClass)},
                {rotor, GetControlRecord<Rotor>(rotor, kRotorClass)},
                {swatch, GetControlRecord<ColorSwatch>(swatch, kSwatchClass)}};
  for (const auto& c : kCases) {
    Point(c.window, WM_MOUSEMOVE, 5, 5);
    Point(c.window, WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    EXPECT_EQ(GetCapture(), c.window) << c.record->id;
    // The owner does so, and the window is enabled still.
    c.record->enabled = 0;
    Point(c.window, WM_MOUSEMOVE, 20, 5, MK_LBUTTON);
    EXPECT_EQ(GetCapture(), nullptr) << c.record->id;
    Point(c.window, WM_LBUTTONUP, 20, 5);
    Point(c.window, WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    EXPECT_EQ(GetCapture(), nullptr) << c.record->id;
    Point(c.window, WM_LBUTTONUP, 5, 5);
    EXPECT_THAT(page.TakeMessages(), IsEmpty()) << c.record->id;
  }
  EXPECT_FALSE(isAsked);
  ColorPickers() = {};
}

TEST(SwitchedOff, WindowsForgetThePointer) {
  ControlPage page;
  TContaner* const label = AddTrackingLabel(page);
  ASSERT_NE(label, nullptr);
  const HWND window = page.Add(kSwatchClass, 5, 100, 10, 60, 20);
  const auto* const swatch = GetControlRecord<ColorSwatch>(window, kSwatchClass);
  for (const HWND one : {label->window, window}) {
    Point(one, WM_MOUSEMOVE, 5, 5);
    EnableWindow(one, FALSE);
    PumpMessages();
    EXPECT_NE(GetCapture(), one);
    EnableWindow(one, TRUE);
  }
  EXPECT_EQ(label->state, kIdle);
  EXPECT_EQ(swatch->hot, 0U);
  // On again; but not if it was the owner who switched it off.
  EXPECT_EQ(label->enabled, 1);
  label->enabled = 0;
  EnableWindow(label->window, FALSE);
  PumpMessages();
  EnableWindow(label->window, TRUE);
  EXPECT_EQ(label->enabled, 0);
}

}  // namespace
}  // namespace tarnwick
