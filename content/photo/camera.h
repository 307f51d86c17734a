#pragma once
#include "bvh.h"

namespace tarnwick::photo {

// A camera with a thin lens.
class Camera {
 public:
  // `width` x `height` samples; the field of view is across the width.
  Camera(int width, int height);

  // The ray through the picture position (x, y), in samples from the upper left
  // corner, and through the lens position (a, b), each 0..1.
  [[nodiscard]] Ray Through(float x, float y, float a, float b) const;
  // The unit direction without the lens.
  [[nodiscard]] Vec3 Direction(float x, float y) const;
  // The inverse of Direction; false behind the camera.
  [[nodiscard]] bool Project(Vec3 direction, float& x, float& y) const;
  [[nodiscard]] Vec3 Position() const { return position_; }
  // Width of a sample at a distance of 1 m.
  [[nodiscard]] float SampleAngle() const { return 2 * halfWidth_ / width_; }

 private:
  Vec3 position_, right_, up_, forward_;
  float width_, height_;
  float halfWidth_ = 0, halfHeight_ = 0;  // of the picture at a distance of 1 m
};

}  // namespace tarnwick::photo
