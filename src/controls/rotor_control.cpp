#include "controls/rotor_control.h"

#include <algorithm>
#include <cmath>

#include "controls/back_buffer.h"
#include "controls/control_shared.h"
#include "controls/control_window.h"
#include "controls/models/ball_shade.h"
#include "environment/format_text.h"

namespace tarnwick {
namespace {

void ShowInEdits(const Rotor& rotor) {
  float first = rotor.angles.azimuth;
  float second = rotor.angles.altitude;
  if (rotor.offsetMode != 0) {
    const BallOffset offset = GetRotorOffset(rotor);
    first = offset.x;
    second = offset.y;
  }
  const auto show = [](HWND edit, float value) {
    if (edit == nullptr) return;
    SetWindowTextA(edit, FormatText("%0.2f", static_cast<double>(value)).c_str());
  };
  show(rotor.azimuthEdit, first);
  show(rotor.altitudeEdit, second);
}

// A knob's value runs with its angle.
void TakeKnobValue(Rotor& rotor) {
  if (rotor.look != kKnobLook) return;
  float& azimuth = rotor.angles.azimuth;
  if (rotor.limited != 0) azimuth = std::clamp(azimuth, rotor.angleMinimum, rotor.angleMaximum);
  const float share = (azimuth - rotor.angleMinimum) / (rotor.angleMaximum - rotor.angleMinimum);
  rotor.value = rotor.valueMinimum + share * (rotor.valueMaximum - rotor.valueMinimum);
  if (rotor.integerValue != 0) rotor.value = std::floor(rotor.value);
}

void ShowChange(Rotor& rotor) {
  TakeKnobValue(rotor);
  ShowInEdits(rotor);
  RedrawControl(rotor.window);
}

FaceColor DialogFace() {
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  return {GetRValue(face), GetGValue(face), GetBValue(face)};
}

void PutPixels(HDC dc, const Rotor& rotor, const std::vector<std::uint8_t>& pixels) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = rotor.width;
  info.bmiHeader.biHeight = -rotor.height;  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  SetDIBitsToDevice(dc, 0, 0, static_cast<DWORD>(rotor.width), static_cast<DWORD>(rotor.height), 0,
                    0, 0, static_cast<UINT>(rotor.height), pixels.data(), &info, DIB_RGB_COLORS);
}

void DrawCross(HDC dc, const Rotor& rotor) {
  const BallMarker marker =
      MarkerOf(rotor.width, rotor.height, rotor.angles.azimuth, rotor.angles.altitude);
  const bool isOn = rotor.enabled != 0;
  const HPEN pen = isOn ? static_cast<HPEN>(GetStockObject(BLACK_PEN))
                        : CreatePen(PS_SOLID, 1, RGB(127, 127, 127));
  {
    const Selected selected(dc, pen);
    MoveToEx(dc, marker.x - 3, marker.y, nullptr);
    LineTo(dc, marker.x + 4, marker.y);
    MoveToEx(dc, marker.x, marker.y - 3, nullptr);
    LineTo(dc, marker.x, marker.y + 4);
  }
  if (!isOn) DeleteObject(pen);
}

// A dial or a knob: a disc with a ring at its angle.
void DrawDial(HDC dc, const Rotor& rotor) {
  Ellipse(dc, 1, 1, rotor.width - 1, rotor.height - 1);
  const BallMarker ring = MarkerOf(rotor.width, rotor.height, 90.0F - rotor.angles.azimuth, 45.0F);
  Ellipse(dc, ring.x - 3, ring.y - 3, ring.x + 4, ring.y + 4);
}

void Paint(const Rotor& rotor) {
  const BackBuffer buffer(rotor.window);
  if (buffer.Dc() == nullptr) return;
  FillRect(buffer.Dc(), &buffer.Client(), SharedControls().faceBrush);
  if (rotor.look != kBallLook) return DrawDial(buffer.Dc(), rotor);
  PutPixels(buffer.Dc(), rotor,
            ShadedBall(rotor.width, rotor.height,
                       {rotor.angles.azimuth, rotor.angles.altitude, rotor.offsetMode == 0},
                       DialogFace()));
  if (rotor.offsetMode != 0) DrawCross(buffer.Dc(), rotor);
}

// The pointer is on one rotor at a time.
void BecomeHot(Rotor& rotor) {
  Rotor*& hotRotor = SharedControls().hotRotor;
  if (hotRotor == &rotor) return;
  if (hotRotor != nullptr) {
    hotRotor->hot = 0;
    RedrawControl(hotRotor->window);
  }
  hotRotor = &rotor;
  rotor.hot = 1;
  RedrawControl(rotor.window);
}

LRESULT HandleRotor(Rotor& rotor, UINT message, WPARAM wParam, LPARAM lParam) {
  const bool isDial = rotor.look != kBallLook;
  const PointerPlace p = PointerOf(lParam);
  const HWND window = rotor.window;
  switch (message) {
    case WM_LBUTTONDOWN:
      if (IgnoresPointer(rotor)) break;
      rotor.pressed = 1;
      SetCapture(rotor.window);
      rotor.angles.Press(p.x, p.y, rotor.width, rotor.height, isDial, rotor.limited != 0);
      ShowChange(rotor);
      return 0;
    case WM_MOUSEMOVE:
      if (IgnoresPointer(rotor)) break;
      BecomeHot(rotor);
      if ((wParam & MK_LBUTTON) == 0 || GetCapture() != rotor.window) return 0;
      rotor.angles.Drag(p.x, p.y, rotor.width, rotor.height, isDial);
      ShowChange(rotor);
      if (rotor.continuous != 0) PostControlCommand(rotor);
      return 0;
    case WM_LBUTTONUP:
      if (IgnoresPointer(rotor) || GetCapture() != rotor.window) return 0;
      ReleaseCapture();
      SendControlCommand(rotor, 0);
      // The owner may have destroyed it.
      if (IsWindow(window) == FALSE) return 0;
      RedrawControl(window);
      rotor.pressed = 1;
      return 0;
    case WM_ENABLE:
      rotor.enabled = wParam != 0 ? 1 : 0;
      RedrawControl(rotor.window);
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      Paint(rotor);
      return 0;
    default:
      break;
  }
  return DefWindowProcA(rotor.window, message, wParam, lParam);
}

}  // namespace

Rotor::~Rotor() {
  if (SharedControls().hotRotor == this) SharedControls().hotRotor = nullptr;
}

LRESULT CALLBACK RotorProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ControlProc<Rotor, HandleRotor>(window, message, wParam, lParam);
}

void SetRotorAngles(Rotor& rotor, float azimuth, float altitude) {
  rotor.angles.azimuth = azimuth;
  rotor.angles.altitude = altitude;
  RedrawControl(rotor.window);
  ShowInEdits(rotor);
}

BallOffset GetRotorOffset(const Rotor& rotor) {
  return OffsetOf(rotor.angles.azimuth, rotor.angles.altitude);
}

void SetRotorOffset(Rotor& rotor, BallOffset offset) {
  const BallAngles angles = AnglesOf(offset);
  SetRotorAngles(rotor, angles.azimuth, angles.altitude);
}

}  // namespace tarnwick
