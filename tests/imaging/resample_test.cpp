#include "imaging/resample.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/forms.h"
#include "support/images.h"

namespace tarnwick::testing {
namespace {

const struct {
  const char* name;
  double factor;
  int width;
  Bytes in;
  int newWidth;
  Bytes want;
} kPlanes[] = {
    {"a factor of 1 copies", 1, 3, {1, 2, 3, 250, 251, 252}, 3, {1, 2, 3, 250, 251, 252}},
    {"one pixel stays itself", 3, 1, {200}, 3, {200, 200, 200, 200, 200, 200, 200, 200, 200}},
    // On the grid w00 = 2/4, w01 = w10 = 1/4, w11 = 0; halfway along one side the
    // near pair has 1.25/3 each and the far pair 0.25/3; in the middle 1/4 each.
    // Beyond the last row and column these repeat.
    {"four neighbours by squared distance",
     2,
     2,
     {0, 80, 160, 240},
     4,
     {60, 66, 120, 106, 93, 120, 160, 160, 180, 200, 240, 240, 173, 200, 240, 240}},
    // A box of 2 x 2, but the rows end one early: row 0 counts double.
    // (10 + 20) * 2 / 4 and (30 + 40) * 2 / 4.
    {"half of two rows", 0.5, 4, {10, 20, 30, 40, 90, 90, 90, 90}, 2, {15, 35}},
};

TEST(Resample, HandWorkedPlanes) {
  for (const auto& c : kPlanes) {
    ImagePtr result;
    ASSERT_TRUE(ResampleImage(result, GrayOf(c.width, c.in).get(), c.factor, 0)) << c.name;
    EXPECT_EQ(result->Width(), c.newWidth) << c.name;
    EXPECT_EQ(StorageOf(*result), c.want) << c.name;
  }
}

TEST(Resample, ShapeAndRefusals) {
  auto source = std::make_shared<RasterImage>(kCmykMode, Rect{5, 7, 6, 108}, std::int8_t{2}, 8, 3,
                                              std::uint8_t{1});
  ImagePtr result;
  ASSERT_TRUE(ResampleImage(result, source.get(), 0.5, 0)) << "a source without pixels is blank";
  // 101 x 0.5 + 0.5 = 51, 1 x 0.5 + 0.5 = 1; the place is not kept.
  EXPECT_EQ(result->Width(), 51);
  EXPECT_EQ(result->Height(), 1);
  EXPECT_EQ(result->bounds.left, 0);
  EXPECT_EQ(result->colorMode, kCmykMode);
  EXPECT_EQ(result->planeCount, 2);
  EXPECT_EQ(result->margin, 3);
  EXPECT_EQ(StorageOf(*result), Bytes(57 * 7 * 2, 0));

  const ImagePtr kept = result;
  const ImagePtr pixel = GrayOf(1, {9});
  EXPECT_FALSE(ResampleImage(result, nullptr, 1, 0));
  for (const double factor : {0.49, 0.0, -1.0, 1e9, 1e300, std::nan("")}) {
    EXPECT_FALSE(ResampleImage(result, pixel.get(), factor, 0)) << factor;
  }
  EXPECT_EQ(result, kept);
}

// Both directions as they are defined, one sample at a time.
std::uint8_t EnlargedSample(const Pnm& in, float x, float y) {
  const auto index = [](int i, int size) { return i < size ? i : size - 1; };
  const int ix = static_cast<int>(x);
  const int iy = static_cast<int>(y);
  const double fx = x - static_cast<float>(ix);
  const double fy = y - static_cast<float>(iy);
  const double gx = 1.0F - static_cast<float>(fx);
  const double gy = 1.0F - static_cast<float>(fy);
  const double w[4] = {gy * gy + gx * gx, fx * fx + gy * gy, fy * fy + gx * gx, fy * fy + fx * fx};
  const double sum = w[0] + w[1] + w[2] + w[3];
  double value = 0;
  for (int i = 0; i < 4; ++i) {
    const int column = index(ix + i % 2, in.width);
    const int row = index(iy + i / 2, in.height);
    value += in.samples[static_cast<std::size_t>(row * in.width + column)] * (w[i] / sum);
  }
  return static_cast<std::uint8_t>(static_cast<float>(value));
}

std::uint8_t ReducedSample(const Pnm& in, double x0, double x1, double y0, double y1) {
  const int r0 = static_cast<int>(y0);
  const int rl = std::min(in.height - 1, static_cast<int>(y1 + 1)) - 1;
  const int c0 = static_cast<int>(x0);
  const int cl = std::min(in.width, static_cast<int>(x1 + 1)) - 1;
  std::int64_t sum = 0;
  double weight = 0;
  const auto addRow = [&](int r, double h) {
    for (int c = c0; c <= cl; ++c) {
      const double p = in.samples[static_cast<std::size_t>(r * in.width + c)];
      sum += static_cast<std::int64_t>(c < cl ? p * h : p * h * (x1 - cl));
      weight += c < cl ? h : h * (x1 - cl);
    }
  };
  for (int r = r0; r < rl; ++r) addRow(r, 1);
  const int last = std::max(r0, rl);
  addRow(last, y1 - last);
  return static_cast<std::uint8_t>(static_cast<double>(sum) / weight);
}

Pnm Resampled(const Pnm& in, double factor) {
  Pnm out{
      static_cast<int>(in.width * factor + 0.5), static_cast<int>(in.height * factor + 0.5), 1, {}};
  const double inverse = 1 / factor;
  float y = 0;
  double yd = 0;
  for (int row = 0; row < out.height; ++row) {
    float x = 0;
    double xd = 0;
    for (int column = 0; column < out.width; ++column) {
      out.samples.push_back(factor > 1 ? EnlargedSample(in, x, y)
                                       : ReducedSample(in, xd, xd + inverse, yd, yd + inverse));
      x = static_cast<float>(static_cast<double>(x) + inverse);
      xd += inverse;
    }
    y = static_cast<float>(static_cast<double>(y) + inverse);
    yd += inverse;
  }
  return out;
}

TEST(Resample, EveryFormEqualsTheDefinition) {
  TestRandom random(2);
  for (int width = 1; width <= 67; ++width) {
    for (const double factor : {0.31, 1.0 / 3, 0.5, 0.77, 1.0, 1.0625, 1.8, 3.1, 17.3}) {
      const int height = 1 + random.Below(30);
      if (width * factor + 0.5 < 1 || height * factor + 0.5 < 1) continue;
      const Pnm in{width, height, 1, random.Shaped(static_cast<std::size_t>(width * height))};
      const Pnm wanted = Resampled(in, factor);
      const ImagePtr source = GrayOf(in);
      for (const Form& form : AllForms()) {
        ImagePtr result;
        ASSERT_TRUE(ResampleImage(result, source.get(), factor, 1, form.Pool(), form.isa));
        ASSERT_EQ(FirstDifference(InteriorOf(*result), wanted), "")
            << width << 'x' << height << " by " << factor << ' ' << form;
      }
    }
  }
}

TEST(Resample, TakesPlanesOneByOne) {
  TestRandom random(3);
  for (const double factor : {0.4, 1.7}) {
    Bytes samples;
    Bytes wanted;
    for (int plane = 0; plane < 3; ++plane) {
      const Pnm in{23, 11, 1, random.Shaped(23 * 11)};
      const Pnm out = Resampled(in, factor);
      samples.insert(samples.end(), in.samples.begin(), in.samples.end());
      wanted.insert(wanted.end(), out.samples.begin(), out.samples.end());
    }
    ImagePtr result;
    ASSERT_TRUE(ResampleImage(result, PlanesOf(23, 11, 3, samples).get(), factor, 0));
    EXPECT_EQ(StorageOf(*result), wanted) << factor;
  }
}

}  // namespace
}  // namespace tarnwick::testing
