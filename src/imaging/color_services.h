#pragma once
#include <array>
#include <cstdint>

namespace tarnwick {

// Four channels of one colour, 8 bits each; a mode uses the first ones.
using ColorChannels = std::array<std::int16_t, 4>;

// Colour spaces of the host's colour services.
enum class ColorSpaceId : std::int16_t {
  kRgb = 0,
  kHsb = 1,
  kCmyk = 2,
  kLab = 3,
  kGray = 4,
  kHsl = 5,
};

// The colour space that the services use for an image mode.
[[nodiscard]] std::int16_t ColorSpaceOfMode(std::uint16_t mode);

// Converts one colour between spaces, in place; false if it cannot.
class ColorServices {
 public:
  virtual ~ColorServices() = default;
  virtual bool Convert(ColorChannels& channels, std::int16_t fromSpace, std::int16_t toSpace) = 0;
};

// A colour of one image mode in the form of another, in place. False, and
// untouched, without services or when they fail.
[[nodiscard]] bool ConvertColor(ColorServices* services, ColorChannels& channels,
                                std::uint16_t fromMode, std::uint16_t toMode);

}  // namespace tarnwick
