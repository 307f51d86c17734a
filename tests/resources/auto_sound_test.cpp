#include "resources/sound/auto_sound.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "resources/sound/wave_file.h"

namespace tarnwick {
namespace {

// The file, read as its format says.
class Wave {
 public:
  explicit Wave(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {}
  std::size_t Size() const { return bytes_.size(); }
  std::string Tag(std::size_t at) const {
    return {bytes_.begin() + static_cast<std::ptrdiff_t>(at),
            bytes_.begin() + static_cast<std::ptrdiff_t>(at) + 4};
  }
  std::uint32_t Number(std::size_t at, int byteCount) const {
    std::uint32_t value = 0;
    for (int i = byteCount; i-- > 0;) value = value * 256 + bytes_.at(at + std::size_t(i));
    return value;
  }
  // Left and right by turns.
  std::vector<int> Samples() const {
    std::vector<int> samples;
    for (std::size_t at = 44; at < Size(); at += 2) {
      const int value = static_cast<int>(Number(at, 2));
      samples.push_back(value < 32768 ? value : value - 65536);
    }
    return samples;
  }

 private:
  std::vector<std::uint8_t> bytes_;
};

TEST(WaveFile, IsLaidOutAsTheFormatSays) {
  const StereoSample samples[] = {{0, 1}, {-1, 2}, {-3, 0.5}};
  const Wave wave(WaveFileOf(samples, 8000));
  ASSERT_EQ(wave.Size(), 44U + 12);
  EXPECT_EQ(wave.Tag(0) + wave.Tag(8) + wave.Tag(12) + wave.Tag(36), "RIFFWAVEfmt data");
  const struct {
    const char* name;
    std::size_t at;
    int byteCount;
    std::uint32_t value;
  } kFields[] = {
      {"bytes after it", 4, 4, 48}, {"description", 16, 4, 16}, {"PCM", 20, 2, 1},
      {"channels", 22, 2, 2},       {"rate", 24, 4, 8000},      {"bytes a second", 28, 4, 32000},
      {"bytes a frame", 32, 2, 4},  {"bits", 34, 2, 16},        {"bytes of samples", 40, 4, 12},
  };
  for (const auto& field : kFields) {
    EXPECT_EQ(wave.Number(field.at, field.byteCount), field.value) << field.name;
  }
  // 0.5 * 32767 is 16383.5.
  EXPECT_EQ(wave.Samples(), (std::vector<int>{0, 32767, -32767, 32767, -32767, 16384}));
}

TEST(AutoSound, HasItsLengthAndIsSoft) {
  const Wave wave(AutoSound());
  ASSERT_EQ(wave.Size(), 291528U);
  EXPECT_EQ(wave.Number(4, 4), 291520U);
  EXPECT_EQ(wave.Number(24, 4), 44100U);
  EXPECT_EQ(wave.Number(40, 4), 291484U);

  const std::vector<int> samples = wave.Samples();
  ASSERT_EQ(samples.size(), 145742U);
  const auto loudest = [&](std::size_t first, std::size_t count) {
    int most = 0;
    for (std::size_t i = first; i < first + count; ++i) most = std::max(most, std::abs(samples[i]));
    return most;
  };
  // 6 dB under full scale is half of it; audible is 26 dB under, a twentieth.
  EXPECT_LT(loudest(0, samples.size()), 16384);
  EXPECT_GT(loudest(0, samples.size()), 1638);
  // Comes within 30 ms of the click: 1323 frames.
  EXPECT_GT(loudest(0, 2 * 1323), 1638);
  // Nothing clicks where it begins, at first 2 ms of nearly nothing, nor where it
  // ends: 5 ms.
  EXPECT_LE(loudest(0, 2 * 88), 8);
  EXPECT_LE(loudest(samples.size() - 2 * 220, 2 * 220), 8);

  for (const std::size_t channel : {0U, 1U}) {
    double sum = 0, squares = 0;
    for (std::size_t i = channel; i < samples.size(); i += 2) {
      sum += samples[i];
      squares += double(samples[i]) * samples[i];
    }
    const double count = double(samples.size()) / 2;
    EXPECT_LT(std::fabs(sum / count), 2) << "off its middle";
    // 18 to 40 dB under full scale over its length.
    EXPECT_LT(std::sqrt(squares / count), 4125);
    EXPECT_GT(std::sqrt(squares / count), 328);
  }
}

}  // namespace
}  // namespace tarnwick
