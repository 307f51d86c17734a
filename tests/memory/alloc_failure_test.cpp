#include <gtest/gtest.h>

#include <cstdio>

#include "engine/apply_run.h"
#include "engine/golden_cases.h"
#include "engine/random_settings.h"
#include "memory/failing_pages.h"

namespace tarnwick::testing {
namespace {

constexpr int kWidth = 41;
constexpr int kHeight = 29;

// Every stage at work, every buffer in use.
EffectSettings EverythingOn() {
  TestRandom random(7);
  EffectSettings s = RandomSettings(random);
  s.SecondWashExists = s.SecondSurfaceExists = 1;
  s.SurfaceEntire = s.SurfaceIncludeWashArea = s.SurfacePerspectiveOn = 1;
  s.WashCoverage1 = 30;
  s.WashCoverage2 = -60;
  s.WashEdgeDistance1 = s.WashEdgeDistance2 = 20;
  s.WashEdgeSoftness1 = s.WashEdgeSoftness2 = 40;
  s.WashAngle1 = 90;
  s.WashFlipVer1 = s.WashFlipHor2 = 1;
  s.WashOffsetX1 = s.SurfaceOffsetX1 = s.BackgroundOffsetY = 3;
  s.WashScale1 = s.SurfaceScale1 = s.BackgroundScale = 120;
  for (char* name : {s.WashFileName1, s.WashFileName2, s.SurfaceFileName1, s.SurfaceFileName2,
                     s.BackgroundFileName}) {
    std::snprintf(name, kTextureNameSize, "Rusted.twk");
  }
  return s;
}

struct Outcome {
  ApplyOutcome outcome;
  Bytes out;
};

// One run into a picture filled with `marker`.
Outcome RunOnce(const EffectSettings& drawn, const Bytes& in, const Bytes& selection, bool preview,
                std::uint8_t marker) {
  EffectSettings settings = drawn;
  SettingsSession session;
  PreviewWindow window = WholeWindow(kWidth, kHeight, 2);
  const int shownWidth = preview ? window.width : kWidth;
  const int shownHeight = preview ? window.height : kHeight;
  Bytes out(static_cast<std::size_t>(shownWidth * shownHeight * 4), marker);
  PictureJob job;
  job.width = kWidth;
  job.height = kHeight;
  job.planes = 4;
  job.in = in.data();
  job.inRowBytes = kWidth * 4;
  job.out = out.data();
  job.outRowBytes = shownWidth * 4;
  job.selection = selection.data();
  job.selectionRowBytes = kWidth;
  job.textureFolder = GoldenFolder() + "textures";
  const ApplyOutcome outcome = preview ? RenderPreview(settings, session, job, window)
                                       : ApplyToPicture(settings, session, job);
  return {outcome, out};
}

void FailEachAllocation(bool preview, bool andAllAfter) {
  TestRandom random(8);
  const Bytes in = random.Shaped(kWidth * kHeight * 4);
  const Bytes selection = random.Shaped(kWidth * kHeight);
  for (int round = 0; round < 12; ++round) {
    const EffectSettings settings = round == 0 ? EverythingOn() : RandomSettings(random);
    for (int nth = 1;; ++nth) {
      Outcome runs[2];
      for (int i = 0; i < 2; ++i) {
        const auto marker = static_cast<std::uint8_t>(i == 0 ? 0xA5 : 0x5A);
        FailAllocation(nth, andAllAfter);
        runs[i] = RunOnce(settings, in, selection, preview, marker);
        ASSERT_EQ(FaultyBlocks(), 0U) << "round " << round << " allocation " << nth;
        if (runs[i].outcome == ApplyOutcome::kDone) continue;
        ASSERT_EQ(runs[i].outcome, ApplyOutcome::kOutOfMemory);
        ASSERT_EQ(runs[i].out, Bytes(runs[i].out.size(), marker)) << "touched at " << nth;
      }
      ASSERT_EQ(runs[0].outcome, runs[1].outcome);
      if (runs[0].outcome == ApplyOutcome::kDone) {
        ASSERT_EQ(runs[0].out, runs[1].out) << "not all written at " << nth;
      }
      if (AllocationsAskedFor() < nth) {
        EXPECT_GT(nth, 8) << "the run hardly allocates";
        break;
      }
    }
  }
}

TEST(AllocFailure, LeavesAStageOutAndGoesOn) {
  for (const bool preview : {false, true}) {
    for (const bool andAllAfter : {false, true}) {
      SCOPED_TRACE(std::string(preview ? "preview" : "final") + (andAllAfter ? ", all after" : ""));
      FailEachAllocation(preview, andAllAfter);
    }
  }
}

}  // namespace
}  // namespace tarnwick::testing
