#pragma once
#include <cstdint>
#include <span>
#include <vector>

namespace tarnwick {

struct StereoSample {
  double left = 0, right = 0;  // -1 to 1
};

// A RIFF wave file of 16-bit PCM, two channels, in memory: 44 bytes of head, then
// four bytes for each sample. What lies beyond -1 to 1 is clipped.
[[nodiscard]] std::vector<std::uint8_t> WaveFileOf(std::span<const StereoSample> samples,
                                                   std::uint32_t samplesPerSecond);

}  // namespace tarnwick
