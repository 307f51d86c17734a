#pragma once
#include <cstddef>
#include <cstdint>
#include <memory>

#include "imaging/rect.h"

namespace tarnwick {

// Image modes as the host numbers them.
inline constexpr std::uint16_t kGrayMode = 1;
inline constexpr std::uint16_t kRgbMode = 3;
inline constexpr std::uint16_t kCmykMode = 4;

// No image takes more than this; a larger one counts as out of memory. A texture
// of the picture's own shape fits at every scale, up to 30,000 x 30,000.
inline constexpr std::uint64_t kMaxImageBytes = std::uint64_t{1} << 32;

// Owns the memory of an image. `committed` and `memory` are both set or neither.
struct PixelStore {
  void* committed = nullptr;
  std::uint8_t* memory = nullptr;
  std::size_t bytes = 0;
};

// A block of samples, plane after plane, with `margin` extra samples on each
// side of the interior that `bounds` describes.
//
// Samples  depth 8 in all engine use; a depth of 0 means 8. With depth 8 the
//          stride in bytes is the storage width, without padding.
// Storage  is taken on the first Pixels() or Interior(), zeroed, margin
//          included. Without memory these give null, and whoever gets null
//          leaves its work out.
// Bounds   need not start at 0, 0: only the differences count.
class RasterImage {
 public:
  RasterImage(std::uint16_t colorMode, const Rect& bounds, std::int8_t planeCount,
              std::int32_t depth, std::int32_t margin, std::uint8_t allocHint);
  ~RasterImage() { Release(); }
  RasterImage(const RasterImage&) = delete;
  RasterImage& operator=(const RasterImage&) = delete;

  [[nodiscard]] std::int32_t Width() const { return bounds.Width(); }
  [[nodiscard]] std::int32_t Height() const { return bounds.Height(); }
  [[nodiscard]] std::int32_t StorageWidth() const { return Width() + 2 * margin; }
  [[nodiscard]] std::int32_t StorageHeight() const { return Height() + 2 * margin; }
  // One storage row; RowBits() / 8 is the stride.
  [[nodiscard]] std::int32_t RowBits() const { return rowBits; }
  [[nodiscard]] std::ptrdiff_t RowBytes() const { return rowBits / 8; }
  [[nodiscard]] std::int32_t SampleBits() const { return sampleBits == 0 ? 8 : sampleBits; }
  [[nodiscard]] std::size_t PlaneBytes() const;

  // Plane 0 at the corner of the margin. Takes storage if there is none.
  [[nodiscard]] std::uint8_t* Pixels();
  // The same, but null if there is no storage yet.
  [[nodiscard]] std::uint8_t* PeekPixels() { return store.memory; }
  [[nodiscard]] const std::uint8_t* PeekPixels() const { return store.memory; }
  // The first interior sample of plane 0.
  [[nodiscard]] std::uint8_t* Interior();
  [[nodiscard]] const std::uint8_t* PeekInterior() const;

  // Gives the storage back; the next Pixels() starts over with zeros.
  void Release();
  // Points `cursor` at the pixels and hands it out, for code that walks tiles.
  [[nodiscard]] std::uint8_t*& CursorToPixels();

  std::uint16_t colorMode;
  std::uint8_t* cursor = nullptr;
  std::int32_t rowBits;
  std::int32_t depth;
  std::int64_t originBits;  // from the start of a plane to the first interior sample
  std::int32_t sampleBits;
  PixelStore store;
  Rect bounds;
  std::int32_t margin;
  std::int8_t planeCount;
  std::uint8_t allocHint;  // stated by every creator; has no effect
};

using ImagePtr = std::shared_ptr<RasterImage>;

// A grey image of one plane at depth 8.
[[nodiscard]] ImagePtr MakeGrayImage(const Rect& bounds, std::int32_t margin);

}  // namespace tarnwick
