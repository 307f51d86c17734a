// Included by surface_row.cpp and surface_row_avx2.cpp alone: one source, once
// for each instruction set. No contraction, so the bytes are the same.
#include "engine/shade_blend.h"
#include "engine/surface_row.h"
#include "engine/surface_types.h"

namespace tarnwick {
namespace {

// Plain pointers to the scratch, so that the loops see no aliases.
struct Planes {
  float* __restrict s0;
  float* __restrict s1;
  float* __restrict s2;
  float* __restrict t0;
  float* __restrict t1;
  float* __restrict t2;
  float* __restrict b0;
  float* __restrict b1;
  float* __restrict b2;
};

inline Planes PlanesOf(SurfaceScratch& scratch) {
  return {scratch.source[0].data(), scratch.source[1].data(), scratch.source[2].data(),
          scratch.tone[0].data(),   scratch.tone[1].data(),   scratch.tone[2].data(),
          scratch.blend[0].data(),  scratch.blend[1].data(),  scratch.blend[2].data()};
}

inline void SplitSource(const std::uint8_t* __restrict pixels, const Planes& p, int width) {
  for (int x = 0; x < width; ++x) {
    p.s0[x] = pixels[4 * x];
    p.s1[x] = pixels[4 * x + 1];
    p.s2[x] = pixels[4 * x + 2];
  }
}

inline void ToneRow(const ShadeLook& look, float* __restrict light, const Planes& p, int width) {
  for (int x = 0; x < width; ++x) {
    const float t = LimitLight(light[x]);
    light[x] = t;
    const Color3 c = ToneOfLight(look, t);
    p.t0[x] = c.c0;
    p.t1[x] = c.c1;
    p.t2[x] = c.c2;
  }
}

// Calls blend(s, c, t) for each pixel and stores its colour.
template <typename BlendPixel>
inline void BlendRow(const float* __restrict light, const Planes& p, int width,
                     const BlendPixel& blend) {
  for (int x = 0; x < width; ++x) {
    const Color3 b =
        blend(Color3{p.s0[x], p.s1[x], p.s2[x]}, Color3{p.t0[x], p.t1[x], p.t2[x]}, light[x]);
    p.b0[x] = b.c0;
    p.b1[x] = b.c1;
    p.b2[x] = b.c2;
  }
}

inline int ToInt(float v) {
  return static_cast<std::int32_t>(v);
}

inline void BlendByType(const ShadeLook& look, const float* light, const Planes& p, int width) {
  switch (look.type) {
    case kSurfaceColorize:
      return BlendRow(light, p, width, [&](const Color3& s, const Color3& c, float t) {
        const std::int32_t source[3] = {ToInt(s.c0), ToInt(s.c1), ToInt(s.c2)};
        return Colorize(look, source, c, t);
      });
    case kSurfaceTint:
      return BlendRow(light, p, width, [](const Color3& s, Color3 c, float) {
        TintMix(s.c0, s.c1, s.c2, c.c0, c.c1, c.c2);
        return c;
      });
    case kSurfaceBoost:
      return BlendRow(light, p, width, [](const Color3& s, Color3 c, float) {
        BoostMix(s.c0, s.c1, s.c2, c.c0, c.c1, c.c2);
        return c;
      });
    case kSurfaceEnhance:
      return BlendRow(light, p, width, [](const Color3& s, const Color3& c, float) {
        return Color3{Enhance(s.c0, c.c0), Enhance(s.c1, c.c1), Enhance(s.c2, c.c2)};
      });
    case kSurfaceVivid:
      return BlendRow(light, p, width, [](const Color3& s, const Color3& c, float) {
        return Color3{Vivid(ToInt(s.c0), c.c0), Vivid(ToInt(s.c1), c.c1), Vivid(ToInt(s.c2), c.c2)};
      });
    case kSurfaceMultiply:
      return BlendRow(light, p, width, [](const Color3& s, const Color3& c, float) {
        return Color3{s.c0 * c.c0 / 255.0F, s.c1 * c.c1 / 255.0F, s.c2 * c.c2 / 255.0F};
      });
    case kSurfaceBurn:
      return BlendRow(light, p, width, [](const Color3& s, const Color3& c, float) {
        return Color3{Burn(ToInt(s.c0), c.c0), Burn(ToInt(s.c1), c.c1), Burn(ToInt(s.c2), c.c2)};
      });
    default:
      return BlendRow(light, p, width, [](const Color3&, const Color3& c, float) { return c; });
  }
}

inline void AdjustRow(const ShadeLook& look, const Planes& p, int width) {
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
  return static_cast<std::uint8_t>(static_cast<std::int32_t>(std::min(std::max(v, 0.0F), 255.0F)));
}

// The colour that goes out: source and blend mixed, if `kMixed`.
template <bool kMixed>
inline void WriteColors(const SurfaceRow& row, const Planes& p, float intensity) {
  std::uint8_t* __restrict out = row.out;
  const std::uint8_t* __restrict pixels = row.scratch->pixels.data();
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
  const std::uint8_t* const pixels = row.scratch->pixels.data();
  const float rest = 1.0F - look.intensity;
  for (int x = 0; x < row.width; ++x) {
    std::uint8_t* const out = row.out + 4 * x;
    const std::int32_t pure[3] = {PureTone(p.t0[x]), PureTone(p.t1[x]), PureTone(p.t2[x])};
    const std::int32_t top = std::max({pure[0], pure[1], pure[2]});
    const int alpha = pixels[4 * x + 3];
    if (look.keepSave) {
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
  std::copy_n(row.scratch->pixels.data(), bytes, row.out);
  if (look.entire && look.keepSave) std::fill_n(row.save, bytes, std::uint8_t{0});
}

inline void SurfaceRowKernel(const SurfaceRow& row, const SurfaceLook& look) {
  if (look.output == SurfaceOutput::kSourceOnly) return WriteSource(row, look);
  SurfaceScratch& scratch = *row.scratch;
  const Planes p = PlanesOf(scratch);
  ToneRow(look.shade, scratch.light.data(), p, row.width);
  if (look.output == SurfaceOutput::kBlend) {
    SplitSource(scratch.pixels.data(), p, row.width);
    BlendByType(look.shade, scratch.light.data(), p, row.width);
    AdjustRow(look.shade, p, row.width);
  }
  if (look.entire) return WriteEntire(row, p, look);
  if (look.output == SurfaceOutput::kPure) return WriteColors<false>(row, p, 0.0F);
  WriteColors<true>(row, p, look.intensity);
}

}  // namespace
}  // namespace tarnwick
