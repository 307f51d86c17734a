#include "noise.h"
#include "portable_math.h"
#include "sky.h"

namespace tarnwick::photo {
namespace {

// Fair-weather cumulus in a layer of constant height over a round earth; the
// unit is the kilometre.
constexpr float kBase = 1.20f;
constexpr float kTop = 2.9f;
constexpr float kEarthRadius = 6370;
constexpr float kFarthest = 42;
constexpr Vec3 kDrift{3.7f, 0, 8.3f};  // where in the endless field we are

float HeightOver(Vec3 p) {
  return p.y + (p.x * p.x + p.z * p.z) / (2 * kEarthRadius);
}

// Bulges with sharp creases between them, as boiling vapour has; about -0.6..1.
float Billow(Vec3 p, int octaves) {
  float sum = 0;
  float weight = 0.5f;
  for (int i = 0; i < octaves; ++i) {
    const float n = Noise3(p);
    sum += weight * (2.2f * (n < 0 ? -n : n) - 0.55f);
    weight *= 0.52f;
    p = {1.7f * p.x + 1.3f * p.z + 3.1f, 2.15f * p.y + 11.7f, 1.7f * p.z - 1.3f * p.x + 7.9f};
  }
  return sum;
}

// The mass of the clouds without their detail; below kEmpty nothing can be there.
constexpr float kEmpty = -0.42f;
float Mass(Vec3 q, float h) {
  const float field = Fbm2(q.x * 0.21f, q.z * 0.21f, 3) + 0.35f * Noise2(q.x * 0.75f, q.z * 0.75f);
  // Where clouds are, and how high each one stands.
  const float crown = Clamp(0.22f + 1.35f * field, 0.08f, 1);
  return field * 1.25f - 0.05f - 0.80f * Smooth(crown * 0.30f, crown, h) -
         0.6f * Smooth(0.07f, 0.0f, h);
}

// Water in the air, 0 and more; `octaves` of detail.
float Density(Vec3 p, int octaves) {
  const float h = (HeightOver(p) - kBase) / (kTop - kBase);
  if (h <= 0 || h >= 1) return 0;
  const Vec3 q = p + kDrift;
  const float mass = Mass(q, h);
  if (mass < kEmpty) return 0;
  return Saturate((mass + 0.70f * Smooth(-0.30f, 0.06f, mass) * Billow(q * 1.25f, octaves)) * 4.5f);
}

// The layer's crossing along a direction from the eye, in kilometres.
bool Crossing(Vec3 d, float& from, float& to) {
  if (d.y < 0.004f) return false;
  const float flat = (d.x * d.x + d.z * d.z) / (2 * kEarthRadius);
  // y d + flat d^2 = height
  const auto reach = [&](float height) {
    return (-d.y + std::sqrt(d.y * d.y + 4 * flat * height)) / (2 * flat + 1e-9f);
  };
  from = reach(kBase);
  to = reach(kTop);
  return from < kFarthest;
}

}  // namespace

Vec3 CloudySky(Vec3 direction, float jitter) {
  const Vec3 clear = ClearSky(direction);
  float from = 0;
  float to = 0;
  Vec3 sky = clear;
  if (direction.y > 0.02f) {
    // Thin ice cloud, combed by the wind, far above.
    const float k = 8 / (direction.y + 0.12f);
    const float x = direction.x * k;
    const float z = direction.z * k;
    const float bend = Fbm2(x * 0.09f, z * 0.09f, 2);
    const float comb = Fbm2(x * 0.13f + bend * 0.7f, z * 0.62f - x * 0.25f + bend * 0.9f, 6);
    const float veil =
        Smooth(-0.05f, 0.75f, comb + 0.35f * bend) * Smooth(0.02f, 0.2f, direction.y);
    sky = Mix(sky, Vec3{0.92f, 0.88f, 0.82f}, 0.42f * veil);
  }
  if (!Crossing(direction, from, to)) return sky;
  to = Min(to, kFarthest);

  const Sun& sun = TheSun();
  const float toSun = Dot(direction, sun.direction);
  const float g = 0.45f;
  const float phase = 0.65f + 0.35f * (1 - g * g) / Pow(1 + g * g - 2 * g * toSun, 1.5f);
  const Vec3 sunlight = Vec3{1.0f, 0.84f, 0.63f} * (1.46f * phase);
  float left = 1;
  Vec3 light;
  float meanDistance = 0;
  float t = from;
  for (float stride = 0.03f; t < to && left > 0.01f; t += stride) {
    stride = 0.018f + 0.0028f * t;
    const Vec3 p = direction * (t + stride * jitter);
    const float density = Density(p, 6);
    if (density <= 0) {
      stride *= 1.8f;
      continue;
    }
    const float step = stride;
    // Depth of cloud towards the sun, in growing strides.
    float depth = 0;
    float leap = 0.04f;
    float way = 0.03f;
    for (int k = 0; k < 5; ++k) {
      depth += Density(p + sun.direction * way, k < 2 ? 4 : 2) * leap;
      way += leap;
      leap *= 1.8f;
    }
    depth *= 15;
    // Light scattered many times comes through deeper than Beer's law lets it.
    const float direct =
        0.60f * Exp(-depth) + 0.28f * Exp(-0.30f * depth) + 0.12f * Exp(-0.08f * depth);
    const float h = Saturate((HeightOver(p) - kBase) / (kTop - kBase));
    const Vec3 ambient = Mix(Vec3{0.25f, 0.285f, 0.34f}, Vec3{0.52f, 0.60f, 0.72f}, h);
    const float through = Exp(-density * step * 26);
    const float weight = left * (1 - through);
    light += (sunlight * direct + ambient) * weight;
    meanDistance += t * weight;
    left *= through;
  }
  const float cover = 1 - left;
  if (cover <= 0.001f) return sky;
  meanDistance = meanDistance / cover;
  // Far clouds drown in the haze.
  const float clearAir = Exp(-meanDistance / 30);
  return sky * left + Mix(clear * cover, light, clearAir);
}

}  // namespace tarnwick::photo
