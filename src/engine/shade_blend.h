// The steps of ShadeColor for one pixel, inline: the row kernels run them over
// whole rows. Included by shade_color.cpp and the surface row kernels alone; the
// unnamed namespace keeps the copies of different instruction sets apart.
#include <algorithm>

#include "base/truncate.h"
#include "engine/shade_color.h"
#include "imaging/color_blend.h"
#include "imaging/hls_color.h"
#include "imaging/hsl255_color.h"

namespace tarnwick {
namespace {

struct Color3 {
  float c0;
  float c1;
  float c2;
};

inline float LimitLight(float light) {
  // Written so that NaN counts as 0.
  return light > 0.0F ? (light < 1.0F ? light : 1.0F) : 0.0F;
}

// The tone colour C of a light t of 0..1.
inline Color3 ToneOfLight(const ShadeLook& look, float t) {
  const bool dark = t <= 0.65F;
  const float below = t / 0.65F;
  const float above = static_cast<float>(static_cast<double>(1.0F - t) / 0.35);
  const float u = dark ? below * below : above;
  const float wm = u * look.amount;
  const float wo = (1.0F - u) * look.amount;
  const float e = (1.0F - std::min(wo + wm, 1.0F)) * (t * 255.0F);
  const auto tone = [&](std::size_t i) {
    const float outer = dark ? look.shadow[i] : look.highlight[i];
    return outer * wo + look.midtone[i] * wm + e;
  };
  return {tone(0), tone(1), tone(2)};
}

// Truncated, then limited: what fits no int counts as the most negative one.
inline std::int32_t PureTone(float c) {
  return c < 2147483648.0F ? static_cast<std::int32_t>(LimitToByteRange(c)) : 0;
}

inline float Enhance(float s, float c) {
  const float low = 2.0F * c * s / 255.0F;
  const float high = 255.0F - 2.0F * (255.0F - c) * (255.0F - s) / 255.0F;
  const std::int32_t v = TruncateToInt(s < 128.0F ? low : high);
  return static_cast<float>(v & 0xFF);
}

inline float Burn(int s, float shade) {
  const std::int32_t c = TruncateToInt(shade);
  if (c == 0) return 0.0F;
  const int v = (s - 255) * 256 / c + 255;
  return static_cast<float>(std::max(v, 0) & 0xFF);
}

// In 64 bits: a shade beyond the usual range doubles past an int.
inline float Vivid(int s, float shade) {
  const std::int64_t c = TruncateToInt(shade);
  if (c >= 128) return static_cast<float>(std::min<std::int64_t>(s * 256 / (511 - 2 * c), 255));
  if (c == 0) return 0.0F;
  return static_cast<float>(std::max<std::int64_t>(255 + (s - 255) * 256 / (2 * c), 0));
}

// Hue and saturation of the shade with the lightness of the source, worked into
// multiply on the dark side and screen on the light side.
inline Color3 Colorize(const ShadeLook& look, const std::int32_t (&s)[3], const Color3& shade,
                       float t) {
  int sh = s[0];
  int ss = s[1];
  int sl = s[2];
  RgbToHsl255(sh, ss, sl);
  int n[3] = {TruncateToInt(shade.c0), TruncateToInt(shade.c1), TruncateToInt(shade.c2)};
  RgbToHsl255(n[0], n[1], n[2]);
  n[2] = sl;
  HslToRgb255(n[0], n[1], n[2]);
  const float c[3] = {shade.c0, shade.c1, shade.c2};
  float result[3];
  for (int i = 0; i < 3; ++i) {
    const auto source = static_cast<float>(s[i]);
    const float multiplied = c[i] * source / 255.0F;
    const float screened = 255.0F - (255.0F - source) * (255.0F - c[i]) / 255.0F;
    const bool dark = t <= 0.5F;
    const float a = dark ? 2.0F * t : 2.0F * (1.0F - t);
    const float b = dark ? 2.0F * (0.5F - t) : 2.0F * (t - 0.5F);
    const float lit = (dark ? multiplied : screened) * b + static_cast<float>(n[i]) * a;
    const float soft = ((255.0F - source) * multiplied + source * screened) / 255.0F;
    result[i] = lit * look.amount + soft * (1.0F - look.amount);
  }
  return {result[0], result[1], result[2]};
}

inline std::int32_t BrightenedChannel(int channel, float brightness) {
  return std::clamp(TruncateToInt(static_cast<float>(channel) + brightness), 0, 255);
}

inline Color3 AdjustHue(const ShadeLook& look, const Color3& c) {
  const HlsColor hls = RgbToHls(TruncateToInt(c.c0), TruncateToInt(c.c1), TruncateToInt(c.c2));
  const std::int32_t hue = TruncateToInt(static_cast<float>(hls.hue) + look.hueShift);
  const RgbColor rgb = HlsToRgb(hue, hls.lightness, hls.saturation);
  return {static_cast<float>(BrightenedChannel(rgb.red, look.brightness)),
          static_cast<float>(BrightenedChannel(rgb.green, look.brightness)),
          static_cast<float>(BrightenedChannel(rgb.blue, look.brightness))};
}

inline float AdjustContrast(const ShadeLook& look, float c) {
  return LimitToByteRange((c - 127.0F) * look.contrast + 127.0F);
}

}  // namespace
}  // namespace tarnwick
