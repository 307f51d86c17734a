#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarnwick::testing {

using Bytes = std::vector<std::uint8_t>;

// The same numbers on every machine: a 32-bit xorshift.
class TestRandom {
 public:
  explicit TestRandom(std::uint32_t seed) : state_(seed * 2654435761U + 1) {}
  std::uint32_t Next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return state_;
  }
  // 0..n - 1.
  int Below(int n) { return static_cast<int>((Next() >> 8) % static_cast<std::uint32_t>(n)); }
  bool Coin() { return Below(2) != 0; }
  std::uint8_t Byte() { return static_cast<std::uint8_t>(Below(256)); }

  // `count` bytes of a kind drawn first, so that sums run against their limits:
  // anything, near 0, near 255, or only the two ends.
  Bytes Shaped(std::size_t count) {
    const int kind = Below(4);
    Bytes bytes(count);
    for (std::uint8_t& byte : bytes) {
      const int spread = Below(4);
      byte = kind == 0   ? Byte()
             : kind == 1 ? static_cast<std::uint8_t>(spread)
             : kind == 2 ? static_cast<std::uint8_t>(255 - spread)
                         : static_cast<std::uint8_t>(spread < 2 ? 0 : 255);
    }
    return bytes;
  }

 private:
  std::uint32_t state_;
};

}  // namespace tarnwick::testing
