#include "controls/control_button.h"

#include <algorithm>
#include <initializer_list>

#include "controls/back_buffer.h"
#include "controls/control_classes.h"
#include "controls/control_shared.h"
#include "controls/control_window.h"
#include "controls/models/pointer_tracking.h"

namespace tarnwick {
namespace {

template <typename Event>
void Track(ControlButton& record, const Event& event) {
  ButtonTracking tracking{record.state, record.toggle != 0, record.latched != 0};
  const TrackingStep step = event(tracking);
  record.state = tracking.state;
  record.latched = tracking.latched ? 1 : 0;
  if (step.release) ReleaseCapture();
  if (step.capture) SetCapture(record.window);
  if (step.notify) PostControlCommand(record);
  if (step.redraw) RedrawControl(record.window);
}

void Paint(const ControlButton& record) {
  const BackBuffer buffer(record.window);
  if (buffer.Dc() == nullptr) return;
  // Seen where a bitmap is missing or too small.
  FillRect(buffer.Dc(), &buffer.Client(), SharedControls().faceBrush);
  DrawBitmap(buffer.Dc(), ShownBitmap(record), 0, 0, record.width, record.height, 0, 0);
}

LRESULT HandleButton(ControlButton& record, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEMOVE: {
      if (IgnoresPointer(record)) break;
      const PointerPlace p = PointerOf(lParam);
      Track(record, [&](ButtonTracking& t) {
        return t.Move(IsInside(p.x, p.y, record.width, record.height), (wParam & MK_LBUTTON) != 0);
      });
      return 0;
    }
    case WM_LBUTTONDOWN:
      SetFocus(record.window);
      if (IgnoresPointer(record)) break;
      Track(record, [](ButtonTracking& t) { return t.Press(); });
      return 0;
    case WM_LBUTTONUP:
      if (IgnoresPointer(record)) break;
      Track(record, [](ButtonTracking& t) { return t.Release(); });
      return 0;
    case WM_ENABLE:
      record.enabled = wParam != 0 ? 1 : 0;
      if (record.enabled == 0) record.state = kIdle;
      RedrawControl(record.window);
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      Paint(record);
      return 0;
    default:
      break;
  }
  return DefWindowProcA(record.window, message, wParam, lParam);
}

void Release(HBITMAP bitmap) {
  const auto& shared = SharedControls().buttonBitmaps;
  if (bitmap == nullptr || std::find(shared.begin(), shared.end(), bitmap) != shared.end()) return;
  DeleteObject(bitmap);
}

HBITMAP BitmapOf(const ControlButton& record, int id) {
  const auto& shared = SharedControls().buttonBitmaps;
  if (id < 0) {
    const auto place = static_cast<std::size_t>(-(id + 1));
    return place < shared.size() ? shared[place] : nullptr;
  }
  const auto instance =
      reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(record.window, GWLP_HINSTANCE));
  return LoadBitmapA(instance, MAKEINTRESOURCEA(id));
}

void LoadInto(const ControlButton& record, HBITMAP& slot, int id) {
  if (id == 0) return;
  const HBITMAP loaded = BitmapOf(record, id);
  Release(slot);
  slot = loaded;
}

}  // namespace

ControlButton::~ControlButton() {
  for (const HBITMAP bitmap : {normalBitmap, hoverBitmap, pressedBitmap, disabledBitmap}) {
    Release(bitmap);
  }
}

LRESULT CALLBACK ControlButtonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<ControlButton, HandleButton>(window, message, wParam, lParam);
}

ControlButton* CreateButtonControl(HWND parent, HINSTANCE instance, int x, int y, int width,
                                   int height, int id) {
  const HWND window = CreateWindowExA(
      0, kButtonClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, x, y, width,
      height, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
  auto* const record = GetControlRecord<ControlButton>(window, kButtonClass);
  if (record == nullptr) return nullptr;
  record->x = x;
  record->y = y;
  return record;
}

void SetButtonBitmaps(ControlButton& record, int normalId, int hoverId, int pressedId,
                      int disabledId) {
  LoadInto(record, record.normalBitmap, normalId);
  LoadInto(record, record.hoverBitmap, hoverId);
  LoadInto(record, record.pressedBitmap, pressedId);
  LoadInto(record, record.disabledBitmap, disabledId);
}

HBITMAP ShownBitmap(const ControlButton& record) {
  // A mode of the animation variants.
  constexpr std::uint8_t kAlternateMode = 2;
  if (record.enabled == 0 && record.disabledBitmap != nullptr) return record.disabledBitmap;
  if (record.toggle == 1 && record.latched == 1) return record.pressedBitmap;
  switch (record.state) {
    case kHovered:
      return record.mode == kAlternateMode && record.hoverAlternate != 0 ? record.disabledBitmap
                                                                         : record.hoverBitmap;
    case kPressed:
      return record.pressedBitmap;
    default:
      return record.normalBitmap;
  }
}

}  // namespace tarnwick
