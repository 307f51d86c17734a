#include "materials.h"

#include "noise.h"

namespace tarnwick::photo {
namespace {

Vec3 Towards(Vec3 normal, Vec3 eye) {
  return Dot(normal, eye) < 0 ? -normal : normal;
}

}  // namespace

Surface Describe(const Scene::Point& point, Vec3 towardsEye, float footprint) {
  Surface surface;
  surface.normal = Towards(point.normal, towardsEye);
  surface.specular = {0.03f, 0.03f, 0.03f};
  switch (point.material) {
    case Material::kBoardRed:
    case Material::kBoardGreen:
    case Material::kBoardWhite:
    case Material::kBareWood:
    case Material::kLogEnd:
    case Material::kBark:
      DescribeBoard(point, footprint, surface);
      break;
    case Material::kRoofTin:
    case Material::kDrumPaint:
    case Material::kZinc:
    case Material::kIron:
      DescribeMetal(point, footprint, surface);
      break;
    case Material::kStone:
    case Material::kGround:
      DescribeEarth(point, footprint, surface);
      break;
    case Material::kLeaf:
    case Material::kIvy:
    case Material::kGrass:
    case Material::kDryGrass:
    case Material::kPetal:
      DescribePlant(point, footprint, surface);
      break;
    case Material::kEnamel:
      DescribeSign(point, footprint, surface);
      break;
    case Material::kGlass:
      surface.albedo = {0.008f, 0.009f, 0.008f};
      surface.specular = {0.05f, 0.05f, 0.05f};
      surface.roughness = 0.02f;
      // Old panes are never flat.
      surface.normal = Normalized(surface.normal +
                                  Vec3{0, Noise2(point.u * 4 + point.seed * 31, point.v * 5),
                                       Noise2(point.u * 5, point.v * 4 + point.seed * 57)} *
                                      0.012f +
                                  Vec3{0, point.seed - 0.5f, 0.6f * point.seed - 0.3f} * 0.05f);
      break;
    case Material::kDark:
      surface.albedo = {0.012f, 0.010f, 0.008f};
      break;
  }
  // Fine relief must not turn a surface away from the eye altogether.
  const float facing = Dot(surface.normal, towardsEye);
  if (facing < 0.02f) surface.normal = Normalized(surface.normal + towardsEye * (0.02f - facing));
  return surface;
}

Surface DescribeRoughly(const Scene::Point& point, Vec3 towardsEye) {
  Surface surface;
  surface.normal = Towards(point.normal, towardsEye);
  const auto colour = [&](float r, float g, float b) { surface.albedo = {r, g, b}; };
  switch (point.material) {
    case Material::kBoardRed:
      colour(0.26f, 0.12f, 0.09f);
      break;
    case Material::kBoardGreen:
      colour(0.20f, 0.30f, 0.28f);
      break;
    case Material::kBoardWhite:
      colour(0.55f, 0.52f, 0.46f);
      break;
    case Material::kBareWood:
    case Material::kLogEnd:
      colour(0.30f, 0.26f, 0.21f);
      break;
    case Material::kBark:
      colour(0.16f, 0.13f, 0.10f);
      break;
    case Material::kRoofTin:
      colour(0.26f, 0.15f, 0.10f);
      break;
    case Material::kDrumPaint:
      colour(0.12f, 0.18f, 0.24f);
      break;
    case Material::kZinc:
      colour(0.40f, 0.40f, 0.40f);
      break;
    case Material::kIron:
      colour(0.08f, 0.06f, 0.05f);
      break;
    case Material::kStone:
      colour(0.32f, 0.30f, 0.27f);
      break;
    case Material::kGround:
      colour(0.20f, 0.19f, 0.10f);
      break;
    case Material::kPetal:
      colour(0.7f, 0.7f, 0.6f);
      break;
    case Material::kEnamel:
      colour(0.3f, 0.3f, 0.3f);
      break;
    case Material::kGlass:
      colour(0.05f, 0.05f, 0.05f);
      break;
    case Material::kDark:
      colour(0.012f, 0.010f, 0.008f);
      break;
    case Material::kLeaf:
    case Material::kIvy:
    case Material::kGrass:
    case Material::kDryGrass:
      DescribePlant(point, 1, surface);
      break;
  }
  return surface;
}

}  // namespace tarnwick::photo
