#include "imaging/nearest_places.h"

#include <algorithm>

namespace tarnwick {

std::vector<std::ptrdiff_t> NearestPlaces(std::int32_t origin, std::int32_t count, float scale,
                                          std::int32_t size) {
  std::vector<std::ptrdiff_t> places(static_cast<std::size_t>(std::max(count, 0)));
  for (std::size_t i = 0; i < places.size(); ++i) {
    const auto at = static_cast<std::int32_t>(
        static_cast<float>(origin + static_cast<std::int32_t>(i)) * scale);
    places[i] = std::clamp(at, 0, size - 1);
  }
  return places;
}

}  // namespace tarnwick
