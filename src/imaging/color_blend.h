#pragma once
#include <algorithm>

namespace tarnwick {

// The system's own two colour blends, in 32-bit floats on a scale of 0..255.
// Both change c0, c1, c2 in place and top them at 255. They are inline because
// every pixel of a surface goes through one of them.

// A tint that fades with the source's lightness: dark source pixels (s) take the
// darker of source and shade (c), light ones keep their own light.
inline void TintMix(float s0, float s1, float s2, float& c0, float& c1, float& c2) {
  const float light = (s0 + s1 + s2) / 765.0F;
  const float dark = 1.0F - light;
  const auto mix = [&](float s, float c) {
    const float d = std::min(s, c) * dark + light * s;
    return std::min(std::max(d, c) * light + d * dark, 255.0F);
  };
  c0 = mix(s0, c0);
  c1 = mix(s1, c1);
  c2 = mix(s2, c2);
}

// Slides from multiply where the colour k is black to addition where it is white.
inline void BoostMix(float k0, float k1, float k2, float& c0, float& c1, float& c2) {
  const float light = (k0 + k1 + k2) / 765.0F;
  const float dark = 1.0F - light;
  const auto mix = [&](float k, float c) {
    return std::min(c * k * dark / 255.0F + (c + k) * light, 255.0F);
  };
  c0 = mix(k0, c0);
  c1 = mix(k1, c1);
  c2 = mix(k2, c2);
}

}  // namespace tarnwick
