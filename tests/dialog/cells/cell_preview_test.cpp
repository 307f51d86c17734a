// Whole pictures of cells over documents of every kind.
#include "dialog/cells/cell_preview.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "dialog/cells/cell_model.h"
#include "host/counted_pages.h"
#include "support/temp_folder.h"
#include "support/test_random.h"
#include "textures/thumbnail_file.h"

namespace tarnwick {
namespace {

using testhost::Document;
using testing::CellModel;
using testing::FirstOff;
using testing::NoisyDocument;
using testing::PreviewStage;
using testing::SelectSoftly;

constexpr PaneSize kPane = {24, 20};
constexpr ThumbnailSize kSmall = {20, 18};
// Views of the second of two, if there are two.
constexpr EffectViews kFirst{};
constexpr EffectViews kSecond{.washView = ViewMode::kWashTwo, .surfaceView = ViewMode::kSurfaceTwo};

ThumbnailPicture Flat(ThumbnailSize size, std::uint8_t grey) {
  ThumbnailPicture picture(size.width, size.height);
  std::fill(picture.samples.begin(), picture.samples.end(), grey);
  return picture;
}

ThumbnailPicture Noise(ThumbnailSize size) {
  ThumbnailPicture picture(size.width, size.height);
  testing::TestRandom random(7);
  for (std::size_t i = 0; i < picture.samples.size(); i += 3) {
    std::fill_n(&picture.samples[i], 3, random.Byte());
  }
  return picture;
}

std::vector<int> FirstPixel(const ThumbnailPicture& picture) {
  return {picture.samples.begin(), picture.samples.begin() + 3};
}

Document Selected(Document document) {
  SelectSoftly(document);
  return document;
}

Document PartlySelected(Document document) {
  SelectSoftly(document);
  document.filterRect = {7, 11, document.height - 5, document.width - 30};
  return document;
}

// One value a plane.
Document FlatDocument(const char* mode, const std::vector<std::uint8_t>& values) {
  Document document;
  SetMode(document, mode);
  document.width = 8;
  document.height = 6;
  testhost::Layer layer;
  layer.name = "Layer";
  layer.planes = static_cast<int>(values.size());
  for (int i = 0; i < 8 * 6; ++i) {
    layer.samples.insert(layer.samples.end(), values.begin(), values.end());
  }
  layer.original = layer.samples;
  document.layers = {layer};
  document.filterRect = document.Bounds();
  return document;
}

testhost::HostOptions WithoutChannels() {
  testhost::HostOptions options;
  options.channelPorts = false;
  options.refusedSuites.insert({host::kPSChannelPortsSuite, 2});
  return options;
}

void ColorAll(EffectSettings& s) {
  s.SecondWashExists = s.SecondSurfaceExists = 1;
  s.WashStainColor1 = 0x3060C8;
  s.WashStainColor2 = 0x20F040;
  s.SurfaceHighlightColor = 0x40F0FF;
  s.SurfaceMidtoneColor = 0x7040A0;
  s.SurfaceShadowColor = 0x401008;
  s.SurfaceMidtone = 70;
  s.SurfaceIntensity = 80;
  s.SurfaceDepth1 = 60;
  s.SurfaceDepth2 = 90;
  s.SurfaceLightAlpha = 130;
  s.SurfaceLightBeta = 50;
  s.SurfaceHue = 30;
  s.SurfaceBrightness = 110;
  s.SurfaceContrast = 90;
}

// Every type of both targets, over each kind of document.
TEST(CellPreview, ShowsTheEffectOnEachDocument) {
  const struct {
    const char* name;
    Document document;
    testhost::HostOptions options;
  } kDocuments[] = {
      {"opaque", NoisyDocument(300, 200, 3), {}},
      {"transparent", NoisyDocument(90, 70, 4), {}},
      {"selected", Selected(NoisyDocument(60, 50, 3)), {}},
      {"transparent, selected", Selected(NoisyDocument(60, 50, 4)), {}},
      {"no channels", Selected(NoisyDocument(60, 50, 4)), WithoutChannels()},
      {"a part", PartlySelected(NoisyDocument(120, 90, 4)), WithoutChannels()},
      {"a small host", NoisyDocument(130, 90, 4), testhost::MinimalOptions()},
      {"low", NoisyDocument(700, 9, 4), {}},
      {"smaller than a cell", NoisyDocument(11, 7, 4), {}},
      {"one pixel", NoisyDocument(1, 1, 3), {}},
  };
  for (const auto& c : kDocuments) {
    PreviewStage stage(c.document, c.options);
    ColorAll(stage.settings);
    stage.Open(kPane);
    // The window plays no part.
    stage.preview->ZoomOut(kPane);
    stage.preview->Pan(-3, -2);
    CellPreview cells(stage.g, *stage.preview, "");
    cells.SetSize(kSmall);
    cells.MakeBackdrop();
    CellModel model(stage, kSmall);
    model.under = model.Backdrop();
    const ThumbnailPicture grey = Noise(kSmall);
    for (int type = 0; type < 9; ++type) {
      SCOPED_TRACE(std::string(c.name) + ", type " + std::to_string(type));
      EffectSettings& s = stage.settings;
      s.WashType1 = s.SurfaceType1 = static_cast<std::uint8_t>(type);
      s.WashType2 = s.SurfaceType2 = static_cast<std::uint8_t>(8 - type);
      s.SurfaceEntire = static_cast<std::uint8_t>(type % 2);
      stage.g.layers.surfaces[0].invert = 0;
      stage.g.layers.surfaces[1].invert = 1;
      cells.SetReliefFactor(0.6F);
      ThumbnailPicture picture = grey;
      const float step = cells.Preview(CellTarget::kWash, kFirst, picture);
      EXPECT_FLOAT_EQ(step, static_cast<float>(stage.preview->Document().width) / 512);
      EXPECT_EQ(FirstOff(picture, model.Wash(grey, type, s.WashStainColor1)), "");
      picture = grey;
      EXPECT_EQ(cells.Preview(CellTarget::kWash, kSecond, picture), step);
      EXPECT_EQ(FirstOff(picture, model.Wash(grey, 8 - type, s.WashStainColor2)), "");
      picture = grey;
      EXPECT_EQ(cells.Preview(CellTarget::kSurface, kFirst, picture), step);
      EXPECT_EQ(FirstOff(picture, model.Surface(grey, type, false, 0.6F)), "");
      picture = grey;
      (void)cells.Preview(CellTarget::kSurface, kSecond, picture);
      EXPECT_EQ(FirstOff(picture, model.Surface(grey, 8 - type, true, 0.6F)), "");
    }
  }
}

// What a full erosion uncovers is what lies under it.
TEST(CellPreview, UncoversTheBackgroundOrTheDocument) {
  testing::TempFolder folder;
  ThumbnailPicture kept = Flat(kSmall, 200);
  ASSERT_TRUE(WriteThumbnail(ThumbnailPath(folder.Path(), "Kept.twk"), kept));
  ASSERT_TRUE(WriteThumbnail(ThumbnailPath(folder.Path(), "Large.twk"), Flat({30, 30}, 9)));
  std::filesystem::copy(TARNWICK_TEST_DATA "/golden/textures/Solid.twk",
                        std::filesystem::path(folder.Path()) / "Solid.twk");
  PreviewStage stage(NoisyDocument(90, 70, 4));
  stage.Open(kPane);
  EffectLayer& layer = stage.g.layers.background;
  layer.highlightColor = {250, 255, 0};
  layer.midtoneColor = {220, 0, 0};
  layer.shadowColor = {20, 0, 255};
  stage.settings.WashType1 = 0;
  stage.settings.BackgroundHue = 0;
  stage.settings.BackgroundMidtone = 100;
  CellPreview cells(stage.g, *stage.preview, folder.Path());
  cells.SetSize(kSmall);
  const auto uncovered = [&] {
    ThumbnailPicture picture = Flat(kSmall, 0);
    (void)cells.Preview(CellTarget::kWash, kFirst, picture);
    return picture;
  };
  EXPECT_EQ(uncovered().samples, Flat(kSmall, 0).samples) << "nothing lies under it";
  cells.MakeBackdrop();
  const std::vector<double> backdrop = CellModel(stage, kSmall).Backdrop();
  EXPECT_EQ(FirstOff(uncovered(), backdrop), "");
  const struct {
    const char* name;
    std::uint8_t use;
    const char* file;
    std::vector<int> want;  // everywhere; empty: the document
  } kStages[] = {
      {"kept", 1, "Kept.twk", {231, 97, 0}},
      {"off", 0, "Kept.twk", {}},
      {"no name", 1, "", {}},
      {"unreadable", 1, "None.twk", {}},
      {"kept in another size, and no texture", 1, "Large.twk", {}},
  };
  for (const auto& c : kStages) {
    stage.settings.BackgroundUse = c.use;
    std::snprintf(stage.settings.BackgroundFileName, kTextureNameSize, "%s", c.file);
    cells.MakeBackgroundStage();
    std::vector<double> want = backdrop;
    for (std::size_t i = 0; i < want.size() && !c.want.empty(); ++i) want[i] = c.want[i % 3];
    EXPECT_EQ(FirstOff(uncovered(), want), "") << c.name;
    cells.FreeBackgroundStage();
    EXPECT_EQ(FirstOff(uncovered(), backdrop), "") << c.name;
  }
  // Made from the texture, and kept for the next time.
  std::snprintf(stage.settings.BackgroundFileName, kTextureNameSize, "Solid.twk");
  stage.settings.BackgroundUse = 1;
  cells.MakeBackgroundStage();
  const ThumbnailPicture first = uncovered();
  EXPECT_NE(FirstOff(first, backdrop), "");
  EXPECT_TRUE(std::filesystem::remove(std::filesystem::path(folder.Path()) / "Solid.twk"));
  cells.MakeBackgroundStage();
  EXPECT_EQ(uncovered().samples, first.samples);
}

TEST(CellPreview, ColorsWithTonesThatAreOnlyTried) {
  PreviewStage stage(NoisyDocument(90, 70, 4));
  ColorAll(stage.settings);
  stage.settings.BackgroundHue = 0;
  stage.settings.BackgroundMidtone = 100;
  stage.Open(kPane);
  CellPreview cells(stage.g, *stage.preview, "");
  cells.SetSize(kSmall);
  cells.SetReliefFactor(0.4F);
  cells.MakeBackdrop();
  const CellTones tones{0x00FFFA, 0x0000DC, 0xFF0014};
  const ThumbnailPicture grey = Noise(kSmall);
  const EffectSettings before = stage.settings;
  const LayerColor layerTone = stage.g.layers.background.midtoneColor;

  EXPECT_EQ(
      FirstPixel(cells.PreviewColors(CellTarget::kBackground, kFirst, Flat({2, 2}, 83), tones)),
      (std::vector<int>{120, 0, 127}));
  EXPECT_EQ(stage.g.layers.background.midtoneColor, layerTone);
  EXPECT_EQ(cells.PreviewColors(CellTarget::kWash, kFirst, grey, tones).samples, grey.samples);

  const ThumbnailPicture tried = cells.PreviewColors(CellTarget::kSurface, kSecond, grey, tones);
  EXPECT_EQ(stage.settings.SurfaceMidtoneColor, before.SurfaceMidtoneColor);
  stage.settings.SurfaceHighlightColor = tones.highlight;
  stage.settings.SurfaceMidtoneColor = tones.midtone;
  stage.settings.SurfaceShadowColor = tones.shadow;
  CellModel model(stage, kSmall);
  model.under = model.Backdrop();
  EXPECT_EQ(FirstOff(tried, model.Surface(grey, stage.settings.SurfaceType2,
                                          stage.g.layers.surfaces[1].invert != 0, 0.4F)),
            "");
}

// The host's exact colours: red is cyan x black / 255.
TEST(CellPreview, SeesDocumentsAsThePaneDoes) {
  Document bytes = FlatDocument("rgb48", {0, 0, 0, 0, 0, 0});
  bytes.layers[0].planes = 3;
  for (std::size_t i = 0; i < bytes.layers[0].samples.size(); i += 2) {
    bytes.layers[0].samples[i] = static_cast<std::uint8_t>(i / 2 * 350 & 255);
    bytes.layers[0].samples[i + 1] = static_cast<std::uint8_t>(i / 2 * 350 >> 8);
  }
  bytes.layers[0].original = bytes.layers[0].samples;
  Document inks = FlatDocument("cmyk", {200, 100, 50, 128});
  inks.selection.assign(48, 51);
  const struct {
    const char* name;
    Document document;
    std::uint8_t grey;  // of a black stain
    std::vector<int> want;
  } kCases[] = {
      {"cmyk", FlatDocument("cmyk", {200, 100, 50, 128}), 255, {100, 50, 25}},
      // 20 + 163.2 = 183, 10 + 163.2 = 173, 5 + 163.2 = 168 on the grid; then 20 + 146.4,
      // 10 + 138.4, 5 + 134.4
      {"cmyk, clear", FlatDocument("cmyk", {200, 100, 50, 128, 51}), 255, {166, 148, 139}},
      // Black over four fifths of what it was
      {"cmyk, selected", inks, 0, {80, 40, 20}},
      {"grey", FlatDocument("grey", {77}), 255, {77, 77, 77}},
      // Rows are taken half as long: pixel 4 of the third of them, 30 bytes each, is byte
      // 42 of row 1, in the middle of samples 45 and 46: 15750, 16100
      {"16 bits", bytes, 255, {134, 61, 228}},
  };
  for (const auto& c : kCases) {
    PreviewStage stage(c.document);
    stage.settings.WashType1 = 1;
    stage.settings.WashStainColor1 = 0;
    stage.Open({8, 6});
    CellPreview cells(stage.g, *stage.preview, "");
    cells.SetSize(kSmall);
    cells.MakeBackdrop();
    ThumbnailPicture picture = Flat(kSmall, c.grey);
    (void)cells.Preview(CellTarget::kWash, kFirst, picture);
    EXPECT_EQ(FirstPixel(picture), c.want) << c.name;
  }
}

TEST(CellPreview, LeavesGreyWhatItCannotShow) {
  const struct {
    const char* name;
    Document document;
    void (*take)(testhost::TestHost&);
    ThumbnailSize size;
  } kCases[] = {
      {"no document", NoisyDocument(40, 30, 3),
       [](testhost::TestHost& h) {
         h.failures.advance = -36;
         h.failures.unreadableLayer = "Layer";
       },
       kSmall},
      {"no converter", FlatDocument("cmyk", {200, 100, 50, 128}),
       [](testhost::TestHost& h) { h.Record().sSPBasic = nullptr; }, kSmall},
      {"another size", NoisyDocument(40, 30, 3), [](testhost::TestHost&) {}, {19, 18}},
  };
  for (const auto& c : kCases) {
    PreviewStage stage(c.document);
    c.take(stage.host);
    stage.g.gBasicSuite = stage.host.Record().sSPBasic;
    stage.Open(kPane);
    CellPreview cells(stage.g, *stage.preview, "");
    cells.SetSize(kSmall);
    cells.MakeBackdrop();
    cells.MakeBackgroundStage();
    const ThumbnailPicture grey = Noise(c.size);
    for (const CellTarget target : {CellTarget::kWash, CellTarget::kSurface}) {
      ThumbnailPicture picture = grey;
      EXPECT_GT(cells.Preview(target, kFirst, picture), 0) << c.name;
      EXPECT_EQ(picture.samples, grey.samples) << c.name;
      EXPECT_EQ(cells.PreviewColors(target, kFirst, grey, {}).samples, grey.samples) << c.name;
    }
    ThumbnailPicture picture = grey;
    (void)cells.Preview(CellTarget::kBackground, kFirst, picture);
    EXPECT_NE(picture.samples, grey.samples) << c.name << ": a background needs no document";
  }
}

TEST(CellPreview, BearsMissingMemory) {
  for (int nth = 1; nth <= 30; ++nth) {
    PreviewStage stage(NoisyDocument(40, 30, 4), testhost::MinimalOptions());
    testhost::FailPageRequest(nth, nth % 2 == 0);
    stage.Open(kPane);
    CellPreview cells(stage.g, *stage.preview, "");
    cells.MakeBackdrop();
    ThumbnailPicture picture = Noise(kDrawerThumbnail);
    (void)cells.Preview(CellTarget::kSurface, kFirst, picture);
    testhost::FailPageRequest(0, false);
    EXPECT_EQ(picture.samples.size(), 112U * 84 * 3);
  }
}

}  // namespace
}  // namespace tarnwick
