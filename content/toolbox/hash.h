#pragma once
#include <cstdint>

namespace tarnwick::content {

// Scrambles a word so that neighbours share nothing.
[[nodiscard]] constexpr std::uint32_t Hash(std::uint32_t v) {
  v ^= v >> 16;
  v *= 0x7FEB352DU;
  v ^= v >> 15;
  v *= 0x846CA68BU;
  v ^= v >> 16;
  return v;
}

// The random word that belongs to a place: the same whoever asks, in whatever
// order, which is what keeps recipes independent of threads.
[[nodiscard]] constexpr std::uint32_t HashAt(int x, int y, std::uint32_t seed) {
  return Hash(static_cast<std::uint32_t>(x) * 0x9E3779B1U +
              Hash(static_cast<std::uint32_t>(y) * 0x85EBCA77U + seed));
}

// 0 up to, but not including, 1, in steps of 2 to the -24: exact in a float.
[[nodiscard]] constexpr float Unit(std::uint32_t hash) {
  return static_cast<float>(hash >> 8) * (1.0F / 16777216.0F);
}

// A stream of random numbers for work that is drawn in one fixed order, such
// as the list of strokes of a recipe. Throw once in an expression or a call:
// where two throws stand side by side, compilers choose which falls first. A
// list in braces is safe.
class Dice {
 public:
  explicit constexpr Dice(std::uint32_t seed) : state_(Hash(seed ^ 0xA511E9B3U)) {}
  // A stream of its own for item `index` of stream `seed`.
  constexpr Dice(std::uint32_t seed, int index)
      : Dice(Hash(seed) + static_cast<std::uint32_t>(index) * 0x9E3779B1U) {}

  constexpr std::uint32_t Word() {
    state_ += 0x9E3779B9U;
    return Hash(state_);
  }
  // 0 up to 1.
  constexpr float Unit() { return content::Unit(Word()); }
  // lo up to hi, evenly.
  constexpr float Between(float lo, float hi) { return lo + (hi - lo) * Unit(); }
  // A bell around `mean`, all within 2 `spread` of it: the sum of four throws.
  constexpr float Around(float mean, float spread) {
    const float a = Unit() + Unit();
    const float b = Unit() + Unit();
    return mean + (a + b - 2.0F) * spread;
  }
  constexpr bool Chance(float probability) { return Unit() < probability; }

 private:
  std::uint32_t state_;
};

}  // namespace tarnwick::content
