#include "imaging/layer_merge.h"

#include <algorithm>

namespace tarnwick {

bool CompositeThroughMask(RasterImage& target, const RasterImage& source, const RasterImage& mask,
                          const Rect& rect) {
  if (source.Width() != mask.Width() || source.Height() != mask.Height() ||
      rect.Width() > source.Width() || rect.Height() > source.Height() || rect.top < 0 ||
      rect.left < 0 || rect.bottom > target.Height() || rect.right > target.Width()) {
    return false;
  }
  const std::uint8_t* const from = source.PeekInterior();
  const std::uint8_t* const through = mask.PeekInterior();
  std::uint8_t* const to = target.Interior();
  if (from == nullptr || through == nullptr || to == nullptr) return false;
  const int planes =
      std::min({static_cast<int>(target.planeCount), static_cast<int>(source.planeCount), 3});
  for (int i = 0; i < planes; ++i) {
    const auto plane = static_cast<std::size_t>(i);
    for (int y = 0; y < rect.Height(); ++y) {
      std::uint8_t* const d =
          to + plane * target.PlaneBytes() + (rect.top + y) * target.RowBytes() + rect.left;
      const std::uint8_t* const s = from + plane * source.PlaneBytes() + y * source.RowBytes();
      const std::uint8_t* const m = through + y * mask.RowBytes();
      for (int x = 0; x < rect.Width(); ++x) {
        d[x] = static_cast<std::uint8_t>(d[x] + ((s[x] - d[x]) * m[x]) / 255);
      }
    }
  }
  return true;
}

void RaiseAlpha(RasterImage& image, std::uint8_t value) {
  if (image.planeCount < 4 || image.Pixels() == nullptr) return;
  std::uint8_t* const alpha = image.Interior() + 3 * image.PlaneBytes();
  for (int y = 0; y < image.Height(); ++y) {
    std::uint8_t* const row = alpha + y * image.RowBytes();
    for (int x = 0; x < image.Width(); ++x) row[x] = std::max(row[x], value);
  }
}

void MergeAlpha(RasterImage& target, const RasterImage& alpha) {
  const std::uint8_t* const from = alpha.PeekInterior();
  if (target.planeCount < 4 || from == nullptr || target.Pixels() == nullptr) return;
  std::uint8_t* const to = target.Interior() + 3 * target.PlaneBytes();
  for (int y = 0; y < std::min(target.Height(), alpha.Height()); ++y) {
    std::uint8_t* const row = to + y * target.RowBytes();
    const std::uint8_t* const other = from + y * alpha.RowBytes();
    for (int x = 0; x < std::min(target.Width(), alpha.Width()); ++x) {
      row[x] = std::max(row[x], other[x]);
    }
  }
}

}  // namespace tarnwick
