#include "filter/picture_job.h"

namespace tarnwick {

PictureJob JobOf(const host::FilterRecord& record, const Rect& rect) {
  const bool is16Bit = record.depth == 16;
  PictureJob job;
  job.width = rect.Width();
  job.height = rect.Height();
  job.planes = record.planes;
  job.mode = static_cast<ImageMode>(record.imageMode);
  job.in = static_cast<const std::uint8_t*>(record.inData);
  job.out = static_cast<std::uint8_t*>(record.outData);
  job.inRowBytes = is16Bit ? record.inRowBytes / 2 : record.inRowBytes;
  job.outRowBytes = is16Bit ? record.outRowBytes / 2 : record.outRowBytes;
  if (record.haveMask != 0 && record.maskData != nullptr) {
    job.selection = static_cast<const std::uint8_t*>(record.maskData);
    job.selectionRowBytes = record.maskRowBytes;
  }
  return job;
}

bool IsRenderable(const PictureJob& job) {
  constexpr std::int64_t kLongestSide = 46340;
  const std::int64_t width = job.width;
  const std::int64_t height = job.height;
  const std::int64_t rowBytes = width * job.planes;
  const bool hasRows = job.inRowBytes >= rowBytes &&
                       (job.out == nullptr || job.outRowBytes >= rowBytes) &&
                       (job.selection == nullptr || job.selectionRowBytes >= width);
  const int fewestPlanes = job.mode == ImageMode::kCmyk ? 4 : 1;
  return hasRows && job.planes >= fewestPlanes && width >= 1 && height >= 1 &&
         width <= kLongestSide && height <= kLongestSide &&
         width * width + height * height <= INT32_MAX;
}

}  // namespace tarnwick
