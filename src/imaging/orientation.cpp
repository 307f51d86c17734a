#include "imaging/orientation.h"

#include <algorithm>
#include <cstring>

namespace tarnwick {
namespace {

ImagePtr MakeTurned(const RasterImage& source) {
  Rect bounds = source.bounds;
  bounds.Transpose();
  return std::make_shared<RasterImage>(source.colorMode, bounds, source.planeCount,
                                       source.sampleBits, 0, source.allocHint);
}

// A turn reads columns: blocks keep both sides in the cache.
constexpr int kBlock = 32;

template <typename SourceOf>
bool Turn(ImagePtr& result, const RasterImage* source, ThreadPool* pool, const SourceOf& sourceOf) {
  if (source == nullptr || source->PeekInterior() == nullptr) return false;
  ImagePtr image = MakeTurned(*source);
  std::uint8_t* const out = image->Interior();
  if (out == nullptr) return false;
  const int width = image->Width();
  const int height = image->Height();
  const std::ptrdiff_t stride = image->RowBytes();
  ForRows(pool, 0, height, [&](int first, int last) {
    for (int top = first; top < last; top += kBlock) {
      for (int left = 0; left < width; left += kBlock) {
        for (int y = top; y < std::min(top + kBlock, last); ++y) {
          for (int x = left; x < std::min(left + kBlock, width); ++x) {
            out[y * stride + x] = *sourceOf(x, y, width, height);
          }
        }
      }
    }
  });
  result = std::move(image);
  return true;
}

bool SameShape(const RasterImage& a, const RasterImage& b) {
  return a.RowBits() == b.RowBits() && a.Width() == b.Width() && a.Height() == b.Height() &&
         a.planeCount == b.planeCount;
}

// Calls work(targetRow, copyInterior, y, width, height, copyStride) for each row
// of each plane.
template <typename RowCopy>
bool ForEachRow(RasterImage& target, const RasterImage& copy, ThreadPool* pool,
                const RowCopy& rowCopy) {
  if (!SameShape(target, copy)) return false;
  const std::uint8_t* const in = copy.PeekInterior();
  std::uint8_t* const out = target.Interior();
  if (in == nullptr || out == nullptr) return false;
  for (int i = 0; i < target.planeCount; ++i) {
    const auto plane = static_cast<std::size_t>(i);
    std::uint8_t* const to = out + plane * target.PlaneBytes();
    const std::uint8_t* const from = in + plane * copy.PlaneBytes();
    ForRows(pool, 0, target.Height(), [&](int first, int last) {
      for (int y = first; y < last; ++y) rowCopy(to + y * target.RowBytes(), from, y);
    });
  }
  return true;
}

}  // namespace

bool RotateClockwise(ImagePtr& result, const RasterImage* source, ThreadPool* pool) {
  // Source (x, y) goes to (newWidth - 1 - y, x).
  return Turn(result, source, pool, [&](int x, int y, int width, int) {
    return source->PeekInterior() + (width - 1 - x) * source->RowBytes() + y;
  });
}

bool RotateCounterClockwise(ImagePtr& result, const RasterImage* source, ThreadPool* pool) {
  // Source (x, y) goes to (y, newHeight - 1 - x).
  return Turn(result, source, pool, [&](int x, int y, int, int height) {
    return source->PeekInterior() + x * source->RowBytes() + (height - 1 - y);
  });
}

bool ReverseRows(RasterImage& target, const RasterImage& copy, ThreadPool* pool) {
  const int height = target.Height();
  const auto width = static_cast<std::size_t>(target.Width());
  return ForEachRow(target, copy, pool, [&](std::uint8_t* to, const std::uint8_t* from, int y) {
    std::memcpy(to, from + (height - 1 - y) * copy.RowBytes(), width);
  });
}

bool MirrorRows(RasterImage& target, const RasterImage& copy, ThreadPool* pool) {
  const int width = target.Width();
  return ForEachRow(target, copy, pool, [&](std::uint8_t* to, const std::uint8_t* from, int y) {
    const std::uint8_t* const row = from + y * copy.RowBytes();
    std::reverse_copy(row, row + width, to);
  });
}

bool CopyPixels(RasterImage& target, const RasterImage& source) {
  if (target.RowBits() != source.RowBits() || target.Height() != source.Height() ||
      target.Width() != source.Width() || target.planeCount > source.planeCount ||
      source.PeekPixels() == nullptr || target.Pixels() == nullptr) {
    return false;
  }
  std::memcpy(target.Pixels(), source.PeekPixels(),
              std::min(target.store.bytes, source.store.bytes));
  return true;
}

bool CopyRegion(RasterImage& target, const RasterImage& source, const Rect& rect) {
  const std::uint8_t* const in = source.PeekInterior();
  std::uint8_t* const out = target.Interior();
  if (in == nullptr || out == nullptr || rect.Width() <= 0 || rect.Height() <= 0) return false;
  const int dx = (target.Width() - rect.Width()) / 2;
  const int dy = (target.Height() - rect.Height()) / 2;
  // Source columns and rows that exist and land inside the target.
  const int left = std::max({rect.left, 0, rect.left - dx});
  const int right = std::min({rect.right, source.Width(), rect.left - dx + target.Width()});
  const int top = std::max({rect.top, 0, rect.top - dy});
  const int bottom = std::min({rect.bottom, source.Height(), rect.top - dy + target.Height()});
  if (right <= left) return true;
  for (int i = 0; i < std::min(target.planeCount, source.planeCount); ++i) {
    const auto plane = static_cast<std::size_t>(i);
    for (int y = top; y < bottom; ++y) {
      std::memcpy(out + plane * target.PlaneBytes() + (y - rect.top + dy) * target.RowBytes() +
                      (left - rect.left + dx),
                  in + plane * source.PlaneBytes() + y * source.RowBytes() + left,
                  static_cast<std::size_t>(right - left));
    }
  }
  return true;
}

}  // namespace tarnwick
