#pragma once
#include <vector>

#include "base/thread_pool.h"
#include "vec3.h"

namespace tarnwick::photo {

// The exposure before it is developed: the means of each pixel's samples.
struct FramePixel {
  Vec3 direct;         // light that is final
  Vec3 tint;           // colour that the light from around meets
  Vec3 ambient;        // that light, noisy
  Vec3 normal;         // mean of unit vectors: short where edges cross the pixel
  float distance = 0;  // mean, metres
  float spread = 0;    // of the distances within the pixel, relative
};

struct Frame {
  int width = 0, height = 0;
  std::vector<FramePixel> pixels;

  Frame(int w, int h)
      : width(w), height(h), pixels(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {}
  [[nodiscard]] FramePixel& At(int x, int y) {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(x)];
  }
  [[nodiscard]] const FramePixel& At(int x, int y) const {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(x)];
  }
};

// The light of every pixel. The light from around is averaged over neighbours on
// the same surface, as far as pixels are free of edges; what the averaging would
// blur, leaves and grass, is kept as it came.
[[nodiscard]] std::vector<Vec3> SmoothedLight(const Frame& frame, ThreadPool& pool);

}  // namespace tarnwick::photo
