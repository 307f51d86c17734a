#include "develop.h"

#include <algorithm>
#include <array>

#include "noise.h"
#include "portable_math.h"

namespace tarnwick::photo {
namespace {

constexpr float kExposure = 1.08f;
constexpr float kGrain = 0.011f;
constexpr float kCurveTop = 16;  // exposures beyond count as this
constexpr int kCurveSteps = 4096;

float EncodeSrgb(float v) {
  return v <= 0.0031308f ? v * 12.92f : 1.055f * Pow(v, 1 / 2.4f) - 0.055f;
}

// The curve and the encoding, over the square root of the exposure: shadows need
// the finer steps.
std::array<float, kCurveSteps + 1> CurveTable() {
  std::array<float, kCurveSteps + 1> table;
  for (std::size_t i = 0; i < table.size(); ++i) {
    const float root = static_cast<float>(i) / kCurveSteps;
    table[i] = EncodeSrgb(FilmCurve(root * root * kCurveTop));
  }
  return table;
}

float Look(const std::array<float, kCurveSteps + 1>& table, float exposure) {
  const float at = std::sqrt(Clamp(exposure, 0, kCurveTop) / kCurveTop) * kCurveSteps;
  const auto i = static_cast<std::size_t>(Min(at, kCurveSteps - 1));
  return Mix(table[i], table[i + 1], at - static_cast<float>(i));
}

// Silver clumps: white noise and a little of its neighbours', mean 0.
float Grain(int x, int y, std::uint32_t layer) {
  const auto white = [&](int px, int py) {
    const std::uint32_t h =
        HashWords(static_cast<std::uint32_t>(px) * 3 + layer, static_cast<std::uint32_t>(py));
    return UnitFloat(h) + UnitFloat(HashWord(h)) - 1;
  };
  return 0.6f * white(x, y) +
         0.28f * (white(x - 1, y) + white(x + 1, y) + white(x, y - 1) + white(x, y + 1));
}

// Dims single pixels that outshine all but one of their neighbours: few rays find
// the sun between leaves, and those that do would sparkle.
std::vector<Vec3> WithoutSparkles(const std::vector<Vec3>& light, int width, int height,
                                  ThreadPool& pool) {
  constexpr float kMost = 1.15f;
  std::vector<Vec3> out = light;
  pool.ForRows(1, height - 1, 8, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      for (int x = 1; x + 1 < width; ++x) {
        const std::size_t i = static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                              static_cast<std::size_t>(x);
        float brightest = 0;
        float next = 0;
        for (const std::size_t row :
             {i - static_cast<std::size_t>(width), i, i + static_cast<std::size_t>(width)}) {
          for (const std::size_t at : {row - 1, row, row + 1}) {
            if (at == i) continue;
            const float l = Luminance(light[at]);
            next = Max(next, Min(l, brightest));
            brightest = Max(brightest, l);
          }
        }
        const float own = Luminance(light[i]);
        if (own > next * kMost && own > 0) out[i] = light[i] * (next * kMost / own);
      }
    }
  });
  return out;
}

// No lens is sharp to the pixel: one pass over three columns, one over three rows.
std::vector<Vec3> ThroughLens(const std::vector<Vec3>& light, int width, int height,
                              ThreadPool& pool) {
  constexpr float kBeside = 0.11f;
  const auto pass = [&](const std::vector<Vec3>& in, int dx, int dy) {
    std::vector<Vec3> out(in.size());
    pool.ForRows(0, height, 8, [&](int first, int last) {
      for (int y = first; y < last; ++y) {
        for (int x = 0; x < width; ++x) {
          const auto at = [&](int px, int py) {
            px = std::clamp(px, 0, width - 1);
            py = std::clamp(py, 0, height - 1);
            return in[static_cast<std::size_t>(py) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(px)];
          };
          out[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
              static_cast<std::size_t>(x)] =
              at(x, y) * (1 - 2 * kBeside) + (at(x - dx, y - dy) + at(x + dx, y + dy)) * kBeside;
        }
      }
    });
    return out;
  };
  return pass(pass(light, 1, 0), 0, 1);
}

}  // namespace

float FilmCurve(float x) {
  // A quotient of two parabolas; 0.18 comes out near 0.18.
  x = Max(x, 0);
  return Saturate(x * (2.51f * x + 0.09f) / (x * (2.43f * x + 0.83f) + 0.22f));
}

std::vector<std::uint8_t> Develop(const std::vector<Vec3>& exposure, int width, int height,
                                  ThreadPool& pool) {
  const auto table = CurveTable();
  const std::vector<Vec3> light =
      ThroughLens(WithoutSparkles(exposure, width, height, pool), width, height, pool);
  std::vector<std::uint8_t> bytes(light.size() * 3);
  const float half = static_cast<float>(width) * 0.5f;
  pool.ForRows(0, height, 8, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      for (int x = 0; x < width; ++x) {
        const std::size_t i = static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                              static_cast<std::size_t>(x);
        const float dx = (static_cast<float>(x) + 0.5f) / half - 1;
        const float dy = (static_cast<float>(y) + 0.5f - static_cast<float>(height) * 0.5f) / half;
        const float falloff = 1 / (1 + 0.20f * (dx * dx + dy * dy));
        const Vec3 exposed = light[i] * (kExposure * falloff * falloff);
        const float grain = Grain(x, y, 0);
        const float value[3] = {Look(table, exposed.x), Look(table, exposed.y),
                                Look(table, exposed.z)};
        for (std::size_t c = 0; c < 3; ++c) {
          // Grain is strongest in the middle tones and never quite the same in
          // the three layers.
          const float mid = 0.35f + 2.2f * value[c] * (1 - value[c]);
          const float own = Grain(x, y, static_cast<std::uint32_t>(c) + 1);
          const float v = value[c] + kGrain * mid * (grain + 0.35f * own);
          bytes[i * 3 + c] = static_cast<std::uint8_t>(Clamp(v * 255 + 0.5f, 0, 255));
        }
      }
    }
  });
  return bytes;
}

}  // namespace tarnwick::photo
