#pragma once
#include "scene.h"

namespace tarnwick::photo {

// Builds all that the photograph shows, and finishes the scene. `detail` (0..1)
// thins out leaves and grass.
void BuildFarmyard(Scene& scene, float detail);

}  // namespace tarnwick::photo
