#include "materials.h"
#include "noise.h"
#include "portable_math.h"

namespace tarnwick::photo {

void DescribeSign(const Scene::Point& p, float footprint, Surface& s) {
  s.albedo = {0.03f, 0.06f, 0.2f};
  s.roughness = 0.2f + footprint;
}

}  // namespace tarnwick::photo
