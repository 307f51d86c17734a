#pragma once
#include <vector>

#include "base/thread_pool.h"
#include "camera.h"

namespace tarnwick::photo {

// The sun as a disc: towards it, and what it sheds on a surface that faces it.
struct Sun {
  Vec3 direction;
  Vec3 irradiance;
  float radius = 0;  // of the disc, as a tangent; larger than life for soft shadows
};
[[nodiscard]] const Sun& TheSun();

// The light of the clear sky from a direction, below the horizon too.
[[nodiscard]] Vec3 ClearSky(Vec3 direction);

// The clear sky with the cloud field before it; slow.
[[nodiscard]] Vec3 CloudySky(Vec3 direction, float jitter);

// The cloudy sky kept in two maps: one through the camera, fine, and one of the
// whole dome, coarse, for light and reflections.
class Sky {
 public:
  Sky(const Camera& camera, int width, int height, ThreadPool& pool);
  // Towards the picture position (x, y) of that camera.
  [[nodiscard]] Vec3 Seen(float x, float y) const;
  [[nodiscard]] Vec3 Dome(Vec3 direction) const;

 private:
  struct Map {
    int width = 0, height = 0;
    std::vector<Vec3> pixels;
    [[nodiscard]] Vec3 At(float x, float y) const;  // bilinear, pixel centres at .5
  };
  Map seen_, dome_;
  float seenScale_ = 1;
};

// What the air between adds to and leaves of the light from `distance` metres.
struct Haze {
  Vec3 left, added;
};
[[nodiscard]] Haze HazeOver(float distance, Vec3 direction);

}  // namespace tarnwick::photo
