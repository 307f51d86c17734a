#include "support/images.h"

#include <algorithm>

namespace tarnwick::testing {

ImagePtr GrayOf(int width, const Bytes& rows, int margin) {
  const int height = static_cast<int>(rows.size()) / width;
  ImagePtr image = MakeGrayImage({0, 0, height - 2 * margin, width - 2 * margin}, margin);
  std::copy(rows.begin(), rows.end(), image->Pixels());
  return image;
}

ImagePtr GrayOf(const Pnm& picture) {
  return GrayOf(picture.width, picture.samples);
}

ImagePtr PlanesOf(int width, int height, int planes, const Bytes& samples) {
  auto image = std::make_shared<RasterImage>(
      kRgbMode, Rect{0, 0, height, width}, static_cast<std::int8_t>(planes), 8, 0, std::uint8_t{0});
  std::copy(samples.begin(), samples.end(), image->Pixels());
  return image;
}

Bytes StorageOf(const RasterImage& image) {
  const std::uint8_t* const pixels = image.PeekPixels();
  return pixels == nullptr ? Bytes{} : Bytes(pixels, pixels + image.store.bytes);
}

Pnm InteriorOf(const RasterImage& image) {
  Pnm picture{image.Width(), image.Height(), 1, {}};
  const std::uint8_t* row = image.PeekInterior();
  for (int y = 0; row != nullptr && y < image.Height(); ++y, row += image.RowBytes()) {
    picture.samples.insert(picture.samples.end(), row, row + image.Width());
  }
  return picture;
}

}  // namespace tarnwick::testing
