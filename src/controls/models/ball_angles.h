#pragma once

namespace tarnwick {

// The angles of a ball that is turned with the pointer, without a window. Degrees.
//
// The ball is seen from above: altitude 90 is its centre, 0 its rim; azimuth goes
// on past 360 while it is dragged round.
struct BallAngles {
  float azimuth = 0;
  float altitude = 90;
  float turns = 0;  // whole ones, made during a drag
  float angle = 0;  // before turns are added
  float previousAngle = 0;

  // `isDial`: the angle is measured from the top, as on a dial, not from the right.
  void Press(int x, int y, int width, int height, bool isDial, bool forgetsTurns);
  void Drag(int x, int y, int width, int height, bool isDial);
};

struct BallOffset {
  float x, y;  // -100..100
};

// The ball as a point of a square: the disc below it, stretched into the corners.
[[nodiscard]] BallOffset OffsetOf(float azimuth, float altitude);
// The other way round; azimuth and altitude only.
[[nodiscard]] BallAngles AnglesOf(BallOffset offset);

}  // namespace tarnwick
