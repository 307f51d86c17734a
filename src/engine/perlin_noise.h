#pragma once
#include <array>
#include <cstdint>

namespace tarnwick {

// The generator behind the coverage patterns: a linear congruential one, whose
// exact sequence the presets' seeds depend on. Gives 0..32767.
class NoiseRandom {
 public:
  explicit NoiseRandom(std::uint32_t seed) : state_(seed) {}
  int Next() {
    state_ = state_ * 214013U + 2531011U;
    return static_cast<int>((state_ >> 16) & 32767U);
  }

 private:
  std::uint32_t state_;
};

// The tables of gradient noise. Source: K. Perlin, "Improving Noise", SIGGRAPH
// 2002, with gradients of its own. The upper half of each repeats the lower. A
// seed may meet a gradient of two zeros: its entry is NaN, and so is the noise
// around it.
struct PerlinNoise {
  explicit PerlinNoise(std::uint32_t seed);

  std::array<std::int32_t, 512> permutation;
  std::array<double, 512> gradientX;
  std::array<double, 512> gradientY;
};

}  // namespace tarnwick
