#include "dialog/cells/tone_cell.h"

#include <algorithm>
#include <array>

#include "base/truncate.h"
#include "dialog/cells/cell_blend.h"
#include "imaging/hls_color.h"
#include "imaging/tone_weights.h"

namespace tarnwick {
namespace {

using Rgb = std::array<std::uint8_t, 3>;

std::uint8_t LimitedByte(int value) {
  return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

Rgb Shifted(const ToneCellLook& look, const Rgb& color) {
  const HlsColor hls = RgbToHls(color[0], color[1], color[2]);
  const RgbColor rgb =
      HlsToRgb(TruncateToInt(static_cast<float>(hls.hue) + look.hueShift), hls.lightness,
               TruncateToInt(static_cast<float>(hls.saturation) * look.saturation));
  return {LimitedByte(rgb.red), LimitedByte(rgb.green), LimitedByte(rgb.blue)};
}

Rgb ToneOf(const ToneCellLook& look, int grey) {
  const ToneWeights weights =
      ToneWeightsOf(static_cast<float>(look.invert ? 255 - grey : grey) / 255.0F);
  const LayerColor& outer = weights.isDark ? look.shadow : look.highlight;
  Rgb color{};
  for (std::size_t c = 0; c < 3; ++c) {
    color[c] = CellByte(static_cast<float>(outer[c]) * weights.outer +
                        static_cast<float>(look.midtone[c]) * weights.middle);
  }
  const bool isShifted = look.hueShift != 0.0F || look.saturation != 1.0F;
  return isShifted ? Shifted(look, color) : color;
}

}  // namespace

ToneCellLook ToneLookOf(const EffectLayer& background, const EffectSettings& settings) {
  return {background.highlightColor,
          background.midtoneColor,
          background.shadowColor,
          background.invert != 0,
          static_cast<float>(settings.BackgroundHue) * 1.275F,
          static_cast<float>(settings.BackgroundMidtone) / 100.0F};
}

void ColorToneCell(const ToneCellLook& look, ThumbnailPicture& picture) {
  std::array<Rgb, 256> tones{};
  for (int grey = 0; grey < 256; ++grey) tones[static_cast<std::size_t>(grey)] = ToneOf(look, grey);
  for (std::size_t i = 0; i + 2 < picture.samples.size(); i += 3) {
    std::ranges::copy(tones[picture.samples[i]], &picture.samples[i]);
  }
}

}  // namespace tarnwick
