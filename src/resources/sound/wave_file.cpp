#include "resources/sound/wave_file.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace tarnwick {
namespace {

constexpr std::uint32_t kChannels = 2;
constexpr std::uint32_t kBytesPerFrame = kChannels * 2;
constexpr std::uint32_t kBytesAfterRiffSize = 36;  // of the head

class Bytes {
 public:
  explicit Bytes(std::size_t capacity) { bytes_.reserve(capacity); }
  void Tag(std::string_view tag) { bytes_.insert(bytes_.end(), tag.begin(), tag.end()); }
  void Number(std::uint32_t value, int byteCount) {
    for (int i = 0; i < byteCount; ++i) {
      bytes_.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }
  }
  std::vector<std::uint8_t> Take() { return std::move(bytes_); }

 private:
  std::vector<std::uint8_t> bytes_;
};

std::uint32_t SixteenBits(double value) {
  const double clipped = std::clamp(value, -1.0, 1.0);
  return static_cast<std::uint32_t>(static_cast<std::int32_t>(std::floor(clipped * 32767 + 0.5)));
}

}  // namespace

std::vector<std::uint8_t> WaveFileOf(std::span<const StereoSample> samples,
                                     std::uint32_t samplesPerSecond) {
  const auto dataSize = static_cast<std::uint32_t>(samples.size() * kBytesPerFrame);
  Bytes file(samples.size() * kBytesPerFrame + 44);
  file.Tag("RIFF");
  file.Number(kBytesAfterRiffSize + dataSize, 4);
  file.Tag("WAVEfmt ");
  file.Number(16, 4);  // size of the description
  file.Number(1, 2);   // PCM
  file.Number(kChannels, 2);
  file.Number(samplesPerSecond, 4);
  file.Number(samplesPerSecond * kBytesPerFrame, 4);
  file.Number(kBytesPerFrame, 2);
  file.Number(16, 2);  // bits of a sample
  file.Tag("data");
  file.Number(dataSize, 4);
  for (const StereoSample& sample : samples) {
    file.Number(SixteenBits(sample.left), 2);
    file.Number(SixteenBits(sample.right), 2);
  }
  return file.Take();
}

}  // namespace tarnwick
