#pragma once
#include <cstdint>
#include <vector>

namespace tarnwick {

// The sound of the Auto button, a wave file of exactly 291,528 bytes: 1.65 seconds in
// stereo. An old camera takes a picture and is wound on: the shutter opens and
// closes, the ratchet of the film advance runs up and slows down, the lever stops.
// Made to be heard often: soft, low, no beep in it.
[[nodiscard]] std::vector<std::uint8_t> AutoSound();

}  // namespace tarnwick
