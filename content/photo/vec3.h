#pragma once
#include <cmath>

namespace tarnwick::photo {

// A point, direction (metres; x right, y up, z towards the viewer) or a linear
// RGB colour in x, y, z.
struct Vec3 {
  float x = 0, y = 0, z = 0;
};

constexpr Vec3 operator+(Vec3 a, Vec3 b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vec3 operator-(Vec3 a, Vec3 b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Vec3 operator-(Vec3 a) {
  return {-a.x, -a.y, -a.z};
}
constexpr Vec3 operator*(Vec3 a, Vec3 b) {
  return {a.x * b.x, a.y * b.y, a.z * b.z};
}
constexpr Vec3 operator*(Vec3 a, float s) {
  return {a.x * s, a.y * s, a.z * s};
}
constexpr Vec3 operator*(float s, Vec3 a) {
  return a * s;
}
constexpr Vec3& operator+=(Vec3& a, Vec3 b) {
  return a = a + b;
}
constexpr Vec3& operator*=(Vec3& a, float s) {
  return a = a * s;
}

constexpr float Dot(Vec3 a, Vec3 b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
constexpr Vec3 Cross(Vec3 a, Vec3 b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline float Length(Vec3 a) {
  return std::sqrt(Dot(a, a));
}
// The zero vector stays what it is.
inline Vec3 Normalized(Vec3 a) {
  const float length = Length(a);
  return length > 0 ? a * (1 / length) : a;
}

constexpr float Min(float a, float b) {
  return a < b ? a : b;
}
constexpr float Max(float a, float b) {
  return a > b ? a : b;
}
constexpr float Clamp(float v, float lo, float hi) {
  return v < lo ? lo : (v > hi ? hi : v);
}
constexpr float Saturate(float v) {
  return Clamp(v, 0, 1);
}
constexpr float Mix(float a, float b, float t) {
  return a + (b - a) * t;
}
constexpr Vec3 Mix(Vec3 a, Vec3 b, float t) {
  return a + (b - a) * t;
}
constexpr Vec3 Min(Vec3 a, Vec3 b) {
  return {Min(a.x, b.x), Min(a.y, b.y), Min(a.z, b.z)};
}
constexpr Vec3 Max(Vec3 a, Vec3 b) {
  return {Max(a.x, b.x), Max(a.y, b.y), Max(a.z, b.z)};
}
constexpr float Luminance(Vec3 c) {
  return 0.2126f * c.x + 0.7152f * c.y + 0.0722f * c.z;
}

// 0 below `lo`, 1 above `hi`, smooth between; falls if lo > hi.
constexpr float Smooth(float lo, float hi, float v) {
  const float t = Saturate((v - lo) / (hi - lo));
  return t * t * (3 - 2 * t);
}

// Two directions at right angles to the unit vector `n` and to each other.
inline void Basis(Vec3 n, Vec3& tangent, Vec3& bitangent) {
  const float sign = n.z >= 0 ? 1.0f : -1.0f;
  const float a = -1 / (sign + n.z);
  const float b = n.x * n.y * a;
  tangent = {1 + sign * n.x * n.x * a, sign * b, -sign * n.x};
  bitangent = {b, sign + n.y * n.y * a, -n.y};
}

}  // namespace tarnwick::photo
