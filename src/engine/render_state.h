#pragma once
#include <cstdint>
#include <string>

#include "base/cpu.h"
#include "base/page_buffer.h"
#include "base/row_progress.h"
#include "base/thread_pool.h"
#include "engine/view_mode.h"
#include "imaging/color_services.h"
#include "imaging/raster_image.h"
#include "textures/texture_alerts.h"

namespace tarnwick {

class TextureCache;

// What a run hands over beside the picture itself.
enum class LayerOutputMode : std::int32_t { kNormal = 0, kSurfaceAlone = 1, kSurfaceLeftOut = 2 };

// The values of one render.
//
// Pixels  are 4 bytes: red, green, blue, alpha (not premultiplied); rows follow
//         each other without padding, renderRowBytes apart.
// Origin  in rendered pixels. Rendered pixel (x, y) shows the document at
//         ((x + viewOriginX) * viewScale, (y + viewOriginY) * viewScale).
// Owns    its buffers; `selection`, `selectionPlane` and the services belong to
//         the caller.
struct RenderState {
  bool previewMode = false;
  float viewScale = 1.0F;  // document pixels for a rendered one; 1 in a final render
  std::int32_t viewOriginX = 0;
  std::int32_t viewOriginY = 0;
  std::int32_t renderWidth = 0;
  std::int32_t renderHeight = 0;
  std::int32_t renderRowBytes = 0;
  std::int32_t documentWidth = 0;
  std::int32_t documentHeight = 0;
  std::int32_t planes = 3;  // of the document
  bool isCmyk = false;
  ViewMode view = ViewMode::kComposite;

  PageBuffer<std::uint8_t> sourcePixels;  // the picture, unaltered
  PageBuffer<std::uint8_t> outputPixels;  // where the render lands
  // The surfaced picture; a buffer of its own in a preview only. See
  // SurfaceResult().
  PageBuffer<std::uint8_t> surfaceResult;
  PageBuffer<std::uint8_t> surfaceSave;  // pure surface; with keepSurfaceSave only

  // The host's selection at render size.
  const std::uint8_t* selection = nullptr;
  std::ptrdiff_t selectionRowBytes = 0;
  bool hasSelection = false;
  // Alpha times selection at document size, documentWidth samples a row; null
  // when the document has neither.
  const std::uint8_t* selectionPlane = nullptr;

  LayerOutputMode layerOutputMode = LayerOutputMode::kNormal;
  bool deferWash = false;  // the wash waits for a mask pass; its masks are still built
  bool keepSurfaceSave = false;
  bool surfaceEntire = false;
  bool surfaceStale = true;

  bool showTextureAlerts = true;
  std::string textureFolder;
  TextureAlerts* alerts = nullptr;         // may be null
  TextureCache* textureCache = nullptr;    // may be null: read anew each time
  ColorServices* colorServices = nullptr;  // may be null
  Progress progress;
  ThreadPool* pool = nullptr;  // may be null
  Isa isa = BestIsa();

  // The document's own transparency: the plane after the colours.
  [[nodiscard]] bool HasTransparency() const { return planes > (isCmyk ? 4 : 3); }
  [[nodiscard]] std::size_t PixelCount() const {
    return static_cast<std::size_t>(renderWidth) * static_cast<std::size_t>(renderHeight);
  }
  // In a final render the surface writes straight into the output.
  [[nodiscard]] std::uint8_t* SurfaceResult() {
    return previewMode ? surfaceResult.Data() : outputPixels.Data();
  }
};

}  // namespace tarnwick
