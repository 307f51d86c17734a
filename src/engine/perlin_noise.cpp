#include "engine/perlin_noise.h"

#include <cmath>
#include <utility>

namespace tarnwick {
namespace {

// A number below k, without bias: values of the last, incomplete round of k are
// thrown away, unless that round is complete but for nothing.
int DrawBelow(NoiseRandom& random, int k) {
  const int rounds = 32767 / k;
  const bool lastRoundWhole = 32767 % k == k - 1;
  for (;;) {
    const int value = random.Next();
    if (value / k < rounds || lastRoundWhole) return value % k;
  }
}

}  // namespace

PerlinNoise::PerlinNoise(std::uint32_t seed) {
  NoiseRandom random(seed);
  for (std::size_t i = 0; i < 256; ++i) {
    permutation[i] = static_cast<std::int32_t>(i);
    const double x = ((random.Next() & 511) - 256) * 0.00390625;
    const double y = ((random.Next() & 511) - 256) * 0.00390625;
    const double length = std::sqrt(x * x + y * y);
    // 0 / 0, but said outright: a gradient of two zeros has no direction.
    gradientX[i] = length == 0 ? NAN : x / length;
    gradientY[i] = length == 0 ? NAN : y / length;
  }
  for (int k = 2; k <= 256; ++k) {
    const int r = DrawBelow(random, k);
    if (r != k - 1) {
      std::swap(permutation[static_cast<std::size_t>(k - 1)],
                permutation[static_cast<std::size_t>(r)]);
    }
  }
  for (std::size_t i = 0; i < 256; ++i) {
    permutation[i + 256] = permutation[i];
    gradientX[i + 256] = gradientX[i];
    gradientY[i + 256] = gradientY[i];
  }
}

}  // namespace tarnwick
