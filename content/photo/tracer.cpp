#include "tracer.h"

#include "noise.h"
#include "portable_math.h"

namespace tarnwick::photo {
namespace {

constexpr float kLift = 0.0015f;     // rays start this far off their surface, metres
constexpr float kShadowReach = 60;   // nothing that stands here throws a longer shadow
constexpr float kAmbientReach = 16;  // beyond, light from around comes from sky and land

enum Choice : std::uint32_t { kLens, kSunDisc, kAround, kFork, kMirror, kSunDisc2 };

Vec3 CosineAround(Vec3 normal, float a, float b) {
  Vec3 t;
  Vec3 s;
  Basis(normal, t, s);
  const float r = std::sqrt(a);
  return t * (r * Cos(2 * kPi * b)) + s * (r * Sin(2 * kPi * b)) +
         normal * std::sqrt(Max(1 - a, 0));
}

Vec3 SunRay(float a, float b) {
  Vec3 t;
  Vec3 s;
  const Sun& sun = TheSun();
  Basis(sun.direction, t, s);
  const float r = sun.radius * std::sqrt(a);
  return Normalized(sun.direction + t * (r * Cos(2 * kPi * b)) + s * (r * Sin(2 * kPi * b)));
}

// Microfacet highlight of light from `l`, times the cosine.
Vec3 Highlight(const Surface& s, Vec3 eye, Vec3 l) {
  const float nl = Dot(s.normal, l);
  const float nv = Max(Dot(s.normal, eye), 0.05f);
  if (nl <= 0) return {};
  const Vec3 h = Normalized(l + eye);
  const float nh = Max(Dot(s.normal, h), 0);
  const float a = Max(s.roughness * s.roughness, 0.02f);
  const float a2 = a * a;
  const float d = nh * nh * (a2 - 1) + 1;
  const float spread = a2 / (kPi * d * d);
  const float k = a * 0.5f;
  const float shade = 1 / ((nl * (1 - k) + k) * (nv * (1 - k) + k) * 4);
  const float m = 1 - Max(Dot(l, h), 0);
  const float m5 = m * m * m * m * m;
  return (s.specular + (Vec3{1, 1, 1} - s.specular) * m5) * (spread * shade * nl);
}

Vec3 Offset(Vec3 position, Vec3 flatNormal, Vec3 direction) {
  return position + flatNormal * (Dot(flatNormal, direction) < 0 ? -kLift : kLift);
}

// The sun's diffuse light on a surface, from either side.
Vec3 SunDiffuse(const Surface& s, Vec3 flatNormal, Vec3 eye, Vec3 l) {
  const Vec3 facing = Dot(flatNormal, eye) < 0 ? -flatNormal : flatNormal;
  const bool front = Dot(facing, l) > 0;
  const float nl = Dot(s.normal, l);
  if (front) return nl > 0 ? s.albedo * (nl / kPi) : Vec3{};
  return nl < 0 ? s.through * (-nl / kPi) : Vec3{};
}

// Light a bounced ray brings: the sky, or a surface in sun and sky.
Vec3 Incoming(const Scene& scene, const Sky& sky, Vec3 from, Vec3 direction, float reach,
              const Choices& choices) {
  const Ray ray{from, direction, reach};
  Hit hit;
  if (!scene.Nearest(ray, hit)) return sky.Dome(direction);
  const Scene::Point p = scene.At(ray, hit);
  const Surface s = DescribeRoughly(p, -direction);
  const Sun& sun = TheSun();
  // A guess of the light that reaches that place from all around.
  const Vec3 around =
      Mix(Vec3{0.11f, 0.115f, 0.09f}, Vec3{0.30f, 0.35f, 0.42f}, 0.5f + 0.5f * s.normal.y) * 0.8f;
  Vec3 light = (s.albedo + s.through * 0.6f) * around;
  float a = 0;
  float b = 0;
  choices.Pair(kSunDisc2, a, b);
  const Vec3 l = SunRay(a, b);
  const Vec3 sunlit = SunDiffuse(s, p.flatNormal, -direction, l);
  if (Luminance(sunlit) > 0 &&
      !scene.Blocked({Offset(p.position, p.flatNormal, l), l, kShadowReach}))
    light += sunlit * sun.irradiance;
  return Min(light, {2.5f, 2.5f, 2.5f});
}

}  // namespace

void Choices::Pair(std::uint32_t index, float& a, float& b) const {
  const std::uint32_t h = HashWords(pixel_, index);
  a = UnitFloat(h) + sample_ * 0.754877666f;
  b = UnitFloat(HashWord(h)) + sample_ * 0.569840291f;
  a -= std::floor(a);
  b -= std::floor(b);
}

Sample TraceSample(const Scene& scene, const Sky& sky, const Camera& camera, float x, float y,
                   const Choices& choices, bool around) {
  Sample sample;
  sample.around = around;
  float a = 0;
  float b = 0;
  choices.Pair(kLens, a, b);
  const Ray ray = camera.Through(x, y, a, b);
  Hit hit;
  if (!scene.Nearest(ray, hit)) {
    sample.direct = sky.Seen(x, y);
    sample.distance = 1e5f;
    return sample;
  }
  const Scene::Point p = scene.At(ray, hit);
  const Vec3 eye = -ray.direction;
  const Surface s = Describe(p, eye, camera.SampleAngle() * hit.distance);
  const Haze haze = HazeOver(hit.distance, ray.direction);
  const Sun& sun = TheSun();

  Vec3 direct;
  choices.Pair(kSunDisc, a, b);
  const Vec3 l = SunRay(a, b);
  const Vec3 lit =
      SunDiffuse(s, p.flatNormal, eye, l) +
      (Dot(p.flatNormal, eye) * Dot(p.flatNormal, l) > 0 ? Highlight(s, eye, l) : Vec3{});
  if (Luminance(lit) > 0 && !scene.Blocked({Offset(p.position, p.flatNormal, l), l, kShadowReach}))
    direct = lit * sun.irradiance;

  // One ray for the light around: mirrored, thrown back, or let through.
  const float facing = Max(Dot(s.normal, eye), 0);
  const float m = 1 - facing;
  const Vec3 fresnel =
      s.specular + (Vec3{1, 1, 1} - s.specular) * (m * m * m * m * m * (1 - 0.85f * s.roughness));
  // Dull surfaces mirror so wide a cone that it is as good as diffuse.
  const bool glossy = s.roughness < 0.5f;
  const float mirrorShare = glossy ? Luminance(fresnel) : 0.0f;
  const Vec3 sheen = glossy ? Vec3{} : fresnel * 0.6f;
  const float backShare = Luminance(s.albedo);
  const float throughShare = Luminance(s.through);
  const Vec3 facingNormal = Dot(p.flatNormal, eye) < 0 ? -p.flatNormal : p.flatNormal;
  if (mirrorShare > 0) {
    // Duller surfaces mirror a cone about as wide as they are dull.
    choices.Pair(kMirror, a, b);
    const float spread = s.roughness * s.roughness;
    const Vec3 n = Normalized(Mix(s.normal, CosineAround(s.normal, a, b), spread * 0.7f));
    Vec3 d = ray.direction - n * (2 * Dot(n, ray.direction));
    if (Dot(d, facingNormal) < 0) d = d - facingNormal * (2 * Dot(d, facingNormal));
    direct += fresnel * Incoming(scene, sky, Offset(p.position, p.flatNormal, d), Normalized(d),
                                 1e30f, choices);
  }
  // Every other sample goes without: the light from around is smooth.
  const float total = backShare + throughShare;
  if (around && total > 1e-5f) {
    float fork = 0;
    choices.Pair(kFork, fork, b);
    choices.Pair(kAround, a, b);
    const Vec3 d = CosineAround(fork * total < backShare ? s.normal : -s.normal, a, b);
    sample.ambient =
        Incoming(scene, sky, Offset(p.position, p.flatNormal, d), d, kAmbientReach, choices);
  }
  sample.tint = (s.albedo + s.through + sheen) * haze.left;
  sample.direct = direct * haze.left + haze.added;
  // The smooth normal: fine relief is no reason not to average over neighbours.
  sample.normal = Dot(p.normal, eye) < 0 ? -p.normal : p.normal;
  sample.distance = hit.distance;
  return sample;
}

}  // namespace tarnwick::photo
