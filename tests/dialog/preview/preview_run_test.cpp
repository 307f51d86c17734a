// The preview within a whole run of the filter, and against recorded pictures.
#include <gtest/gtest.h>

#include "dialog/preview/preview_stage.h"
#include "engine/golden_cases.h"
#include "filter/filter_windows.h"
#include "host/filter_run.h"
#include "host/layer_fill.h"

namespace tarnwick {
namespace {

using testing::FirstDifference;
using testing::GoldenCase;
using testing::Pnm;
using testing::PreviewStage;

testhost::Document DocumentOf(const GoldenCase& golden) {
  testhost::Document document;
  document.width = golden.input.width;
  document.height = golden.input.height;
  document.layers = {testhost::MakeLayer(document, "Layer", golden.input.planes, golden.input)};
  document.selection = golden.selection.samples;
  document.filterRect = document.Bounds();
  return document;
}

TEST(LivePreviewRun, RecordedPreviews) {
  for (const std::string& name : testing::GoldenCases("preview")) {
    const GoldenCase golden(testing::GoldenFolder() + "preview/" + name);
    PreviewStage stage(DocumentOf(golden));
    stage.settings = golden.settings;
    stage.g.session = golden.session;
    const PaneSize pane = {golden.window.width, golden.window.height};
    stage.Open(pane);
    LivePreview& preview = *stage.preview;
    const auto scale = static_cast<float>(golden.window.scale);
    while (preview.Zoom().viewScale < scale && preview.ZoomOut(pane).canZoomOut) continue;
    preview.Pan(preview.Zoom().panX - golden.window.x, preview.Zoom().panY - golden.window.y);
    const PaneZoom& zoom = preview.Zoom();
    ASSERT_EQ(zoom.viewScale, scale) << name;
    ASSERT_EQ(zoom.panX, golden.window.x) << name;
    ASSERT_EQ(zoom.panY, golden.window.y) << name;
    ASSERT_EQ(zoom.proxy, pane) << name;
    EXPECT_EQ(FirstDifference(stage.Shown(golden.window.view, pane),
                              testing::PaneOf(golden.wanted, pane)),
              "")
        << name;
  }
}

// Looks around in a preview, then says OK.
class LooksAround : public FilterWindows {
 public:
  explicit LooksAround(bool looks) : looks_(looks) { SetFilterWindows(this); }
  ~LooksAround() override { SetFilterWindows(nullptr); }
  LooksAround(const LooksAround&) = delete;
  LooksAround& operator=(const LooksAround&) = delete;

  bool ShowMainDialog(FilterGlobals& g) override {
    if (!looks_) return true;
    constexpr PaneSize kPane = {40, 30};
    g.DialogActive = 1;
    {
      LivePreview preview(g, nullptr);
      preview.Open(kPane);
      preview.Render(ViewMode::kComposite);
      (void)preview.ZoomToFit(kPane);
      preview.Render(ViewMode::kBackground);
      testhost::TheHost().failures.advance = -36;
      (void)preview.ZoomIn(kPane);
      preview.Render(ViewMode::kOriginal);
      preview.Pan(-9, -3);
      preview.Render(ViewMode::kComposite);
      hasShown_ = !preview.BuildPaneImage(kPane).bitmap.empty();
    }
    g.DialogActive = 0;
    return true;
  }
  void ShowAboutBox(FilterGlobals&) override {}
  [[nodiscard]] bool HasShown() const { return hasShown_; }

 private:
  bool looks_;
  bool hasShown_ = false;
};

std::vector<std::uint8_t> AgedDocument(testhost::Document document, bool looks) {
  testhost::TestHost host;
  testhost::SetTheHost(&host);
  host.document = std::move(document);
  host.module = testhost::MakeModuleEntry(host.log, "");
  testhost::RunRequest request;
  request.asksParameters = true;
  request.playInfo = host::plugInDialogDisplay;
  const LooksAround dialog(looks);
  EXPECT_EQ(testhost::RunFilter(host, request), 0);
  EXPECT_EQ(dialog.HasShown(), looks);
  EXPECT_THAT(host.log.faults, ::testing::IsEmpty());
  EXPECT_EQ(host.module->PagesHeld(), 0U);
  const std::vector<std::uint8_t> aged = host.document.Target().samples;
  EXPECT_NE(aged, host.document.Target().original);
  host.module = nullptr;
  testhost::SetTheHost(nullptr);
  return aged;
}

TEST(LivePreviewRun, LeavesNoTraceInTheAgedPicture) {
  testhost::Document document = testing::NoisyDocument(132, 96, 4);
  EXPECT_EQ(AgedDocument(document, true), AgedDocument(document, false));
  testing::SelectSoftly(document);
  document.filterRect = {13, 23, 90, 130};
  EXPECT_EQ(AgedDocument(document, true), AgedDocument(document, false));
}

}  // namespace
}  // namespace tarnwick
