#include "farmyard.h"

#include "barn.h"
#include "planting.h"
#include "terrain.h"
#include "yard_things.h"

namespace tarnwick::photo {
namespace {

void FurnishYard(Scene& scene) {
  const auto ground = [](float x, float z, float turn, float tilt = 0) {
    return Placement{{x, TerrainHeight(x, z) - 0.006f, z}, turn, 1, tilt};
  };
  const int drum = scene.AddMesh(MakeDrum());
  scene.AddInstance(drum, ground(0.52f, -0.35f, 0.9f), 0.2f);
  const int can = scene.AddMesh(MakeMilkCan());
  scene.AddInstance(can, ground(-0.95f, 0.42f, 0.4f), 0.3f);
  scene.AddInstance(can, ground(-0.52f, 0.36f, 1.9f), 0.8f);
  scene.AddInstance(scene.AddMesh(MakeBucket()), ground(-1.02f, 0.92f, 2.2f), 0.5f);
  scene.AddInstance(scene.AddMesh(MakeCartWheel()), ground(-4.50f, 0.33f, 0.05f, -0.24f), 0.5f);
  scene.AddInstance(scene.AddMesh(MakeLadder(3.7f)), ground(1.02f, -4.15f, 1.5708f, -0.225f), 0.5f);
  scene.AddInstance(scene.AddMesh(MakeLogPile(2.5f)), ground(0.32f, -3.65f, 0), 0.5f);
  scene.AddInstance(scene.AddMesh(MakeBoardPile()), ground(2.75f, -2.3f, 1.15f), 0.5f);
  scene.AddInstance(scene.AddMesh(MakeSign()), {{-0.66f, 1.86f, 0.019f}, 0, 1, 0}, 0.5f);
  scene.AddInstance(scene.AddMesh(MakeFence({0.45f, 0, -7.5f}, {13, 0, -5.2f})), {}, 0.5f);
}

}  // namespace

void BuildFarmyard(Scene& scene, float detail) {
  scene.AddInstance(scene.AddMesh(TerrainMesh()), {}, 0.5f);
  Mesh barn;
  AddWalls(barn);
  AddDoors(barn);
  AddTrim(barn);
  AddFooting(barn);
  AddRoof(barn);
  scene.AddInstance(scene.AddMesh(std::move(barn)), {}, 0.5f);
  FurnishYard(scene);
  PlantMeadow(scene, detail);
  PlantTrees(scene, detail);
  scene.Finish();
}

}  // namespace tarnwick::photo
