#include "imaging/smooth_relief.h"

#include "base/page_buffer.h"
#include "imaging/smooth_rows.h"

namespace tarnwick {

void SmoothRelief(RasterImage& image, Progress* progress, Isa isa) {
  std::uint8_t* const pixels = image.PeekPixels() == nullptr ? nullptr : image.Interior();
  const int width = image.Width();
  const int height = image.Height();
  if (pixels == nullptr || width < 3 || height < 3) return;
  const auto rowsAt = [&](int y) {
    return SmoothRows{pixels + y * image.RowBytes(), image.RowBytes(), width};
  };
  PageBuffer<std::uint8_t> scratch;
  const bool banded = isa == Isa::kAvx2 && scratch.Allocate(SmoothScratchBytes(width));
  int y = 1;
  while (y < height - 1) {
    int done = 1;
    if (banded && y + kSmoothBand <= height - 1) {
      SmoothBandAvx2(rowsAt(y), scratch.Data());
      done = kSmoothBand;
    } else {
      SmoothRowPlain(rowsAt(y));
    }
    for (; done > 0; --done, ++y) {
      if (progress != nullptr) progress->ReportRow(y, height);
    }
  }
}

}  // namespace tarnwick
