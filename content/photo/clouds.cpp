#include "noise.h"
#include "portable_math.h"
#include "sky.h"

namespace tarnwick::photo {
namespace {

// Fair-weather cumulus in a layer of constant height over a round earth; the
// unit is the kilometre.
constexpr float kBase = 1.25f;
constexpr float kTop = 2.35f;
constexpr float kEarthRadius = 6370;
constexpr float kFarthest = 42;
constexpr Vec3 kDrift{3.7f, 0, 8.3f};  // where in the endless field we are

float HeightOver(Vec3 p) { return p.y + (p.x * p.x + p.z * p.z) / (2 * kEarthRadius); }

// Water in the air, 0 and more; `octaves` of detail.
float Density(Vec3 p, int octaves) {
  const float h = (HeightOver(p) - kBase) / (kTop - kBase);
  if (h <= 0 || h >= 1) return 0;
  const Vec3 q = p + kDrift;
  // Where clouds are, and how high each one stands.
  const float field = Fbm2(q.x * 0.27f, q.z * 0.27f, 3);
  const float crown = Saturate(0.35f + 1.1f * field);
  const float shape = field * 1.15f - 0.02f - 0.75f * Smooth(crown * 0.35f, crown, h) - 0.5f * Smooth(0.1f, 0.0f, h);
  if (shape < -0.55f) return 0;
  const float billow = Fbm3(q * 1.55f, octaves);
  return Saturate((shape + 0.72f * billow) * 2.4f);
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
    const float bend = Fbm2(x * 0.13f, z * 0.13f, 3);
    const float comb = Fbm2(x * 0.16f + bend * 2.0f, z * 0.55f - x * 0.2f + bend * 1.6f, 6);
    const float veil = Smooth(-0.05f, 0.75f, comb + 0.35f * bend) * Smooth(0.02f, 0.2f, direction.y);
    sky = Mix(sky, Vec3{0.92f, 0.88f, 0.82f}, 0.42f * veil);
  }
  if (!Crossing(direction, from, to)) return sky;
  to = Min(to, kFarthest);

  const Sun& sun = TheSun();
  const float toSun = Dot(direction, sun.direction);
  const float g = 0.45f;
  const float phase = 0.65f + 0.35f * (1 - g * g) / Pow(1 + g * g - 2 * g * toSun, 1.5f);
  const Vec3 sunlight = Vec3{1.0f, 0.87f, 0.70f} * (1.22f * phase);
  constexpr int kSteps = 72;
  const float step = (to - from) / kSteps;
  float left = 1;
  Vec3 light;
  float meanDistance = 0;
  for (int i = 0; i < kSteps && left > 0.01f; ++i) {
    const float t = from + step * (static_cast<float>(i) + jitter);
    const Vec3 p = direction * t;
    const float density = Density(p, 5);
    if (density <= 0) continue;
    // Depth of cloud towards the sun, in growing strides.
    float depth = 0;
    float stride = 0.05f;
    float way = 0.03f;
    for (int k = 0; k < 5; ++k) {
      depth += Density(p + sun.direction * way, k < 2 ? 4 : 2) * stride;
      way += stride;
      stride *= 1.7f;
    }
    depth *= 22;
    // Light scattered many times comes through deeper than Beer's law lets it.
    const float direct = 0.60f * Exp(-depth) + 0.28f * Exp(-0.30f * depth) + 0.12f * Exp(-0.08f * depth);
    const float h = Saturate((HeightOver(p) - kBase) / (kTop - kBase));
    const Vec3 ambient = Mix(Vec3{0.25f, 0.285f, 0.34f}, Vec3{0.52f, 0.60f, 0.72f}, h);
    const float through = Exp(-density * step * 17);
    const float weight = left * (1 - through);
    light += (sunlight * direct + ambient) * weight;
    meanDistance += t * weight;
    left *= through;
  }
  const float cover = 1 - left;
  if (cover <= 0.001f) return sky;
  meanDistance = meanDistance / cover;
  // Far clouds drown in the haze.
  const float clearAir = Exp(-meanDistance / 26);
  return sky * left + Mix(clear * cover, light, clearAir);
}

}  // namespace tarnwick::photo
