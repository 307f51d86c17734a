#include "engine/apply_run.h"

#include <gtest/gtest.h>

#include <thread>

#include "engine/fake_converter.h"
#include "engine/golden_cases.h"
#include "support/forms.h"
#include "support/test_random.h"

namespace tarnwick::testing {
namespace {

constexpr std::uint8_t kMark = 0xA5;
constexpr int kWidth = 7;
constexpr int kHeight = 5;
constexpr int kPadding = 3;

// A picture of any number of planes, rows padded, and settings without effects.
struct Bench {
  explicit Bench(int planes) {
    ResetAllSettings(settings, session);
    for (char* name :
         {settings.WashFileName1, settings.SurfaceFileName1, settings.BackgroundFileName}) {
      std::snprintf(name, kTextureNameSize, "%s", kNoTextureName);
    }
    TestRandom random(11);
    rowBytes = static_cast<std::size_t>(kWidth * planes + kPadding);
    for (std::size_t i = 0; i < rowBytes * kHeight; ++i) in.push_back(random.Byte());
    out.assign(in.size(), kMark);
    job.width = kWidth;
    job.height = kHeight;
    job.planes = planes;
    job.in = in.data();
    job.out = out.data();
    job.inRowBytes = job.outRowBytes = static_cast<std::ptrdiff_t>(rowBytes);
    job.textureFolder = GoldenFolder() + "textures";
  }
  ApplyOutcome Apply() { return ApplyToPicture(settings, session, job); }

  EffectSettings settings;
  SettingsSession session;
  std::size_t rowBytes;
  Bytes in;
  Bytes out;
  PictureJob job;
};

const struct {
  const char* name;
  ImageMode mode;
  int planes;
  int written;  // planes that come through; the others keep what `out` holds
  int black;    // the plane that the fake converter makes anew, or -1
} kShapes[] = {
    {"grey", ImageMode::kRgb, 1, 1, -1},
    {"colour", ImageMode::kRgb, 3, 3, -1},
    {"colour and alpha", ImageMode::kRgb, 4, 4, -1},
    {"a fifth plane", ImageMode::kRgb, 5, 4, -1},
    {"48 bits go as they are", ImageMode::kRgb48, 6, 4, -1},
    {"inks", ImageMode::kCmyk, 4, 4, 3},
    {"inks and alpha", ImageMode::kCmyk, 5, 5, 3},
    {"inks, alpha and more", ImageMode::kCmyk, 6, 5, 3},
    {"64-bit inks count as colours", ImageMode::kCmyk64, 5, 4, -1},
};

TEST(ApplyRun, PlanesWithoutEffects) {
  for (const auto& c : kShapes) {
    Bench b(c.planes);
    FakeConverter converter;
    b.job.mode = c.mode;
    b.job.converter = c.black < 0 ? nullptr : &converter;
    ASSERT_EQ(b.Apply(), ApplyOutcome::kDone) << c.name;
    Bytes wanted(b.out.size(), kMark);
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      const auto column = static_cast<int>(i % b.rowBytes);
      const int plane = column % c.planes;
      if (column >= kWidth * c.planes || plane >= c.written) continue;
      wanted[i] = plane == c.black ? 77 : b.in[i];
    }
    EXPECT_EQ(b.out, wanted) << c.name;
    const std::vector<int> rows(c.black < 0 ? 0 : kHeight, kWidth);
    EXPECT_EQ(converter.toRgb, rows) << c.name;
    EXPECT_EQ(converter.toCmyk, rows) << c.name;
  }
}

const struct {
  const char* name;
  void (*spoil)(PictureJob& job);
  ApplyOutcome want;
} kRefused[] = {
    {"grey mode", [](PictureJob& j) { j.mode = static_cast<ImageMode>(1); },
     ApplyOutcome::kUnsupportedMode},
    {"indexed mode", [](PictureJob& j) { j.mode = static_cast<ImageMode>(2); },
     ApplyOutcome::kUnsupportedMode},
    {"no width", [](PictureJob& j) { j.width = 0; }, ApplyOutcome::kBadPicture},
    {"height below 0", [](PictureJob& j) { j.height = -5; }, ApplyOutcome::kBadPicture},
    {"too wide", [](PictureJob& j) { j.width = 30001; }, ApplyOutcome::kBadPicture},
    {"no planes", [](PictureJob& j) { j.planes = 0; }, ApplyOutcome::kBadPicture},
    {"no input", [](PictureJob& j) { j.in = nullptr; }, ApplyOutcome::kBadPicture},
    {"no output", [](PictureJob& j) { j.out = nullptr; }, ApplyOutcome::kBadPicture},
    {"too few inks",
     [](PictureJob& j) {
       j.mode = ImageMode::kCmyk;
       j.planes = 3;
     },
     ApplyOutcome::kBadPicture},
    {"no converter", [](PictureJob& j) { j.mode = ImageMode::kCmyk; }, ApplyOutcome::kNoConverter},
    {"a converter that fails",
     [](PictureJob& j) {
       static FakeConverter failing;
       failing.fails = true;
       j.mode = ImageMode::kCmyk;
       j.converter = &failing;
     },
     ApplyOutcome::kNoConverter},
};

TEST(ApplyRun, RefusesAndTouchesNothing) {
  for (const auto& c : kRefused) {
    Bench b(4);
    c.spoil(b.job);
    EXPECT_EQ(b.Apply(), c.want) << c.name;
    PreviewWindow window = WholeWindow(kWidth, kHeight, 1);
    EXPECT_EQ(RenderPreview(b.settings, b.session, b.job, window), c.want) << c.name;
    EXPECT_EQ(b.out, Bytes(b.out.size(), kMark)) << c.name;
  }
  const PreviewWindow bad[] = {
      {0, 0, 0, 1, 1}, {1, -1, 0, 1, 1}, {1, 0, 40000, 1, 1}, {1, 0, 0, 0, 1}, {1, 0, 0, 1, 30001}};
  for (const PreviewWindow& window : bad) {
    Bench b(3);
    EXPECT_EQ(RenderPreview(b.settings, b.session, b.job, window), ApplyOutcome::kBadPicture);
    EXPECT_EQ(b.out, Bytes(b.out.size(), kMark));
  }
}

TEST(ApplyRun, WholeWindow) {
  const struct {
    int width, height, scale, wantWidth, wantHeight;
  } kWindows[] = {{100, 60, 3, 33, 20}, {5, 2, 7, 1, 1}, {8, 8, 0, 8, 8}};
  for (const auto& c : kWindows) {
    const PreviewWindow window = WholeWindow(c.width, c.height, c.scale);
    EXPECT_EQ(window.width, c.wantWidth);
    EXPECT_EQ(window.height, c.wantHeight);
  }
}

struct Reports : ProgressSink {
  void Report(int done, int total) override {
    EXPECT_EQ(std::this_thread::get_id(), thread);
    values.emplace_back(done, total);
  }
  std::thread::id thread = std::this_thread::get_id();
  std::vector<std::pair<int, int>> values;
};

TEST(ApplyRun, ProgressGrowsAndEndsWithATotalOfZero) {
  for (const std::string& name : GoldenCases("render")) {
    GoldenCase golden(GoldenFolder() + "render/" + name);
    Pnm out;
    PictureJob job = golden.Job(out);
    Reports reports;
    job.progress = &reports;
    job.pool = AllForms()[2].Pool();
    ASSERT_EQ(ApplyToPicture(golden.settings, golden.session, job), ApplyOutcome::kDone);
    ASSERT_GE(reports.values.size(), 5U) << name;
    EXPECT_EQ(reports.values.front(), std::pair(0, 100)) << name;
    EXPECT_EQ(reports.values.back(), std::pair(100, 0)) << name;
    reports.values.pop_back();
    // Reading and loading take turns within the first 10; the stages only grow.
    int before = 0;
    for (const auto& [done, total] : reports.values) {
      ASSERT_GE(done, before <= 10 ? 0 : before) << name;
      ASSERT_EQ(total, 100) << name;
      before = done;
    }
    EXPECT_EQ(before, 100) << name;
    EXPECT_EQ(FirstDifference(out, golden.wanted), "") << name;
  }
}

TEST(ApplyRun, WorksInPlace) {
  for (const char* name : {"79-everything", "50-surface-perspective"}) {
    GoldenCase golden(GoldenFolder() + "render/" + name);
    Pnm out;
    PictureJob job = golden.Job(out);
    out = golden.input;
    job.in = job.out = out.samples.data();
    ASSERT_EQ(ApplyToPicture(golden.settings, golden.session, job), ApplyOutcome::kDone);
    EXPECT_EQ(FirstDifference(out, golden.wanted), "") << name;
  }
}

}  // namespace
}  // namespace tarnwick::testing
