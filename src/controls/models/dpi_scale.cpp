#include "controls/models/dpi_scale.h"

#include <cmath>

namespace tarnwick {
namespace {

constexpr int kPlainDpi = 96;

}  // namespace

float DpiFactorOf(int dpi) {
  return std::sqrt(static_cast<float>(dpi) / static_cast<float>(kPlainDpi));
}

int ScaledHeight(int height, int dpi) {
  if (dpi <= kPlainDpi) return height;
  return static_cast<int>(static_cast<float>(height) * DpiFactorOf(dpi));
}

int TwiceScaledHeight(int height, int dpi) {
  return ScaledHeight(ScaledHeight(height, dpi), dpi);
}

int LinearHeight(int height, int dpi) {
  return dpi <= kPlainDpi ? height : height * dpi / kPlainDpi;
}

}  // namespace tarnwick
