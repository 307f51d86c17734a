#include "textures/palette_cell.h"

#include <algorithm>
#include <array>

#include "base/truncate.h"
#include "imaging/hls_color.h"
#include "imaging/tone_weights.h"
#include "textures/texture_thumbnail.h"

namespace tarnwick {
namespace {

using Rgb = std::array<std::uint8_t, 3>;

struct Tone {
  std::uint32_t color;  // red in the low byte
  float weight;         // 0 or 1

  [[nodiscard]] float Channel(unsigned c) const {
    return static_cast<float>(color >> (8 * c) & 0xFFU);
  }
};

Tone ToneOf(std::uint32_t color, std::int32_t percent) {
  const std::int32_t weight = percent / 100;
  return {color, static_cast<float>(weight)};
}

// The three tones at each grey, before the texture's inversion.
class CellColors {
 public:
  explicit CellColors(const EffectSettings& settings)
      : highlight_(ToneOf(settings.BackgroundHighlightColor, settings.BackgroundHighlight)),
        midtone_(ToneOf(settings.BackgroundMidtoneColor, settings.BackgroundMidtone)),
        shadow_(ToneOf(settings.BackgroundShadowColor, settings.BackgroundShadow)),
        hueShift_(static_cast<float>(settings.BackgroundHue) * 1.275F),
        saturation_(static_cast<float>(settings.BackgroundMidtone) / 100.0F),
        adjusts_(settings.BackgroundHue != 0 || settings.BackgroundMidtone != 100) {}

  [[nodiscard]] Rgb At(int grey) const {
    const ToneWeights weights = ToneWeightsOf(static_cast<float>(grey) / 255.0F);
    const Tone& outer = weights.isDark ? shadow_ : highlight_;
    std::array<int, 3> mixed{};
    for (unsigned c = 0; c < 3; ++c) {
      const float value = outer.Channel(c) * weights.outer * outer.weight +
                          midtone_.Channel(c) * weights.middle * midtone_.weight;
      mixed[c] = TruncateToInt(LimitToByteRange(value));
    }
    if (adjusts_) mixed = Adjusted(mixed);
    Rgb bytes{};
    for (unsigned c = 0; c < 3; ++c) {
      bytes[c] = static_cast<std::uint8_t>(std::clamp(mixed[c], 0, 255));
    }
    return bytes;
  }

 private:
  [[nodiscard]] std::array<int, 3> Adjusted(const std::array<int, 3>& color) const {
    const HlsColor hls = RgbToHls(color[0], color[1], color[2]);
    const RgbColor rgb =
        HlsToRgb(TruncateToInt(static_cast<float>(hls.hue) + hueShift_), hls.lightness,
                 TruncateToInt(static_cast<float>(hls.saturation) * saturation_));
    return {rgb.red, rgb.green, rgb.blue};
  }

  Tone highlight_, midtone_, shadow_;
  float hueShift_, saturation_;
  bool adjusts_;
};

}  // namespace

void ColorPaletteCell(const EffectSettings& settings, ThumbnailPicture& picture) {
  const CellColors colors(settings);
  const bool invert = settings.BackgroundInvert != 0;
  std::array<Rgb, 256> table{};
  for (int i = 0; i < 256; ++i) {
    table[static_cast<std::size_t>(i)] = colors.At(invert ? 255 - i : i);
  }
  for (std::size_t i = 0; i + 2 < picture.samples.size(); i += 3) {
    std::ranges::copy(table[picture.samples[i]], &picture.samples[i]);
  }
}

std::optional<ThumbnailPicture> MakePaletteCell(const EffectSettings& settings,
                                                const std::string& textureFolder) {
  bool ignored = false;
  std::optional<ThumbnailPicture> picture = MakeThumbnail(
      textureFolder, settings.BackgroundFileName, kFilmstripThumbnail, kThumbnailScale, ignored);
  if (picture) ColorPaletteCell(settings, *picture);
  return picture;
}

}  // namespace tarnwick
