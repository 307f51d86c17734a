#pragma once
#include "mesh.h"

namespace tarnwick::photo {

// The barn stands on the rectangle x -kBarnWidth..0, z -kBarnLength..0; its
// gable with the doors looks along +z, its long side along +x.
inline constexpr float kBarnWidth = 5.2f;
inline constexpr float kBarnLength = 7.6f;
inline constexpr float kEaveHeight = 2.75f;
inline constexpr float kRidgeHeight = 4.55f;
inline constexpr float kDoorCentre = -2.6f;
inline constexpr float kDoorWidth = 2.5f;
inline constexpr float kDoorHeight = 2.3f;

// The windows of the long side: their middles and half sizes.
inline constexpr float kWindowZ[2] = {-2.35f, -5.25f};
inline constexpr float kWindowY = 1.55f;
inline constexpr float kWindowHalfWidth = 0.42f;
inline constexpr float kWindowHalfHeight = 0.52f;

// Underside of the roof's tin above x.
[[nodiscard]] float RoofHeight(float x);

void AddWalls(Mesh& mesh);
void AddDoors(Mesh& mesh);
void AddTrim(Mesh& mesh);     // corner boards, barge boards, rafters, windows
void AddFooting(Mesh& mesh);  // the course of field stones below the boards
void AddRoof(Mesh& mesh);

}  // namespace tarnwick::photo
