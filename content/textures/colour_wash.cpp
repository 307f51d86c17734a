// Colour_Wash: a kitchen wall colour-washed with a block brush. The painter
// worked crosswise from the wrist, stroke over stroke, each thin coat let the
// last show; where the brush ran dry it left hair lines, and deep in the
// corners of strokes the dark ground stayed bare.
//
// What makes it read as that: short arcs of one length that overlap like
// scales, bristle lines that fan out at their ends, tones that pile up.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// A stroke of the brush is cut from a wide ring; later ones hide earlier ones.
struct Sweep {
  float cover;  // 0..1
  float lines;  // -1..1, the bristles'
  float shine;  // 0..1, how much paint was on the brush
  float heel;   // 0..1, where the brush was pressed
};

constexpr float kLattice = 124.0F;
constexpr int kLayers = 4;

// What is known of the sweep that belongs to a square of the lattice.
struct Stroke {
  std::uint32_t hash;  // also its time: the larger came later
  float x, y, cosine, sine, shine;
  float halfLength, half;
};

class Sweeps {
 public:
  Sweeps(const Sheet& sheet, std::uint32_t seed)
      : columns_(FloorInt(static_cast<float>(sheet.width) / kLattice) + 4),
        rows_(FloorInt(static_cast<float>(sheet.height) / kLattice) + 4),
        seed_(seed) {
    for (int layer = 0; layer < kLayers; ++layer) {
      for (int j = 0; j < rows_; ++j) {
        for (int i = 0; i < columns_; ++i) strokes_.push_back(Make(i, j, layer));
      }
    }
  }

  [[nodiscard]] Sweep At(float x, float y, int layer) const {
    const int ix = FloorInt(x / kLattice) + 1;
    const int iy = FloorInt(y / kLattice) + 1;
    const Stroke* top = nullptr;
    float farOf = 0.0F;
    float alongOf = 0.0F;
    float reachOf = 1.0F;
    for (int j = iy - 1; j <= iy + 1; ++j) {
      for (int i = ix - 1; i <= ix + 1; ++i) {
        const Stroke& stroke =
            strokes_[static_cast<std::size_t>((layer * rows_ + j) * columns_ + i)];
        if (top != nullptr && stroke.hash < top->hash) continue;
        const float dx = x - stroke.x;
        const float dy = y - stroke.y;
        const float u = dx * stroke.cosine + dy * stroke.sine;
        const float along = u / stroke.halfLength;
        if (Abs(along) >= 1.0F) continue;
        const float half = stroke.half * (1.0F - Square(along * along));
        const float v = dy * stroke.cosine - dx * stroke.sine;
        // Arcs about a middle to the side.
        const float far = Length(u, v + kRadius) - kRadius;
        if (Abs(far) > half) continue;
        top = &stroke;
        farOf = far;
        alongOf = along;
        reachOf = half;
      }
    }
    Sweep sweep{0.0F, 0.0F, 0.5F, 0.0F};
    if (top == nullptr) return sweep;
    const Fbm bristle{2.6F, 2, 0.8F, seed_ + 5};
    sweep.lines = bristle(farOf + 5000.0F * Unit(top->hash), alongOf * top->halfLength * 0.02F);
    sweep.cover = SmoothRamp(1.0F, 0.55F, Abs(farOf) / reachOf + 0.5F * sweep.lines) *
                  SmoothRamp(1.0F, 0.55F, Abs(alongOf) + 0.4F * sweep.lines);
    sweep.shine = top->shine;
    sweep.heel = SmoothRamp(0.45F, 1.0F, farOf / reachOf) * SmoothRamp(0.8F, 0.3F, Abs(alongOf));
    return sweep;
  }

 private:
  static constexpr float kRadius = 210.0F;

  [[nodiscard]] Stroke Make(int i, int j, int layer) const {
    const std::uint32_t h = HashAt(i, j, seed_ + 97U * static_cast<std::uint32_t>(layer));
    Stroke stroke{};
    stroke.hash = h;
    stroke.x = (static_cast<float>(i - 1) + Unit(Hash(h + 1))) * kLattice;
    stroke.y = (static_cast<float>(j - 1) + Unit(Hash(h + 2))) * kLattice;
    // The wrist swings; only the arm turns all of it.
    const float heading = 0.55F + 1.5F * (Unit(Hash(h + 3)) - 0.5F) +
                          0.7F * GradientNoise(stroke.x / 700.0F, stroke.y / 700.0F, seed_ + 6);
    stroke.cosine = Cos(heading);
    stroke.sine = Sin(heading);
    stroke.shine = 0.5F + 0.34F * Cos(2.0F * heading + 0.9F);
    stroke.halfLength = 84.0F + 38.0F * Unit(Hash(h + 4));
    stroke.half = 34.0F + 22.0F * Unit(Hash(h + 5));
    return stroke;
  }

  int columns_, rows_;
  std::uint32_t seed_;
  std::vector<Stroke> strokes_;
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Sweeps sweeps(sheet, seed);
  const Fbm skin{16.0F, 4, 0.64F, seed + 20};
  const Fbm cloud{380.0F, 5, 0.56F, seed + 21};
  const Fbm grain{2.6F, 2, 0.75F, seed + 22};
  const Fbm press{330.0F, 3, 0.5F, seed + 23};
  Field tone = Painted(sheet, [&](Spot p) {
    float value = 0.34F + 0.10F * cloud(p) + 0.10F * skin(p) + 0.05F * grain(p);
    const float eager = press(p);
    // Coat upon coat, the later ones thinner.
    for (int layer = 0; layer < kLayers; ++layer) {
      const Sweep at = sweeps.At(p.fx, p.fy, layer);
      const float hold = Clamp01(layer < 2 ? 1.0F : 0.75F + 0.9F * eager);
      const float bright = 0.42F + 0.34F * at.shine + (0.13F + 0.14F * at.shine) * at.lines +
                           0.16F * at.heel * at.shine;
      value = Mix(value, bright, at.cover * hold);
    }
    return value + 0.07F * cloud(p);
  });
  Soften(sheet, tone, 0.3F);
  StretchTo(sheet, tone, 0.004F, 0.997F);
  return tone;
}

const RegisteredTexture kColourWash(TextureRecipe{
    .name = "Colour_Wash",
    .set = TextureSet::kWallsAndSigns,
    .effects = {"Texture (Medium)", "Distress (Light)"},
    .seed = 3018,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
