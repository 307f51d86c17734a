#pragma once
#include <filesystem>

#include "base/thread_pool.h"
#include "engine/view_mode.h"
#include "picture.h"
#include "settings_recipe.h"
#include "texture_alert_list.h"
#include "textures/texture_cache.h"

namespace tarnwick {

// The scale, 1 or more, at which the longer of two sides comes nearest to
// `wanted` pixels.
[[nodiscard]] int ScaleFor(int width, int height, int wanted);

// Renders looks of one photograph, which is read once.
class GalleryPictures {
 public:
  // Nothing is owned. `pool` and `photo` outlive this; the photograph is not
  // changed.
  GalleryPictures(const Picture& photo, std::filesystem::path textureFolder, ThreadPool& pool);

  // What a preview of the whole photograph shows at this scale, sRGB or in the
  // photograph's own profile, with nothing else attached: pages are published,
  // and a photograph may tell where and by whom it was taken.
  //
  // Errors  CliError (input failed) naming `photoPath`; std::bad_alloc.
  [[nodiscard]] Picture Render(const ComposedSettings& look, int scale, ViewMode view,
                               AlertList& alerts, const std::filesystem::path& photoPath);

 private:
  const Picture& photo_;
  std::filesystem::path textureFolder_;
  ThreadPool& pool_;
  TextureCache cache_;
};

}  // namespace tarnwick
