#include "engine/picture_io.h"

#include <gtest/gtest.h>

#include "engine/fake_converter.h"
#include "support/test_random.h"

namespace tarnwick::testing {
namespace {

constexpr std::uint8_t kMark = 0xA5;

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

}  // namespace
}  // namespace tarnwick::testing
