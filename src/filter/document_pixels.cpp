#include "filter/document_pixels.h"

#include <algorithm>
#include <cstring>

#include "engine/picture_io.h"
#include "filter/host_rects.h"
#include "filter/picture_job.h"
#include "imaging/nearest_places.h"

namespace tarnwick {
namespace {

constexpr int kPixelBytes = 4;

void FreePixels(FilterGlobals& g) {
  g.selectionPlane.Free();
  g.documentPixels.Free();
  g.selectionPlaneRowBytes = g.documentPixelsWidth = g.documentPixelsHeight = 0;
}

// The colours beside the plane that holds their alpha.
bool BuildDocumentPixels(FilterGlobals& g, const PictureJob& job) {
  if (!BuildSelectionPlane(job, g.selectionPlane)) return false;
  const auto count = g.selectionPlane.Size();
  if (!g.documentPixels.Allocate(count * kPixelBytes)) return false;
  g.documentPixelsWidth = g.selectionPlaneRowBytes = job.width;
  g.documentPixelsHeight = job.height;
  // A picture of one plane is grey: it serves all colours.
  const int next = job.planes >= 3 ? 1 : 0;
  std::uint8_t* to = g.documentPixels.Data();
  const std::uint8_t* alpha = g.selectionPlane.Data();
  for (int y = 0; y < job.height; ++y) {
    const std::uint8_t* from = job.in + y * job.inRowBytes;
    for (int x = 0; x < job.width; ++x, from += job.planes, to += kPixelBytes) {
      to[0] = from[0];
      to[1] = from[next];
      to[2] = from[2 * next];
      to[3] = *alpha++;
    }
  }
  return true;
}

// Where the samples of plane 0 to 3 lie; a plane that is missing is the first.
struct CopyPlanes {
  const std::uint8_t* planes[4];

  explicit CopyPlanes(const RasterImage& copy) : planes{} {
    for (std::size_t i = 0; i < 4; ++i) {
      const bool isThere = static_cast<int>(i) < copy.planeCount;
      planes[i] = copy.PeekInterior() + (isThere ? i * copy.PlaneBytes() : 0);
    }
  }
};

}  // namespace

void FetchDocumentAtZoom(FilterGlobals& g) {
  host::FilterRecord& record = *g.gFilterRecord;
  SetInRect(record, GetFilterRect(record));
  SetMaskRect(record, GetInRect(record));
  SetOutRect(record, GetInRect(record));
  record.inHiPlane = record.outHiPlane = static_cast<std::int16_t>(record.planes - 1);
  record.inputRate = record.maskRate = static_cast<host::Fixed>(g.render.viewScale * 65536.0F);
  *g.gResult =
      record.advanceState != nullptr ? record.advanceState() : host::errPlugInHostInsufficient;
  FreePixels(g);
  if (*g.gResult != host::noErr) return;
  const PictureJob job = JobOf(record, GetInRect(record));
  if (!IsRenderable(job) || job.in == nullptr) {
    *g.gResult = host::filterBadParameters;
    return;
  }
  if (!BuildDocumentPixels(g, job)) {
    FreePixels(g);
    *g.gResult = host::memFullErr;
  }
}

void CopyDocumentToPixels(FilterGlobals& g, bool toOutput) {
  const host::FilterRecord& record = *g.gFilterRecord;
  if (g.documentCopy == nullptr || g.documentCopy->PeekInterior() == nullptr) return;
  const RasterImage& copy = *g.documentCopy;
  const RenderState& state = g.render;
  std::int32_t width = std::min(state.renderWidth, copy.Width());
  std::int32_t height = std::min(state.renderHeight, copy.Height());
  std::uint8_t* to = g.render.sourcePixels.Data();
  std::ptrdiff_t rowBytes = state.renderRowBytes;
  std::ptrdiff_t pixelBytes = kPixelBytes;
  if (toOutput) {
    const PictureJob job = JobOf(record, GetOutRect(record));
    if (!IsRenderable(job)) return;
    to = job.out;
    rowBytes = job.outRowBytes;
    pixelBytes = job.planes;
    width = std::min(width, job.width);
    height = std::min(height, job.height);
  }
  if (to == nullptr) return;
  const auto columns = NearestPlaces(state.viewOriginX, width, state.viewScale, copy.Width());
  const auto rows = NearestPlaces(state.viewOriginY, height, state.viewScale, copy.Height());
  const CopyPlanes from(copy);
  const bool hasFourth = record.planes >= 4;
  const int colors = toOutput ? std::min<int>(3, record.planes) : 3;
  for (const std::ptrdiff_t row : rows) {
    std::uint8_t* pixel = to;
    for (const std::ptrdiff_t column : columns) {
      const std::ptrdiff_t at = row * copy.RowBytes() + column;
      for (int i = 0; i < colors; ++i) pixel[i] = from.planes[i][at];
      if (hasFourth) {
        pixel[3] = copy.planeCount >= 4 ? from.planes[3][at] : std::uint8_t{255};
      } else if (!toOutput) {
        pixel[3] = 255;
      }
      pixel += pixelBytes;
    }
    to += rowBytes;
  }
}

}  // namespace tarnwick
