#include "imaging/smooth_rows.h"

#include <algorithm>

namespace tarnwick {

void SmoothRowPlain(const SmoothRows& rows) {
  std::uint8_t* const row = rows.pixels;
  const std::uint8_t* const above = row - rows.stride;
  const std::uint8_t* const below = row + rows.stride;
  for (int x = 1; x < rows.width - 1; ++x) {
    float sum = 0.05F * above[x - 1];
    sum += 0.1F * above[x];
    sum += 0.05F * above[x + 1];
    sum += 0.1F * row[x - 1];
    sum += 0.4F * row[x];
    sum += 0.1F * row[x + 1];
    sum += 0.05F * below[x - 1];
    sum += 0.1F * below[x];
    sum += 0.05F * below[x + 1];
    row[x] = static_cast<std::uint8_t>(std::min(sum, 255.0F));
  }
}

}  // namespace tarnwick
