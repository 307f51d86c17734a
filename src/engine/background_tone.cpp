#include <algorithm>
#include <array>

#include "base/truncate.h"
#include "engine/background_render.h"
#include "imaging/hls_color.h"
#include "imaging/tone_weights.h"

namespace tarnwick {
namespace {

struct Area {
  const RasterImage& texture;
  int width;
  int height;
};

// The darkest and brightest tone, 0..1, a tenth of the range inside its ends.
struct EnhancedRange {
  float low = 255;
  float high = 0;
};

float ToneOf(const EffectLayer& layer, std::size_t sample) {
  return static_cast<float>(layer.intensityTable[sample]) / 255.0F;
}

// Which samples the area holds.
std::array<bool, 256> SamplesOf(const Area& area) {
  std::array<bool, 256> seen{};
  for (int y = 0; y < area.height; ++y) {
    const std::uint8_t* const row = area.texture.PeekInterior() + y * area.texture.RowBytes();
    for (int x = 0; x < area.width; ++x) seen[row[x]] = true;
  }
  return seen;
}

EnhancedRange RangeOf(const EffectLayer& layer, const Area& area) {
  EnhancedRange range;
  const std::array<bool, 256> seen = SamplesOf(area);
  for (std::size_t i = 0; i < seen.size(); ++i) {
    if (!seen[i]) continue;
    range.low = std::min(range.low, ToneOf(layer, i));
    range.high = std::max(range.high, ToneOf(layer, i));
  }
  const float span = range.high - range.low;
  if (span != 0.0F) {
    const double margin = 0.1 * static_cast<double>(span);
    range.low = static_cast<float>(static_cast<double>(range.low) + margin);
    range.high = static_cast<float>(static_cast<double>(range.high) - margin);
  }
  return range;
}

struct ToneLook {
  const EffectLayer& layer;
  float saturation;
  float hueShift;
  bool enhanced;
  EnhancedRange range;

  [[nodiscard]] bool Adjusts() const { return enhanced || hueShift != 0.0F || saturation != 1.0F; }
};

int Scaled(int value, float factor) {
  return TruncateToInt(static_cast<float>(value) * factor);
}

// The darkest tones fade to black, the brightest light up: steep shoulders.
void Enhance(const EnhancedRange& range, float t, HlsColor& color) {
  if (t < range.low) {
    const float f = std::max(1.0F - (range.low - t) * 4.0F, 0.0F);
    color.saturation = Scaled(color.saturation, f);
    color.lightness = Scaled(color.lightness, f);
  } else if (t > range.high) {
    const float f = (t - range.high) * 5.0F + 1.0F;
    color.saturation = std::min(Scaled(color.saturation, f), kHlsMax);
    color.lightness = std::min(Scaled(color.lightness, f), kHlsMax);
  }
}

ToneTable::value_type TonedPixel(const ToneLook& look, float t) {
  const ToneWeights weights = ToneWeightsOf(t);
  const LayerColor& outer = weights.isDark ? look.layer.shadowColor : look.layer.highlightColor;
  const LayerColor& middle = look.layer.midtoneColor;
  std::array<int, 3> c{};
  for (std::size_t i = 0; i < 3; ++i) {
    c[i] = static_cast<int>(static_cast<float>(outer[i]) * weights.outer +
                            static_cast<float>(middle[i]) * weights.middle);
  }
  if (look.Adjusts()) {
    HlsColor hls = RgbToHls(c[0], c[1], c[2]);
    hls.hue = TruncateToInt(static_cast<float>(hls.hue) + look.hueShift);
    hls.saturation = Scaled(hls.saturation, look.saturation);
    if (look.enhanced) Enhance(look.range, t, hls);
    const RgbColor rgb = HlsToRgb(hls.hue, hls.lightness, hls.saturation);
    c = {std::clamp(rgb.red, 0, 255), std::clamp(rgb.green, 0, 255), std::clamp(rgb.blue, 0, 255)};
  }
  return {static_cast<std::uint8_t>(c[0]), static_cast<std::uint8_t>(c[1]),
          static_cast<std::uint8_t>(c[2]), 255};
}

}  // namespace

void RenderBackgroundTone(EffectLayer& layer, RenderState& state, const EffectSettings& settings) {
  if (!layer.toneDirty || layer.working == nullptr) return;
  const RasterImage& texture = *layer.working;
  if (texture.PeekInterior() == nullptr) {
    // Nothing is left of it: nothing is toned either.
    layer.tonedWidth = layer.tonedHeight = 0;
    layer.toneDirty = false;
    return;
  }
  const Area area{texture, std::min(texture.Width(), state.renderWidth),
                  std::min(texture.Height(), state.renderHeight)};
  ToneLook look{layer,
                static_cast<float>(settings.BackgroundMidtone) / 100.0F,
                static_cast<float>(settings.BackgroundHue) * 1.275F,
                // One byte of the field counts.
                (settings.BackgroundEnhancedMode & 0xFF) != 0,
                {}};
  if (look.enhanced) look.range = RangeOf(layer, area);
  // A tone depends on its grey alone.
  ToneTable tones{};
  for (std::size_t i = 0; i < tones.size(); ++i) tones[i] = TonedPixel(look, ToneOf(layer, i));
  layer.tones = tones;
  layer.tonedWidth = area.width;
  layer.tonedHeight = area.height;
  layer.toneDirty = false;
  for (int y = 0; y < area.height; ++y) state.progress.ReportRow(y, area.height);
}

}  // namespace tarnwick
