#include "imaging/raster_image.h"

#include "base/checked_size.h"
#include "base/page_memory.h"

namespace tarnwick {

RasterImage::RasterImage(std::uint16_t colorMode_, const Rect& bounds_, std::int8_t planeCount_,
                         std::int32_t depth_, std::int32_t margin_, std::uint8_t allocHint_)
    : colorMode(colorMode_),
      rowBits(0),
      depth(depth_ == 0 ? 8 : depth_),
      originBits(0),
      sampleBits(depth_),
      bounds(bounds_),
      margin(margin_),
      planeCount(planeCount_),
      allocHint(allocHint_) {
  // A width that no row of 32-bit length can hold never gets storage.
  const std::int64_t width = std::int64_t{bounds.right} - bounds.left + 2 * std::int64_t{margin};
  const std::int64_t height = std::int64_t{bounds.bottom} - bounds.top + 2 * std::int64_t{margin};
  const auto fits = [](std::int64_t size) { return size >= INT32_MIN && size <= INT32_MAX; };
  if (!fits(width) || !fits(height)) bounds = {};
  const std::int64_t bits = std::int64_t{StorageWidth()} * depth;
  if (StorageWidth() > 0 && bits <= INT32_MAX) rowBits = static_cast<std::int32_t>(bits);
  originBits = (static_cast<std::int64_t>(rowBits) + depth) * margin;
}

std::size_t RasterImage::PlaneBytes() const {
  if (StorageHeight() <= 0) return 0;
  const std::uint64_t bits =
      static_cast<std::uint64_t>(StorageHeight()) * static_cast<std::uint64_t>(rowBits);
  const std::uint64_t bytes = bits / 8;
  return bytes > kMaxImageBytes || bytes > SIZE_MAX ? 0 : static_cast<std::size_t>(bytes);
}

std::uint8_t* RasterImage::Pixels() {
  if (store.memory != nullptr) return store.memory;
  Release();
  const std::size_t plane = PlaneBytes();
  std::size_t bytes = 0;
  if (planeCount <= 0 || !CheckedProduct(plane, static_cast<std::size_t>(planeCount), bytes) ||
      bytes == 0 || bytes > kMaxImageBytes) {
    return nullptr;
  }
  store.committed = AllocatePages(bytes);
  store.memory = static_cast<std::uint8_t*>(store.committed);
  store.bytes = store.memory != nullptr ? bytes : 0;
  return store.memory;
}

std::uint8_t* RasterImage::Interior() {
  std::uint8_t* const pixels = Pixels();
  return pixels == nullptr ? nullptr : pixels + originBits / 8;
}

const std::uint8_t* RasterImage::PeekInterior() const {
  return store.memory == nullptr ? nullptr : store.memory + originBits / 8;
}

void RasterImage::Release() {
  cursor = nullptr;
  FreePages(store.committed, store.bytes);
  store = PixelStore{};
}

std::uint8_t*& RasterImage::CursorToPixels() {
  cursor = Pixels();
  return cursor;
}

ImagePtr MakeGrayImage(const Rect& bounds, std::int32_t margin) {
  return std::make_shared<RasterImage>(kGrayMode, bounds, std::int8_t{1}, 8, margin,
                                       std::uint8_t{0});
}

}  // namespace tarnwick
