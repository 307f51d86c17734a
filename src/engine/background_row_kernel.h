// Included by background_row.cpp and background_row_avx2.cpp alone: one source,
// once for each instruction set. No contraction, so the bytes are the same.
#include <algorithm>

#include "engine/background_row.h"

namespace tarnwick {
namespace {

inline std::uint8_t ToByte(float v) {
  return static_cast<std::uint8_t>(static_cast<std::int32_t>(v));
}

template <bool kSelected>
inline void ComposeRow(const BackgroundRow& row) {
  const std::uint8_t* __restrict source = row.source;
  const std::uint8_t* __restrict background = row.background;
  const std::uint8_t* __restrict selection = row.selection;
  std::uint8_t* __restrict output = row.output;
  for (int x = 0; x < row.width; ++x) {
    const float a = static_cast<float>(output[4 * x + 3]) / 255.0F;
    const float g = 1.0F - a;
    for (int c = 0; c < 3; ++c) {
      const auto k = static_cast<float>(background[4 * x + c]);
      const auto d = static_cast<float>(output[4 * x + c]);
      float under = k;
      if constexpr (kSelected) {
        const float q = static_cast<float>(selection[x]) / 255.0F;
        under = static_cast<float>(source[4 * x + c]) * (1.0F - q) + k * q;
      }
      output[4 * x + c] = ToByte(under * g + d * a);
    }
  }
}

inline void ComposeAlpha(const BackgroundRow& row) {
  const std::uint8_t* __restrict source = row.source;
  std::uint8_t* __restrict output = row.output;
  if (!row.fill) {
    for (int x = 0; x < row.width; ++x) {
      output[4 * x + 3] = std::max(output[4 * x + 3], source[4 * x + 3]);
    }
  } else if (row.selection == nullptr) {
    for (int x = 0; x < row.width; ++x) output[4 * x + 3] = 255;
  } else {
    const std::uint8_t* __restrict selection = row.selection;
    for (int x = 0; x < row.width; ++x) {
      const float q = static_cast<float>(selection[x]) / 255.0F;
      output[4 * x + 3] = ToByte(std::max(q * 255.0F, static_cast<float>(source[4 * x + 3])));
    }
  }
}

inline void BackgroundRowKernel(const BackgroundRow& row) {
  if (row.selection != nullptr) {
    ComposeRow<true>(row);
  } else {
    ComposeRow<false>(row);
  }
  ComposeAlpha(row);
}

}  // namespace
}  // namespace tarnwick
