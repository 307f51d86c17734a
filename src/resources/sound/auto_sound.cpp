#include "resources/sound/auto_sound.h"

#include "resources/sound/sound_parts.h"

namespace tarnwick {
namespace {

constexpr std::size_t kFileBytes = 291528;
constexpr std::size_t kFrames = (kFileBytes - 44) / 4;

// Curtain and mirror of a shutter: brass, its spring, and the body of the case.
void AddShutter(Sound& sound, double start, double level, double place, std::uint32_t seed) {
  AddRush(sound, {start, 0.022, 2300, 1.6, 2.2 * level, place, seed});
  AddKnock(sound, {start + 0.002, 1180, 0.007, 0.34 * level, place});
  AddKnock(sound, {start + 0.003, 1930, 0.004, 0.18 * level, place});
  AddKnock(sound, {start + 0.004, 410, 0.016, 0.42 * level, 0.5});
  AddKnock(sound, {start + 0.004, 165, 0.034, 0.60 * level, 0.5});
}

// One tooth of the ratchet falls in. No two teeth are alike.
void AddTooth(Sound& sound, double start, double level, double place, int number) {
  const double tuning = 1 + 0.03 * ((number * 5) % 7 - 3) / 3;
  AddKnock(sound, {start, 1460 * tuning, 0.0045, 0.30 * level, place});
  AddKnock(sound, {start + 0.0006, 690 * tuning, 0.010, 0.34 * level, place});
  AddRush(sound,
          {start, 0.012, 2900, 1.3, 0.9 * level, place, 100u + static_cast<unsigned>(number)});
}

// The lever is pushed: teeth follow faster, then slower, and pass from left to right.
void AddFilmAdvance(Sound& sound) {
  constexpr double kStart = 0.33, kLength = 0.86;
  AddRush(sound, {kStart - 0.05, kLength + 0.12, 780, 1.2, 0.52, 0.45, 7});
  AddRush(sound, {kStart, kLength, 240, 2.0, 0.55, 0.5, 8});
  double t = 0;
  for (int number = 0; t < 1; ++number) {
    const double hump = 4 * t * (1 - t);
    AddTooth(sound, kStart + t * kLength, 0.30 + 0.50 * hump, 0.34 + 0.32 * t, number);
    t += (0.062 - 0.028 * hump + 0.002 * ((number * 3) % 4)) / kLength;
  }
}

// The end of its way.
void AddStop(Sound& sound, double start) {
  AddRush(sound, {start, 0.018, 1700, 1.5, 0.9, 0.6, 21});
  AddKnock(sound, {start + 0.001, 930, 0.008, 0.20, 0.6});
  AddKnock(sound, {start + 0.002, 350, 0.020, 0.34, 0.55});
  AddKnock(sound, {start + 0.002, 140, 0.040, 0.44, 0.5});
}

}  // namespace

std::vector<std::uint8_t> AutoSound() {
  Sound sound(kFrames);
  AddShutter(sound, 0.006, 1.0, 0.46, 1);
  AddShutter(sound, 0.098, 0.72, 0.54, 2);
  AddFilmAdvance(sound);
  AddStop(sound, 1.25);
  Dampen(sound, 45, 5200);
  AddRoom(sound, 0.05);
  Finish(sound, 0.09, 0.4);
  return WaveFileOf(sound, kSoundRate);
}

}  // namespace tarnwick
