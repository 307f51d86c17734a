#include "engine/distance_field.h"

#include <algorithm>
#include <cstring>

namespace tarnwick {
namespace {

// A vector to a seed, two signed halves in a word.
struct Vector {
  std::int16_t dx;
  std::int16_t dy;
};
static_assert(sizeof(Vector) == sizeof(std::int32_t));

std::int32_t SquaredLength(int dx, int dy) {
  return dx * dx + dy * dy;
}

// Takes `from`, moved by the step between the two samples, where it is nearer.
// Ties keep what is there.
inline void Improve(Vector& to, Vector from, int stepX, int stepY) {
  const int dx = from.dx + stepX;
  const int dy = from.dy + stepY;
  if (SquaredLength(dx, dy) < SquaredLength(to.dx, to.dy)) {
    to = {static_cast<std::int16_t>(dx), static_cast<std::int16_t>(dy)};
  }
}

void SweepDown(Vector* field, int width, int height) {
  for (int y = 0; y < height; ++y) {
    Vector* const row = field + static_cast<std::ptrdiff_t>(y) * width;
    for (int x = 0; x < width; ++x) {
      if (y > 0) Improve(row[x], row[x - width], 0, 1);
      if (x > 0) Improve(row[x], row[x - 1], 1, 0);
    }
    for (int x = width - 2; x >= 0; --x) Improve(row[x], row[x + 1], -1, 0);
  }
}

void SweepUp(Vector* field, int width, int height) {
  for (int y = height - 1; y >= 0; --y) {
    Vector* const row = field + static_cast<std::ptrdiff_t>(y) * width;
    for (int x = width - 1; x >= 0; --x) {
      if (y < height - 1) Improve(row[x], row[x + width], 0, -1);
      if (x < width - 1) Improve(row[x], row[x + 1], -1, 0);
    }
    for (int x = 1; x < width; ++x) Improve(row[x], row[x - 1], 1, 0);
  }
}

}  // namespace

bool BuildDistanceField(const RasterImage& map, PageBuffer<std::int32_t>& field,
                        std::int32_t& largest) {
  field.Free();
  largest = 0;
  const std::uint8_t* const samples = map.PeekPixels();
  const int width = map.StorageWidth();
  const int height = map.StorageHeight();
  // 16-bit halves hold every distance up to the largest picture and its frame.
  if (samples == nullptr || std::max(width, height) > INT16_MAX - 1) return false;
  const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  PageBuffer<Vector> vectors;
  if (!vectors.Allocate(count)) return false;
  const auto far = static_cast<std::int16_t>(std::max(width, height));
  for (std::size_t i = 0; i < count; ++i) {
    if (samples[i] != 0) vectors.Data()[i] = {far, far};
  }
  SweepDown(vectors.Data(), width, height);
  SweepUp(vectors.Data(), width, height);
  // The words take the place of the vectors.
  field.Adopt(reinterpret_cast<std::int32_t*>(vectors.Detach()), count);
  for (std::size_t i = 0; i < count; ++i) {
    Vector v{};
    std::memcpy(&v, field.Data() + i, sizeof v);
    const std::int32_t distance = SquaredLength(v.dx, v.dy);
    field.Data()[i] = distance;
    largest = std::max(largest, distance);
  }
  return true;
}

}  // namespace tarnwick
