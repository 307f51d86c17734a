#pragma once

namespace tarnwick {

// Sine and cosine of `radians` with an error of about one unit in the last
// place, from basic arithmetic alone: the same bits on every platform, which the
// run-time libraries do not promise. For |radians| up to about 1e5; beyond that
// the reduction loses digits. NaN and infinities give NaN.
//
// Source: reduction to -pi/4..pi/4 after Cody and Waite, "Software Manual for the
// Elementary Functions" (1980), then the Taylor series.
[[nodiscard]] double PortableSin(double radians);
[[nodiscard]] double PortableCos(double radians);

}  // namespace tarnwick
