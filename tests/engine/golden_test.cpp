#include <gtest/gtest.h>

#include "engine/golden_cases.h"

namespace tarnwick::testing {
namespace {

TEST(Golden, RendersEveryPictureByteForByte) {
  for (const std::string& name : GoldenCases("render")) {
    GoldenCase golden(GoldenFolder() + "render/" + name);
    Pnm out;
    const PictureJob job = golden.Job(out);
    ASSERT_EQ(ApplyToPicture(golden.settings, golden.session, job), ApplyOutcome::kDone) << name;
    EXPECT_EQ(FirstDifference(out, golden.wanted), "") << name;
  }
}

TEST(Golden, RendersEveryPreviewByteForByte) {
  for (const std::string& name : GoldenCases("preview")) {
    GoldenCase golden(GoldenFolder() + "preview/" + name);
    Pnm out;
    const PictureJob job = golden.Job(out);
    ASSERT_EQ(RenderPreview(golden.settings, golden.session, job, golden.window),
              ApplyOutcome::kDone)
        << name;
    EXPECT_EQ(FirstDifference(out, golden.wanted), "") << name;
  }
}

}  // namespace
}  // namespace tarnwick::testing
