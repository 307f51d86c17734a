#include "imaging/smooth_relief.h"

#include <gtest/gtest.h>

#include "support/forms.h"
#include "support/images.h"

namespace tarnwick::testing {
namespace {

TEST(SmoothRelief, LeavesWhatHasNoInside) {
  for (const int width : {1, 2, 6}) {
    // 12 samples: 12 or 6 rows, or 2 rows of 6.
    const Bytes in = {0, 255, 0, 255, 0, 255, 255, 0, 255, 0, 255, 0};
    const ImagePtr image = GrayOf(width, in);
    SmoothRelief(*image);
    EXPECT_EQ(StorageOf(*image), in) << width;
  }
}

// The lower of the two inner samples reads the new value of the upper one:
// 0.4 * 90 + 0.1 * 100 = 46, then 0.1 * 46 + 0.4 * 100 = 44.6.
TEST(SmoothRelief, ReadsWhatIsAlreadySmoothed) {
  const ImagePtr image = GrayOf(3, {0, 0, 0, 0, 90, 0, 0, 100, 0, 0, 0, 0});
  SmoothRelief(*image);
  EXPECT_EQ(StorageOf(*image), Bytes({0, 0, 0, 0, 46, 0, 0, 44, 0, 0, 0, 0}));
}

void SmoothByDefinition(Pnm& p) {
  constexpr float kWeights[9] = {0.05F, 0.1F, 0.05F, 0.1F, 0.4F, 0.1F, 0.05F, 0.1F, 0.05F};
  for (int y = 1; y < p.height - 1; ++y) {
    for (int x = 1; x < p.width - 1; ++x) {
      float sum = 0;
      for (int i = 0; i < 9; ++i) {
        const int at = (y + i / 3 - 1) * p.width + x + i % 3 - 1;
        sum += kWeights[i] * static_cast<float>(p.samples[static_cast<std::size_t>(at)]);
      }
      p.samples[static_cast<std::size_t>(y * p.width + x)] =
          static_cast<std::uint8_t>(std::min(sum, 255.0F));
    }
  }
}

TEST(SmoothRelief, EveryFormEqualsTheDefinition) {
  TestRandom random(4);
  std::vector<int> widths = {200, 511};
  for (int width = 1; width <= 67; ++width) widths.push_back(width);
  for (const int width : widths) {
    for (const int height : {3, 4, 17, 70}) {
      const Pnm in{width, height, 1, random.Shaped(static_cast<std::size_t>(width * height))};
      Pnm wanted = in;
      SmoothByDefinition(wanted);
      for (const Form& form : AllForms()) {
        const ImagePtr image = GrayOf(in);
        SmoothRelief(*image, nullptr, form.isa);
        ASSERT_EQ(FirstDifference(InteriorOf(*image), wanted), "")
            << width << 'x' << height << ' ' << form;
      }
    }
  }
}

}  // namespace
}  // namespace tarnwick::testing
