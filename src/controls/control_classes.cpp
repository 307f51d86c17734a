#include "controls/control_classes.h"

#include <cstring>
#include <iterator>

#include "controls/color_swatch.h"
#include "controls/control_button.h"
#include "controls/control_window.h"
#include "controls/image_control.h"
#include "controls/label_control.h"
#include "controls/link_control.h"
#include "controls/mac_slider.h"
#include "controls/object_controls.h"
#include "controls/rotor_control.h"

namespace tarnwick {
namespace {

// Classes that templates of old may name and that do nothing.
LRESULT HandleNothing(TContaner& record, UINT message, WPARAM wParam, LPARAM lParam) {
  return DefWindowProcA(record.window, message, wParam, lParam);
}
constexpr WNDPROC kIdleProc = ControlProc<TContaner, HandleNothing>;

// The cursor is the arrow and the background the face of dialogs, if not told.
enum class Background : std::uint8_t { kFace, kBlack };

struct ClassRow {
  const char* name;
  WNDPROC procedure;
  UINT style = 0;
  Background background = Background::kFace;
  bool hasMoveCursor = false;
};

WNDPROC& PreviewProc() {
  static WNDPROC procedure = kIdleProc;
  return procedure;
}

LRESULT CALLBACK CallPreviewProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return PreviewProc()(window, message, wParam, lParam);
}

// In the order of registration.
const ClassRow kClasses[] = {
    {kFilmstripClass, FilmstripProc},
    {kImageClass, ImageControlProc},
    {"Control Button Fire CPP", kIdleProc},
    {"Control Glass CPP", kIdleProc},
    {kButtonClass, ControlButtonProc},
    {"Contaner Anim CPP", kIdleProc},
    {kLabelClass, LabelProc},
    {kRotorClass, RotorProc},
    {kSliderClass, MacSliderProc},
    {"Glass Slider CPP", kIdleProc},
    {kPreviewClass, CallPreviewProc, 0, Background::kBlack, true},
    {kSwatchClass, ColorSwatchProc},
    {"Spin Edit CPP", kIdleProc},
    {"Color Equalizer CPP", kIdleProc},
    {kLinkClass, LinkProc},
    {kDrawerClass, DrawerProc, CS_DBLCLKS, Background::kBlack},
};

// The system's own brush, by its number: it deletes any other with each class that
// is taken away, and the shared one is deleted by us.
const auto kFaceBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));

bool RegisterRow(const ClassRow& row, HINSTANCE instance) {
  WNDCLASSA definition{};
  definition.style = row.style;
  definition.lpfnWndProc = row.procedure;
  definition.cbWndExtra = sizeof(LONG_PTR);
  definition.hInstance = instance;
  // Cursors of the system, by their numbers: the size-all and the arrow.
  definition.hCursor = LoadCursorA(nullptr, MAKEINTRESOURCEA(row.hasMoveCursor ? 32646 : 32512));
  definition.hbrBackground = row.background == Background::kBlack
                                 ? static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH))
                                 : kFaceBackground;
  definition.lpszClassName = row.name;
  return RegisterClassA(&definition) != 0;
}

}  // namespace

bool RegisterControlClasses(HINSTANCE instance) {
  bool isWhole = true;
  for (const ClassRow& row : kClasses) isWhole = RegisterRow(row, instance) && isWhole;
  return isWhole;
}

void UnregisterControlClasses(HINSTANCE instance) {
  for (const ClassRow& row : kClasses) UnregisterClassA(row.name, instance);
}

void SetPreviewProc(WNDPROC procedure) {
  PreviewProc() = procedure;
}

void* FindControlRecord(HWND window, const char* className) {
  char name[64] = {};
  if (window == nullptr || GetClassNameA(window, name, sizeof name) == 0) return nullptr;
  if (std::strcmp(name, className) != 0) return nullptr;
  return reinterpret_cast<void*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

}  // namespace tarnwick
