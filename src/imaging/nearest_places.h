#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarnwick {

// Where the columns, or rows, of a window lie in an image of `size` >= 1 samples:
// trunc((origin + i) * scale) for each i below `count`, by 32-bit floats. What is
// beyond the image is its first or last one.
[[nodiscard]] std::vector<std::ptrdiff_t> NearestPlaces(std::int32_t origin, std::int32_t count,
                                                        float scale, std::int32_t size);

}  // namespace tarnwick
