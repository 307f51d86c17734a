#include "engine/apply_run.h"

#include <gtest/gtest.h>

#include <thread>

#include "engine/golden_cases.h"
#include "engine/picture_io.h"
#include "engine/render_state.h"
#include "support/forms.h"
#include "support/test_random.h"

namespace tarnwick::testing {
namespace {

constexpr std::uint8_t kMark = 0xA5;
constexpr int kWidth = 7;
constexpr int kHeight = 5;
constexpr int kPadding = 3;

// A conversion of its own: each ink is a colour with some bits turned round.
struct FakeConverter : RowColorConverter {
  bool RgbToCmyk(std::uint8_t* p, int count) override {
    toCmyk.push_back(count);
    if (fails) return false;
    for (int i = 0; i < count; ++i, p += 4) {
      EXPECT_EQ(p[0], 255);
      for (int c = 0; c < 3; ++c) p[c] = static_cast<std::uint8_t>(p[c + 1] ^ (0x11 << c));
      p[3] = 77;
    }
    return true;
  }
  bool CmykToRgb(std::uint8_t* p, int count) override {
    toRgb.push_back(count);
    for (int i = 0; i < count; ++i, p += 4) {
      const std::uint8_t ink[3] = {p[0], p[1], p[2]};
      for (int c = 0; c < 3; ++c) p[c + 1] = static_cast<std::uint8_t>(ink[c] ^ (0x11 << c));
    }
    return true;
  }
  bool fails = false;
  std::vector<int> toCmyk;
  std::vector<int> toRgb;
};

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

// Wider than any picture that a run takes, but the count of 16 bits is kept here.
TEST(PictureIo, ConvertsInkRowsInPartsAndWritesOne) {
  constexpr int kWide = 33000;
  FakeConverter converter;
  TestRandom random(12);
  Bytes in(kWide * 4);
  for (std::uint8_t& sample : in) sample = random.Byte();
  Bytes out(kWide * 4, kMark);
  RenderState state;
  state.isCmyk = true;
  state.renderWidth = kWide;
  state.renderHeight = 1;
  state.renderRowBytes = kWide * 4;
  PictureJob job;
  job.width = kWide;
  job.height = 1;
  job.planes = 4;
  job.in = in.data();
  job.out = out.data();
  job.mode = ImageMode::kCmyk;
  job.converter = &converter;
  ASSERT_EQ(FetchSource(state, job), ApplyOutcome::kDone);
  EXPECT_EQ(converter.toRgb, std::vector<int>({32767, 233}));
  for (int i = 0; i < kWide; ++i) {
    for (int c = 0; c < 3; ++c) {
      ASSERT_EQ(state.sourcePixels.Data()[4 * i + c],
                in[static_cast<std::size_t>(4 * i + c)] ^ (0x11 << c))
          << i;
    }
  }
  ASSERT_EQ(WriteResult(state, job), ApplyOutcome::kDone);
  EXPECT_EQ(converter.toCmyk, std::vector<int>({32767}));
  for (std::size_t i = 0; i < out.size(); ++i) {
    const std::uint8_t written = i % 4 == 3 ? 77 : in[i];
    ASSERT_EQ(out[i], i < 32767 * 4 ? written : kMark) << i;
  }
}

// 200 of 255 with an alpha of 128: 200 * 0.50196 = 100.4; 255 comes out as is.
TEST(PictureIo, TransparencyTurnsBlackBelowFourPlanes) {
  RenderState state;
  state.renderWidth = 2;
  state.renderHeight = 1;
  state.renderRowBytes = 8;
  ASSERT_TRUE(state.outputPixels.Allocate(8));
  const Bytes pixels = {200, 100, 255, 128, 9, 8, 7, 255};
  std::copy(pixels.begin(), pixels.end(), state.outputPixels.Data());
  const struct {
    int planes;
    Bytes want;
  } kRows[] = {{1, {100, 9}}, {2, {100, 50, 9, 8}}, {3, {100, 50, 128, 9, 8, 7}}, {4, pixels}};
  for (const auto& c : kRows) {
    Bytes out(c.want.size(), kMark);
    PictureJob job;
    job.planes = c.planes;
    job.out = out.data();
    ASSERT_EQ(WriteResult(state, job), ApplyOutcome::kDone);
    EXPECT_EQ(out, c.want) << c.planes;
  }
}

TEST(PictureIo, SelectionPlaneIsAlphaTimesSelection) {
  const Bytes in = {1, 1, 1, 200, 1, 1, 1, 255, 1, 1, 1, 0};
  const Bytes selection = {128, 254, 255};
  for (const auto& [planes, selected, want] : {std::tuple{4, true, Bytes{100, 254, 0}},
                                               {4, false, Bytes{200, 255, 0}},
                                               {3, true, Bytes{128, 254, 255}},
                                               {3, false, Bytes{255, 255, 255}}}) {
    PictureJob job;
    job.width = 3;
    job.height = 1;
    job.planes = planes;
    job.in = in.data();
    job.selection = selected ? selection.data() : nullptr;
    PageBuffer<std::uint8_t> plane;
    ASSERT_TRUE(BuildSelectionPlane(job, plane));
    EXPECT_EQ(Bytes(plane.Data(), plane.Data() + 3), want) << planes << selected;
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
