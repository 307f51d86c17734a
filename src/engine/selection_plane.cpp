#include "engine/picture_io.h"

namespace tarnwick {

bool BuildSelectionPlane(const PictureJob& job, PageBuffer<std::uint8_t>& plane) {
  const auto width = static_cast<std::size_t>(job.width);
  if (!plane.Allocate(width * static_cast<std::size_t>(job.height))) return false;
  ForRows(job.pool, 0, job.height, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      const std::uint8_t* const in = job.in + y * job.inRowBytes;
      const std::uint8_t* const selection =
          job.selection == nullptr ? nullptr : job.selection + y * job.selectionRowBytes;
      std::uint8_t* const out = plane.Data() + static_cast<std::size_t>(y) * width;
      for (int x = 0; x < job.width; ++x) {
        int alpha = job.planes < 4 ? 255 : in[static_cast<std::ptrdiff_t>(x) * job.planes + 3];
        if (selection != nullptr) alpha = selection[x] * alpha / 255;
        out[x] = static_cast<std::uint8_t>(alpha);
      }
    }
  });
  return true;
}

}  // namespace tarnwick
