#pragma once
#include <cstdint>

#include "camera.h"
#include "materials.h"
#include "scene.h"
#include "sky.h"

namespace tarnwick::photo {

// What one ray through the lens brought home. The light that came from all
// around is kept apart from the surface's colour, so that its noise can be
// smoothed without touching the colour's detail.
struct Sample {
  Vec3 direct;          // sun, sky, haze: final
  Vec3 mirrored;        // what the surface mirrors: final
  Vec3 tint;            // what `ambient` is to be multiplied with
  Vec3 ambient;         // light from all around, over pi
  bool around = false;  // `ambient` has been traced
  Vec3 normal;          // zero for the sky
  float distance = 0;
};

// Numbers 0..1 for the choices of one sample, spread evenly over the samples of
// a pixel and decorrelated between pixels.
class Choices {
 public:
  Choices(std::uint32_t pixel, int sample) : pixel_(pixel), sample_(static_cast<float>(sample)) {}
  // The two numbers of choice `index`.
  void Pair(std::uint32_t index, float& a, float& b) const;

 private:
  std::uint32_t pixel_;
  float sample_;
};

// Follows the ray: what it meets, the sun there, and one bounce of the light
// from around if `around`. `x`, `y` is the ray's place in the picture.
[[nodiscard]] Sample TraceSample(const Scene& scene, const Sky& sky, const Camera& camera, float x,
                                 float y, const Choices& choices, bool around);

}  // namespace tarnwick::photo
