#include "imaging/box_blur.h"

#include <algorithm>
#include <vector>

#include "base/page_buffer.h"

namespace tarnwick {
namespace {

// 32-bit sums hold this many samples of 255, and more than any picture asks for.
constexpr int kLargestRadius = 1 << 21;

// Division by a fixed N >= 1 that truncates toward zero, as a multiplication:
// exact while |sum| <= 1024 * N and N < 2^20. The sums here stay below 512 * N.
class Divider {
 public:
  explicit Divider(int n) : n_(n), exact_(n < (1 << 20)) {
    while ((std::int64_t{1} << (shift_ - 31)) < n) ++shift_;
    factor_ = static_cast<std::uint32_t>(
        ((std::uint64_t{1} << shift_) - 1) / static_cast<std::uint64_t>(n) + 1);
    if (n == 1) exact_ = false;
  }
  [[nodiscard]] std::uint8_t operator()(std::int32_t sum) const {
    return static_cast<std::uint8_t>(exact_ ? Fast(sum) : sum / n_);
  }
  [[nodiscard]] bool Exact() const { return exact_; }
  [[nodiscard]] std::int32_t Fast(std::int32_t sum) const {
    const std::int32_t sign = sum >> 31;
    const auto size = static_cast<std::uint32_t>((sum ^ sign) - sign);
    const auto quotient =
        static_cast<std::int32_t>((static_cast<std::uint64_t>(size) * factor_) >> shift_);
    return (quotient ^ sign) - sign;
  }

 private:
  int n_;
  bool exact_;
  int shift_ = 31;
  std::uint32_t factor_ = 0;
};

void BlurRow(const std::uint8_t* in, std::uint8_t* out, int width, int radius,
             const Divider& divide) {
  std::int32_t sum = 0;
  const int start = std::min(width - 1, radius + 1);
  for (int x = 0; x < start; ++x) sum += in[x];
  const std::int32_t last = in[width - 1];
  for (int x = 0; x < width; ++x) {
    out[x] = divide(sum);
    const int right = x + radius + 1;
    const int left = x - radius;
    sum += (right < width - 1 ? in[right] : last) - in[left > 0 ? left : 0];
  }
}

struct Columns {
  const std::uint8_t* in;  // the horizontal means
  std::uint8_t* out;
  std::ptrdiff_t stride;
  int rows;    // of the stream
  int height;  // modulus of the window
  int radius;
};

// Columns first..last of the vertical pass.
void BlurColumns(const Columns& c, int first, int last, const Divider& divide) {
  const auto count = static_cast<std::size_t>(last - first);
  std::vector<std::int32_t> sums(count, 0);
  const auto wrapped = [&](std::int64_t row) {
    const std::int64_t r = row % c.height;
    return static_cast<int>(r < 0 ? r + c.height : r);
  };
  for (int row = -c.radius; row <= c.radius; ++row) {
    const std::uint8_t* const in = c.in + wrapped(row) * c.stride + first;
    for (std::size_t i = 0; i < count; ++i) sums[i] += in[i];
  }
  if (first == 0) sums[0] = 0;
  int low = wrapped(-c.radius);
  int high = wrapped(c.radius);
  for (int y = 0; y < c.rows; ++y) {
    std::uint8_t* const out = c.out + y * c.stride + first;
    if (divide.Exact()) {
      for (std::size_t i = 0; i < count; ++i) {
        out[i] = static_cast<std::uint8_t>(divide.Fast(sums[i]));
      }
    } else {
      for (std::size_t i = 0; i < count; ++i) out[i] = divide(sums[i]);
    }
    const std::uint8_t* const leaving = c.in + low * c.stride + first;
    low = low + 1 == c.height ? 0 : low + 1;
    high = high + 1 == c.height ? 0 : high + 1;
    const std::uint8_t* const entering = c.in + high * c.stride + first;
    for (std::size_t i = 0; i < count; ++i) sums[i] += entering[i] - leaving[i];
  }
}

}  // namespace

bool BoxBlur(RasterImage& image, int radius, ThreadPool* pool) {
  std::uint8_t* const pixels = image.PeekPixels();
  if (pixels == nullptr || radius < 0 || radius > kLargestRadius) return false;
  if (radius == 0) return true;
  PageBuffer<std::uint8_t> means;
  if (!means.Allocate(image.store.bytes)) return false;

  const int width = image.StorageWidth();
  const std::ptrdiff_t stride = image.RowBytes();
  const int rows = image.StorageHeight() * image.planeCount - 1;
  const Divider divide(2 * radius + 1);
  ForRows(pool, 0, rows, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      BlurRow(pixels + y * stride, means.Data() + y * stride, width, radius, divide);
    }
  });
  const Columns columns{means.Data(), pixels, stride, rows + 1, image.StorageHeight(), radius};
  // Strips of whole cache lines.
  constexpr int kStrip = 256;
  const int strips = (width + kStrip - 1) / kStrip;
  const auto blurStrips = [&](int first, int last) {
    for (int strip = first; strip < last; ++strip) {
      BlurColumns(columns, strip * kStrip, std::min((strip + 1) * kStrip, width), divide);
    }
  };
  if (pool != nullptr) {
    pool->ForRows(0, strips, 1, blurStrips);
  } else {
    blurStrips(0, strips);
  }
  return true;
}

}  // namespace tarnwick
