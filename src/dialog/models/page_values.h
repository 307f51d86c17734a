#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "controls/models/ball_angles.h"

namespace tarnwick {

// Texts in the pages' edit fields, and what they mean.

inline constexpr std::size_t kMaxValueText = 16;

// The number that a text starts with, a finite one; 0 where it starts with none. Only the
// first kMaxValueText characters count.
[[nodiscard]] float ParseValue(std::string_view text);
// The same for whole numbers; beyond the range the nearest.
[[nodiscard]] std::int32_t ParseWhole(std::string_view text);

// Whole numbers, as sliders print them.
[[nodiscard]] std::string WholeText(std::int32_t value);
// As the ball prints its angles.
[[nodiscard]] std::string AngleText(float value);

// A seed as it is kept: with the sign of what was typed.
inline constexpr std::int32_t kSeeds = 1000;
[[nodiscard]] inline std::int32_t SeedOf(std::int32_t typed) {
  return typed % kSeeds;
}

// How far the ball says that a texture has gone, and the other way round; pixels of the
// texture, up to `range`. A texture that cannot move leaves the ball in the middle.
struct TextureOffset {
  std::int32_t x, y;
};
struct OffsetPoint {
  float x, y;
};
[[nodiscard]] OffsetPoint OffsetOfBall(BallOffset ball, TextureOffset range);
[[nodiscard]] BallOffset BallOfOffset(TextureOffset offset, TextureOffset range);

// How far a texture moves that lies at `now` and is to go to `wanted`. Odd, and kept: the
// way is divided by the scale, so a picture that is shown smaller moves less than it is
// told. Only the way is made whole, towards none: a place between two pixels is reached
// from either side as far as it goes.
[[nodiscard]] TextureOffset WayTo(OffsetPoint wanted, TextureOffset now, float viewScale);

// A number typed for an offset: from 0 to below the largest one.
[[nodiscard]] std::int32_t LimitOffset(std::int32_t typed, std::int32_t range);

}  // namespace tarnwick
