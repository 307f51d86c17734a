#include "engine/shade_color.h"

#include "engine/effect_layer.h"
#include "engine/shade_blend.h"
#include "engine/surface_types.h"

namespace tarnwick {
namespace {

std::array<float, 3> FloatColor(std::uint32_t word) {
  const LayerColor color = ColorOfWord(word);
  return {static_cast<float>(color[0]), static_cast<float>(color[1]), static_cast<float>(color[2])};
}

Color3 Blend(const ShadeLook& look, const std::int32_t (&s)[3], const Color3& tone, float t) {
  const float s0 = static_cast<float>(s[0]);
  const float s1 = static_cast<float>(s[1]);
  const float s2 = static_cast<float>(s[2]);
  Color3 c = tone;
  switch (look.type) {
    case kSurfaceColorize:
      return Colorize(look, s, tone, t);
    case kSurfaceTint:
      TintMix(s0, s1, s2, c.c0, c.c1, c.c2);
      return c;
    case kSurfaceBoost:
      BoostMix(s0, s1, s2, c.c0, c.c1, c.c2);
      return c;
    case kSurfaceEnhance:
      return {Enhance(s0, c.c0), Enhance(s1, c.c1), Enhance(s2, c.c2)};
    case kSurfaceVivid:
      return {Vivid(s[0], c.c0), Vivid(s[1], c.c1), Vivid(s[2], c.c2)};
    case kSurfaceMultiply:
      return {s0 * c.c0 / 255.0F, s1 * c.c1 / 255.0F, s2 * c.c2 / 255.0F};
    case kSurfaceBurn:
      return {Burn(s[0], c.c0), Burn(s[1], c.c1), Burn(s[2], c.c2)};
    default:
      return c;
  }
}

}  // namespace

ShadeLook ShadeLookOf(const EffectSettings& settings, std::uint8_t type) {
  ShadeLook look;
  look.type = type;
  look.amount = static_cast<float>(settings.SurfaceMidtone) / 100.0F;
  look.shadow = FloatColor(settings.SurfaceShadowColor);
  look.midtone = FloatColor(settings.SurfaceMidtoneColor);
  look.highlight = FloatColor(settings.SurfaceHighlightColor);
  look.hueShift = static_cast<float>(settings.SurfaceHue) * 1.275F;
  look.brightness = static_cast<float>(settings.SurfaceBrightness) - 100.0F;
  if (look.brightness > 0) look.brightness *= 1.5F;
  look.adjustsHue = look.hueShift != 0.0F || look.brightness != 0.0F;
  const auto contrast = static_cast<float>(settings.SurfaceContrast);
  look.contrast = contrast <= 100.0F ? contrast / 100.0F : (contrast - 100.0F) / 30.0F + 1.0F;
  look.adjustsContrast = settings.SurfaceContrast != 100;
  return look;
}

ShadedColor ShadeColor(int r, int g, int b, float light, const ShadeLook& look) {
  const float t = LimitLight(light);
  const Color3 tone = ToneOfLight(look, t);
  const std::int32_t s[3] = {r, g, b};
  Color3 c = Blend(look, s, tone, t);
  if (look.adjustsHue) c = AdjustHue(look, c);
  if (look.adjustsContrast) {
    c = {AdjustContrast(look, c.c0), AdjustContrast(look, c.c1), AdjustContrast(look, c.c2)};
  }
  return {{c.c0, c.c1, c.c2}, {PureTone(tone.c0), PureTone(tone.c1), PureTone(tone.c2)}};
}

}  // namespace tarnwick
