#include "materials.h"
#include "noise.h"
#include "terrain.h"

namespace tarnwick::photo {
namespace {

void DescribeGround(const Scene::Point& p, float footprint, Surface& s) {
  const float x = p.position.x;
  const float z = p.position.z;
  const float broad = Fbm2(x * 0.35f, z * 0.35f, 4);
  const float fine = Fbm2(x * 9, z * 9, 3);
  Vec3 soil = Mix(Vec3{0.165f, 0.120f, 0.078f}, Vec3{0.300f, 0.235f, 0.165f},
                  Saturate(0.5f + 0.7f * broad + 0.35f * fine));
  const float far = Smooth(22, 60, Length(p.position - Vec3{5, 0, 9}));
  if (far < 1) {
    const float grit = Fbm2(x * 70, z * 70, 2);
    soil = soil * (1 + 0.35f * grit);
    // Single pebbles, paler than the soil.
    const Cell pebble = Cells2(x * 22, z * 22);
    const float lot = UnitFloat(pebble.id);
    if (lot > 0.72f)
      soil = Mix(soil, Vec3{0.30f, 0.28f, 0.25f} * (0.6f + 0.6f * UnitFloat(HashWord(pebble.id))),
                 Smooth(0.30f, 0.22f, pebble.nearest));
  }
  const float bare = TrackWear(x, z);
  // Thatch and moss between the blades of the meadow.
  const Vec3 thatch =
      Mix(Vec3{0.058f, 0.070f, 0.022f}, Vec3{0.135f, 0.125f, 0.055f}, Saturate(0.5f + 0.8f * fine));
  Vec3 near = Mix(thatch, soil, bare);
  // Beyond the grown blades the meadow is a colour: fields in different crops.
  const Cell field = Cells2(x * 0.0042f + 0.3f, z * 0.0062f);
  const float lot = UnitFloat(field.id);
  Vec3 crop = lot < 0.4f
                  ? Vec3{0.105f, 0.150f, 0.042f}
                  : (lot < 0.7f ? Vec3{0.24f, 0.205f, 0.085f} : Vec3{0.135f, 0.165f, 0.055f});
  crop = crop * (1 + 0.35f * Fbm2(x * 0.06f, z * 0.06f, 4) + 0.2f * Fbm2(x * 0.9f, z * 0.9f, 2));
  s.albedo = Mix(near, crop, far);
  s.specular = {0.012f, 0.012f, 0.012f};
  if (footprint > 0.03f) return;
  Emboss(p, footprint, s, [&](float u, float v) {
    const Cell pebble = Cells2(u * 22, v * 22);
    const float stone =
        UnitFloat(pebble.id) > 0.72f ? 0.010f * Smooth(0.32f, 0.05f, pebble.nearest) : 0.0f;
    return 0.02f * Fbm2(u * 5, v * 5, 4) + 0.004f * Noise2(u * 60, v * 60) + stone * bare;
  });
}

void DescribeStone(const Scene::Point& p, float footprint, Surface& s) {
  const Vec3 q = p.position * 7 + Vec3{p.seed * 50, 0, 0};
  const float broad = Fbm3(q, 4);
  const float fine = Fbm3(q * 9, 3);
  const Vec3 tint = p.seed < 0.35f
                        ? Vec3{0.30f, 0.255f, 0.205f}
                        : (p.seed < 0.7f ? Vec3{0.255f, 0.255f, 0.25f} : Vec3{0.33f, 0.30f, 0.26f});
  s.albedo = tint * (0.95f + 0.5f * broad + 0.4f * fine);
  // Lichen in round patches, moss where it is low.
  const float lichen = Smooth(0.22f, 0.34f, Fbm3(q * 1.3f + Vec3{9, 4, 2}, 4) + 0.12f * fine);
  s.albedo = Mix(s.albedo, Vec3{0.42f, 0.41f, 0.31f}, 0.6f * lichen);
  s.albedo = Mix(s.albedo, Vec3{0.085f, 0.095f, 0.035f},
                 0.75f * Smooth(0.25f, -0.05f, p.position.y + 0.3f * broad));
  s.specular = {0.02f, 0.02f, 0.02f};
  Emboss(p, footprint, s, [&](float u, float v) { return 0.006f * Fbm2(u * 18, v * 18, 4); });
}

}  // namespace

void DescribeEarth(const Scene::Point& point, float footprint, Surface& surface) {
  if (point.material == Material::kStone) {
    DescribeStone(point, footprint, surface);
  } else {
    DescribeGround(point, footprint, surface);
  }
}

}  // namespace tarnwick::photo
