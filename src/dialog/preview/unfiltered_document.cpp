#include "dialog/preview/unfiltered_document.h"

#include <algorithm>
#include <cstring>

#include "filter/host_colors.h"
#include "filter/host_rects.h"
#include "filter/picture_job.h"

namespace tarnwick {
namespace {

constexpr int kColors = 3;
constexpr std::uint8_t kOpaque = 255;

using Places = std::vector<std::ptrdiff_t>;

// Each place within a side of `size` samples.
Places Within(const Places& places, std::ptrdiff_t size) {
  Places inside = places;
  for (std::ptrdiff_t& place : inside) place = std::clamp<std::ptrdiff_t>(place, 0, size - 1);
  return inside;
}

void SampleCopy(const RasterImage& copy, bool hasAlpha, const Places& columns, const Places& rows,
                std::uint8_t* to) {
  const auto plane = [&](int i) {
    return copy.PeekInterior() +
           (i < copy.planeCount ? static_cast<std::size_t>(i) * copy.PlaneBytes() : 0);
  };
  const std::uint8_t* const planes[4] = {plane(0), plane(1), plane(2), plane(3)};
  for (const std::ptrdiff_t row : rows) {
    for (const std::ptrdiff_t column : columns) {
      const std::ptrdiff_t at = row * copy.RowBytes() + column;
      for (int i = 0; i < kColors; ++i) *to++ = planes[i][at];
      *to++ = hasAlpha ? planes[3][at] : kOpaque;
    }
  }
}

}  // namespace

bool ShowsDocumentCopy(const FilterGlobals& g) {
  // The copy's fourth plane is no black that could be trusted: transparency is kept
  // there. A document of these inks is seen as the host delivers it.
  return g.documentCopy != nullptr && g.documentCopy->PeekInterior() != nullptr && !g.render.isCmyk;
}

void UnfilteredDocument::Keep(const FilterGlobals& g) {
  extra_.Free();
  extraPlanes_ = 0;
  if (ShowsDocumentCopy(g) || *g.gResult != host::noErr) return;
  const PictureJob job = JobOf(*g.gFilterRecord, GetInRect(*g.gFilterRecord));
  const int planes = std::min(job.planes, g.render.isCmyk ? 5 : 4) - kColors;
  if (planes < 1 || job.in == nullptr || !IsRenderable(job)) return;
  const auto width = static_cast<std::size_t>(job.width);
  if (!extra_.Allocate(width * static_cast<std::size_t>(job.height) *
                       static_cast<std::size_t>(planes))) {
    return;
  }
  extraPlanes_ = planes;
  std::uint8_t* to = extra_.Data();
  for (int y = 0; y < job.height; ++y) {
    const std::uint8_t* from = job.in + y * job.inRowBytes + kColors;
    for (int x = 0; x < job.width; ++x, from += job.planes) to = std::copy_n(from, planes, to);
  }
}

std::vector<std::uint8_t> UnfilteredDocument::Sample(const FilterGlobals& g, const Places& columns,
                                                     const Places& rows) const {
  std::vector<std::uint8_t> pixels(columns.size() * rows.size() * 4);
  if (pixels.empty()) return pixels;
  if (ShowsDocumentCopy(g)) {
    const RasterImage& copy = *g.documentCopy;
    SampleCopy(copy, g.gFilterRecord->planes >= 4 && copy.planeCount >= 4,
               Within(columns, copy.Width()), Within(rows, copy.Height()), pixels.data());
    return pixels;
  }
  const std::ptrdiff_t width = g.documentPixelsWidth;
  const bool isCmyk = g.render.isCmyk;
  HostRowConverter converter(isCmyk ? g.gBasicSuite : nullptr);
  if (!g.documentPixels || (isCmyk && (!extra_ || !converter.IsThere()))) return {};
  const std::ptrdiff_t alphaPlane = isCmyk ? 1 : 0;
  const auto alphaAt = [&](std::ptrdiff_t at) {
    return alphaPlane < extraPlanes_ ? extra_.Data()[at * extraPlanes_ + alphaPlane] : kOpaque;
  };
  const Places xs = Within(columns, width);
  std::uint8_t* to = pixels.data();
  for (const std::ptrdiff_t y : Within(rows, g.documentPixelsHeight)) {
    std::uint8_t* const row = to;
    for (const std::ptrdiff_t x : xs) {
      const std::ptrdiff_t at = y * width + x;
      std::memcpy(to, g.documentPixels.Data() + at * 4, kColors);
      to[3] = isCmyk ? extra_.Data()[at * extraPlanes_] : alphaAt(at);
      to += 4;
    }
    if (!isCmyk) continue;
    if (!converter.CmykToRgb(row, static_cast<int>(xs.size()))) return {};
    std::uint8_t* pixel = row;
    for (const std::ptrdiff_t x : xs) {
      std::memmove(pixel, pixel + 1, kColors);
      pixel[3] = alphaAt(y * width + x);
      pixel += 4;
    }
  }
  return pixels;
}

}  // namespace tarnwick
