#include "dialog/cells/cell_model.h"

#include <algorithm>
#include <cmath>

#include "engine/shade_model.h"

namespace tarnwick::testing {
namespace {

constexpr double kPi = 3.141592;

int Place(int i, int points, int side, float step) {
  const int sampled = static_cast<int>(static_cast<float>(points) * step);
  const int offset = (side - sampled) / 2;
  const auto at = static_cast<int>(static_cast<float>(i) * step + static_cast<float>(offset));
  return std::clamp(at, 0, side - 1);
}

// As many of the document's pixels as of a texture that is 2048 wide and covers it.
float StepOver(int width) {
  return 4.0F / (2048.0F / static_cast<float>(width));
}

// 4, if there are so many.
float BackdropStep(int side, int points) {
  return std::min(4.0F, static_cast<float>(side) / static_cast<float>(points));
}

}  // namespace

int CellModel::Width() const {
  const host::VRect& rect = stage_.host.document.filterRect;
  return rect.right - rect.left;
}

int CellModel::Height() const {
  const host::VRect& rect = stage_.host.document.filterRect;
  return rect.bottom - rect.top;
}

CellModel::Point CellModel::At(int x, int y) const {
  const testhost::Document& document = stage_.host.document;
  const testhost::Layer& layer = document.layers.at(document.target);
  const int pixel = (y + document.filterRect.top) * document.width + x + document.filterRect.left;
  const auto sample = [&](int plane) {
    return int{layer.samples.at(static_cast<std::size_t>(pixel * layer.planes + plane))};
  };
  return {
      {sample(0), sample(1), sample(2)},
      layer.planes >= 4 ? sample(3) : 255,
      document.selection.empty() ? 255 : document.selection.at(static_cast<std::size_t>(pixel))};
}

CellModel::Point CellModel::Sampled(int x, int y, float stepX, float stepY) const {
  return At(Place(x, size_.width, Width(), stepX), Place(y, size_.height, Height(), stepY));
}

CellModel::Point CellModel::Overlaid(int x, int y) const {
  Point point = Sampled(x, y, StepOver(Width()), StepOver(Width()));
  point.alpha = point.alpha * point.selection / 255;
  return point;
}

std::vector<double> CellModel::Backdrop() const {
  std::vector<double> values;
  for (int y = 0; y < size_.height; ++y) {
    for (int x = 0; x < size_.width; ++x) {
      const Point point =
          Sampled(x, y, BackdropStep(Width(), size_.width), BackdropStep(Height(), size_.height));
      const float a = static_cast<float>(point.alpha) / 255;
      const float grid = (x / 8 + y / 8) % 2 == 1 ? 255 : 204;
      // Kept as bytes, truncated in 32 bits: 204 on the grid of 204 can lose one.
      for (const int channel : point.channels) {
        const float mixed = static_cast<float>(channel) * a + grid * (1 - a);
        values.push_back(point.alpha == 255 ? static_cast<float>(channel) : std::floor(mixed));
      }
    }
  }
  return values;
}

double CellModel::Over(double value, double alpha, std::size_t at) const {
  if (alpha == 255) return value;
  return value * alpha / 255 + (under.empty() ? 0 : under.at(at) * (1 - alpha / 255));
}

std::vector<double> CellModel::Wash(const ThumbnailPicture& grey, int type,
                                    std::uint32_t stain) const {
  std::vector<double> values;
  const double light = ((stain & 255) + (stain >> 8 & 255) + (stain >> 16 & 255)) / 765.0;
  for (int y = 0; y < size_.height; ++y) {
    for (int x = 0; x < size_.width; ++x) {
      const Point point = Overlaid(x, y);
      const double v = grey.samples.at(static_cast<std::size_t>(y * size_.width + x) * 3) / 255.0;
      for (unsigned i = 0; i < 3; ++i) {
        const double channel = point.channels[i];
        const double c = stain >> (8 * i) & 255;
        double full = channel * c / 255;
        if (type == 2) full = 255 - (255 - channel) * (255 - c) / 256;
        if (type == 3) {
          full = std::min(channel * c * (1 - light) / 255 + (channel + c) * light, 255.0);
        }
        const double alpha = type == 0 ? std::floor(point.alpha * v + 1e-5) : point.alpha;
        values.push_back(
            Over(type == 0 ? channel : full * (1 - v) + channel * v, alpha, values.size()));
      }
    }
  }
  return values;
}

// Rows from the top; the relief's own go from the bottom, and each point in turn takes
// the mean of what is around it by then. In 32 bits: the shades jump.
std::vector<float> CellModel::Light(const ThumbnailPicture& grey, bool invert, float factor) const {
  const int w = size_.width;
  const int h = size_.height;
  std::vector<float> heights;
  for (std::size_t i = 0; i < grey.samples.size(); i += 3) {
    heights.push_back(factor *
                      static_cast<float>(invert ? 255 - grey.samples[i] : grey.samples[i]));
  }
  const auto at = [&](int x, int y) -> float& {
    return heights.at(static_cast<std::size_t>((h - 1 - y) * w + x));
  };
  for (int y = 1; y < h - 1; ++y) {
    for (int x = 1; x < w - 1; ++x) {
      at(x, y) = (at(x, y) + at(x - 1, y) + at(x + 1, y) + at(x, y - 1) + at(x, y + 1)) / 5;
    }
  }
  const EffectSettings& s = stage_.settings;
  const double b = static_cast<float>(kPi - static_cast<double>(s.SurfaceLightBeta) * kPi / 180);
  const double a = static_cast<float>(static_cast<double>(s.SurfaceLightAlpha) * kPi / 180 + kPi);
  const auto flat = static_cast<float>(std::cos(b));
  float lx = static_cast<float>(std::cos(a)) * flat;
  auto ly = static_cast<float>(std::sin(b));
  float lz = static_cast<float>(std::sin(a)) * flat;
  const float n = std::sqrt(lx * lx + ly * ly + lz * lz);
  lx /= n;
  ly /= n;
  lz /= n;
  const int depth =
      s.SecondSurfaceExists != 0 ? std::max(s.SurfaceDepth1, s.SurfaceDepth2) : s.SurfaceDepth1;
  const float k = std::sqrt(static_cast<float>(depth) / 100) * 150 / StepOver(Width()) / 5000;
  std::vector<float> light(heights.size());
  for (int y = 0; y < h; ++y) {
    for (int x = 0; x < w; ++x) {
      // Beyond the last it goes on as before.
      const float right = x + 1 < w ? at(x + 1, y) : 2 * at(x, y) - at(std::max(x - 1, 0), y);
      const float above = y + 1 < h ? at(x, y + 1) : 2 * at(x, y) - at(x, std::max(y - 1, 0));
      light.at(static_cast<std::size_t>((h - 1 - y) * w + x)) =
          std::clamp(((above - at(x, y)) * lz + (right - at(x, y)) * lx) * k + ly, 0.0F, 1.0F);
    }
  }
  return light;
}

std::vector<double> CellModel::Surface(const ThumbnailPicture& grey, int type, bool invert,
                                       float factor) const {
  const EffectSettings& s = stage_.settings;
  const std::vector<float> light = Light(grey, invert, factor);
  const float intensity = static_cast<float>(s.SurfaceIntensity) / 100;
  std::vector<double> values;
  for (int y = 0; y < size_.height; ++y) {
    for (int x = 0; x < size_.width; ++x) {
      const Point point = Overlaid(x, y);
      const float t = light.at(static_cast<std::size_t>(y * size_.width + x));
      const ModelShade shade =
          ShadeByDefinition(s, type, {point.channels[0], point.channels[1], point.channels[2]}, t);
      const float a = static_cast<float>(point.alpha) / 255;
      int alpha = point.alpha;
      if (s.SurfaceEntire != 0) {
        alpha = std::max(alpha, *std::max_element(shade.pure.begin(), shade.pure.end()));
      }
      for (std::size_t i = 0; i < 3; ++i) {
        float mixed =
            static_cast<float>(point.channels[i]) * (1 - intensity) + shade.blended[i] * intensity;
        if (s.SurfaceEntire != 0) mixed = mixed * a + static_cast<float>(shade.pure[i]) * (1 - a);
        values.push_back(Over(std::floor(std::clamp(mixed, 0.0F, 255.0F)), alpha, values.size()));
      }
    }
  }
  return values;
}

std::string FirstOff(const ThumbnailPicture& picture, const std::vector<double>& want) {
  if (picture.samples.size() != want.size()) return "another size";
  for (std::size_t i = 0; i < want.size(); ++i) {
    const double value = std::clamp(want[i], 0.0, 255.0);
    const double got = picture.samples[i];
    if (got == std::floor(value - 1e-3) || got == std::floor(value + 1e-3)) continue;
    return std::to_string(i) + ": " + std::to_string(got) + ", not " + std::to_string(value);
  }
  return {};
}

}  // namespace tarnwick::testing
