#pragma once
#include <cstdint>

#include "vec3.h"

namespace tarnwick::photo {

// Scrambles a word; every bit of the input reaches every bit of the result.
constexpr std::uint32_t HashWord(std::uint32_t v) {
  v ^= v >> 16;
  v *= 0x7feb352du;
  v ^= v >> 15;
  v *= 0x846ca68bu;
  return v ^ (v >> 16);
}
constexpr std::uint32_t HashWords(std::uint32_t a, std::uint32_t b) {
  return HashWord(a * 0x9e3779b9u + HashWord(b));
}
// 0 <= result < 1
constexpr float UnitFloat(std::uint32_t word) {
  return static_cast<float>(word >> 8) * (1.0f / 16777216.0f);
}

// A stream of random numbers for the builders of the scene; each builder draws
// from its own stream, so that a change to one part leaves the others alone.
class Random {
 public:
  explicit Random(std::uint32_t seed) : state_(HashWord(seed)) {}
  std::uint32_t Word() { return HashWord(state_ += 0x9e3779b9u); }
  float Unit() { return UnitFloat(Word()); }
  float Range(float lo, float hi) { return lo + (hi - lo) * Unit(); }
  float Signed() { return Unit() * 2 - 1; }

 private:
  std::uint32_t state_;
};

// Gradient noise, about -1..1, mean 0, one feature per unit.
[[nodiscard]] float Noise2(float x, float y);
[[nodiscard]] float Noise3(Vec3 p);

// `octaves` of it, each twice as fine and half as strong; about -1..1.
[[nodiscard]] float Fbm2(float x, float y, int octaves);
[[nodiscard]] float Fbm3(Vec3 p, int octaves);

// The random points of a jittered unit grid, seen from (x, y).
struct Cell {
  float nearest = 0;     // distance to the nearest point
  float second = 0;      // and to the next
  std::uint32_t id = 0;  // hash of the nearest
};
[[nodiscard]] Cell Cells2(float x, float y);

}  // namespace tarnwick::photo
