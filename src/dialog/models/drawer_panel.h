#pragma once
#include <cstdint>
#include <vector>

#include "dialog/models/shadow_strip.h"

namespace tarnwick {

// The black ground of a drawer: its two right corners are rounded off, with the
// dialog's face coming through as it does round the pane.
//
// `height` rows from the top, StripRowBytes(width) bytes each, blue, green, red. Empty
// for a side below 1; where it is lower than both corners, the lower one counts.
[[nodiscard]] std::vector<std::uint8_t> BuildDrawerPanel(const StripShade& shade,
                                                         const FaceColor& face, int width,
                                                         int height);

}  // namespace tarnwick
