#include "gallery_pictures.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/apply_run.h"

namespace tarnwick {
namespace {

// Of a 24-megapixel photograph this holds twenty textures: those that presets
// share, and the ones of the present look for its second picture.
constexpr std::size_t kCacheBytes = std::size_t{512} << 20;

// As PictureLike, but for all that is not colour.
Picture BarePicture(const Picture& from, int width, int height) {
  Picture bare;
  bare.image = IntoMemory(
      vips::VImage::black(width, height, vips::VImage::option()->set("bands", from.Planes()))
          .copy(vips::VImage::option()->set("interpretation", from.image.interpretation())));
  CopyAttachments(from.image, bare.image, VIPS_META_ICC_NAME);
  return bare;
}

}  // namespace

int ScaleFor(int width, int height, int wanted) {
  const int longer = std::max(width, height);
  const int below = std::max(longer / wanted, 1);
  // Of two neighbours the one whose result is nearer, the larger one in doubt.
  const int larger = longer / below - wanted;
  const int smaller = wanted - longer / (below + 1);
  return larger <= smaller ? below : below + 1;
}

GalleryPictures::GalleryPictures(const Picture& photo, std::filesystem::path textureFolder,
                                 ThreadPool& pool)
    : photo_(photo), textureFolder_(std::move(textureFolder)), pool_(pool), cache_(kCacheBytes) {}

Picture GalleryPictures::Render(const ComposedSettings& look, int scale, ViewMode view,
                                AlertList& alerts, const std::filesystem::path& photoPath) {
  PreviewWindow window = WholeWindow(photo_.Width(), photo_.Height(), scale);
  window.view = view;
  Picture shown = BarePicture(photo_, window.width, window.height);
  PictureJob job;
  job.width = photo_.Width();
  job.height = photo_.Height();
  job.planes = photo_.Planes();
  job.in = photo_.Pixels();
  job.inRowBytes = photo_.RowBytes();
  job.out = shown.Pixels();
  job.outRowBytes = shown.RowBytes();
  job.textureFolder = textureFolder_.string();
  job.alerts = &alerts;
  job.textureCache = &cache_;
  job.pool = &pool_;
  EffectSettings settings = look.settings;
  SettingsSession session = look.session;
  RequireDone(RenderPreview(settings, session, job, window), photoPath);
  return shown;
}

}  // namespace tarnwick
