#include "engine/reference_render.h"

#include <algorithm>
#include <cmath>

#include "engine/intensity_table.h"
#include "engine/reference_masks.h"
#include "engine/reference_pixels.h"
#include "engine/shade_model.h"
#include "support/images.h"

namespace tarnwick::testing {
namespace {

std::uint8_t Byte(float v) {
  return static_cast<std::uint8_t>(static_cast<int>(v));
}

float Float(int v) {
  return static_cast<float>(v);
}

class Reference {
 public:
  Reference(const SteppedRender& run, const EffectSettings& settings)
      : state_(run.state),
        layers_(run.layers),
        s_(settings),
        width_(run.state.renderWidth),
        height_(run.state.renderHeight),
        source_(run.state.sourcePixels.Data(),
                run.state.sourcePixels.Data() + run.state.PixelCount() * 4),
        out_(source_),
        save_(source_.size(), 0) {
    keepSave_ = s_.WashUse != 0 && s_.SurfaceUse != 0 && s_.SurfaceEntire != 0 &&
                s_.SurfaceIncludeWashArea != 0 && state_.planes > 3;
  }

  Bytes Result() {
    if (s_.WashUse != 0) PrepareEdges();
    Surfaces();
    if (s_.WashUse != 0) {
      Wash(0);
      if (s_.SecondWashExists != 0) Wash(1);
    }
    if (s_.BackgroundUse != 0) Background();
    return out_;
  }

 private:
  [[nodiscard]] std::size_t At(int x, int y) const {
    return static_cast<std::size_t>(y * width_ + x);
  }
  [[nodiscard]] bool IsNamed(const EffectLayer& layer) const {
    return layer.fileName != state_.textureFolder + "/" + kNoTextureName &&
           layer.fileName != state_.textureFolder + "\\" + kNoTextureName;
  }
  [[nodiscard]] float Selected(int x, int y) const {
    return state_.hasSelection ? Float(state_.selection[y * state_.selectionRowBytes + x]) : 255;
  }
  // Calls each(x, y, sample) where texture and picture both lie.
  template <typename Each>
  void ForTexture(const EffectLayer& layer, const Each& each) const {
    const Pnm texture = InteriorOf(*layer.working);
    for (int y = 0; y < std::min(texture.height, height_); ++y) {
      for (int x = 0; x < std::min(texture.width, width_); ++x) {
        each(x, y, texture.samples[static_cast<std::size_t>(y * texture.width + x)]);
      }
    }
  }

  void PrepareEdges() {
    Bytes plane;
    if (state_.hasSelection || state_.planes > 3) {
      for (std::size_t i = 0; i < state_.PixelCount(); ++i) {
        const int x = static_cast<int>(i) % width_;
        const int alpha = source_[4 * i + 3];
        plane.push_back(static_cast<std::uint8_t>(
            static_cast<int>(Selected(x, static_cast<int>(i) / width_)) * alpha / 255));
      }
    }
    edges_[0] =
        EdgeByDefinition(plane, width_, height_, s_.WashEdgeDistance1, s_.WashEdgeSoftness1);
    edges_[1] =
        EdgeByDefinition(plane, width_, height_, s_.WashEdgeDistance2, s_.WashEdgeSoftness2);
  }

  void Surfaces() {
    const bool first = IsNamed(layers_.surfaces[0]);
    const bool second = s_.SecondSurfaceExists != 0 && IsNamed(layers_.surfaces[1]);
    if (s_.SurfaceUse == 0 || (!first && !second)) {
      edgeSamples_[0] = edges_[0];
      edgeSamples_[1] = edges_[1];
      return;
    }
    for (Bytes& samples : edgeSamples_) samples.assign(state_.PixelCount(), 0);
    const Bytes heights = Heights(first, second);
    for (std::size_t i = 0; i < state_.PixelCount(); ++i) {
      const float selected =
          Selected(static_cast<int>(i) % width_, static_cast<int>(i) / width_) / 255;
      out_[4 * i + 3] = Byte(selected * Float(source_[4 * i + 3]));
    }
    ComposeSurface(heights);
    if (!state_.hasSelection) return;
    for (std::size_t i = 0; i < out_.size(); ++i) {
      const int pixel = static_cast<int>(i) / 4;
      const float q = Selected(pixel % width_, pixel / width_) / 255;
      out_[i] = Byte(Float(source_[i]) * (1 - q) + Float(out_[i]) * q);
    }
  }

  [[nodiscard]] Bytes Heights(bool first, bool second) const {
    const float d1 = Float(s_.SurfaceDepth1) / 100;
    const float d2 = Float(s_.SurfaceDepth2) / 100;
    Bytes heights(state_.PixelCount(), 0);
    Bytes one(state_.PixelCount(), 0);
    Bytes inOne(state_.PixelCount(), 0);
    if (first) {
      ForTexture(layers_.surfaces[0], [&](int x, int y, int h) {
        one[At(x, y)] = static_cast<std::uint8_t>(h);
        inOne[At(x, y)] = 1;
        heights[At(x, y)] = Byte(Float(h) * d1);
      });
    }
    if (!second) return heights;
    ForTexture(layers_.surfaces[1], [&](int x, int y, int h) {
      const std::size_t at = At(x, y);
      const float sum = d1 + d2 == 0 ? 1 : d1 + d2;
      if (!first) heights[at] = Byte(Float(h) * d2);
      if (inOne[at] != 0) {
        heights[at] = Byte(std::min((Float(one[at]) * d1 + Float(h) * d2) / sum, 255.0F));
      }
    });
    return heights;
  }

  void ComposeSurface(const Bytes& heights) {
    const EffectLayer& layer = layers_.surfaces[0];
    const int w = std::min(layer.working->Width(), width_);
    const int h = std::min(layer.working->Height(), height_);
    const float depth =
        Float(s_.SecondSurfaceExists != 0 ? std::max(s_.SurfaceDepth1, s_.SurfaceDepth2)
                                          : s_.SurfaceDepth1);
    const auto angle = [](float degrees) {
      return static_cast<double>(
          static_cast<float>(3.141592 - static_cast<double>(degrees) * 3.141592 / 180));
    };
    const double a = angle(s_.SurfaceLightAlpha);
    const double b = angle(s_.SurfaceLightBeta);
    const auto cb = static_cast<float>(std::cos(b));
    float light[3] = {static_cast<float>(std::cos(a)) * cb, static_cast<float>(std::sin(a)) * cb,
                      static_cast<float>(std::sin(b))};
    const float n = std::sqrt(light[0] * light[0] + light[2] * light[2] + light[1] * light[1]);
    for (float& part : light) part = n == 0 || n == 1 ? part : part / n;
    const float slope = std::sqrt(depth / 100) * 150 / 1 / 5000;
    const float k2 = std::sqrt(depth / 100) * 150 / 1 / 1000;
    const int lift = static_cast<int>(k2 * 127);

    const Bytes before = out_;
    for (int y = 0; y < h; ++y) {
      for (int x = 0; x < w; ++x) {
        const int c = heights[At(x, y)];
        const int right = w == 1      ? c
                          : x + 1 < w ? heights[At(x + 1, y)]
                                      : 2 * c - heights[At(x - 1, y)];
        const int below = h == 1      ? c
                          : y + 1 < h ? heights[At(x, y + 1)]
                                      : 2 * c - heights[At(x, y - 1)];
        const float t =
            (Float(below - c) * light[1] + Float(right - c) * light[0]) * slope + light[2];
        std::array<int, 3> color{};
        int alpha = before[4 * At(x, y) + 3];
        int washRow = y;
        for (std::size_t i = 0; i < 3; ++i) color[i] = source_[4 * At(x, y) + i];
        if (s_.SurfacePerspectiveOn != 0) {
          const float z = Float(c) * k2;
          const int s = static_cast<int>(z);
          const int rowA = std::clamp(y - s + lift, 0, h - 1);
          const int rowB = std::min(rowA + 1, h - 1);
          const float f = z - Float(s);
          const auto mixed = [&](std::size_t i) {
            return static_cast<int>(Float(source_[4 * At(x, rowA) + i]) * f +
                                    Float(source_[4 * At(x, rowB) + i]) * (1 - f));
          };
          color = {mixed(0), mixed(1), mixed(2)};
          alpha = mixed(3);
          washRow = rowB;
        }
        ShadePixel(At(x, y), color, alpha, t);
        for (std::size_t i = 0; i < 2; ++i) {
          if (!edges_[i].empty()) edgeSamples_[i][At(x, y)] = edges_[i][At(x, washRow)];
        }
      }
    }
  }

  void ShadePixel(std::size_t at, const std::array<int, 3>& color, int alpha, float light) {
    const ModelShade shade = ShadeByDefinition(s_, layers_.surfaces[0].surfaceType, color, light);
    const float amount = Float(s_.SurfaceIntensity) / 100;
    const int top = std::max({shade.pure[0], shade.pure[1], shade.pure[2]});
    const float a = Float(alpha) / 255;
    for (std::size_t i = 0; i < 3; ++i) {
      float v = Float(color[i]) * (1 - amount) + shade.blended[i] * amount;
      if (s_.SurfaceEntire != 0) v = v * a + Float(shade.pure[i]) * (1 - a);
      out_[4 * at + i] = Byte(std::clamp(v, 0.0F, 255.0F));
      save_[4 * at + i] = static_cast<std::uint8_t>(shade.pure[i]);
    }
    save_[4 * at + 3] = static_cast<std::uint8_t>(top);
    out_[4 * at + 3] =
        static_cast<std::uint8_t>(s_.SurfaceEntire != 0 ? std::max(alpha, top) : alpha);
  }

  void Wash(std::size_t index) {
    const EffectLayer& layer = layers_.washes[index];
    if (!IsNamed(layer)) return;
    const bool two = index == 1;
    const int width = layer.working->Width();
    const Bytes coverage = CoverageByDefinition(width, layer.working->Height(),
                                                two ? s_.WashCoverage2 : s_.WashCoverage1,
                                                two ? s_.WashCoverageScale2 : s_.WashCoverageScale1,
                                                two ? s_.WashRandomize2 : s_.WashRandomize1);
    const bool inside = (two ? s_.WashInside2 : s_.WashInside1) != 0;
    const int intensity = two ? s_.WashIntensity2 : s_.WashIntensity1;
    const std::uint32_t stain = two ? s_.WashStainColor2 : s_.WashStainColor1;
    const int type = two ? s_.WashType2 : s_.WashType1;
    EffectLayer table;
    BuildIntensityTable(table, intensity);
    ForTexture(layer, [&](int x, int y, int t) {
      const float m = Float(coverage[static_cast<std::size_t>(y * width + x)]) / 255;
      const int edge = edgeSamples_[index][At(x, y)];
      float a = Float(inside ? edge : 255 - edge) / 255 * m;
      if (state_.hasSelection) a = a * Selected(x, y) / 255;
      const float b = a * Float(t) + (1 - a) * 255;
      float v = intensity >= 101
                    ? std::clamp((Float(intensity - 100) / 70 + 1) * (b - 127) + 127, 0.0F, 255.0F)
                    : Float(table.intensityTable[Byte(b)]);
      std::uint8_t* const pixel = &out_[4 * At(x, y)];
      if (keepSave_ && v != 255) v = SaveThroughByDefinition(pixel, &save_[4 * At(x, y)], v);
      WashByDefinition(pixel, type, stain, v);
    });
  }

  void Background() {
    if (!IsNamed(layers_.background)) return;
    Bytes ground(out_.size(), 0);
    float low = 255;
    float high = 0;
    ForTexture(layers_.background, [&](int, int, int t) {
      low = std::min(low, Float(t) / 255);
      high = std::max(high, Float(t) / 255);
    });
    const double margin = 0.1 * static_cast<double>(high - low);
    if (high != low) {
      low = static_cast<float>(static_cast<double>(low) + margin);
      high = static_cast<float>(static_cast<double>(high) - margin);
    }
    ForTexture(layers_.background, [&](int x, int y, int t) {
      ToneByDefinition(s_, Float(t) / 255, low, high, &ground[4 * At(x, y)]);
    });
    const bool fill = s_.BackgroundEntire != 0 && state_.planes > 3;
    for (std::size_t i = 0; i < out_.size(); i += 4) {
      const int pixel = static_cast<int>(i) / 4;
      const float q = Selected(pixel % width_, pixel / width_) / 255;
      const float a = Float(out_[i + 3]) / 255;
      for (std::size_t c = i; c < i + 3; ++c) {
        const float under = state_.hasSelection ? Float(source_[c]) * (1 - q) + Float(ground[c]) * q
                                                : Float(ground[c]);
        out_[c] = Byte(under * (1 - a) + Float(out_[c]) * a);
      }
      const float sourceAlpha = Float(source_[i + 3]);
      out_[i + 3] =
          Byte(fill ? std::max(q * 255, sourceAlpha) : std::max(Float(out_[i + 3]), sourceAlpha));
    }
  }

  const RenderState& state_;
  const EffectLayers& layers_;
  const EffectSettings& s_;
  int width_;
  int height_;
  Bytes source_;
  Bytes out_;
  Bytes save_;
  bool keepSave_ = false;
  Bytes edges_[2];
  Bytes edgeSamples_[2];
};

}  // namespace

Bytes ReferenceRender(const SteppedRender& run, const EffectSettings& settings) {
  return Reference(run, settings).Result();
}

}  // namespace tarnwick::testing
