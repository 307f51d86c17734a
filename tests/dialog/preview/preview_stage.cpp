#include "dialog/preview/preview_stage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "host/layer_fill.h"
#include "support/test_random.h"

namespace tarnwick::testing {
namespace {

using testhost::Document;

// The part of the document that the filter may work on, as a picture of its own.
struct Part {
  int width, height, planes;
  Bytes samples, selection;

  explicit Part(Document& document) : planes(document.Target().planes) {
    const host::VRect& rect = document.filterRect;
    width = rect.right - rect.left;
    height = rect.bottom - rect.top;
    for (int y = rect.top; y < rect.bottom; ++y) {
      for (int x = rect.left; x < rect.right; ++x) {
        const auto at = static_cast<std::size_t>(y * document.width + x);
        if (!document.selection.empty()) selection.push_back(document.selection[at]);
        for (int i = 0; i < planes; ++i) {
          samples.push_back(document.Target().samples[at * static_cast<std::size_t>(planes) +
                                                      static_cast<std::size_t>(i)]);
        }
      }
    }
  }
};

// Nothing lies below the one layer: transparency shows the grid of squares.
std::uint8_t OverGrid(int sample, int alpha, int x, int y) {
  const float a = static_cast<float>(alpha) / 255.0F;
  const int grid = (x / 7 + y / 7) % 2 == 1 ? 255 : 204;
  return alpha == 255 ? static_cast<std::uint8_t>(sample)
                      : static_cast<std::uint8_t>(static_cast<float>(sample) * a +
                                                  static_cast<float>(grid) * (1.0F - a));
}

}  // namespace

PreviewStage::PreviewStage(Document document, testhost::HostOptions options) {
  host.options = std::move(options);
  host.document = std::move(document);
  testhost::SetTheHost(&host);
  // Message boxes end up in the host's log.
  host.module = testhost::MakeModuleEntry(host.log, "");
  description_ = testhost::SetUpRecord(host);
  g.gFilterRecord = &host.Record();
  g.gResult = &result;
  g.gBasicSuite = host.Record().sSPBasic;
  g.gParams = &settings;
  g.folders.dataFolder = TARNWICK_TEST_DATA "/golden/textures";
  InitSettingsToDefaults(settings, g.session);
  if (host.Record().bigDocumentData != nullptr) {
    host.Record().bigDocumentData->PluginUsing32BitCoordinates = 1;
  }
}

PreviewStage::~PreviewStage() {
  Close();
  testhost::SetTheHost(nullptr);
}

void PreviewStage::Open(PaneSize pane) {
  g.DialogActive = 1;
  preview = std::make_unique<LivePreview>(g, nullptr);
  preview->Open(pane);
}

void PreviewStage::Close() {
  preview.reset();
  g.DialogActive = 0;
  host.pixels.Close(host);
  EXPECT_TRUE(host.log.faults.empty()) << host.log.faults.front();
  EXPECT_EQ(host.document.Target().samples, host.document.Target().original)
      << "the document has changed";
}

Pnm PreviewStage::Shown(ViewMode view, PaneSize pane) {
  preview->Render(view);
  const PanePicture picture = preview->BuildPaneImage(pane);
  Pnm shown{picture.imageWidth, picture.imageHeight, 3, {}};
  for (int y = shown.height - 1; y >= 0; --y) {
    for (int x = 0; x < shown.width; ++x) {
      for (int c = 2; c >= 0; --c) {
        shown.samples.push_back(
            picture.bitmap.at(static_cast<std::size_t>((y * shown.width + x) * 3 + c)));
      }
    }
  }
  return shown;
}

Pnm PreviewStage::Fresh(ViewMode view, PaneSize pane) {
  const PaneZoom& zoom = preview->Zoom();
  const Part part(host.document);
  PictureJob job;
  job.width = part.width;
  job.height = part.height;
  job.planes = part.planes;
  job.in = part.samples.data();
  job.inRowBytes = part.width * part.planes;
  if (!part.selection.empty()) {
    job.selection = part.selection.data();
    job.selectionRowBytes = part.width;
  }
  job.textureFolder = g.folders.dataFolder;
  const PreviewWindow window{static_cast<int>(zoom.viewScale),
                             zoom.panX,
                             zoom.panY,
                             zoom.proxy.width,
                             zoom.proxy.height,
                             view};
  Pnm out{window.width, window.height, part.planes, {}};
  out.samples.resize(static_cast<std::size_t>(out.width * out.height * out.planes));
  job.out = out.samples.data();
  job.outRowBytes = out.width * out.planes;
  EffectSettings own = settings;
  EXPECT_EQ(RenderPreview(own, g.session, job, window), ApplyOutcome::kDone);
  return PaneOf(out, pane);
}

Pnm PaneOf(const Pnm& rendered, PaneSize pane) {
  Pnm shown{
      std::min(rendered.width, pane.width) / 4 * 4, std::min(rendered.height, pane.height), 3, {}};
  for (int y = 0; y < shown.height; ++y) {
    for (int x = 0; x < shown.width; ++x) {
      const std::uint8_t* const pixel =
          rendered.samples.data() + (y * rendered.width + x) * rendered.planes;
      const int alpha = rendered.planes >= 4 ? pixel[3] : 255;
      for (int c = 0; c < 3; ++c) shown.samples.push_back(OverGrid(pixel[c], alpha, x, y));
    }
  }
  return shown;
}

Document NoisyDocument(int width, int height, int planes) {
  TestRandom random(static_cast<std::uint32_t>(width * 8 + planes));
  Pnm picture{width, height, planes, {}};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      for (int c = 0; c < 3; ++c) {
        picture.samples.push_back(
            static_cast<std::uint8_t>((x * (c + 1) + y * 2 + random.Below(60)) % 256));
      }
      // Solid in the middle, ragged and clear towards the sides.
      const int depth =
          std::min({x, y, width - 1 - x, height - 1 - y}) * 20 + random.Below(30) - 40;
      if (planes > 3)
        picture.samples.push_back(static_cast<std::uint8_t>(std::clamp(depth, 0, 255)));
    }
  }
  Document document;
  document.width = width;
  document.height = height;
  document.layers = {testhost::MakeLayer(document, "Layer", planes, picture)};
  document.filterRect = document.Bounds();
  return document;
}

void SelectSoftly(Document& document) {
  document.selection.clear();
  for (int y = 0; y < document.height; ++y) {
    for (int x = 0; x < document.width; ++x) {
      document.selection.push_back(static_cast<std::uint8_t>(std::min(255, x * 5 + y)));
    }
  }
  document.filterRect = document.Bounds();
}

void NameNoTextures(EffectSettings& settings) {
  for (auto* name : {&settings.WashFileName1, &settings.WashFileName2, &settings.SurfaceFileName1,
                     &settings.SurfaceFileName2, &settings.BackgroundFileName}) {
    std::snprintf(*name, sizeof *name, "No_Texture.twk");
  }
}

}  // namespace tarnwick::testing
