#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/thread_pool.h"

namespace tarnwick::content {

// What a recipe paints on: the size of its picture in pixels, its seed, and
// the threads it may use. One pixel is the same piece of material whatever the
// size, so a small sheet is a cut-out in kind, not a reduction.
struct Sheet {
  int width = 2048;
  int height = 1536;
  std::uint32_t seed = 1;
  ThreadPool* pool = nullptr;  // not owned; may be null
};

// A place on a sheet: integers to read other fields, floats to feed noise.
struct Spot {
  int x, y;
  float fx, fy;
};

// A grey picture of floats, by custom 0 (black) to 1 (white), though nothing
// limits the values until ToBytes. Copies are deep.
class Field {
 public:
  Field() = default;
  Field(int width, int height, float value = 0.0F)
      : width_(width),
        height_(height),
        values_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), value) {}
  explicit Field(const Sheet& sheet, float value = 0.0F)
      : Field(sheet.width, sheet.height, value) {}

  [[nodiscard]] int Width() const { return width_; }
  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] float* Row(int y) {
    return values_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
  }
  [[nodiscard]] const float* Row(int y) const {
    return values_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
  }
  [[nodiscard]] float operator()(int x, int y) const { return Row(y)[x]; }
  [[nodiscard]] float operator()(const Spot& spot) const { return Row(spot.y)[spot.x]; }

  // The nearest sample of the picture for places outside it.
  [[nodiscard]] float Clamped(int x, int y) const;
  // Between samples, linearly; sample (x, y) lies at exactly (x, y).
  [[nodiscard]] float Sample(float x, float y) const;

 private:
  int width_ = 0;
  int height_ = 0;
  std::vector<float> values_;
};

// field(spot) = paint(spot) at every place, rows in any order: `paint` must
// depend on the place alone and may run on several threads.
template <class Paint>
void Repaint(const Sheet& sheet, Field& field, const Paint& paint) {
  ForRows(sheet.pool, 0, field.Height(), [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      float* row = field.Row(y);
      const float fy = static_cast<float>(y);
      for (int x = 0; x < field.Width(); ++x) row[x] = paint(Spot{x, y, static_cast<float>(x), fy});
    }
  });
}

template <class Paint>
[[nodiscard]] Field Painted(const Sheet& sheet, const Paint& paint) {
  Field field(sheet);
  Repaint(sheet, field, paint);
  return field;
}

// What a recipe knows of every place of a sheet, when that is more than a
// number and too costly to work out twice. T is a plain record.
template <class T>
class Survey {
 public:
  // look(spot) at every place, under the same terms as in Repaint.
  template <class Look>
  Survey(const Sheet& sheet, const Look& look)
      : width_(static_cast<std::size_t>(sheet.width)),
        found_(width_ * static_cast<std::size_t>(sheet.height)) {
    ForRows(sheet.pool, 0, sheet.height, [&](int first, int last) {
      for (int y = first; y < last; ++y) {
        T* row = found_.data() + static_cast<std::size_t>(y) * width_;
        const float fy = static_cast<float>(y);
        for (int x = 0; x < sheet.width; ++x) row[x] = look(Spot{x, y, static_cast<float>(x), fy});
      }
    });
  }
  [[nodiscard]] const T& operator()(const Spot& spot) const {
    return found_[static_cast<std::size_t>(spot.y) * width_ + static_cast<std::size_t>(spot.x)];
  }

 private:
  std::size_t width_;
  std::vector<T> found_;
};

// 0..1 to 0..255, rounded, limited. A grain of less than half a step, by
// place, keeps slow ramps from showing bands; 0 and 1 stay exactly 0 and 255.
[[nodiscard]] std::vector<std::uint8_t> ToBytes(const Sheet& sheet, const Field& field);

}  // namespace tarnwick::content
