#include "materials.h"
#include "noise.h"
#include "portable_math.h"

// Wood: sawn boards with and without what time has left of their paint, bark,
// and the ends of logs.
namespace tarnwick::photo {
namespace {

struct Paint {
  Vec3 fresh, chalky, under;  // under: primer or older coat at the edges
  float cover = 0;            // -1 bare .. 1 whole
};

Paint PaintOf(Material material) {
  switch (material) {
    case Material::kBoardRed:
      return {{0.215f, 0.040f, 0.026f}, {0.325f, 0.128f, 0.090f}, {0.27f, 0.17f, 0.13f}, 0.12f};
    case Material::kBoardGreen:
      return {{0.060f, 0.155f, 0.145f}, {0.20f, 0.315f, 0.280f}, {0.40f, 0.38f, 0.31f}, 0.24f};
    case Material::kBoardWhite:
      return {{0.56f, 0.52f, 0.44f}, {0.66f, 0.63f, 0.56f}, {0.40f, 0.37f, 0.31f}, 0.24f};
    default:
      return {{}, {}, {}, -4};
  }
}

// One board, in its own coordinates.
struct Plank {
  float seed, shift;
  Paint paint;
  float bias;   // this board's share of wear
  float floor;  // wear that grows towards the ground

  explicit Plank(const Scene::Point& p)
      : seed(p.seed), shift(p.seed * 83.0f), paint(PaintOf(p.material)) {
    const float other = UnitFloat(HashWord(static_cast<std::uint32_t>(p.seed * 65536)));
    bias = paint.cover + 0.34f * (other - 0.5f);
    floor = p.material == Material::kBoardRed ? 0.55f : 0.28f;
  }

  // Grain bends around knots; the amount also marks the knot itself.
  [[nodiscard]] float Knot(float u, float v, float& bend) const {
    const Cell cell = Cells2(u * 2.6f + shift, v * 0.85f + shift * 0.7f);
    bend = 0;
    if ((cell.id & 3u) != 0) return 0;
    const float near = Smooth(0.42f, 0.0f, cell.nearest);
    bend = 0.03f * near;
    return Smooth(0.075f, 0.03f, cell.nearest);
  }
  [[nodiscard]] float Fibre(float u, float v, float bend) const {
    const float w = u + bend + 0.010f * Noise2(u * 5 + shift, v * 0.7f);
    return 0.50f * Noise2(w * 62 + shift, v * 1.3f) + 0.32f * Noise2(w * 190, v * 4.4f + shift) +
           0.30f * Noise2(w * 430 + shift, v * 11);
  }
  [[nodiscard]] float Crack(float u, float v, float bend) const {
    const float w = u + bend + 0.006f * Noise2(u * 9, v * 1.7f + shift);
    const float line = Noise2(w * 24 + shift, v * 0.45f + 3);
    const float where = Smooth(-0.15f, 0.35f, Noise2(u * 3 + shift, v * 0.9f));
    return Smooth(0.055f, 0.0f, line < 0 ? -line : line) * where;
  }
  // Old paint cracks into small cakes, longer along the grain.
  [[nodiscard]] float Craze(float u, float v) const {
    const Cell cell = Cells2(u * 95 + shift + 0.6f * Noise2(u * 40, v * 22), v * 27 + shift);
    return Smooth(0.09f, 0.0f, cell.second - cell.nearest);
  }
  // Above 0 the paint has held.
  [[nodiscard]] float Hold(float u, float v, float fibre) const {
    const float patch = Fbm2(u * 4.3f + shift, v * 1.35f + shift, 4);
    const float flake = Fbm2(u * 26 + shift, v * 8.5f, 3);
    const float rise = floor * (Smooth(0.05f, 1.5f, v) - 0.55f);
    return bias + 0.85f * patch + 0.30f * flake + 0.26f * fibre + rise;
  }
};

// Two rusty heads where the board crosses a rail of the frame, and what the rain
// has washed out of them.
void AddNails(const Scene::Point& p, float shift, Surface& s) {
  constexpr float kRail[4] = {0.16f, 1.12f, 2.08f, 3.05f};
  for (const float rail : kRail) {
    const float up = rail + 0.02f * Noise2(shift, rail * 7) - p.v;
    if (up < -0.02f || up > 0.42f) continue;
    for (const float side : {-0.052f, 0.050f}) {
      const float across = p.u - side - 0.008f * Noise2(shift + side * 90, rail * 3);
      const float a = across < 0 ? -across : across;
      const float head = Length({across, up, 0});
      const float run = Smooth(0.012f, 0.002f, a + 0.003f * Noise2(p.u * 30, p.v * 9)) *
                        Exp(-up * 9) * (up > 0 ? 1.0f : 0.0f);
      s.albedo = Mix(s.albedo, s.albedo * Vec3{0.55f, 0.36f, 0.24f}, 0.75f * run);
      s.albedo = Mix(s.albedo, Vec3{0.085f, 0.042f, 0.026f}, Smooth(0.0062f, 0.0042f, head));
    }
  }
}

void DescribePlank(const Scene::Point& p, float footprint, Surface& s) {
  const Plank plank(p);
  float bend = 0;
  const float knot = plank.Knot(p.u, p.v, bend);
  const float fibre = plank.Fibre(p.u, p.v, bend);
  const float crack = plank.Crack(p.u, p.v, bend);
  const float hold = plank.Hold(p.u, p.v, fibre);
  const float painted = Smooth(0.0f, 0.035f, hold);

  // Weathered wood: silver where sun and rain reach it, brown below.
  const float age = Saturate(0.62f + 0.5f * Fbm2(p.u * 2.2f + plank.shift, p.v * 0.6f, 3) +
                             0.25f * (plank.seed - 0.5f));
  Vec3 wood = Mix(Vec3{0.215f, 0.140f, 0.085f}, Vec3{0.335f, 0.305f, 0.265f}, age);
  wood = wood * (1 + 0.55f * fibre) * (0.86f + 0.28f * plank.seed);
  wood = Mix(wood, Vec3{0.105f, 0.062f, 0.036f}, 0.75f * knot);
  const float damp = Smooth(0.45f, 0.0f, p.v + 0.12f * fibre);
  if (p.material != Material::kBareWood) wood = Mix(wood, wood * Vec3{0.55f, 0.56f, 0.50f}, damp);

  const float chalk = Saturate(0.5f + 0.75f * Fbm2(p.u * 3.1f + 7, p.v * 0.9f + plank.shift, 4) +
                               0.5f * (plank.seed - 0.5f));
  Vec3 paint = Mix(plank.paint.fresh, plank.paint.chalky, chalk);
  paint = paint * (1 + 0.10f * fibre);
  // Rain has drawn dirt down the board.
  const float streak = Smooth(0.05f, 0.7f, Fbm2(p.u * 16 + plank.shift, p.v * 0.5f, 3) + 0.15f);
  paint = Mix(paint, paint * Vec3{0.62f, 0.58f, 0.52f}, 0.55f * streak);
  paint = Mix(paint, Vec3{0.16f, 0.14f, 0.10f},
              0.6f * Smooth(0.35f, 0.0f, p.v + 0.1f * fibre) *
                  (p.material == Material::kBareWood ? 0.0f : 1.0f));
  const float crazed =
      footprint < 0.008f
          ? plank.Craze(p.u, p.v) * Smooth(-0.2f, 0.25f, Fbm2(p.u * 5, p.v * 2 + plank.shift, 3))
          : 0.0f;
  paint = paint * (1 - 0.38f * crazed);
  paint = paint * (1 + 0.16f * Noise2(p.u * 120 + plank.shift, p.v * 46));
  // The rim of a flake shows the coat beneath and stands off a little.
  const float rim = Smooth(0.0f, 0.02f, hold) * Smooth(0.075f, 0.03f, hold);
  paint = Mix(paint, plank.paint.under, 0.65f * rim);
  const float line = Smooth(-0.07f, 0.0f, hold) * (1 - painted);
  wood = Mix(wood, wood * 0.62f, line);

  s.albedo = Mix(wood, paint, painted);
  s.albedo = s.albedo * (1 - 0.85f * crack);
  if (p.material == Material::kBoardRed) AddNails(p, plank.shift, s);
  s.roughness = Mix(0.85f, 0.48f, painted * (1 - 0.6f * chalk));
  s.specular = Vec3{1, 1, 1} * Mix(0.025f, 0.04f, painted);
  if (footprint > 0.02f) return;
  Emboss(p, footprint, s, [&](float u, float v) {
    const float b = bend;
    const float f = plank.Fibre(u, v, b);
    const float coat = Smooth(0.0f, 0.05f, plank.Hold(u, v, f));
    return 0.0012f * f * (1 - 0.5f * coat) -
           0.0007f * coat * (footprint < 0.008f ? plank.Craze(u, v) : 0.0f) -
           0.0035f * plank.Crack(u, v, b) + 0.0011f * coat;
  });
}

void DescribeBark(const Scene::Point& p, float footprint, Surface& s) {
  const float shift = p.seed * 57;
  const auto ridge = [&](float u, float v) {
    const float w = u + 0.03f * Noise2(u * 9, v * 5 + shift);
    const float n = Noise2(w * 17 + shift, v * 3.1f);
    return 1 - (n < 0 ? -n : n) * 2 + 0.35f * Fbm2(u * 60, v * 24 + shift, 2);
  };
  const float high = Saturate(ridge(p.u, p.v));
  const float moss = Smooth(0.1f, 0.6f, Fbm2(p.u * 3, p.v * 1.2f + shift, 3) + 0.1f);
  s.albedo = Mix(Vec3{0.050f, 0.038f, 0.028f}, Vec3{0.215f, 0.185f, 0.150f}, high);
  s.albedo = Mix(s.albedo, Vec3{0.12f, 0.14f, 0.06f} * (0.5f + high), 0.45f * moss);
  s.specular = {0.015f, 0.015f, 0.015f};
  if (footprint > 0.02f) return;
  Emboss(p, footprint, s, [&](float u, float v) { return 0.007f * ridge(u, v); });
}

void DescribeLogEnd(const Scene::Point& p, Surface& s) {
  const float shift = p.seed * 71;
  const float r = std::sqrt(p.u * p.u + p.v * p.v) + 0.006f * Noise2(p.u * 14 + shift, p.v * 14);
  const float rings = Noise2(r * 210 + shift, shift) * 0.5f + Noise2(r * 70, shift) * 0.5f;
  // Drying cracks run from the heart outward.
  const float around = Noise2(p.u / (r + 0.003f) * 2.2f + shift, p.v / (r + 0.003f) * 2.2f);
  const float crack =
      Smooth(0.07f, 0.0f, (around < 0 ? -around : around)) * Smooth(0.005f, 0.03f, r);
  s.albedo =
      Mix(Vec3{0.29f, 0.205f, 0.125f}, Vec3{0.165f, 0.145f, 0.12f}, p.seed) * (1 + 0.35f * rings);
  s.albedo = s.albedo * (1 + 0.3f * Noise2(p.u * 60 + shift, p.v * 60)) * (1 - 0.7f * crack);
}

}  // namespace

void DescribeBoard(const Scene::Point& point, float footprint, Surface& surface) {
  if (point.material == Material::kBark) {
    DescribeBark(point, footprint, surface);
  } else if (point.material == Material::kLogEnd) {
    DescribeLogEnd(point, surface);
  } else {
    DescribePlank(point, footprint, surface);
  }
}

}  // namespace tarnwick::photo
