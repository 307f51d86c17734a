#pragma once
#include "support/test_random.h"

namespace tarnwick::testing {

// Texture files byte by byte.

// A zlib stream of stored blocks: samples stand in it as they are.
[[nodiscard]] Bytes StoredStream(const Bytes& samples);

// The header of the current form: little-endian, 52 bytes.
[[nodiscard]] Bytes WashHeader(std::uint32_t width, std::uint32_t height, std::uint32_t channels);
// The header of the old form: big-endian, 16 bytes.
[[nodiscard]] Bytes OldWashHeader(std::uint32_t width, std::uint32_t height,
                                  std::uint32_t channels);

[[nodiscard]] Bytes Joined(Bytes a, const Bytes& b);
// Without the last `count` bytes.
[[nodiscard]] Bytes Cut(Bytes bytes, std::size_t count);

// A whole grey texture file.
[[nodiscard]] Bytes GrayWash(int width, const Bytes& samples);

}  // namespace tarnwick::testing
