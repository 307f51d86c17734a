// Fossil_Coral: a beach stone of colony coral, polished by the surf. Many-sided
// cups lie wall to wall, thin ribs run from each wall to a dark eye.
//
// What makes it read as that: cups of unequal size and shape that share their
// walls, ribs alternately long and short that bend a little, eyes off their
// middle, cups filled lighter or darker one by one.
#include <vector>

#include "builder/texture_recipe.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/packing.h"
#include "toolbox/tone.h"
#include "toolbox/turn.h"

namespace tarnwick::content {
namespace {

// The cup around a place.
struct Cup {
  const Piece* piece = nullptr;
  float power = 1e9F;          // of the place over the cup's circle
  float dx = 0.0F, dy = 0.0F;  // from the place to its middle, pixels
  float wall = 1e9F;           // pixels to the nearest wall
};

// Cups grew where there was room, small ones between large ones, and met in
// straight walls. Set out on a lattice, however shaken, they stand in rows.
class Colony {
 public:
  // look(spot) moves a place before it is looked up, by `reach` pixels at most.
  template <class Look>
  Colony(const Sheet& sheet, float reach, const Look& look, std::uint32_t seed)
      : width_(static_cast<std::size_t>(sheet.width)),
        pieces_(Packed(
            sheet,
            {.maxRadius = 88.0F, .minRadius = 40.0F, .gap = -6.0F, .effort = 9.0F, .sizes = 8},
            seed)),
        cups_(width_ * static_cast<std::size_t>(sheet.height)) {
    const Survey<Spot> moved(sheet, look);
    const float radii = 2.0F + reach / 40.0F;
    ForPieces(sheet, pieces_, radii, [&](const Piece& piece, Spot p, float, float) {
      const Spot& q = moved(p);
      const float dx = piece.x - q.fx;
      const float dy = piece.y - q.fy;
      const float power = dx * dx + dy * dy - piece.radius * piece.radius;
      Cup& cup = At(p);
      if (power < cup.power) cup = {&piece, power, dx, dy, 1e9F};
    });
    ForPieces(sheet, pieces_, radii + 1.0F, [&](const Piece& piece, Spot p, float, float) {
      Cup& cup = At(p);
      if (cup.piece == nullptr || cup.piece == &piece) return;
      const Spot& q = moved(p);
      const float dx = piece.x - q.fx;
      const float dy = piece.y - q.fy;
      const float power = dx * dx + dy * dy - piece.radius * piece.radius;
      const float apart = Length(piece.x - cup.piece->x, piece.y - cup.piece->y);
      cup.wall = Min(cup.wall, (power - cup.power) / (2.0F * apart));
    });
  }
  [[nodiscard]] const Cup& operator()(const Spot& p) const { return cups_[Index(p)]; }

 private:
  [[nodiscard]] std::size_t Index(const Spot& p) const {
    return static_cast<std::size_t>(p.y) * width_ + static_cast<std::size_t>(p.x);
  }
  Cup& At(const Spot& p) { return cups_[Index(p)]; }

  std::size_t width_;
  std::vector<Piece> pieces_;
  std::vector<Cup> cups_;
};

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp grown{30.0F, {260.0F, 3, 0.5F, seed}};
  const Warp uneven{2.2F, {34.0F, 3, 0.6F, seed + 5}};
  const Colony cups(
      sheet, 34.0F, [&](Spot p) { return uneven(grown(p)); }, seed + 10);
  const Fbm grain{4.0F, 3, 0.7F, seed + 20};
  const Fbm mud{42.0F, 5, 0.6F, seed + 24};
  const Fbm polish{460.0F, 5, 0.55F, seed + 30};
  const Fbm wave{20.0F, 2, 0.5F, seed + 36};
  const Fbm crack{380.0F, 4, 0.5F, seed + 40};

  Field tone = Painted(sheet, [&](Spot p) {
    const Cup& cup = cups(p);
    if (cup.piece == nullptr) return 0.5F;
    const float wall = cup.wall;
    const std::uint32_t hash = cup.piece->hash;
    const float size = cup.piece->radius;
    const float eyeX = cup.dx + 0.20F * size * (Unit(Hash(hash + 1)) - 0.5F);
    const float eyeY = cup.dy + 0.20F * size * (Unit(Hash(hash + 2)) - 0.5F);
    const float out = Length(eyeX, eyeY);
    const float share = out / (out + wall + 0.1F);  // 0 at the eye, 1 at the wall
    const float m = mud(p);
    const int ribs = 11 + FloorInt(0.08F * size + 6.0F * Unit(Hash(hash + 3)));
    const float turn = Turn(eyeX, eyeY) * static_cast<float>(ribs) + 0.05F * wave(p) +
                       0.5F * share * (Unit(Hash(hash + 4)) - 0.5F);
    const float toLong = Abs(Fraction(turn) - 0.5F);
    const float toShort = 0.5F - toLong;
    // Ribs keep their breadth in pixels, so they crowd towards the eye.
    const float pitch = Max(out * kTau / static_cast<float>(ribs), 1.0F);
    const float half = 2.1F + 0.6F * m;
    const float longRib =
        SmoothRamp(half + 1.2F, half - 1.2F, toLong * pitch) * SmoothRamp(0.20F, 0.34F, share);
    const float shortRib = SmoothRamp(half + 0.4F, half - 1.6F, toShort * pitch) *
                           SmoothRamp(0.60F, 0.74F, share + 0.05F * m);
    const float between =
        0.50F + 0.30F * (Unit(Hash(hash + 5)) - 0.5F) + 0.12F * m - 0.12F * (1.0F - share);
    const float rib = 0.80F + 0.08F * m;
    float value = Mix(between, rib, 0.80F * Max(longRib, 0.8F * shortRib));
    // A ring of blisters half way, and the eye.
    value -= 0.10F * Exp(-Square((share - 0.55F - 0.05F * m) / 0.07F)) * (1.0F - longRib);
    const float eye = SmoothRamp(0.30F, 0.13F, share + 0.06F * m);
    value = Mix(value, 0.14F + 0.05F * m, eye);
    value = Mix(value, 0.62F, 0.55F * SmoothRamp(0.07F, 0.02F, share));
    const float seam = SmoothRamp(4.6F, 3.2F, wall) * (0.9F + 0.25F * m);
    value = Mix(value, 0.93F, seam);
    value = Mix(value, 0.30F, 0.9F * SmoothRamp(1.8F, 0.5F, wall));
    const float old = Exp(-Square(crack(p) / 0.006F)) * SmoothRamp(0.0F, 0.3F, polish(p));
    value = Mix(value, 0.94F, 0.7F * old);
    return value + 0.08F * polish(p) + 0.035F * grain(p);
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.003F, 0.997F);
  return tone;
}

const RegisteredTexture kFossilCoral(TextureRecipe{
    .name = "Fossil_Coral",
    .set = TextureSet::kQuarry,
    .effects = {"Stone/Minerals", "Animal Patterns", "Texture (Medium)"},
    .seed = 2090,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
