// Included by wash_row.cpp and wash_row_avx2.cpp alone: one source, once for
// each instruction set. No contraction, so the bytes are the same.
#include <algorithm>

#include "engine/wash_row.h"
#include "engine/wash_types.h"
#include "imaging/color_blend.h"

namespace tarnwick {
namespace {

// B, before the tone step: the texture where the masks let it through, else 255.
template <bool kSelected>
inline void MaskedTexture(const WashRow& row, bool inside) {
  const std::uint8_t* __restrict texture = row.texture;
  const std::uint8_t* __restrict coverage = row.coverage;
  const std::uint8_t* __restrict edge = row.edge;
  const std::uint8_t* __restrict selection = row.selection;
  float* __restrict strength = row.strength;
  const int flip = inside ? 0 : 255;
  for (int x = 0; x < row.width; ++x) {
    const float m = static_cast<float>(coverage[x]) / 255.0F;
    const auto e = static_cast<float>(edge[x] ^ flip);
    float a = e / 255.0F * m;
    if constexpr (kSelected) a = a * static_cast<float>(selection[x]) / 255.0F;
    strength[x] = a * static_cast<float>(texture[x]) + (1.0F - a) * 255.0F;
  }
}

inline void ToneStrengths(const WashRow& row, const WashLook& look) {
  float* __restrict strength = row.strength;
  if (look.intensity >= 101) {
    const float gain = static_cast<float>(look.intensity - 100) / 70.0F + 1.0F;
    for (int x = 0; x < row.width; ++x) {
      const float v = gain * (strength[x] - 127.0F) + 127.0F;
      strength[x] = std::min(std::max(v, 0.0F), 255.0F);
    }
  } else if (look.identity) {
    for (int x = 0; x < row.width; ++x) {
      strength[x] = static_cast<float>(static_cast<std::int32_t>(strength[x]));
    }
  } else {
    for (int x = 0; x < row.width; ++x) {
      const auto tone = static_cast<std::uint8_t>(static_cast<std::int32_t>(strength[x]));
      strength[x] = static_cast<float>(look.table[tone]);
    }
  }
}

// Lets the pure surface show where the wash eats, and weakens the wash there.
inline void SaveThrough(const WashRow& row) {
  for (int x = 0; x < row.width; ++x) {
    const float v = row.strength[x];
    if (v == 255.0F) continue;
    const std::uint8_t* const save = row.save + 4 * x;
    std::uint8_t* const pixel = row.output + 4 * x;
    const float f = v / 255.0F;
    for (int c = 0; c < 3; ++c) {
      const float mixed =
          static_cast<float>(pixel[c]) * f + static_cast<float>(save[c]) * (1.0F - f);
      pixel[c] =
          v == 0.0F ? save[c]
                    : static_cast<std::uint8_t>(static_cast<std::int32_t>(std::min(mixed, 255.0F)));
    }
    row.strength[x] = std::max(v, static_cast<float>(save[3]));
  }
}

inline void Erode(const WashRow& row) {
  const float* __restrict strength = row.strength;
  std::uint8_t* __restrict output = row.output;
  for (int x = 0; x < row.width; ++x) {
    const float a = std::min(static_cast<float>(output[4 * x + 3]), strength[x]);
    output[4 * x + 3] = static_cast<std::uint8_t>(static_cast<std::int32_t>(a));
  }
}

inline std::uint8_t MixToByte(int effect, float g, int d, float f) {
  const float mixed = static_cast<float>(effect) * g + static_cast<float>(d) * f;
  return static_cast<std::uint8_t>(static_cast<std::int32_t>(std::min(mixed, 255.0F)));
}

inline void Stain(const WashRow& row, const WashLook& look) {
  const float* __restrict strength = row.strength;
  std::uint8_t* __restrict output = row.output;
  for (int x = 0; x < row.width; ++x) {
    const float f = strength[x] / 255.0F;
    const float g = 1.0F - f;
    for (int c = 0; c < 3; ++c) {
      const int d = output[4 * x + c];
      output[4 * x + c] = MixToByte(d * look.stain[c] / 255, g, d, f);
    }
  }
}

inline void Bleach(const WashRow& row, const WashLook& look) {
  const float* __restrict strength = row.strength;
  std::uint8_t* __restrict output = row.output;
  for (int x = 0; x < row.width; ++x) {
    const float f = strength[x] / 255.0F;
    const float g = 1.0F - f;
    for (int c = 0; c < 3; ++c) {
      const int d = output[4 * x + c];
      // Shift, not /255: black on black has to give 1.
      const int screened = 255 - (((255 - d) * (255 - look.stain[c])) >> 8);
      output[4 * x + c] = MixToByte(screened, g, d, f);
    }
  }
}

inline void Colour(const WashRow& row, const WashLook& look) {
  const float* __restrict strength = row.strength;
  std::uint8_t* __restrict output = row.output;
  const float k[3] = {static_cast<float>(look.stain[0]), static_cast<float>(look.stain[1]),
                      static_cast<float>(look.stain[2])};
  for (int x = 0; x < row.width; ++x) {
    const float f = strength[x] / 255.0F;
    const float g = 1.0F - f;
    std::uint8_t* const pixel = output + 4 * x;
    float p0 = pixel[0];
    float p1 = pixel[1];
    float p2 = pixel[2];
    BoostMix(k[0], k[1], k[2], p0, p1, p2);
    pixel[0] = MixToByte(static_cast<std::int32_t>(p0), g, pixel[0], f);
    pixel[1] = MixToByte(static_cast<std::int32_t>(p1), g, pixel[1], f);
    pixel[2] = MixToByte(static_cast<std::int32_t>(p2), g, pixel[2], f);
  }
}

inline void WashRowKernel(const WashRow& row, const WashLook& look) {
  if (row.selection != nullptr) {
    MaskedTexture<true>(row, look.inside);
  } else {
    MaskedTexture<false>(row, look.inside);
  }
  ToneStrengths(row, look);
  if (row.save != nullptr) SaveThrough(row);
  switch (look.type) {
    case kWashErosion:
      return Erode(row);
    case kWashBleach:
      return Bleach(row, look);
    case kWashColor:
      return Colour(row, look);
    default:
      return Stain(row, look);
  }
}

}  // namespace
}  // namespace tarnwick
