#include "frame.h"

namespace tarnwick::photo {
namespace {

constexpr int kReach = 4;

Vec3 SmoothedAmbient(const Frame& frame, int x, int y) {
  const FramePixel& centre = frame.At(x, y);
  const float length = Length(centre.normal);
  if (length < 0.90f || centre.spread > 0.01f) return centre.ambient;
  const Vec3 normal = centre.normal * (1 / length);
  Vec3 sum = centre.ambient;
  float weights = 1;
  for (int dy = -kReach; dy <= kReach; ++dy) {
    for (int dx = -kReach; dx <= kReach; ++dx) {
      const int px = x + dx;
      const int py = y + dy;
      if ((dx == 0 && dy == 0) || px < 0 || py < 0 || px >= frame.width || py >= frame.height)
        continue;
      const FramePixel& other = frame.At(px, py);
      const float along = Dot(other.normal, normal);
      if (along < 0.8f || other.spread > 0.02f) continue;
      const float step = (other.distance - centre.distance) / centre.distance;
      if (step > 0.02f || step < -0.02f) continue;
      const float away = static_cast<float>(dx * dx + dy * dy) / (kReach * kReach * 1.6f);
      const float weight = Saturate(along * 5 - 4) * Max(1 - away, 0);
      sum += other.ambient * weight;
      weights += weight;
    }
  }
  return sum * (1 / weights);
}

}  // namespace

std::vector<Vec3> SmoothedLight(const Frame& frame, ThreadPool& pool) {
  std::vector<Vec3> light(frame.pixels.size());
  pool.ForRows(0, frame.height, 8, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      for (int x = 0; x < frame.width; ++x) {
        const FramePixel& pixel = frame.At(x, y);
        light[static_cast<std::size_t>(y) * static_cast<std::size_t>(frame.width) +
              static_cast<std::size_t>(x)] =
            pixel.direct + pixel.tint * SmoothedAmbient(frame, x, y);
      }
    }
  });
  return light;
}

}  // namespace tarnwick::photo
