#pragma once
#include "scene.h"

namespace tarnwick::photo {

// Grass, weeds and flowers where the camera can see them; none inside the barn
// and few on the track. `detail` (0..1) thins them out.
void PlantMeadow(Scene& scene, float detail);

// Trees behind and beside the barn, hedges between the fields, woods on the
// hills.
void PlantTrees(Scene& scene, float detail);

}  // namespace tarnwick::photo
