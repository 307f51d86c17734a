// For the filter that is linked into this program.
#include "filter/document_layers.h"
#include "filter/document_pixels.h"
#include "filter/document_queries.h"
#include "filter/host_rects.h"
#include "filter/module_handle.h"
#include "filter/picture_job.h"
#include "host/document_view.h"

namespace tarnwick::testhost {
namespace {

PlanarPicture PictureOf(const ImagePtr& image) {
  if (image == nullptr || image->PeekInterior() == nullptr) return {};
  PlanarPicture picture{image->Width(), image->Height(), image->planeCount, {}};
  picture.samples.assign(
      image->PeekInterior(),
      image->PeekInterior() + static_cast<std::size_t>(picture.planes) * image->PlaneBytes());
  return picture;
}

PlanarPicture PictureOf(const std::uint8_t* pixels, int width, int height, int planes,
                        std::ptrdiff_t rowBytes) {
  PlanarPicture picture{width, height, planes, {}};
  for (int plane = 0; plane < planes; ++plane) {
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        picture.samples.push_back(pixels[y * rowBytes + x * planes + plane]);
      }
    }
  }
  return picture;
}

void Fetch(FilterGlobals& g, DocumentView& view) {
  host::FilterRecord& record = *g.gFilterRecord;
  // A window of a reduced picture reaches beyond it.
  record.inputPadding = record.outputPadding = record.maskPadding = 255;
  FetchDocumentAtZoom(g);
  view.fetchError = *g.gResult;
  const int width = g.documentPixelsWidth;
  const int height = g.documentPixelsHeight;
  if (g.selectionPlane.Data() != nullptr) {
    view.selectionPlane = PictureOf(g.selectionPlane.Data(), width, height, 1, width);
    view.documentPixels = PictureOf(g.documentPixels.Data(), width, height, 4, 4 * width);
  }
}

void Sample(FilterGlobals& g, DocumentView& view) {
  if (view.toOutput) {
    CopyDocumentToPixels(g, true);
    const PictureJob job = JobOf(*g.gFilterRecord, GetOutRect(*g.gFilterRecord));
    view.sampled = PictureOf(job.out, view.width, view.height, job.planes, job.outRowBytes);
    return;
  }
  if (!g.render.sourcePixels.Allocate(g.render.PixelCount() * 4)) return;
  CopyDocumentToPixels(g, false);
  view.sampled =
      PictureOf(g.render.sourcePixels.Data(), view.width, view.height, 4, g.render.renderRowBytes);
}

}  // namespace

void LookAtDocument(FilterGlobals& g, DocumentView& view) {
  view.knowsModule = GetModuleHandleFor(g, g.gFilterRecord->plugInRef) != nullptr &&
                     GetModuleHandleFor(g, nullptr) != nullptr;
  view.hasRead = ReadDocumentLayers(g, DepthChannel(*g.gFilterRecord));
  view.error = *g.gResult;
  view.documentCopy = PictureOf(g.documentCopy);
  view.layersBelow = PictureOf(g.layersBelow);
  g.render.viewScale = view.scale;
  g.render.viewOriginX = view.x;
  g.render.viewOriginY = view.y;
  g.render.renderWidth = view.width;
  g.render.renderHeight = view.height;
  g.render.renderRowBytes = view.width * 4;
  Fetch(g, view);
  if (g.documentCopy != nullptr) Sample(g, view);
  g.render = RenderState{};
  g.selectionPlane.Free();
  g.documentPixels.Free();
  FreeDocumentLayers(g);
}

}  // namespace tarnwick::testhost
