#include "toolbox/field.h"

#include <algorithm>

#include "toolbox/hash.h"
#include "toolbox/maths.h"

namespace tarnwick::content {

float Field::Clamped(int x, int y) const {
  return (*this)(std::clamp(x, 0, width_ - 1), std::clamp(y, 0, height_ - 1));
}

float Field::Sample(float x, float y) const {
  x = Clamp(x, 0.0F, static_cast<float>(width_ - 1));
  y = Clamp(y, 0.0F, static_cast<float>(height_ - 1));
  const int x0 = static_cast<int>(x);
  const int y0 = static_cast<int>(y);
  const int x1 = std::min(x0 + 1, width_ - 1);
  const int y1 = std::min(y0 + 1, height_ - 1);
  const float fx = x - static_cast<float>(x0);
  const float fy = y - static_cast<float>(y0);
  return Mix(Mix((*this)(x0, y0), (*this)(x1, y0), fx), Mix((*this)(x0, y1), (*this)(x1, y1), fx),
             fy);
}

std::vector<std::uint8_t> ToBytes(const Sheet& sheet, const Field& field) {
  const std::size_t width = static_cast<std::size_t>(field.Width());
  std::vector<std::uint8_t> bytes(width * static_cast<std::size_t>(field.Height()));
  ForRows(sheet.pool, 0, field.Height(), [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      const float* row = field.Row(y);
      std::uint8_t* out = bytes.data() + static_cast<std::size_t>(y) * width;
      for (int x = 0; x < field.Width(); ++x) {
        // Short of a whole step, so that a flat grey of n / 255 stays flat.
        const float grain = 0.05F + 0.9F * Unit(HashAt(x, y, 0x6A09E667U));
        const float level = Clamp01(row[x]) * 255.0F + grain;
        out[x] = static_cast<std::uint8_t>(std::min(static_cast<int>(level), 255));
      }
    }
  });
  return bytes;
}

}  // namespace tarnwick::content
