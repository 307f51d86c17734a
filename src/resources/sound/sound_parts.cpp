#include "resources/sound/sound_parts.h"

#include <algorithm>
#include <cmath>

#include "base/portable_math.h"

namespace tarnwick {
namespace {

constexpr double kTwoPi = 6.283185307179586;
constexpr double kRiseSeconds = 0.0005;

std::size_t FrameAt(double seconds) {
  return static_cast<std::size_t>(seconds * kSoundRate);
}

// As loud from any place: the squares of both shares add up to 1.
StereoSample Placed(double value, double place) {
  return {value * std::sqrt(1 - place), value * std::sqrt(place)};
}

void Add(StereoSample& to, const StereoSample& what) {
  to.left += what.left;
  to.right += what.right;
}

class Noise {
 public:
  explicit Noise(std::uint32_t seed) : state_(seed * 2654435761u | 1u) {}
  // -1 to 1.
  double Next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return state_ / 2147483648.0 - 1;
  }

 private:
  std::uint32_t state_;
};

// Echoes of echoes, each a little duller, into one channel.
class Echo {
 public:
  Echo(std::size_t frames, double again) : line_(frames, 0.0), again_(again) {}
  double Next(double value) {
    const double out = line_[place_];
    dull_ += (out - dull_) * 0.45;
    line_[place_] = value + dull_ * again_;
    place_ = place_ + 1 == line_.size() ? 0 : place_ + 1;
    return out;
  }

 private:
  std::vector<double> line_;
  double again_;
  double dull_ = 0;
  std::size_t place_ = 0;
};

void AddRoomTo(Sound& sound, double StereoSample::*channel, std::vector<Echo> walls, double share) {
  for (StereoSample& sample : sound) {
    double heard = 0;
    for (Echo& wall : walls) heard += wall.Next(sample.*channel);
    sample.*channel += heard * share;
  }
}

// How much of a step a filter of one state follows in one sample.
double PaceOf(double hertz) {
  const double pace = kTwoPi * hertz / kSoundRate;
  return pace / (1 + pace);
}

void DampenChannel(Sound& sound, double StereoSample::*channel, double slowPace, double pace) {
  double slow = 0, level = 0;
  for (StereoSample& sample : sound) {
    level += (sample.*channel - level) * pace;
    slow += (level - slow) * slowPace;
    sample.*channel = level - slow;
  }
}

}  // namespace

void AddKnock(Sound& sound, const Knock& knock) {
  // A point that turns and draws nearer: its height is the sine.
  const double step = kTwoPi * knock.hertz / kSoundRate;
  const double turnX = PortableCos(step), turnY = PortableSin(step);
  const double fade = 1 - 1 / (knock.decay * kSoundRate);
  double x = knock.level, y = 0;
  const std::size_t first = FrameAt(knock.start);
  for (std::size_t i = first; i < sound.size() && x * x + y * y > 1e-10; ++i) {
    const double rise = std::min(1.0, static_cast<double>(i - first) / (kRiseSeconds * kSoundRate));
    Add(sound[i], Placed(y * rise, knock.place));
    const double turned = x * turnX - y * turnY;
    y = (x * turnY + y * turnX) * fade;
    x = turned * fade;
  }
}

void AddRush(Sound& sound, const Rush& rush) {
  // A filter of two states that swings at `hertz` and loses a share at each step.
  const double swing = 2 * PortableSin(kTwoPi / 2 * rush.hertz / kSoundRate);
  const double loss = 1 / rush.sharpness;
  Noise noise(rush.seed);
  double low = 0, band = 0;
  const std::size_t first = FrameAt(rush.start), count = FrameAt(rush.length);
  for (std::size_t i = 0; i < count && first + i < sound.size(); ++i) {
    const double t = static_cast<double>(i) / static_cast<double>(count);
    const double hump = 4 * t * (1 - t);
    low += swing * band;
    band += swing * (noise.Next() - low - loss * band);
    Add(sound[first + i], Placed(band * loss * hump * hump * rush.level, rush.place));
  }
}

void AddRoom(Sound& sound, double share) {
  // Lengths without a common divisor, other ones left and right: no tone of its own.
  AddRoomTo(sound, &StereoSample::left, {{809, 0.78}, {1013, 0.75}, {1277, 0.72}, {1559, 0.68}},
            share);
  AddRoomTo(sound, &StereoSample::right, {{853, 0.78}, {1069, 0.75}, {1217, 0.72}, {1621, 0.68}},
            share);
}

void Dampen(Sound& sound, double low, double high) {
  DampenChannel(sound, &StereoSample::left, PaceOf(low), PaceOf(high));
  DampenChannel(sound, &StereoSample::right, PaceOf(low), PaceOf(high));
}

void Finish(Sound& sound, double length, double peak) {
  const std::size_t count = std::min(FrameAt(length), sound.size());
  for (std::size_t i = 0; i < count; ++i) {
    StereoSample& sample = sound[sound.size() - 1 - i];
    const double t = static_cast<double>(i) / static_cast<double>(count);
    const double share = t * t * (3 - 2 * t);
    sample = {sample.left * share, sample.right * share};
  }
  double loudest = 0;
  for (const StereoSample& sample : sound) {
    loudest = std::max({loudest, std::fabs(sample.left), std::fabs(sample.right)});
  }
  if (loudest == 0) return;
  for (StereoSample& sample : sound) {
    sample = {sample.left / loudest * peak, sample.right / loudest * peak};
  }
}

}  // namespace tarnwick
