#include "imaging/color_services.h"

namespace tarnwick {

std::int16_t ColorSpaceOfMode(std::uint16_t mode) {
  // Indexed by mode; 0 and everything above 9 count as RGB.
  using enum ColorSpaceId;
  static constexpr ColorSpaceId kSpaces[10] = {kRgb, kGray, kGray, kRgb,  kCmyk,
                                               kHsl, kHsb,  kGray, kGray, kLab};
  return static_cast<std::int16_t>(mode <= 9 ? kSpaces[mode] : kRgb);
}

bool ConvertColor(ColorServices* services, ColorChannels& channels, std::uint16_t fromMode,
                  std::uint16_t toMode) {
  if (services == nullptr) return false;
  ColorChannels converted = channels;
  if (!services->Convert(converted, ColorSpaceOfMode(fromMode), ColorSpaceOfMode(toMode))) {
    return false;
  }
  channels = converted;
  return true;
}

}  // namespace tarnwick
