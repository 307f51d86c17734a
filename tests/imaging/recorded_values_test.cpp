// Values under tests/data/golden/unit, from an implementation that shares
// nothing with this one.
#include <gtest/gtest.h>

#include <fstream>

#include "imaging/box_blur.h"
#include "imaging/hls_color.h"
#include "imaging/hsl255_color.h"
#include "imaging/orientation.h"
#include "imaging/resample.h"
#include "imaging/smooth_relief.h"
#include "support/images.h"

namespace tarnwick::testing {
namespace {

const std::string kFolder = std::string(TARNWICK_TEST_DATA) + "/golden/unit/";

ImagePtr Plane() {
  return GrayOf(ReadPnm(kFolder + "plane.pgm"));
}

void ExpectRecorded(const ImagePtr& image, const std::string& name) {
  ASSERT_NE(image, nullptr) << name;
  EXPECT_EQ(FirstDifference(InteriorOf(*image), ReadPnm(kFolder + name + ".pgm")), "") << name;
}

TEST(Recorded, Resampling) {
  for (const char* factor : {"0.3", "0.5", "0.77", "1", "1.25", "2", "3.7"}) {
    ImagePtr result;
    ASSERT_TRUE(ResampleImage(result, Plane().get(), std::stod(factor), 1));
    ExpectRecorded(result, std::string("resample-") + factor);
  }
}

TEST(Recorded, Orientation) {
  const ImagePtr plane = Plane();
  ImagePtr turned;
  ASSERT_TRUE(RotateClockwise(turned, plane.get()));
  ExpectRecorded(turned, "rotate-cw");
  ASSERT_TRUE(RotateCounterClockwise(turned, plane.get()));
  ExpectRecorded(turned, "rotate-ccw");
  const ImagePtr target = Plane();
  ASSERT_TRUE(ReverseRows(*target, *plane));
  ExpectRecorded(target, "reverse-rows");
  ASSERT_TRUE(MirrorRows(*target, *plane));
  ExpectRecorded(target, "mirror-rows");
}

TEST(Recorded, Filters) {
  const ImagePtr plane = Plane();
  SmoothRelief(*plane);
  ExpectRecorded(plane, "smooth");
  for (const int radius : {0, 1, 2, 5, 20}) {
    const ImagePtr map = GrayOf(ReadPnm(kFolder + "framed.pgm"));
    ASSERT_TRUE(BoxBlur(*map, radius));
    ExpectRecorded(map, "boxblur-" + std::to_string(radius));
  }
}

using Three = std::array<int, 3>;

TEST(Recorded, ColorModels) {
  const struct {
    const char* name;
    Three (*convert)(const Three& in);
  } kModels[] = {
      {"rgb-hls",
       [](const Three& in) -> Three {
         const HlsColor c = RgbToHls(in[0], in[1], in[2]);
         return {c.hue, c.lightness, c.saturation};
       }},
      {"hls-rgb",
       [](const Three& in) -> Three {
         const RgbColor c = HlsToRgb(in[0], in[1], in[2]);
         return {c.red, c.green, c.blue};
       }},
      {"rgb-hsl255",
       [](const Three& in) {
         Three c = in;
         RgbToHsl255(c[0], c[1], c[2]);
         return c;
       }},
      {"hsl255-rgb",
       [](const Three& in) {
         Three c = in;
         HslToRgb255(c[0], c[1], c[2]);
         return c;
       }},
  };
  for (const auto& model : kModels) {
    std::ifstream lines(kFolder + model.name + ".txt");
    Three in{};
    Three wanted{};
    int count = 0;
    while (lines >> in[0] >> in[1] >> in[2] >> wanted[0] >> wanted[1] >> wanted[2]) {
      ++count;
      EXPECT_EQ(model.convert(in), wanted)
          << model.name << ' ' << in[0] << ' ' << in[1] << ' ' << in[2];
    }
    EXPECT_GE(count, 400) << model.name;
  }
}

}  // namespace
}  // namespace tarnwick::testing
