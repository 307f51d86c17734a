#pragma once
#include "mesh.h"

namespace tarnwick::photo {

// The land: a level yard around the barn, a track of bare soil to its doors,
// fields beyond and hills at the horizon.
[[nodiscard]] float TerrainHeight(float x, float z);

// 0 in the meadow, 1 where wheels and feet have left bare soil.
[[nodiscard]] float TrackWear(float x, float z);

// Fine where the camera is, coarse at the horizon.
[[nodiscard]] Mesh TerrainMesh();

}  // namespace tarnwick::photo
