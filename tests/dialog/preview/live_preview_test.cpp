// What the preview shows, held against pictures worked out by hand.
#include <gtest/gtest.h>

#include <algorithm>

#include "dialog/preview/preview_stage.h"
#include "host/counted_pages.h"
#include "host/layer_fill.h"

namespace tarnwick {
namespace {

using testhost::Document;
using testing::FirstDifference;
using testing::NameNoTextures;
using testing::NoisyDocument;
using testing::Pnm;
using testing::PreviewStage;

// A layer with one value a plane.
Document FlatDocument(const std::string& mode, int width, int height,
                      const std::vector<std::uint8_t>& values) {
  Document document;
  SetMode(document, mode);
  document.width = width;
  document.height = height;
  testhost::Layer layer;
  layer.name = "Layer";
  layer.planes = static_cast<int>(values.size());
  for (int i = 0; i < width * height; ++i) {
    layer.samples.insert(layer.samples.end(), values.begin(), values.end());
  }
  layer.original = layer.samples;
  document.layers = {layer};
  document.filterRect = document.Bounds();
  return document;
}

TEST(LivePreview, CentresAPictureSmallerThanThePane) {
  PreviewStage stage(FlatDocument("rgb", 10, 6, {1, 2, 3}));
  NameNoTextures(stage.settings);
  stage.Open({20, 11});
  EXPECT_EQ(stage.preview->Zoom().maximum, 1);
  stage.preview->Render(ViewMode::kComposite);
  const PanePicture picture = stage.preview->BuildPaneImage({20, 11});
  // The width goes down to a multiple of 4; the odd pixel of the rest is lost.
  EXPECT_EQ(picture.imageWidth, 8);
  EXPECT_EQ(picture.imageHeight, 6);
  EXPECT_EQ(picture.imageX, 6);
  EXPECT_EQ(picture.imageY, 2);
  ASSERT_EQ(picture.bitmap.size(), 8U * 6 * 3);
  EXPECT_EQ(std::vector<std::uint8_t>(picture.bitmap.begin(), picture.bitmap.begin() + 3),
            (std::vector<std::uint8_t>{3, 2, 1}));
  for (const ZoomButtons buttons :
       {stage.preview->ZoomToFull({20, 11}), stage.preview->ZoomToFit({20, 11})}) {
    EXPECT_FALSE(buttons.canZoomIn || buttons.canZoomOut);
  }
}

// The host's exact colours: red is cyan x black / 255, and back no black at all.
TEST(LivePreview, ShowsFlatDocumentsInEachMode) {
  const struct {
    const char* name;
    const char* mode;
    std::vector<std::uint8_t> values;
    ViewMode view;
    std::vector<std::uint8_t> want;
  } kCases[] = {
      {"rgb", "rgb", {9, 8, 7}, ViewMode::kComposite, {9, 8, 7}},
      {"rgb as it was", "rgb", {9, 8, 7}, ViewMode::kOriginal, {9, 8, 7}},
      // 100 * 51 / 255 + 204 * 204 / 255 = 20 + 163.2 on the grid's first square.
      {"alpha on the grid", "rgb", {100, 0, 255, 51}, ViewMode::kComposite, {183, 163, 214}},
      {"alpha as it was", "rgb", {100, 0, 255, 51}, ViewMode::kOriginal, {183, 163, 214}},
      // 200 * 128 / 255 = 100.4, 100 -> 50.2, 50 -> 25.1
      {"cmyk", "cmyk", {200, 100, 50, 128}, ViewMode::kComposite, {100, 50, 25}},
      // The pane takes the fourth plane for alpha, and a converted one has no black.
      {"cmyk, clear", "cmyk", {200, 100, 50, 128, 51}, ViewMode::kComposite, {100, 50, 25}},
      {"cmyk as it was", "cmyk", {200, 100, 50, 128}, ViewMode::kOriginal, {100, 50, 25}},
  };
  for (const auto& c : kCases) {
    PreviewStage stage(FlatDocument(c.mode, 8, 7, c.values));
    NameNoTextures(stage.settings);
    stage.Open({8, 7});
    const Pnm shown = stage.Shown(c.view, {8, 7});
    ASSERT_EQ(shown.samples.size(), 8U * 7 * 3) << c.name;
    EXPECT_EQ(std::vector<std::uint8_t>(shown.samples.begin(), shown.samples.begin() + 3), c.want)
        << c.name;
    EXPECT_EQ(stage.result, 0) << c.name;
  }
}

// As above, with a transparency of its own and another layer below it: its black is none.
TEST(LivePreview, TakesNoInkForTransparency) {
  Document document = FlatDocument("cmyk", 8, 7, {255, 255, 255, 255, 255});
  testhost::Layer inks = FlatDocument("cmyk", 8, 7, {200, 100, 50, 128, 51}).layers[0];
  inks.name = "Inks";
  document.layers.push_back(inks);
  document.target = 1;
  PreviewStage stage(document);
  NameNoTextures(stage.settings);
  stage.Open({8, 7});
  for (const ViewMode view : {ViewMode::kOriginal, ViewMode::kComposite, ViewMode::kOriginal}) {
    const Pnm shown = stage.Shown(view, {8, 7});
    ASSERT_EQ(shown.samples.size(), 8U * 7 * 3);
    EXPECT_EQ(std::vector<std::uint8_t>(shown.samples.begin(), shown.samples.begin() + 3),
              (std::vector<std::uint8_t>{100, 50, 25}));
  }
}

TEST(LivePreview, TellsAnUnsupportedMode) {
  PreviewStage stage(FlatDocument("grey", 8, 7, {90}));
  NameNoTextures(stage.settings);
  stage.Open({8, 7});
  stage.settings.LinkNewLayer = 1;
  stage.preview->Render(ViewMode::kComposite);
  EXPECT_EQ(stage.result, host::userCanceledErr);
  EXPECT_EQ(stage.host.log.boxes,
            std::vector<std::string>{"This Mode is Not Supported by the Plug-in"});
  EXPECT_EQ(stage.settings.LinkNewLayer, 0);
}

// Under a clear layer lies a picture: the pane shows every second pixel of it.
TEST(LivePreview, ShowsWhatLiesBelow) {
  constexpr PaneSize kPane = {24, 20};
  Document document = NoisyDocument(64, 48, 3);
  const testhost::Layer below = document.layers[0];
  testhost::Layer clear = FlatDocument("rgb", 64, 48, {9, 9, 9, 0}).layers[0];
  clear.name = "Clear";
  document.layers.push_back(clear);
  document.target = 1;
  PreviewStage stage(document);
  NameNoTextures(stage.settings);
  stage.Open(kPane);
  stage.preview->ZoomOut(kPane);
  stage.preview->Pan(-3, -2);
  const PaneZoom& zoom = stage.preview->Zoom();
  ASSERT_EQ(zoom.viewScale, 2);
  for (const ViewMode view : {ViewMode::kComposite, ViewMode::kOriginal}) {
    const Pnm shown = stage.Shown(view, kPane);
    ASSERT_EQ(shown.samples.size(), 24U * 20 * 3);
    std::size_t at = 0;
    for (int y = 0; y < 20; ++y) {
      for (int x = 0; x < 24; ++x) {
        const int pixel = (zoom.panY + y) * 2 * 64 + (zoom.panX + x) * 2;
        for (int c = 0; c < 3; ++c) {
          ASSERT_EQ(shown.samples[at++], below.samples[static_cast<std::size_t>(pixel * 3 + c)])
              << x << ' ' << y;
        }
      }
    }
  }
}

TEST(LivePreview, ReportsUpwardsAndThenNothing) {
  struct Sink : ProgressSink {
    std::vector<int> done;
    void Report(int now, int) override { done.push_back(now); }
  } sink;
  PreviewStage stage(NoisyDocument(64, 48, 3));
  stage.preview = std::make_unique<LivePreview>(stage.g, &sink);
  stage.preview->Open({24, 20});
  sink.done.clear();
  stage.preview->Render(ViewMode::kComposite);
  ASSERT_GT(sink.done.size(), 2U);
  EXPECT_EQ(sink.done.back(), 0);
  sink.done.pop_back();
  EXPECT_EQ(sink.done.back(), 100);
  EXPECT_TRUE(std::is_sorted(sink.done.begin(), sink.done.end()));
  // Whoever has the bar for himself finds it as the render left it.
  stage.preview->Render(ViewMode::kComposite, PreviewBar::kKept);
  EXPECT_EQ(sink.done.back(), 100);
}

// A host sample of 16 bits is read as two bytes by the render, and as what it is by the
// pane.
TEST(LivePreview, ShowsSixteenBitsByTheirUpperOnes) {
  Document document;
  SetMode(document, "rgb48");
  document.width = 8;
  document.height = 4;
  testhost::Layer layer;
  layer.name = "Layer";
  layer.planes = 3;
  for (int i = 0; i < 8 * 4 * 3; ++i) {
    const int sample = i * 350;  // 0..33250, beyond white at the end
    layer.samples.push_back(static_cast<std::uint8_t>(sample & 255));
    layer.samples.push_back(static_cast<std::uint8_t>(sample >> 8));
  }
  layer.original = layer.samples;
  document.layers = {layer};
  document.filterRect = document.Bounds();
  PreviewStage stage(document);
  NameNoTextures(stage.settings);
  stage.Open({8, 4});
  for (const ViewMode view : {ViewMode::kComposite, ViewMode::kOriginal}) {
    const Pnm shown = stage.Shown(view, {8, 4});
    ASSERT_EQ(shown.samples.size(), 96U);
    for (int i = 0; i < 96; ++i) {
      EXPECT_EQ(shown.samples[static_cast<std::size_t>(i)], std::min(i * 350 / 128, 255)) << i;
    }
  }
}

TEST(LivePreview, AsksTheHostForTheWindowAtItsRate) {
  PreviewStage stage(NoisyDocument(90, 60, 4));
  stage.Open({20, 16});
  stage.preview->ZoomToFit({20, 16});  // 90 / 20 = 4.5: five steps, but fit cuts to four
  const host::FilterRecord& record = stage.host.Record();
  EXPECT_EQ(record.inputRate, static_cast<int>(stage.preview->Zoom().viewScale) * 65536);
  stage.preview->ZoomToFull({20, 16});
  stage.preview->Pan(-30, -20);
  const host::BigDocumentStruct& big = *record.bigDocumentData;
  const PaneZoom& zoom = stage.preview->Zoom();
  EXPECT_EQ(record.inputRate, 65536);
  EXPECT_EQ(record.maskRate, 65536);
  EXPECT_EQ(record.inLoPlane, 0);
  EXPECT_EQ(record.outHiPlane, 3);
  EXPECT_EQ(record.inputPadding, 255);
  EXPECT_EQ(record.outputPadding, 255);
  EXPECT_EQ(record.maskPadding, 255);
  for (const host::VRect& rect : {big.inRect32, big.outRect32, big.maskRect32}) {
    EXPECT_EQ(rect.left, zoom.panX);
    EXPECT_EQ(rect.top, zoom.panY);
    EXPECT_EQ(rect.right - rect.left, 20);
    EXPECT_EQ(rect.bottom - rect.top, 16);
  }
}

TEST(LivePreview, GoesOnWhenTheHostRefusesAWindow) {
  PreviewStage stage(NoisyDocument(64, 48, 3));
  constexpr PaneSize kPane = {24, 20};
  stage.Open(kPane);
  stage.host.failures.advance = -36;
  stage.preview->Pan(-5, -5);
  EXPECT_EQ(stage.result, -36);
  for (const ViewMode view : {ViewMode::kComposite, ViewMode::kOriginal}) {
    EXPECT_TRUE(stage.Shown(view, kPane).samples.empty());
  }
  stage.preview->Pan(-1, 0);
  EXPECT_EQ(stage.result, 0);
  EXPECT_EQ(FirstDifference(stage.Shown(ViewMode::kComposite, kPane),
                            stage.Fresh(ViewMode::kComposite, kPane)),
            "");
}

TEST(LivePreview, OpensWithoutWhatAHostLacks) {
  const struct {
    const char* name;
    void (*take)(testhost::HostOptions&);
    bool hasPicture;
  } kHosts[] = {
      {"a small host", [](testhost::HostOptions& o) { o = testhost::MinimalOptions(); }, true},
      {"no channels",
       [](testhost::HostOptions& o) {
         o.channelPorts = false;
         o.refusedSuites.insert({host::kPSChannelPortsSuite, 2});
       },
       true},
      {"no advance", [](testhost::HostOptions& o) { o.advance = false; }, false},
      {"no suites", [](testhost::HostOptions& o) { o.broker = false; }, true},
  };
  for (const auto& c : kHosts) {
    testhost::HostOptions options;
    c.take(options);
    options.advance = c.hasPicture;
    PreviewStage stage(NoisyDocument(40, 30, 3), options);
    stage.Open({24, 20});
    const Pnm shown = stage.Shown(ViewMode::kComposite, {24, 20});
    EXPECT_EQ(!shown.samples.empty(), c.hasPicture) << c.name;
    if (c.hasPicture) {
      EXPECT_EQ(FirstDifference(shown, stage.Fresh(ViewMode::kComposite, {24, 20})), "") << c.name;
    }
  }
}

TEST(LivePreview, BearsAnySizeOfPane) {
  for (const PaneSize pane : {PaneSize{0, 0}, PaneSize{1, 1}, PaneSize{3, 300}, PaneSize{300, 3},
                              PaneSize{-5, 7}, PaneSize{100000, 4}}) {
    PreviewStage stage(NoisyDocument(40, 30, 4));
    stage.Open(pane);
    stage.preview->Render(ViewMode::kComposite);
    (void)stage.preview->ZoomOut(pane);
    stage.preview->Pan(2000000000, -2000000000);
    stage.preview->Pan(-2000000000, 2000000000);
    stage.preview->Render(ViewMode::kBackground);
    EXPECT_LE(stage.preview->BuildPaneImage(pane).imageWidth, 40);
  }
}

// Where a page's drag goes, and nowhere else.
TEST(LivePreview, DragsTheLayerOfThePage) {
  const struct {
    EffectPage page;
    ViewMode view;
    std::int32_t EffectSettings::*x;  // null: nothing moves
    LayerKind kind;
  } kDrags[] = {
      {EffectPage::kBasic, ViewMode::kComposite, nullptr, {}},
      {EffectPage::kWash, ViewMode::kOriginal, nullptr, {}},
      {EffectPage::kWash, ViewMode::kComposite, &EffectSettings::WashOffsetX1, LayerKind::kWash},
      {EffectPage::kWash, ViewMode::kWashTwo, &EffectSettings::WashOffsetX2, LayerKind::kWash},
      {EffectPage::kSurface, ViewMode::kWashTwo, &EffectSettings::SurfaceOffsetX1,
       LayerKind::kSurface},
      {EffectPage::kSurface, ViewMode::kSurfaceTwo, &EffectSettings::SurfaceOffsetX2,
       LayerKind::kSurface},
      {EffectPage::kBackground, ViewMode::kBackground, &EffectSettings::BackgroundOffsetX,
       LayerKind::kBackground},
  };
  for (const auto& c : kDrags) {
    PreviewStage stage(NoisyDocument(120, 90, 3));
    stage.settings.SecondWashExists = stage.settings.SecondSurfaceExists = 1;
    for (auto x :
         {&EffectSettings::WashScale1, &EffectSettings::WashScale2, &EffectSettings::SurfaceScale1,
          &EffectSettings::SurfaceScale2, &EffectSettings::BackgroundScale}) {
      stage.settings.*x = 200;  // room to move: 0.8 of the picture or more
    }
    stage.Open({40, 30});
    stage.preview->ZoomOut({40, 30});
    const auto scale = static_cast<int>(stage.preview->Zoom().viewScale);
    ASSERT_EQ(scale, 2);
    std::vector<LayerKind> moved;
    stage.preview->SetLinkPropagation([&](LayerKind kind) { moved.push_back(kind); });
    EXPECT_EQ(stage.preview->MoveActiveOffset(c.page, c.view, 7, 4), c.x != nullptr);
    for (auto x : {&EffectSettings::WashOffsetX1, &EffectSettings::WashOffsetX2,
                   &EffectSettings::SurfaceOffsetX1, &EffectSettings::SurfaceOffsetX2,
                   &EffectSettings::BackgroundOffsetX}) {
      EXPECT_EQ(stage.settings.*x, x == c.x ? 7 * scale : 0);
    }
    const std::vector<LayerKind> wanted(c.x != nullptr ? 1 : 0, c.kind);
    EXPECT_EQ(moved, wanted);
    const ViewMode view = c.view;
    EXPECT_EQ(FirstDifference(stage.Shown(view, {40, 30}), stage.Fresh(view, {40, 30})), "");
  }
}

TEST(LivePreview, LeavesOutWhatHasNoMemory) {
  constexpr PaneSize kPane = {24, 20};
  for (int nth = 1; nth <= 60; ++nth) {
    const std::size_t before = testhost::LivePages().size();
    {
      PreviewStage stage(NoisyDocument(64, 48, 4));
      testhost::FailPageRequest(nth, nth % 2 == 0);
      stage.Open(kPane);
      (void)stage.Shown(ViewMode::kComposite, kPane);
      stage.preview->ZoomOut(kPane);
      (void)stage.Shown(ViewMode::kComposite, kPane);
      testhost::FailPageRequest(0, false);
    }
    EXPECT_EQ(testhost::LivePages().size(), before) << nth;
  }
}

// Colours that a background shows before they are in the settings, and textures that
// would have to be loaded again, stay with the layers that stay.
TEST(LivePreview, RemakesNoLayerThatStays) {
  const struct {
    const char* name;
    KeptLayers kept;
  } kCases[] = {{"all new", {}},
                {"washes new", {false, true, true}},
                {"surfaces new", {true, false, true}},
                {"background new", {true, true, false}}};
  for (const auto& c : kCases) {
    PreviewStage stage(NoisyDocument(24, 20, 3));
    stage.settings.SecondWashExists = 1;
    stage.Open({24, 20});
    EffectLayers& layers = stage.g.layers;
    layers.background.offsetX = layers.washes[1].offsetX = layers.surfaces[0].offsetX = 3;
    stage.settings.SecondWashExists = 0;
    NameNoTextures(stage.settings);
    stage.preview->RemakeLayers(c.kept);
    EXPECT_EQ(layers.washes[1].texture != nullptr, c.kept.washes) << c.name;
    EXPECT_EQ(layers.washes[1].offsetX, c.kept.washes ? 3 : 0) << c.name;
    EXPECT_EQ(layers.surfaces[0].offsetX, c.kept.surfaces ? 3 : 0) << c.name;
    EXPECT_EQ(layers.background.offsetX, c.kept.background ? 3 : 0) << c.name;
    EXPECT_EQ(stage.settings.WashUse + stage.settings.SurfaceUse + stage.settings.BackgroundUse, 0);
  }
}

}  // namespace
}  // namespace tarnwick
