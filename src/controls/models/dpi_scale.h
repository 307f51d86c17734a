#pragma once

namespace tarnwick {

// By how much sizes grow on a fine screen: the square root of dpi / 96.
[[nodiscard]] float DpiFactorOf(int dpi);

// Font heights: as they are up to 96 dpi, above it times the factor, truncated.
[[nodiscard]] int ScaledHeight(int height, int dpi);
// The underlined link is scaled twice.
[[nodiscard]] int TwiceScaledHeight(int height, int dpi);
// Lists grow with the screen.
[[nodiscard]] int LinearHeight(int height, int dpi);

}  // namespace tarnwick
