#include "materials.h"
#include "noise.h"
#include "portable_math.h"

// Tin, zinc and iron, and the rust that eats them.
namespace tarnwick::photo {
namespace {

// From the first bloom (0) to deep scale (1).
Vec3 RustColour(float depth, float grain) {
  Vec3 c = Mix(Vec3{0.355f, 0.165f, 0.062f}, Vec3{0.225f, 0.088f, 0.038f}, Saturate(depth * 2));
  c = Mix(c, Vec3{0.095f, 0.045f, 0.028f}, Saturate(depth * 2 - 1));
  return c * (1 + 0.35f * grain);
}

// Rows of nails through every other crest, and the rust they have started.
void AddRoofNails(const Scene::Point& p, Surface& s) {
  constexpr float kEvery = 2 * 0.078f;
  constexpr float kRow = 0.61f;
  // The sheet's own coordinates: the builder has shifted u and v by the seed.
  const float u = p.u - p.seed * 17 - 0.25f * 0.078f;
  const float v = p.v - p.seed * 9 - 0.11f;
  const float du = u - kEvery * std::floor(u / kEvery + 0.5f);
  const float dv = v - kRow * std::floor(v / kRow + 0.2f);
  const float a = du < 0 ? -du : du;
  const float stain = Smooth(0.022f, 0.003f, a + 0.008f * Noise2(p.u * 30, p.v * 8)) *
                      Exp(-dv * 6) * (dv > 0 ? 0.75f : 0.0f);
  s.albedo = Mix(s.albedo, Vec3{0.20f, 0.095f, 0.045f}, stain);
  const float head = Smooth(0.011f, 0.008f, Length({du, dv, 0}));
  s.albedo = Mix(s.albedo, Vec3{0.07f, 0.045f, 0.035f}, head);
  s.specular = Mix(s.specular, Vec3{0.03f, 0.03f, 0.03f}, Max(stain, head));
}

void DescribeTin(const Scene::Point& p, float footprint, Surface& s) {
  const float shift = p.seed * 131;
  const float broad = Fbm2(p.u * 1.1f + shift, p.v * 0.7f + shift, 4);
  const float run = Fbm2(p.u * 13 + shift, p.v * 0.55f, 4);  // drawn down the slope by rain
  const float fine = Fbm2(p.u * 24, p.v * 20 + shift, 4);
  const float sheet = 0.55f * (p.seed - 0.5f);
  const float amount = 0.08f + sheet + 0.85f * broad + 0.55f * run + 0.28f * fine;
  const float rust = Smooth(-0.16f, 0.14f, amount);
  const float depth = Saturate(0.38f + 0.9f * amount * 0.7f + 0.45f * fine);
  // Spangles of the zinc, dulled to white.
  const Cell spangle = Cells2(p.u * 38, p.v * 38);
  const float tone = UnitFloat(spangle.id);
  Vec3 zinc = Vec3{0.32f, 0.335f, 0.345f} * (0.80f + 0.25f * tone + 0.25f * fine);
  const float stain = Smooth(0.0f, 0.5f, run + 0.3f * broad);
  zinc = Mix(zinc, Vec3{0.36f, 0.26f, 0.17f}, 0.55f * stain);
  s.albedo = Mix(zinc * 0.75f, RustColour(depth, fine), rust);
  s.specular = Mix(Vec3{0.24f, 0.245f, 0.25f}, Vec3{0.03f, 0.025f, 0.02f}, rust);
  s.roughness = Mix(0.42f + 0.1f * tone, 0.9f, rust);
  AddRoofNails(p, s);
  if (footprint > 0.02f) return;
  Emboss(p, footprint, s, [&](float u, float v) {
    return 0.0012f * Fbm2(u * 42, v * 34 + shift, 2) * (0.3f + rust);
  });
}

void DescribeDrum(const Scene::Point& p, float footprint, Surface& s) {
  const float u = p.u * 1.9f;  // metres around
  const float shift = p.seed * 77 + p.instanceSeed * 191;
  const auto hold = [&](float a, float b) {
    const float low = 0.5f * Smooth(0.25f, 0.0f, b) + 0.35f * Smooth(0.78f, 0.88f, b);
    return 0.30f - low + 0.85f * Fbm2(a * 2.4f + shift, b * 2.2f, 5) +
           0.22f * Fbm2(a * 30, b * 26 + shift, 2);
  };
  const float h = hold(u, p.v);
  const float painted = Smooth(0, 0.03f, h);
  const float fine = Fbm2(u * 30 + shift, p.v * 30, 4);
  const float run = Fbm2(u * 12 + shift, p.v * 0.8f, 4);
  const Vec3 coat =
      p.instanceSeed < 0.5f ? Vec3{0.045f, 0.105f, 0.185f} : Vec3{0.42f, 0.24f, 0.04f};
  Vec3 paint = Mix(coat, coat * 1.25f + Vec3{0.085f, 0.09f, 0.095f},
                   Saturate(0.45f + 0.8f * Fbm2(u * 1.5f, p.v * 1.9f + shift, 4)));
  paint = Mix(paint, Vec3{0.26f, 0.125f, 0.055f},
              0.65f * Smooth(0.05f, 0.6f, run + 0.25f * Smooth(0.25f, 0.0f, h)));
  s.albedo =
      Mix(RustColour(Saturate(0.30f - h * 1.6f + 0.75f * fine), fine + 0.4f * run), paint, painted);
  s.specular = Vec3{1, 1, 1} * Mix(0.025f, 0.045f, painted);
  s.roughness = Mix(0.9f, 0.30f + 0.18f * fine, painted);
  Emboss(p, footprint, s, [&](float a, float b) {
    const float c = hold(a * 1.9f, b);
    return 0.0008f * Smooth(0, 0.05f, c) +
           0.0012f * Fbm2(a * 1.9f * 40, b * 40, 2) * Smooth(0.05f, -0.05f, c) +
           0.004f * Fbm2(a * 9 + shift, b * 4, 2);
  });
}

void DescribeZinc(const Scene::Point& p, float footprint, Surface& s) {
  const float u = p.u * 1.1f;
  const float shift = p.seed * 51 + p.instanceSeed * 83;
  const float broad = Fbm2(u * 4 + shift, p.v * 4, 4);
  const float fine = Fbm2(u * 40, p.v * 40 + shift, 3);
  const float rust = Smooth(0.28f, 0.5f, broad + 0.4f * fine + 0.5f * Smooth(0.12f, 0.0f, p.v));
  s.albedo = Mix(Vec3{0.19f, 0.19f, 0.185f} * (1 + 0.4f * broad), RustColour(0.4f, fine), rust);
  s.specular =
      Mix(Vec3{0.40f, 0.395f, 0.38f} * (1 + 0.25f * fine), Vec3{0.03f, 0.03f, 0.03f}, rust);
  s.roughness = Mix(0.34f + 0.12f * broad, 0.9f, rust);
  Emboss(p, footprint, s,
         [&](float a, float b) { return 0.0022f * Fbm2(a * 9 + shift, b * 8, 3); });
}

void DescribeIron(const Scene::Point& p, float footprint, Surface& s) {
  const float fine = Fbm3(p.position * 45, 3);
  const float broad = Fbm3(p.position * 9, 3);
  s.albedo = Mix(Vec3{0.045f, 0.038f, 0.034f}, Vec3{0.155f, 0.072f, 0.036f},
                 Smooth(-0.3f, 0.4f, broad + 0.5f * fine));
  s.specular = {0.05f, 0.045f, 0.04f};
  s.roughness = 0.55f + 0.2f * fine;
  Emboss(p, footprint, s, [&](float u, float v) { return 0.0008f * Fbm2(u * 90, v * 90, 2); });
}

}  // namespace

void DescribeMetal(const Scene::Point& point, float footprint, Surface& surface) {
  switch (point.material) {
    case Material::kRoofTin:
      DescribeTin(point, footprint, surface);
      break;
    case Material::kDrumPaint:
      DescribeDrum(point, footprint, surface);
      break;
    case Material::kZinc:
      DescribeZinc(point, footprint, surface);
      break;
    default:
      DescribeIron(point, footprint, surface);
      break;
  }
}

}  // namespace tarnwick::photo
