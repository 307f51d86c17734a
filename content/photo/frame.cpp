#include "frame.h"

#include <utility>

namespace tarnwick::photo {
namespace {

constexpr float kKernel[3] = {6, 4, 1};  // a small bell over offsets 0, 1 and 2

// One round of averaging over 25 pixels, `step` apart.
Vec3 Averaged(const Frame& frame, const std::vector<Vec3>& ambient, int x, int y, int step) {
  const auto width = static_cast<std::size_t>(frame.width);
  const FramePixel& centre = frame.At(x, y);
  Vec3 sum;
  float weights = 0;
  for (int j = -2; j <= 2; ++j) {
    for (int i = -2; i <= 2; ++i) {
      const int px = x + i * step;
      const int py = y + j * step;
      if (px < 0 || py < 0 || px >= frame.width || py >= frame.height) continue;
      const FramePixel& other = frame.At(px, py);
      const float along = Dot(other.normal, centre.normal);
      if (along < 0.8f || other.spread > 0.02f) continue;
      const float away = (other.distance - centre.distance) / centre.distance;
      if (away > 0.015f || away < -0.015f) continue;
      const float weight =
          Saturate(along * 5 - 4) * kKernel[i < 0 ? -i : i] * kKernel[j < 0 ? -j : j];
      sum += ambient[static_cast<std::size_t>(py) * width + static_cast<std::size_t>(px)] * weight;
      weights += weight;
    }
  }
  return weights > 0 ? sum * (1 / weights)
                     : ambient[static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x)];
}

}  // namespace

std::vector<Vec3> SmoothedLight(const Frame& frame, ThreadPool& pool) {
  std::vector<Vec3> ambient(frame.pixels.size());
  for (std::size_t i = 0; i < ambient.size(); ++i) ambient[i] = frame.pixels[i].ambient;
  std::vector<Vec3> next(ambient.size());
  for (const int step : {1, 3, 5}) {
    pool.ForRows(0, frame.height, 8, [&](int first, int last) {
      for (int y = first; y < last; ++y) {
        for (int x = 0; x < frame.width; ++x) {
          const FramePixel& pixel = frame.At(x, y);
          const std::size_t i =
              static_cast<std::size_t>(y) * static_cast<std::size_t>(frame.width) +
              static_cast<std::size_t>(x);
          const bool calm = Dot(pixel.normal, pixel.normal) > 0.85f && pixel.spread < 0.01f;
          next[i] = calm ? Averaged(frame, ambient, x, y, step) : ambient[i];
        }
      }
    });
    std::swap(ambient, next);
  }
  for (std::size_t i = 0; i < ambient.size(); ++i)
    ambient[i] = frame.pixels[i].direct + frame.pixels[i].tint * ambient[i];
  return ambient;
}

}  // namespace tarnwick::photo
