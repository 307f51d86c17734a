#pragma once
#include "scene.h"

namespace tarnwick::photo {

// How a point of a surface answers light.
struct Surface {
  Vec3 albedo;          // diffuse reflectance
  Vec3 through;         // diffuse transmittance, of leaves
  Vec3 specular;        // mirror reflectance head-on; coloured for bare metal
  float roughness = 1;  // 0 mirror, 1 dull
  Vec3 normal;          // unit, with the fine relief
};

// `footprint` is the width in metres that a sample covers there: relief finer
// than that is left out. The normal is on the side of `towardsEye`.
[[nodiscard]] Surface Describe(const Scene::Point& point, Vec3 towardsEye, float footprint);

// The plain colours only, for light that comes by way of the point.
[[nodiscard]] Surface DescribeRoughly(const Scene::Point& point, Vec3 towardsEye);

// The families of materials; each sets colours and bends surface.normal.
void DescribeBoard(const Scene::Point& point, float footprint, Surface& surface);
void DescribeMetal(const Scene::Point& point, float footprint, Surface& surface);
void DescribeEarth(const Scene::Point& point, float footprint, Surface& surface);
void DescribePlant(const Scene::Point& point, float footprint, Surface& surface);
void DescribeSign(const Scene::Point& point, float footprint, Surface& surface);

// Bends the normal by a relief height(u, v) in metres.
template <typename Height>
void Emboss(const Scene::Point& point, float footprint, Surface& surface, Height&& height) {
  const float perU = Length(point.alongU);
  const float perV = Length(point.alongV);
  if (!(perU > 0 && perV > 0)) return;
  const float step = Max(footprint, 0.0006f);
  const float here = height(point.u, point.v);
  const float slopeU = (height(point.u + step / perU, point.v) - here) / step;
  const float slopeV = (height(point.u, point.v + step / perV) - here) / step;
  surface.normal =
      Normalized(surface.normal - point.alongU * (slopeU / perU) - point.alongV * (slopeV / perV));
}

}  // namespace tarnwick::photo
