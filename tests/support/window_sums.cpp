#include "support/window_sums.h"

#include <algorithm>

namespace tarnwick::testing {

Bytes WindowSums(const Bytes& in, int width, int radius) {
  const int height = static_cast<int>(in.size()) / width;
  const int n = 2 * radius + 1;
  const auto at = [&](int x, int y) { return static_cast<std::size_t>(y * width + x); };
  Bytes means(in.size());
  for (int y = 0; y < height - 1; ++y) {
    for (int x = 0; x < width; ++x) {
      int sum = 0;
      for (int c = std::max(x - radius, 0); c <= std::min(x + radius, width - 1); ++c) {
        sum += in[at(c, y)];
      }
      means[at(x, y)] = static_cast<std::uint8_t>(sum / n);
    }
  }
  Bytes out(in.size());
  for (int y = 0; y < height; ++y) {
    for (int x = 1; x < width; ++x) {
      int sum = 0;
      for (int r = y - radius; r <= y + radius; ++r) {
        sum += means[at(x, ((r % height) + height) % height)];
      }
      out[at(x, y)] = static_cast<std::uint8_t>(sum / n);
    }
  }
  return out;
}

}  // namespace tarnwick::testing
