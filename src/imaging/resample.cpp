#include "imaging/resample.h"

#include <algorithm>
#include <vector>

#include "imaging/enlarge_row.h"

namespace tarnwick {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Where the samples of one direction of an enlargement come from.
struct EnlargeAxis {
  std::vector<int> near;   // index of the first neighbour
  std::vector<int> far;    // index of the second
  std::vector<double> f2;  // squared distance from the first
  std::vector<double> g2;  // squared distance from the second
};

EnlargeAxis MakeEnlargeAxis(int newSize, int oldSize, double inverse) {
  EnlargeAxis axis;
  const auto count = static_cast<std::size_t>(newSize);
  axis.near.resize(count);
  axis.far.resize(count);
  axis.f2.resize(count);
  axis.g2.resize(count);
  float position = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const int whole = static_cast<int>(position);
    axis.near[i] = whole < oldSize ? whole : oldSize - 1;
    axis.far[i] = whole + 1 < oldSize ? whole + 1 : oldSize - 1;
    const float f = position - static_cast<float>(whole);
    const float g = 1.0F - f;
    axis.f2[i] = static_cast<double>(f) * static_cast<double>(f);
    axis.g2[i] = static_cast<double>(g) * static_cast<double>(g);
    position = static_cast<float>(static_cast<double>(position) + inverse);
  }
  return axis;
}

// One source row spread to a sample for each new column, twice: by first and by
// second neighbour. Neighbouring new rows share it.
struct SpreadRow {
  int row = -1;
  Bytes left;
  Bytes right;

  void Take(const std::uint8_t* plane, std::ptrdiff_t stride, int wanted, const EnlargeAxis& xs) {
    if (row == wanted) return;
    row = wanted;
    const std::size_t count = xs.near.size();
    left.resize(count);
    right.resize(count);
    const std::uint8_t* const samples = plane + wanted * stride;
    for (std::size_t x = 0; x < count; ++x) {
      left[x] = samples[xs.near[x]];
      right[x] = samples[xs.far[x]];
    }
  }
};

void EnlargePlane(const std::uint8_t* plane, std::ptrdiff_t stride, const EnlargeAxis& xs,
                  const EnlargeAxis& ys, std::uint8_t* out, std::ptrdiff_t outStride,
                  ThreadPool* pool, Isa isa) {
  const auto enlargeRow = isa == Isa::kAvx2 ? EnlargeRowAvx2 : EnlargeRowPlain;
  ForRows(pool, 0, static_cast<int>(ys.near.size()), [&](int first, int last) {
    SpreadRow upper;
    SpreadRow lower;
    for (int y = first; y < last; ++y) {
      const auto i = static_cast<std::size_t>(y);
      if (upper.row != ys.near[i] && lower.row == ys.near[i]) std::swap(upper, lower);
      upper.Take(plane, stride, ys.near[i], xs);
      lower.Take(plane, stride, ys.far[i], xs);
      enlargeRow({upper.left.data(), upper.right.data(), lower.left.data(), lower.right.data(),
                  xs.f2.data(), xs.g2.data(), ys.f2[i], ys.g2[i], out + y * outStride,
                  static_cast<int>(xs.near.size())});
    }
  });
}

// The box that a new row or column gathers: first..last, with the last one only
// in part.
struct ReduceAxis {
  std::vector<int> first;
  std::vector<int> last;
  std::vector<double> part;  // share of the last one; may pass 1 at the far end
};

// `limit` is the number of old rows or columns, or one less: see below.
ReduceAxis MakeReduceAxis(int newSize, int limit, double inverse) {
  ReduceAxis axis;
  double position = 0;
  for (int i = 0; i < newSize; ++i) {
    const double end = position + inverse;
    const auto first = static_cast<int>(position);
    const int reached = static_cast<int>(std::min(static_cast<double>(limit), end + 1)) - 1;
    const int last = std::max(first, reached);
    axis.first.push_back(first);
    axis.last.push_back(last);
    axis.part.push_back(end - last);
    position = end;
  }
  return axis;
}

std::uint8_t ReduceBox(const std::uint8_t* plane, std::ptrdiff_t stride, const ReduceAxis& xs,
                       std::size_t x, const ReduceAxis& ys, std::size_t y) {
  std::int64_t sum = 0;
  double weight = 0;
  const int c0 = xs.first[x];
  const int cl = xs.last[x];
  const double wx = xs.part[x];
  for (int r = ys.first[y]; r < ys.last[y]; ++r) {
    const std::uint8_t* const row = plane + r * stride;
    for (int c = c0; c < cl; ++c) {
      sum += row[c];
      weight += 1;
    }
    sum += static_cast<std::int64_t>(row[cl] * wx);
    weight += wx;
  }
  const std::uint8_t* const row = plane + ys.last[y] * stride;
  const double h = ys.part[y];
  for (int c = c0; c < cl; ++c) {
    sum += static_cast<std::int64_t>(row[c] * h);
    weight += h;
  }
  sum += static_cast<std::int64_t>(row[cl] * h * wx);
  weight += h * wx;
  return static_cast<std::uint8_t>(static_cast<int>(static_cast<double>(sum) / weight));
}

void ReducePlane(const std::uint8_t* plane, std::ptrdiff_t stride, const ReduceAxis& xs,
                 const ReduceAxis& ys, std::uint8_t* out, std::ptrdiff_t outStride,
                 ThreadPool* pool) {
  ForRows(pool, 0, static_cast<int>(ys.first.size()), [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      std::uint8_t* const row = out + y * outStride;
      for (std::size_t x = 0; x < xs.first.size(); ++x) {
        row[x] = ReduceBox(plane, stride, xs, x, ys, static_cast<std::size_t>(y));
      }
    }
  });
}

}  // namespace

bool ResampleImage(ImagePtr& result, const RasterImage* source, double factor,
                   std::uint8_t allocHint, ThreadPool* pool, Isa isa) {
  if (source == nullptr) return false;
  const int width = source->Width();
  const int height = source->Height();
  const double newWidth = width * factor + 0.5;
  const double newHeight = height * factor + 0.5;
  // Written so that a factor that is no number fails too.
  if (!(newWidth >= 1 && newHeight >= 1 &&
        newWidth * newHeight <= static_cast<double>(kMaxImageBytes) &&
        std::max(newWidth, newHeight) < INT32_MAX / 8.0)) {
    return false;
  }
  const Rect bounds{0, 0, static_cast<int>(newHeight), static_cast<int>(newWidth)};
  auto image = std::make_shared<RasterImage>(source->colorMode, bounds, source->planeCount,
                                             source->sampleBits, source->margin, allocHint);
  std::uint8_t* const out = image->Interior();
  if (out == nullptr) return false;
  const std::uint8_t* const in = source->PeekInterior();
  if (in == nullptr) {
    result = std::move(image);
    return true;
  }

  const double inverse = 1 / factor;
  if (factor > 1) {
    const EnlargeAxis xs = MakeEnlargeAxis(bounds.Width(), width, inverse);
    const EnlargeAxis ys = MakeEnlargeAxis(bounds.Height(), height, inverse);
    for (int i = 0; i < source->planeCount; ++i) {
      const auto plane = static_cast<std::size_t>(i);
      EnlargePlane(in + plane * source->PlaneBytes(), source->RowBytes(), xs, ys,
                   out + plane * image->PlaneBytes(), image->RowBytes(), pool, isa);
    }
  } else {
    const ReduceAxis xs = MakeReduceAxis(bounds.Width(), width, inverse);
    // Odd, and kept: a box ends one row before the last, if it does not start there.
    const ReduceAxis ys = MakeReduceAxis(bounds.Height(), height - 1, inverse);
    for (int i = 0; i < source->planeCount; ++i) {
      const auto plane = static_cast<std::size_t>(i);
      ReducePlane(in + plane * source->PlaneBytes(), source->RowBytes(), xs, ys,
                  out + plane * image->PlaneBytes(), image->RowBytes(), pool);
    }
  }
  result = std::move(image);
  return true;
}

}  // namespace tarnwick
