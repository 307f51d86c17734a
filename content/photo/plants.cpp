#include "materials.h"
#include "noise.h"

namespace tarnwick::photo {

void DescribePlant(const Scene::Point& p, float footprint, Surface& s) {
  const float a = p.seed;          // this leaf
  const float b = p.instanceSeed;  // this plant
  Vec3 colour;
  float pass = 0.75f;  // light let through, against what is thrown back
  switch (p.material) {
    case Material::kGrass:
      colour = Mix(Vec3{0.064f, 0.128f, 0.024f}, Vec3{0.150f, 0.210f, 0.046f}, a);
      colour = Mix(colour, Vec3{0.27f, 0.22f, 0.095f},
                   Saturate(1.1f * b - 0.25f + 0.5f * (p.v - 0.45f)) * (0.30f + 0.70f * a * a));
      colour = colour * Mix(0.45f, 1.0f, Smooth(0.0f, 0.5f, p.v));
      pass = 0.7f;
      break;
    case Material::kDryGrass:
      colour =
          Mix(Vec3{0.30f, 0.235f, 0.115f}, Vec3{0.42f, 0.345f, 0.20f}, a) * Mix(0.6f, 1.0f, p.v);
      break;
    case Material::kPetal:
      colour = a < 0.6f ? Vec3{0.74f, 0.73f, 0.68f}
                        : (a < 0.85f ? Vec3{0.72f, 0.50f, 0.05f} : Vec3{0.36f, 0.24f, 0.50f});
      break;
    case Material::kIvy:
      colour = Mix(Vec3{0.036f, 0.075f, 0.020f}, Vec3{0.085f, 0.135f, 0.035f}, a);
      if (a > 0.94f) colour = {0.26f, 0.12f, 0.03f};
      pass = 0.3f;
      break;
    default:
      colour = Mix(Vec3{0.056f, 0.112f, 0.020f}, Vec3{0.125f, 0.185f, 0.038f}, a);
      colour = Mix(colour, Vec3{0.165f, 0.165f, 0.038f}, 0.6f * b);
      if (a > 0.965f) colour = {0.25f, 0.17f, 0.04f};
      break;
  }
  if (footprint < 0.004f && p.material != Material::kGrass) {
    // The rib and its veins.
    const float rib = Smooth(0.12f, 0.02f, p.u < 0 ? -p.u : p.u);
    colour = colour * (1 + 0.35f * rib);
  }
  s.albedo = colour;
  s.through = colour * Vec3{1.15f, 1.25f, 0.55f} * pass;
  s.specular = Vec3{1, 1, 1} * (p.material == Material::kIvy ? 0.045f : 0.032f);
  s.roughness = p.material == Material::kIvy ? 0.38f : 0.52f;
}

}  // namespace tarnwick::photo
