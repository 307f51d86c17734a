#include "ui/control_page/page_controls.h"

#include <commctrl.h>

#include "controls/color_swatch.h"
#include "controls/control_button.h"
#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/image_button.h"
#include "controls/image_control.h"
#include "controls/label_control.h"
#include "controls/mac_slider.h"
#include "controls/rotor_control.h"
#include "controls/tool_tip.h"
#include "ui/control_page/page_ids.h"
#include "ui/control_page/page_pictures.h"

namespace tarnwick::testui {
namespace {

constexpr COLORREF kRed = RGB(200, 60, 60), kGreen = RGB(60, 160, 60), kBlue = RGB(60, 60, 200),
                   kGrey = RGB(150, 150, 150), kYellow = RGB(220, 200, 60);

// Places are told for 96 dpi.
struct Page {
  HWND window;
  int dpi;
  HINSTANCE instance = GetModuleHandleA(nullptr);

  [[nodiscard]] int Px(int value) const { return MulDiv(value, dpi, 96); }

  HWND Add(const char* className, int id, int x, int y, int width, int height, const char* text,
           DWORD style) const {
    const bool isEdit = lstrcmpiA(className, "EDIT") == 0;
    const HWND child =
        CreateWindowExA(isEdit ? WS_EX_CLIENTEDGE : 0, className, text,
                        WS_CHILD | WS_VISIBLE | style, Px(x), Px(y), Px(width), Px(height), window,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
    SendMessageA(child, WM_SETFONT, reinterpret_cast<WPARAM>(SharedControls().fonts.FontSmallBold),
                 TRUE);
    return child;
  }
  void Heading(int x, int y, const char* text) const {
    Add("STATIC", -1, x, y, 180, 16, text, SS_NOPREFIX);
  }
};

TMacSlider* AddBoundSlider(const Page& page, int id, int y) {
  page.Add("EDIT", id + 1, 190, y, 44, 21, "", WS_TABSTOP | ES_RIGHT | ES_AUTOHSCROLL);
  page.Add(UPDOWN_CLASSA, id + 2, 234, y, 16, 21, "",
           UDS_ARROWKEYS | UDS_SETBUDDYINT | UDS_NOTHOUSANDS);
  const HWND window = page.Add(kSliderClass, id, 12, y, 174, 24, "", WS_TABSTOP);
  auto* const slider = GetControlRecord<TMacSlider>(window, kSliderClass);
  BindSlider(*slider);
  slider->editId = id + 1;
  slider->spinId = id + 2;
  SetSliderRange(*slider, -100, 100);
  SetSliderValue(*slider, 30, false);
  AddToolTip(slider->trackbar, "Drag or use the arrow keys", nullptr);
  return slider;
}

void AddSliders(const Page& page) {
  page.Heading(12, 8, "Sliders");
  AddBoundSlider(page, kSlider, 28);
  AddBoundSlider(page, kSnapSlider, 60)->snap = 1;
  const struct {
    int id, x, y, width, height;
    std::uint8_t orientation, look, continuous;
  } own[] = {
      {kGauge, 12, 96, 174, 24, kHorizontal, kGaugeLook, 0},
      {kLine, 12, 128, 174, 24, kHorizontal, kLineLook, 1},
      {kLimited, 210, 92, 24, 110, kVertical, kGaugeLook, 0},
  };
  for (const auto& row : own) {
    const HWND window = page.Add(kSliderClass, row.id, row.x, row.y, row.width, row.height, "", 0);
    auto* const slider = GetControlRecord<TMacSlider>(window, kSliderClass);
    slider->orientation = row.orientation;
    slider->look = row.look;
    slider->continuous = row.continuous;
    if (row.id == kLimited) SetSliderLimits(*slider, 20, 70, true);
    SetSliderValue(*slider, 40, false);
  }
}

void AddBall(const Page& page, int id, int x, bool isOffset) {
  const HWND window = page.Add(kRotorClass, id, x, 232, 66, 61, "", 0);
  auto* const rotor = GetControlRecord<Rotor>(window, kRotorClass);
  rotor->title = isOffset ? "Wash Offset" : "Lighting direction";
  rotor->offsetMode = isOffset ? 1 : 0;
  rotor->azimuthEdit = page.Add("EDIT", id + 1, x + 72, 236, 52, 21, "", WS_TABSTOP);
  rotor->altitudeEdit = page.Add("EDIT", id + 2, x + 72, 264, 52, 21, "", WS_TABSTOP);
  AddToolTip(window, "Adjust the lighting direction applied to surface effect", nullptr);
  if (isOffset) {
    SetRotorOffset(*rotor, {50, 50});
  } else {
    SetRotorAngles(*rotor, 135, 45);
  }
}

void AddButtons(const Page& page) {
  page.Heading(280, 8, "Buttons");
  for (const int id : {kButton, kToggle}) {
    ControlButton* const button =
        CreateButtonControl(page.window, page.instance, page.Px(id == kButton ? 280 : 364),
                            page.Px(28), page.Px(72), page.Px(30), id);
    button->toggle = id == kToggle ? 1 : 0;
    const int width = button->width + 20, height = button->height;  // wider than the window
    button->normalBitmap = MakePicture(width, height, kRed, "normal");
    button->hoverBitmap = MakePicture(width, height, kGreen, "hover");
    button->pressedBitmap = MakePicture(width, height, kBlue, "pressed");
    button->disabledBitmap = MakePicture(width, height, kGrey, "disabled");
    RedrawControl(button->window);
    AddToolTip(button->window, "Apply random effects", id == kToggle ? "With a title" : nullptr);
  }
  static ImageButtonState push, check;
  const int width = page.Px(30), height = page.Px(26);
  const auto picture = [&](COLORREF color, const char* letter) {
    return MakePicture(width, height, color, letter);
  };
  SkinStockButton(push, page.Add("BUTTON", kImageButton, 280, 72, 40, 34, "", BS_BITMAP),
                  picture(kRed, "N"), picture(kGreen, "H"), picture(kGrey, "D"), nullptr, nullptr,
                  nullptr);
  SkinStockButton(check,
                  page.Add("BUTTON", kCheckButton, 328, 72, 40, 34, "",
                           BS_BITMAP | BS_AUTOCHECKBOX | BS_PUSHLIKE),
                  picture(kRed, "N"), picture(kGreen, "H"), picture(kGrey, "D"),
                  picture(kBlue, "C"), picture(kYellow, "CH"), picture(kGrey, "CD"));
}

void AddLabels(const Page& page) {
  page.Heading(280, 120, "Labels");
  const struct {
    int id, y;
    const char* text;
    bool isEnabled, isTracking;
    std::uint8_t state;
  } labels[] = {
      {kLink, 140, "A plain link", true, false, kIdle},
      {kDeadLink, 162, "A plain link, disabled", false, false, kIdle},
      {kLabel, 184, "A tracking label", true, true, kIdle},
      {kChosenLabel, 206, "The current choice", true, true, kPressed},
      {kDeadLabel, 228, "A tracking label, disabled", false, true, kIdle},
  };
  for (const auto& row : labels) {
    TContaner* const label =
        CreateLabelControl(page.Px(280), page.Px(row.y), page.Px(180), page.Px(20), page.window,
                           row.id, row.text, row.isEnabled, true);
    if (!row.isTracking) continue;
    label->style = kTrackingLabel;
    label->state = row.state;
    RedrawControl(label->window);
  }
}

}  // namespace

void FillPage(HWND window, int dpi) {
  const Page page{window, dpi};
  AddSliders(page);
  page.Heading(12, 210, "Rotors: ball, offset");
  AddBall(page, kBall, 12, false);
  AddBall(page, kOffsetBall, 144, true);
  AddButtons(page);
  AddLabels(page);
  page.Heading(380, 68, "Swatch");
  const HWND swatch = page.Add(kSwatchClass, kSwatch, 380, 84, 54, 22, "", 0);
  auto* const record = GetControlRecord<ColorSwatch>(swatch, kSwatchClass);
  record->color = RGB(180, 120, 40);
  RedrawControl(swatch);
  AddToolTip(swatch, "Change wash color", nullptr);
  const int side = page.Px(40);
  if (CreateImageControl(window, page.instance, page.Px(280), page.Px(256), side, side, kImage,
                         MakePicture(side / 2, side / 2, kYellow, "img"), nullptr) == nullptr) {
    MessageBeep(MB_ICONWARNING);
  }
  page.Add("BUTTON", kDisableAll, 340, 264, 110, 20, "Disable all", WS_TABSTOP | BS_AUTOCHECKBOX);
}

void EnablePage(HWND page, bool isOn) {
  for (HWND child = GetWindow(page, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    if (GetDlgCtrlID(child) != kDisableAll) EnableWindow(child, isOn ? TRUE : FALSE);
  }
}

}  // namespace tarnwick::testui
