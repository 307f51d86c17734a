#include "camera.h"

#include "portable_math.h"

namespace tarnwick::photo {
namespace {

constexpr Vec3 kEye{4.6f, 1.62f, 9.6f};
constexpr Vec3 kTarget{0.15f, 2.08f, 0.0f};
constexpr float kHalfWidth = 0.47f;     // about a 38 mm lens on 35 mm film
constexpr float kFocus = 10.3f;         // the corner of the barn
constexpr float kLensRadius = 0.0022f;  // some f/8

}  // namespace

Camera::Camera(int width, int height)
    : position_(kEye), width_(static_cast<float>(width)), height_(static_cast<float>(height)) {
  forward_ = Normalized(kTarget - kEye);
  right_ = Normalized(Cross(forward_, {0, 1, 0}));
  up_ = Cross(right_, forward_);
  halfWidth_ = kHalfWidth;
  halfHeight_ = kHalfWidth * height_ / width_;
}

Vec3 Camera::Direction(float x, float y) const {
  return Normalized(forward_ + right_ * ((2 * x / width_ - 1) * halfWidth_) +
                    up_ * ((1 - 2 * y / height_) * halfHeight_));
}

Ray Camera::Through(float x, float y, float a, float b) const {
  const Vec3 direction = Direction(x, y);
  const Vec3 sharp = position_ + direction * (kFocus / Dot(direction, forward_));
  const float r = kLensRadius * std::sqrt(a);
  const Vec3 from = position_ + right_ * (r * Cos(2 * kPi * b)) + up_ * (r * Sin(2 * kPi * b));
  return {from, Normalized(sharp - from), 1e30f};
}

bool Camera::Project(Vec3 d, float& x, float& y) const {
  const float depth = Dot(d, forward_);
  if (depth <= 0.05f) return false;
  x = (Dot(d, right_) / (depth * halfWidth_) + 1) * 0.5f * width_;
  y = (1 - Dot(d, up_) / (depth * halfHeight_)) * 0.5f * height_;
  return true;
}

}  // namespace tarnwick::photo
