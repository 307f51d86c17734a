#pragma once
#include <cstdint>

namespace tarnwick {

// What a render shows.
enum class ViewMode : std::uint8_t {
  kComposite = 0,
  kWashOne = 1,
  kWashTwo = 2,
  kBackground = 3,
  kSurfaceOne = 4,
  kSurfaceTwo = 5,
  kOriginal = 6,
};

}  // namespace tarnwick
