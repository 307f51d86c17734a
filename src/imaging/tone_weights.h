#pragma once

namespace tarnwick {

// How a background turns a grey into three colours: black is the shadow, 0.65
// the midtone, white the highlight, and between them the share of each falls in
// a straight line.
struct ToneWeights {
  bool isDark;   // the outer tone is the shadow, else the highlight
  float outer;   // 0..1
  float middle;  // 1 - outer
};

// `value` 0..1. The factors are those of 32-bit floats: 1 / 0.65 and 1 / 0.35.
[[nodiscard]] inline ToneWeights ToneWeightsOf(float value) {
  const bool isDark = value <= 0.65F;
  const float outer = isDark ? (0.65F - value) * 1.5384616F : (value - 0.65F) * 2.857143F;
  return {isDark, outer, 1.0F - outer};
}

}  // namespace tarnwick
