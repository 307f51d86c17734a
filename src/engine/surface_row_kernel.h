// Included by surface_row.cpp and surface_row_avx2.cpp alone: one source, once
// for each instruction set. No contraction, so the bytes are the same.
#include "engine/shade_blend.h"
#include "engine/surface_row.h"
#include "engine/surface_types.h"

namespace tarnwick {
namespace {

// A row is worked in parts whose floats stay in the nearest cache.
constexpr int kPart = 512;

struct Planes {
  alignas(32) float t[kPart];   // the light
  alignas(32) float s0[kPart];  // the picture
  alignas(32) float s1[kPart];
  alignas(32) float s2[kPart];
  alignas(32) float t0[kPart];  // the tone
  alignas(32) float t1[kPart];
  alignas(32) float t2[kPart];
  alignas(32) float b0[kPart];  // the blend
  alignas(32) float b1[kPart];
  alignas(32) float b2[kPart];
};

inline void SplitSource(const std::uint8_t* __restrict pixels, Planes& __restrict p, int width) {
  for (int x = 0; x < width; ++x) {
    p.s0[x] = pixels[4 * x];
    p.s1[x] = pixels[4 * x + 1];
    p.s2[x] = pixels[4 * x + 2];
  }
}

inline void ToneRow(const ShadeLook& look, const float* __restrict light, Planes& __restrict p,
                    int width) {
  for (int x = 0; x < width; ++x) {
    const float t = LimitLight(light[x]);
    p.t[x] = t;
    const Color3 c = ToneOfLight(look, t);
    p.t0[x] = c.c0;
    p.t1[x] = c.c1;
    p.t2[x] = c.c2;
  }
}

// Calls blend(s, c, t) for each pixel and stores its colour.
template <typename BlendPixel>
inline void BlendRow(Planes& __restrict p, int width, const BlendPixel& blend) {
  for (int x = 0; x < width; ++x) {
    const Color3 b =
        blend(Color3{p.s0[x], p.s1[x], p.s2[x]}, Color3{p.t0[x], p.t1[x], p.t2[x]}, p.t[x]);
    p.b0[x] = b.c0;
    p.b1[x] = b.c1;
    p.b2[x] = b.c2;
  }
}

inline int ToInt(float v) {
  return static_cast<std::int32_t>(v);
}

inline void BlendByType(const ShadeLook& look, Planes& p, int width) {
  switch (look.type) {
    case kSurfaceColorize:
      return BlendRow(p, width, [&](const Color3& s, const Color3& c, float t) {
        const std::int32_t source[3] = {ToInt(s.c0), ToInt(s.c1), ToInt(s.c2)};
        return Colorize(look, source, c, t);
      });
    case kSurfaceTint:
      return BlendRow(p, width, [](const Color3& s, Color3 c, float) {
        TintMix(s.c0, s.c1, s.c2, c.c0, c.c1, c.c2);
        return c;
      });
    case kSurfaceBoost:
      return BlendRow(p, width, [](const Color3& s, Color3 c, float) {
        BoostMix(s.c0, s.c1, s.c2, c.c0, c.c1, c.c2);
        return c;
      });
    case kSurfaceEnhance:
      return BlendRow(p, width, [](const Color3& s, const Color3& c, float) {
        return Color3{Enhance(s.c0, c.c0), Enhance(s.c1, c.c1), Enhance(s.c2, c.c2)};
      });
    case kSurfaceVivid:
      return BlendRow(p, width, [](const Color3& s, const Color3& c, float) {
        return Color3{Vivid(ToInt(s.c0), c.c0), Vivid(ToInt(s.c1), c.c1), Vivid(ToInt(s.c2), c.c2)};
      });
    case kSurfaceMultiply:
      return BlendRow(p, width, [](const Color3& s, const Color3& c, float) {
        return Color3{s.c0 * c.c0 / 255.0F, s.c1 * c.c1 / 255.0F, s.c2 * c.c2 / 255.0F};
      });
    case kSurfaceBurn:
      return BlendRow(p, width, [](const Color3& s, const Color3& c, float) {
        return Color3{Burn(ToInt(s.c0), c.c0), Burn(ToInt(s.c1), c.c1), Burn(ToInt(s.c2), c.c2)};
      });
    default:
      return BlendRow(p, width, [](const Color3&, const Color3& c, float) { return c; });
  }
}

inline void AdjustRow(const ShadeLook& look, Planes& __restrict p, int width) {
  if (look.adjustsHue) {
    for (int x = 0; x < width; ++x) {
      const Color3 c = AdjustHue(look, {p.b0[x], p.b1[x], p.b2[x]});
      p.b0[x] = c.c0;
      p.b1[x] = c.c1;
      p.b2[x] = c.c2;
    }
  }
  if (look.adjustsContrast) {
    for (int x = 0; x < width; ++x) {
      p.b0[x] = AdjustContrast(look, p.b0[x]);
      p.b1[x] = AdjustContrast(look, p.b1[x]);
      p.b2[x] = AdjustContrast(look, p.b2[x]);
    }
  }
}

inline std::uint8_t ToByte(float v) {
  return static_cast<std::uint8_t>(static_cast<std::int32_t>(LimitToByteRange(v)));
}

// The colour that goes out: source and blend mixed, if `kMixed`.
template <bool kMixed>
inline void WriteColors(const SurfaceRow& row, const Planes& p, float intensity) {
  std::uint8_t* __restrict out = row.out;
  const std::uint8_t* __restrict pixels = row.pixels;
  const float rest = 1.0F - intensity;
  for (int x = 0; x < row.width; ++x) {
    if constexpr (kMixed) {
      out[4 * x] = ToByte(p.s0[x] * rest + p.b0[x] * intensity);
      out[4 * x + 1] = ToByte(p.s1[x] * rest + p.b1[x] * intensity);
      out[4 * x + 2] = ToByte(p.s2[x] * rest + p.b2[x] * intensity);
    } else {
      out[4 * x] = static_cast<std::uint8_t>(PureTone(p.t0[x]));
      out[4 * x + 1] = static_cast<std::uint8_t>(PureTone(p.t1[x]));
      out[4 * x + 2] = static_cast<std::uint8_t>(PureTone(p.t2[x]));
    }
    out[4 * x + 3] = pixels[4 * x + 3];
  }
}

// "Fill Canvas": where the picture is transparent the pure tone shows, and its
// brightest channel becomes the alpha.
inline void WriteEntire(const SurfaceRow& row, const Planes& p, const SurfaceLook& look) {
  const std::uint8_t* const pixels = row.pixels;
  const float rest = 1.0F - look.intensity;
  for (int x = 0; x < row.width; ++x) {
    std::uint8_t* const out = row.out + 4 * x;
    const std::int32_t pure[3] = {PureTone(p.t0[x]), PureTone(p.t1[x]), PureTone(p.t2[x])};
    const std::int32_t top = std::max({pure[0], pure[1], pure[2]});
    const int alpha = pixels[4 * x + 3];
    if (row.save != nullptr) {
      std::uint8_t* const save = row.save + 4 * x;
      for (int c = 0; c < 3; ++c) save[c] = static_cast<std::uint8_t>(pure[c]);
      save[3] = static_cast<std::uint8_t>(top);
    }
    if (look.output == SurfaceOutput::kPure) {
      for (int c = 0; c < 3; ++c) out[c] = static_cast<std::uint8_t>(pure[c]);
      out[3] = static_cast<std::uint8_t>(look.keepSave ? top : std::max(alpha, top));
      continue;
    }
    const float a = static_cast<float>(alpha) / 255.0F;
    const float s[3] = {p.s0[x], p.s1[x], p.s2[x]};
    const float b[3] = {p.b0[x], p.b1[x], p.b2[x]};
    for (int c = 0; c < 3; ++c) {
      const float mixed = s[c] * rest + b[c] * look.intensity;
      out[c] = ToByte(mixed * a + static_cast<float>(pure[c]) * (1.0F - a));
    }
    out[3] = static_cast<std::uint8_t>(std::max(alpha, top));
  }
}

inline void WriteSource(const SurfaceRow& row, const SurfaceLook& look) {
  const auto bytes = static_cast<std::ptrdiff_t>(row.width) * 4;
  std::copy_n(row.pixels, bytes, row.out);
  if (look.entire && row.save != nullptr) std::fill_n(row.save, bytes, std::uint8_t{0});
}

inline void SurfacePart(const SurfaceRow& row, const SurfaceLook& look) {
  Planes p;
  ToneRow(look.shade, row.light, p, row.width);
  if (look.output == SurfaceOutput::kBlend) {
    SplitSource(row.pixels, p, row.width);
    BlendByType(look.shade, p, row.width);
    AdjustRow(look.shade, p, row.width);
  }
  if (look.entire) return WriteEntire(row, p, look);
  if (look.output == SurfaceOutput::kPure) return WriteColors<false>(row, p, 0.0F);
  WriteColors<true>(row, p, look.intensity);
}

inline void SurfaceRowKernel(const SurfaceRow& row, const SurfaceLook& look) {
  if (look.output == SurfaceOutput::kSourceOnly) return WriteSource(row, look);
  for (int first = 0; first < row.width; first += kPart) {
    const std::ptrdiff_t at = std::ptrdiff_t{4} * first;
    SurfacePart({row.light + first, row.pixels + at, row.out + at,
                 row.save == nullptr ? nullptr : row.save + at, std::min(kPart, row.width - first)},
                look);
  }
}

}  // namespace
}  // namespace tarnwick
