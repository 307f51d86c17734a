#include "dialog/models/page_values.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "base/truncate.h"

namespace tarnwick {

float ParseValue(std::string_view text) {
  const std::string head(text.substr(0, kMaxValueText));
  // The library also knows words, and numbers to other bases.
  const std::size_t digits = head.find_first_not_of(" \t+-");
  if (digits == std::string::npos || head.find_first_of("0123456789.", digits) != digits ||
      head.find_first_of("xX") == digits + 1) {
    return 0;
  }
  constexpr float kLargest = std::numeric_limits<float>::max();
  return std::clamp(std::strtof(head.c_str(), nullptr), -kLargest, kLargest);
}

std::int32_t ParseWhole(std::string_view text) {
  const std::string head(text.substr(0, kMaxValueText));
  const long long value = std::strtoll(head.c_str(), nullptr, 10);
  return static_cast<std::int32_t>(std::clamp<long long>(
      value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

std::string WholeText(std::int32_t value) {
  return std::to_string(value);
}

std::string AngleText(float value) {
  char text[64];
  std::snprintf(text, sizeof text, "%0.2f", static_cast<double>(value));
  return text;
}

OffsetPoint OffsetOfBall(BallOffset ball, TextureOffset range) {
  const auto along = [](float share, std::int32_t length) {
    return share * static_cast<float>(length) / 200.0F;
  };
  return {along(100.0F - ball.x, range.x), along(ball.y + 100.0F, range.y)};
}

TextureOffset WayTo(OffsetPoint wanted, TextureOffset now, float viewScale) {
  const auto along = [&](float to, std::int32_t from) {
    return TruncateToInt(static_cast<double>((to - static_cast<float>(from)) / viewScale));
  };
  return {along(wanted.x, now.x), along(wanted.y, now.y)};
}

BallOffset BallOfOffset(TextureOffset offset, TextureOffset range) {
  const auto share = [](std::int32_t gone, std::int32_t length) {
    return length == 0 ? 100.0F : static_cast<float>(gone) * 200.0F / static_cast<float>(length);
  };
  return {100.0F - share(offset.x, range.x), share(offset.y, range.y) - 100.0F};
}

std::int32_t LimitOffset(std::int32_t typed, std::int32_t range) {
  return std::max(std::min(typed, range - 1), 0);
}

}  // namespace tarnwick
