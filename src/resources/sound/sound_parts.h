#pragma once
#include <cstdint>
#include <vector>

#include "resources/sound/wave_file.h"

namespace tarnwick {

// What sounds are made of. Basic arithmetic and our own sine alone, so that every
// compiler makes the same bytes. Times in seconds, levels 0 to 1, places from 0,
// left, to 1, right.

inline constexpr int kSoundRate = 44100;

using Sound = std::vector<StereoSample>;

// A struck piece of metal or wood: a sine that dies away, to about a third in
// `decay`. Rises within half a millisecond, so that it knocks but does not click.
struct Knock {
  double start, hertz, decay, level, place;
};
void AddKnock(Sound& sound, const Knock& knock);

// Air or friction: noise round `hertz`, as narrow as `hertz` / `sharpness`, that
// swells and fades as a hump over `length`.
struct Rush {
  double start, length, hertz, sharpness, level, place;
  std::uint32_t seed;
};
void AddRush(Sound& sound, const Rush& rush);

// The walls of a small room: a share of the sound, blurred and dying away within a
// quarter of a second.
void AddRoom(Sound& sound, double share);

// Takes off what is above about `high`, as the lid of a case does, and below `low`,
// which no loudspeaker gives and which would leave the sound off its middle.
void Dampen(Sound& sound, double low, double high);

// Fades the last `length` to nothing, then sets the loudest sample to `peak`.
void Finish(Sound& sound, double length, double peak);

}  // namespace tarnwick
