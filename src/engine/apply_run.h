#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

#include "base/progress.h"
#include "base/thread_pool.h"
#include "engine/view_mode.h"
#include "settings/effect_settings.h"
#include "textures/texture_alerts.h"

namespace tarnwick {

class TextureCache;

// How the samples of a picture are to be read; the values are the host's.
enum class ImageMode : std::int16_t { kRgb = 3, kCmyk = 4, kRgb48 = 11, kCmyk64 = 13 };

// Converts one row of 4-byte pixels in place between RGB and CMYK. RGB pixels
// are 255 (ignored), red, green, blue; CMYK pixels cyan, magenta, yellow, black
// as the host stores them. `count` is at most 32767.
class RowColorConverter {
 public:
  virtual ~RowColorConverter() = default;
  virtual bool RgbToCmyk(std::uint8_t* pixels, int count) = 0;
  virtual bool CmykToRgb(std::uint8_t* pixels, int count) = 0;
};

// A picture to age. Nothing is owned; all of it must outlive the call.
//
// Samples    8-bit, `planes` a pixel, interleaved: red, green, blue (or cyan,
//            magenta, yellow, black), then alpha, not premultiplied, 255 opaque.
//            Further planes are left as `out` holds them.
// Size       1..kMaxPictureSide in each direction (base/checked_size.h).
// `out`      the same shape as `in`; it may be the same memory.
// Selection  one byte a pixel, 255 selected; null when everything is.
struct PictureJob {
  int width = 0;
  int height = 0;
  int planes = 3;
  ImageMode mode = ImageMode::kRgb;
  const std::uint8_t* in = nullptr;
  std::ptrdiff_t inRowBytes = 0;
  std::uint8_t* out = nullptr;
  std::ptrdiff_t outRowBytes = 0;
  const std::uint8_t* selection = nullptr;
  std::ptrdiff_t selectionRowBytes = 0;
  RowColorConverter* converter = nullptr;  // for CMYK only
  std::string textureFolder;               // without a separator at its end
  TextureAlerts* alerts = nullptr;         // may be null: silent
  TextureCache* textureCache = nullptr;    // may be null; for several runs on one picture
  ProgressSink* progress = nullptr;        // may be null
  ThreadPool* pool = nullptr;              // may be null: one thread
};

enum class ApplyOutcome {
  kDone,
  kUnsupportedMode,  // `mode` is none of the above; `out` untouched
  kBadPicture,       // a size or a pointer that cannot be; `out` untouched
  kNoConverter,      // CMYK without one (`out` untouched), or it failed at some row
  kOutOfMemory,      // not even the two working copies or a row; `out` untouched
};

// Ages the whole picture at full size.
//
// Settings  are read; the three group switches (WashUse, SurfaceUse,
//           BackgroundUse) are derived anew from the texture names, and a
//           linked second effect takes the first one's texture name.
// Errors    A texture that cannot be used alerts and counts as plain white. A
//           stage without memory is left out.
[[nodiscard]] ApplyOutcome ApplyToPicture(EffectSettings& settings, SettingsSession& session,
                                          const PictureJob& job);

// A part of the picture at a reduced scale, as a live preview shows it.
struct PreviewWindow {
  int scale = 1;              // document pixels for each shown pixel, >= 1
  int x = 0, y = 0;           // top left, in shown pixels, >= 0
  int width = 0, height = 0;  // in shown pixels, >= 1
  ViewMode view = ViewMode::kComposite;
};

// The window that shows the whole picture: width / scale by height / scale,
// truncated, at least 1 by 1.
[[nodiscard]] PreviewWindow WholeWindow(int pictureWidth, int pictureHeight, int scale);

// Renders a preview from layers made for this scale and window. `job.in` is the
// whole picture and `job.selection` has its size; `job.out` has the window's
// size with `job.planes` samples a pixel.
[[nodiscard]] ApplyOutcome RenderPreview(EffectSettings& settings, SettingsSession& session,
                                         const PictureJob& job, const PreviewWindow& window);

}  // namespace tarnwick
