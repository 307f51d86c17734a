#pragma once
#include "mesh.h"

namespace tarnwick::photo {

// Things that stand about a farm; each at the origin, on y = 0.
[[nodiscard]] Mesh MakeDrum();                 // a steel drum, 0.88 m tall
[[nodiscard]] Mesh MakeMilkCan();              // 0.63 m
[[nodiscard]] Mesh MakeBucket();               // 0.28 m
[[nodiscard]] Mesh MakeCartWheel();            // 1.1 m across, standing, its axle along z
[[nodiscard]] Mesh MakeLadder(float length);   // lies along y, rungs along x
[[nodiscard]] Mesh MakeLogPile(float length);  // along z, the ends towards +x
[[nodiscard]] Mesh MakeBoardPile();            // weathered boards on two sleepers, along x
[[nodiscard]] Mesh MakeSign();                 // in the plane z = 0, its centre at the origin
// Posts and rails from one point of the land to another.
[[nodiscard]] Mesh MakeFence(Vec3 from, Vec3 to);

}  // namespace tarnwick::photo
