#include "toolbox/weave.h"

#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"

namespace tarnwick::content {
namespace {

int Modulo(int v, int n) {
  const int rest = v % n;
  return rest < 0 ? rest + n : rest;
}

// 1 where the warp lies on top, -1 where the weft does.
float OnTop(Binding binding, int warp, int weft) {
  switch (binding) {
    case Binding::kTwill:
      return Modulo(warp + weft, 4) == 0 ? -1.0F : 1.0F;
    case Binding::kBasket:
      return ((warp >> 1) + (weft >> 1)) % 2 == 0 ? 1.0F : -1.0F;
    case Binding::kSatin:
      return Modulo(warp * 3 + weft, 8) == 0 ? -1.0F : 1.0F;
    case Binding::kPlain:
      break;
  }
  return (warp + weft) % 2 == 0 ? 1.0F : -1.0F;
}

struct Family {
  float pitch, fill;
  std::uint32_t seed;
};

struct Strand {
  float height = -1.0F;
  float across = 0.0F;
  float level = 0.0F;
  int index = 0;
  bool found = false;
};

// The highest of the threads of one family that cover a place. `side` is the
// coordinate across them, `along` the other.
template <class LevelOf>
Strand Highest(const Weave& weave, const Family& family, float side, float along,
               const LevelOf& levelOf) {
  Strand best;
  const int middle = FloorInt(side / family.pitch);
  for (int i = middle - 1; i <= middle + 1; ++i) {
    // What noise can add is limited: most neighbours need none to be ruled out.
    const float apart = Abs(side / family.pitch - static_cast<float>(i) - 0.5F);
    if (apart >= weave.wander + 0.5F * family.fill * (1.0F + weave.uneven + weave.slub)) continue;
    const std::uint32_t word = HashAt(i, 77, family.seed);
    const float at = along + Unit(word) * 977.0F;
    const float centre =
        (static_cast<float>(i) + 0.5F + weave.wander * LineNoise(at / 61.0F, word)) * family.pitch;
    const float breadth = 1.0F + weave.uneven * (Unit(Hash(word + 1)) * 2.0F - 1.0F) +
                          weave.slub * LineNoise(at / weave.slubLength, word + 2);
    const float half = 0.5F * family.pitch * family.fill * breadth;
    const float t = (side - centre) / half;
    if (t <= -1.0F || t >= 1.0F) continue;
    const float level = levelOf(i);
    const float height = (Sqrt(1.0F - t * t) + weave.crimp * level) / (1.0F + weave.crimp);
    if (!best.found || height > best.height) best = {height, t, level, i, true};
  }
  return best;
}

// Between the crossings a thread goes from one level to the next in a curve.
float Between(float before, float after, float t) {
  return Mix(before, after, t * t * (3.0F - 2.0F * t));
}

}  // namespace

Weave::Place Weave::At(float x, float y) const {
  const float row = y / weftPitch - 0.5F;
  const int rowBelow = FloorInt(row);
  const float rowPart = row - static_cast<float>(rowBelow);
  const float column = x / warpPitch - 0.5F;
  const int columnBelow = FloorInt(column);
  const float columnPart = column - static_cast<float>(columnBelow);

  const Strand up = Highest(*this, {warpPitch, warpFill, seed}, x, y, [&](int i) {
    return Between(OnTop(binding, i, rowBelow), OnTop(binding, i, rowBelow + 1), rowPart);
  });
  const Strand flat = Highest(*this, {weftPitch, weftFill, seed + 500}, y, x, [&](int j) {
    return -Between(OnTop(binding, columnBelow, j), OnTop(binding, columnBelow + 1, j), columnPart);
  });
  if (!up.found && !flat.found) return {};
  const bool warp = up.found && (!flat.found || up.height >= flat.height);
  const Strand& top = warp ? up : flat;
  return {.height = top.height,
          .across = top.across,
          .along = warp ? y : x,
          .level = top.level,
          .thread = HashAt(top.index, warp ? 1 : 2, seed),
          .warp = warp,
          .hole = false};
}

}  // namespace tarnwick::content
