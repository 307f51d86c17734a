#include "engine/intensity_table.h"

namespace tarnwick {

void BuildIntensityTable(EffectLayer& layer, int value) {
  // 64 bits: a preset may hold any 32-bit number.
  const std::int64_t strength = value;
  const bool lift = strength < 100;
  layer.intensityParameter = lift ? value : static_cast<std::int32_t>(strength - 100);
  for (int i = 0; i < 256; ++i) {
    std::int64_t entry = i;
    if (lift) {
      entry += (255 - i) * (100 - strength) / 100;
    } else if (i < 127) {
      entry -= i * (strength - 100) / 100;
    } else {
      entry += (255 - i) * (strength - 100) / 100;
    }
    layer.intensityTable[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(entry);
  }
}

}  // namespace tarnwick
