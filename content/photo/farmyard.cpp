#include "farmyard.h"

#include "barn.h"
#include "planting.h"
#include "terrain.h"

namespace tarnwick::photo {

void BuildFarmyard(Scene& scene, float detail) {
  scene.AddInstance(scene.AddMesh(TerrainMesh()), {}, 0.5f);
  Mesh barn;
  AddWalls(barn);
  AddDoors(barn);
  AddTrim(barn);
  AddFooting(barn);
  AddRoof(barn);
  scene.AddInstance(scene.AddMesh(std::move(barn)), {}, 0.5f);
  PlantMeadow(scene, detail);
  PlantTrees(scene, detail);
  scene.Finish();
}

}  // namespace tarnwick::photo
