#include "toolbox/busy_steps.h"

#include <algorithm>
#include <cstdlib>

#include "base/row_progress.h"

namespace tarnwick::content {
namespace {

// By the sum of the differences to the four neighbours.
int StepFor(int difference) {
  if (difference >= 80) return 8;
  if (difference >= 24) return 4;
  return difference >= 8 ? 2 : 1;
}

std::uint8_t Rounded(int sample, int step) {
  return static_cast<std::uint8_t>(std::min((sample + step / 2) / step * step, 255));
}

}  // namespace

void CoarsenBusySteps(std::vector<std::uint8_t>& samples, int width, ThreadPool* pool) {
  const std::vector<std::uint8_t> before = samples;
  const int height = static_cast<int>(samples.size()) / width;
  // The border's missing neighbours are itself.
  const auto at = [&](int x, int y) {
    return int{before[static_cast<std::size_t>(std::clamp(y, 0, height - 1)) *
                          static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(std::clamp(x, 0, width - 1))]};
  };
  ForRows(pool, 0, height, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      std::uint8_t* const row =
          samples.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
      for (int x = 0; x < width; ++x) {
        const int here = at(x, y);
        const int difference = std::abs(at(x - 1, y) - here) + std::abs(at(x + 1, y) - here) +
                               std::abs(at(x, y - 1) - here) + std::abs(at(x, y + 1) - here);
        row[x] = Rounded(here, StepFor(difference));
      }
    }
  });
}

}  // namespace tarnwick::content
