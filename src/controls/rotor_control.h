#pragma once
#include <string>

#include "controls/control_record.h"
#include "controls/models/ball_angles.h"

namespace tarnwick {

enum RotorLook : std::uint8_t { kBallLook = 0, kDialLook = 3, kKnobLook = 4 };

// "Rotor CPP": a ball that the user turns to set a direction of light, or with
// offsetMode a point of a square. Keeps two edit fields beside it current. Sends
// WM_COMMAND when it is let go, and with `continuous` posts one at each move.
struct Rotor : TContaner {
  BallAngles angles;  // azimuth and altitude, degrees
  float value = 0;    // of a knob
  float valueMinimum = 0;
  float valueMaximum = 0;
  float angleMinimum = 0;
  float angleMaximum = 360;
  std::string title;
  std::uint8_t continuous = 0;
  std::uint8_t shadeGridX = 10;  // of a look with a bitmap
  std::uint8_t shadeGridY = 10;
  std::uint8_t look = kBallLook;
  std::uint8_t pressed = 1;
  std::uint8_t limited = 0;       // a knob keeps to its limits
  std::uint8_t integerValue = 0;  // a knob rounds down
  std::uint8_t offsetMode = 0;
  HWND azimuthEdit = nullptr;  // not owned; either may be absent
  HWND altitudeEdit = nullptr;

  ~Rotor();
};

LRESULT CALLBACK RotorProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

void SetRotorAngles(Rotor& rotor, float azimuth, float altitude);
[[nodiscard]] BallOffset GetRotorOffset(const Rotor& rotor);
void SetRotorOffset(Rotor& rotor, BallOffset offset);

}  // namespace tarnwick
