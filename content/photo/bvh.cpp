#include "bvh.h"

#include <algorithm>
#include <array>

namespace tarnwick::photo {
namespace {

constexpr int kBins = 16;

float Axis(Vec3 v, int axis) {
  return axis == 0 ? v.x : (axis == 1 ? v.y : v.z);
}

struct Range {
  std::uint32_t first = 0, last = 0;
  Box box;
  [[nodiscard]] std::uint32_t Size() const { return last - first; }
};

class Builder {
 public:
  Builder(const std::vector<Box>& boxes, int leafSize)
      : boxes_(boxes), leafSize_(static_cast<std::uint32_t>(leafSize)) {
    bvh_.order.resize(boxes.size());
    for (std::uint32_t i = 0; i < bvh_.order.size(); ++i) bvh_.order[i] = i;
  }

  Bvh Build() {
    if (!boxes_.empty()) Emit(Measured(0, static_cast<std::uint32_t>(boxes_.size())));
    return std::move(bvh_);
  }

 private:
  [[nodiscard]] Vec3 Centre(std::uint32_t i) const { return (boxes_[i].lo + boxes_[i].hi) * 0.5f; }

  Range Measured(std::uint32_t first, std::uint32_t last) {
    Range r{first, last, {}};
    for (std::uint32_t i = first; i < last; ++i) r.box.Grow(boxes_[bvh_.order[i]]);
    return r;
  }

  // Where to cut the range: binned surface-area rule over all three axes.
  std::uint32_t Split(const Range& r) {
    Box centres;
    for (std::uint32_t i = r.first; i < r.last; ++i) centres.Grow(Centre(bvh_.order[i]));
    int bestAxis = -1;
    int bestBin = 0;
    float bestCost = 1e30f;
    for (int axis = 0; axis < 3; ++axis) {
      const float lo = Axis(centres.lo, axis);
      const float extent = Axis(centres.hi, axis) - lo;
      if (extent < 1e-7f) continue;
      std::array<Box, kBins> box;
      std::array<std::uint32_t, kBins> count{};
      for (std::uint32_t i = r.first; i < r.last; ++i) {
        const auto bin = static_cast<std::size_t>(BinOf(bvh_.order[i], axis, lo, extent));
        box[bin].Grow(boxes_[bvh_.order[i]]);
        ++count[bin];
      }
      std::array<float, kBins> above{};
      Box right;
      std::uint32_t n = 0;
      for (std::size_t b = kBins - 1; b > 0; --b) {
        right.Grow(box[b]);
        n += count[b];
        above[b] = right.HalfArea() * static_cast<float>(n);
      }
      Box left;
      n = 0;
      for (std::size_t b = 0; b + 1 < kBins; ++b) {
        left.Grow(box[b]);
        n += count[b];
        const float cost = left.HalfArea() * static_cast<float>(n) + above[b + 1];
        if (n > 0 && n < r.Size() && cost < bestCost) {
          bestCost = cost;
          bestAxis = axis;
          bestBin = static_cast<int>(b);
        }
      }
    }
    const auto begin = bvh_.order.begin();
    if (bestAxis < 0) return r.first + r.Size() / 2;
    const float lo = Axis(centres.lo, bestAxis);
    const float extent = Axis(centres.hi, bestAxis) - lo;
    const auto middle = std::stable_partition(
        begin + r.first, begin + r.last,
        [&](std::uint32_t i) { return BinOf(i, bestAxis, lo, extent) <= bestBin; });
    return static_cast<std::uint32_t>(middle - begin);
  }

  [[nodiscard]] int BinOf(std::uint32_t i, int axis, float lo, float extent) const {
    const int bin = static_cast<int>((Axis(Centre(i), axis) - lo) / extent * kBins);
    return bin < kBins - 1 ? bin : kBins - 1;
  }

  std::uint32_t Emit(const Range& range) {
    std::array<Range, 4> part{range};
    std::size_t parts = 1;
    while (parts < 4) {
      std::size_t widest = 4;
      for (std::size_t i = 0; i < parts; ++i) {
        if (part[i].Size() <= leafSize_) continue;
        if (widest == 4 || part[i].box.HalfArea() > part[widest].box.HalfArea()) widest = i;
      }
      if (widest == 4) break;
      const Range whole = part[widest];
      const std::uint32_t middle = Split(whole);
      part[widest] = Measured(whole.first, middle);
      part[parts++] = Measured(middle, whole.last);
    }
    const auto self = static_cast<std::uint32_t>(bvh_.nodes.size());
    bvh_.nodes.emplace_back();
    for (std::size_t i = 0; i < 4; ++i) {
      const Box box = i < parts ? part[i].box : Box{};
      std::uint32_t child = 0;
      std::uint32_t count = 0;
      if (i < parts && part[i].Size() <= leafSize_) {
        child = part[i].first;
        count = part[i].Size();
      } else if (i < parts) {
        child = Emit(part[i]);
      }
      Bvh::Node& node = bvh_.nodes[self];
      for (int axis = 0; axis < 3; ++axis) {
        node.lo[axis][i] = Axis(box.lo, axis);
        node.hi[axis][i] = Axis(box.hi, axis);
      }
      node.child[i] = child;
      node.count[i] = count;
    }
    return self;
  }

  const std::vector<Box>& boxes_;
  std::uint32_t leafSize_;
  Bvh bvh_;
};

}  // namespace

Bvh BuildBvh(const std::vector<Box>& boxes, int leafSize) {
  return Builder(boxes, leafSize).Build();
}

}  // namespace tarnwick::photo
