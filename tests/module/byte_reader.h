#pragma once
#include <cstdint>
#include <stdexcept>
#include <string>

namespace tarnwick {

// Takes a resource apart from its start; little endian, nothing aligned. Throws
// at the end of the bytes.
class ByteReader {
 public:
  explicit ByteReader(std::string bytes) : bytes_(std::move(bytes)) {}

  std::string Take(std::size_t count) {
    if (count > bytes_.size() - at_) throw std::out_of_range("the resource ends too early");
    at_ += count;
    return bytes_.substr(at_ - count, count);
  }
  std::uint8_t U8() { return static_cast<std::uint8_t>(Take(1)[0]); }
  std::uint16_t U16() {
    const unsigned low = U8();
    return static_cast<std::uint16_t>(low | static_cast<unsigned>(U8()) << 8);
  }
  std::uint32_t U32() {
    const std::uint32_t low = U16();
    return low | static_cast<std::uint32_t>(U16()) << 16;
  }
  // A four-character code in reading order; in memory it lies backwards.
  std::string Code() {
    const std::string bytes = Take(4);
    return {bytes.rbegin(), bytes.rend()};
  }
  std::string CountedText() { return Take(U8()); }

  [[nodiscard]] bool AtEnd() const { return at_ == bytes_.size(); }

 private:
  std::string bytes_;
  std::size_t at_ = 0;
};

}  // namespace tarnwick
