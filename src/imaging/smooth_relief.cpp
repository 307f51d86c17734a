#include "imaging/smooth_relief.h"

#include <algorithm>

namespace tarnwick {

void SmoothRelief(RasterImage& image, Progress* progress, ThreadPool*) {
  std::uint8_t* const pixels = image.PeekPixels() == nullptr ? nullptr : image.Interior();
  const int width = image.Width();
  const int height = image.Height();
  if (pixels == nullptr || width < 3 || height < 3) return;
  const std::ptrdiff_t stride = image.RowBytes();
  for (int y = 1; y < height - 1; ++y) {
    const std::uint8_t* const above = pixels + (y - 1) * stride;
    std::uint8_t* const row = pixels + y * stride;
    const std::uint8_t* const below = pixels + (y + 1) * stride;
    for (int x = 1; x < width - 1; ++x) {
      float sum = 0.05F * above[x - 1];
      sum += 0.1F * above[x];
      sum += 0.05F * above[x + 1];
      sum += 0.1F * row[x - 1];
      sum += 0.4F * row[x];
      sum += 0.1F * row[x + 1];
      sum += 0.05F * below[x - 1];
      sum += 0.1F * below[x];
      sum += 0.05F * below[x + 1];
      row[x] = static_cast<std::uint8_t>(std::min(sum, 255.0F));
    }
    if (progress != nullptr) progress->ReportRow(y, height);
  }
}

}  // namespace tarnwick
