#include "host/layer_fill.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace tarnwick::testhost {
namespace {

std::size_t SampleCount(const Document& document, int planes) {
  return static_cast<std::size_t>(document.width) * static_cast<std::size_t>(document.height) *
         static_cast<std::size_t>(planes);
}

// The plane of the picture that a document's plane comes from; none: -1.
int SourcePlane(const Document& document, int plane, int picturePlanes) {
  const int colors = ColorPlanes(document.mode);
  const int fromPicture = std::min(colors, 3);
  if (plane < fromPicture) return std::min(plane, picturePlanes - 1);
  return plane == colors && picturePlanes == 4 ? 3 : -1;
}

void CheckSize(const Document& document, const testing::Pnm& picture) {
  if (picture.width != document.width || picture.height != document.height) {
    throw std::runtime_error("the picture has another size than the document");
  }
}

}  // namespace

Layer MakeLayer(const Document& document, const std::string& name, int planes,
                const testing::Pnm& picture) {
  CheckSize(document, picture);
  Layer layer{name, true, planes, {}, {}};
  layer.samples.reserve(SampleCount(document, planes) *
                        static_cast<std::size_t>(document.SampleBytes()));
  for (int y = 0; y < document.height; ++y) {
    for (int x = 0; x < document.width; ++x) {
      for (int plane = 0; plane < planes; ++plane) {
        const int source = SourcePlane(document, plane, picture.planes);
        const std::uint8_t value = source < 0
                                       ? PlaneFill(document, plane, x, y)
                                       : picture.samples[static_cast<std::size_t>(
                                             (y * picture.width + x) * picture.planes + source)];
        layer.samples.insert(layer.samples.end(), static_cast<std::size_t>(document.SampleBytes()),
                             value);
      }
    }
  }
  layer.original = layer.samples;
  return layer;
}

testing::Pnm WithAlpha(const testing::Pnm& color, const testing::Pnm& alpha) {
  testing::Pnm both{color.width, color.height, 4, {}};
  for (std::size_t i = 0; i < alpha.samples.size(); ++i) {
    both.samples.insert(both.samples.end(), {color.samples[3 * i], color.samples[3 * i + 1],
                                             color.samples[3 * i + 2], alpha.samples[i]});
  }
  return both;
}

testing::Pnm PatternPicture(int width, int height) {
  testing::Pnm picture{width, height, 3, {}};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      for (const int value : {x * 5 + y, 255 - x * 3, y * 11 + x}) {
        picture.samples.push_back(static_cast<std::uint8_t>(value));
      }
    }
  }
  return picture;
}

Layer MakeByteLayer(const Document& document, const std::string& name, int planes,
                    const testing::Pnm& picture) {
  CheckSize(document, picture);
  if (picture.planes != planes) throw std::runtime_error("the picture has other planes");
  Layer layer{name, true, planes, {}, {}};
  layer.samples = picture.samples;
  for (std::size_t i = 0; layer.samples.size() < 2 * SampleCount(document, planes); ++i) {
    layer.samples.push_back(static_cast<std::uint8_t>(i * 13));
  }
  layer.original = layer.samples;
  return layer;
}

testing::Pnm PlanesOf(const Document& document, const Layer& layer, int low, int high) {
  if (low < 0 || high < low || high >= layer.planes || document.depth != 8) {
    throw std::runtime_error("the layer has no such planes of 8 bits");
  }
  testing::Pnm picture{document.width, document.height, high - low + 1, {}};
  const auto planes = static_cast<std::size_t>(layer.planes);
  for (std::size_t at = 0; at < layer.samples.size(); at += planes) {
    picture.samples.insert(picture.samples.end(),
                           layer.samples.begin() + static_cast<std::ptrdiff_t>(at) + low,
                           layer.samples.begin() + static_cast<std::ptrdiff_t>(at) + high + 1);
  }
  return picture;
}

void WritePam(const std::string& path, const testing::Pnm& picture) {
  std::ofstream out(path, std::ios::binary);
  out << "P7\nWIDTH " << picture.width << "\nHEIGHT " << picture.height << "\nDEPTH "
      << picture.planes << "\nMAXVAL 255\nENDHDR\n";
  out.write(reinterpret_cast<const char*>(picture.samples.data()),
            static_cast<std::streamsize>(picture.samples.size()));
  if (!out) throw std::runtime_error(path + " cannot be written");
}

}  // namespace tarnwick::testhost
