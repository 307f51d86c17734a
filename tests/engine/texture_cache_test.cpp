#include "textures/texture_cache.h"

#include <gtest/gtest.h>

#include "engine/apply_run.h"
#include "engine/golden_cases.h"
#include "engine/random_settings.h"
#include "support/pnm.h"

namespace tarnwick::testing {
namespace {

TextureCache::Entry Grey(int width, int height) {
  TextureCache::Entry entry{MakeGrayImage({0, 0, height, width}, 0), width, height};
  (void)entry.image->Pixels();
  return entry;
}

TEST(TextureCache, KeepsTheLastUsedWithinItsMemory) {
  TextureCache cache(300);
  const auto has = [&](const char* path) { return cache.Find({path, 9, 9, 0}) != nullptr; };
  cache.Keep({"a", 9, 9, 0}, Grey(10, 10));
  cache.Keep({"b", 9, 9, 0}, Grey(10, 10));
  cache.Keep({"too large", 9, 9, 0}, Grey(10, 31));
  EXPECT_TRUE(has("a") && has("b") && !has("too large"));
  EXPECT_TRUE(has("a"));
  cache.Keep({"c", 9, 9, 0}, Grey(10, 20));
  EXPECT_TRUE(has("a") && !has("b") && has("c"));
  // Another document or slider is another image.
  EXPECT_EQ(cache.Find({"a", 9, 8, 0}), nullptr);
  EXPECT_EQ(cache.Find({"a", 8, 9, 0}), nullptr);
  EXPECT_EQ(cache.Find({"a", 9, 9, 1}), nullptr);
}

class CountedAlerts : public TextureAlerts {
 public:
  void TextureAlert(const std::string&) override { ++count; }
  int count = 0;
};

// One picture in many looks at several scales, as a page of presets shows it: a
// render that changed a kept texture would spoil a later one.
TEST(TextureCache, ChangesNoPicture) {
  constexpr int kWidth = 61;
  constexpr int kHeight = 43;
  TestRandom random(21);
  const Bytes in = random.Shaped(kWidth * kHeight * 3);
  PictureJob job;
  job.width = kWidth;
  job.height = kHeight;
  job.in = in.data();
  job.inRowBytes = kWidth * 3;
  job.textureFolder = GoldenFolder() + "textures";
  // Room for a few of them only.
  TextureCache cache(10 * kWidth * kHeight * 4);
  for (int round = 0; round < 300; ++round) {
    EffectSettings drawn = RandomSettings(random);
    // Few sizes, so that looks meet in the cache.
    for (auto* scale : {&drawn.WashScale1, &drawn.WashScale2, &drawn.SurfaceScale1,
                        &drawn.SurfaceScale2, &drawn.BackgroundScale}) {
      *scale = *scale < 100 ? 0 : 200;
    }
    const bool isFinal = random.Below(4) == 0;
    const PreviewWindow window = WholeWindow(kWidth, kHeight, isFinal ? 1 : 1 + round % 4);
    Bytes pictures[2];
    for (int use = 0; use < 2; ++use) {
      pictures[use].resize(static_cast<std::size_t>(window.width * window.height * 3));
      job.out = pictures[use].data();
      job.outRowBytes = window.width * 3;
      job.textureCache = use == 0 ? nullptr : &cache;
      EffectSettings settings = drawn;
      SettingsSession session;
      ASSERT_EQ(isFinal ? ApplyToPicture(settings, session, job)
                        : RenderPreview(settings, session, job, window),
                ApplyOutcome::kDone);
    }
    ASSERT_EQ(pictures[0], pictures[1]) << "round " << round;
  }
}

TEST(TextureCache, AMissingTextureAlertsEachTime) {
  const Bytes in(30 * 20 * 3, 128);
  Bytes out(in.size());
  CountedAlerts alerts;
  TextureCache cache(1 << 20);
  PictureJob job{.width = 30,
                 .height = 20,
                 .in = in.data(),
                 .inRowBytes = 90,
                 .out = out.data(),
                 .outRowBytes = 90,
                 .textureFolder = "/nowhere",
                 .alerts = &alerts,
                 .textureCache = &cache};
  EffectSettings settings;
  SettingsSession session;
  ResetAllSettings(settings, session);
  ASSERT_EQ(ApplyToPicture(settings, session, job), ApplyOutcome::kDone);
  const int once = alerts.count;
  EXPECT_GE(once, 3);
  ASSERT_EQ(ApplyToPicture(settings, session, job), ApplyOutcome::kDone);
  EXPECT_EQ(alerts.count, 2 * once);
}

}  // namespace
}  // namespace tarnwick::testing
