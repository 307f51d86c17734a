#include "imaging/color_services.h"

namespace tarnwick {

std::int16_t ColorSpaceOfMode(std::uint16_t mode) {
  // Indexed by mode; 0 and everything above 9 count as RGB.
  static constexpr std::int16_t kSpaces[10] = {0, 4, 4, 0, 2, 5, 1, 4, 4, 3};
  return mode <= 9 ? kSpaces[mode] : std::int16_t{0};
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
