#include "toolbox/folds.h"

#include <utility>

#include "toolbox/maths.h"
#include "toolbox/noise.h"

namespace tarnwick::content {

Folds::Folds(std::vector<Fold> folds, std::uint32_t seed) : folds_(std::move(folds)), seed_(seed) {
  for (const Fold& fold : folds_) {
    cosine_.push_back(Cos(fold.heading));
    sine_.push_back(Sin(fold.heading));
  }
}

FoldSpot Folds::At(float x, float y) const {
  FoldSpot spot;
  for (std::size_t i = 0; i < folds_.size(); ++i) {
    const Fold& fold = folds_[i];
    const std::uint32_t seed = seed_ + static_cast<std::uint32_t>(i) * 31U;
    const float along = (x - fold.x) * cosine_[i] + (y - fold.y) * sine_[i];
    float across = (y - fold.y) * cosine_[i] - (x - fold.x) * sine_[i];
    // Paper does not fold along a ruler.
    across += 2.2F * LineNoise(along / 190.0F, seed) + 0.8F * LineNoise(along / 23.0F, seed + 1);
    const float apart = Abs(across);
    if (apart < spot.toCrease) spot.toCrease = apart;
    // Both flaps still stand up from the crease: one faces the light, one not,
    // and each flattens out further away.
    const float side = (across < 0.0F) == fold.valley ? -1.0F : 1.0F;
    spot.shade += side * fold.strength *
                  (0.55F * Exp(-apart / 120.0F) + 0.45F * Exp(-apart / 9.0F)) *
                  SmoothRamp(0.0F, 1.5F, apart);
    if (apart > 10.0F) continue;
    const Fbm rough{16.0F, 4, 0.65F, seed + 2};
    const float breadth = 3.4F * fold.strength * (1.0F + 1.1F * rough(x, y));
    const float wear = SmoothRamp(breadth, 0.3F * breadth, apart) *
                       Clamp01(0.65F + 0.9F * LineNoise(along / 60.0F, seed + 3));
    spot.wear = Max(spot.wear, breadth > 0.0F ? wear * fold.strength : 0.0F);
  }
  return spot;
}

}  // namespace tarnwick::content
