#include "engine/stepped_render.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "engine/picture_io.h"
#include "engine/render_layers.h"
#include "engine/render_pipeline.h"
#include "support/images.h"

namespace tarnwick::testing {

SteppedRender::SteppedRender(const PictureJob& job, const Form& form, const PreviewWindow* window)
    : job_(job) {
  state.renderWidth = window == nullptr ? job.width : window->width;
  state.renderHeight = window == nullptr ? job.height : window->height;
  state.renderRowBytes = state.renderWidth * 4;
  state.documentWidth = job.width;
  state.documentHeight = job.height;
  state.planes = job.planes;
  state.hasSelection = job.selection != nullptr;
  state.selection = job.selection;
  state.selectionRowBytes = job.selectionRowBytes;
  state.textureFolder = job.textureFolder;
  state.progress.sink = this;
  state.pool = form.Pool();
  state.isa = form.isa;
  if (job.selection != nullptr || job.planes > 3) {
    EXPECT_TRUE(BuildSelectionPlane(job, selectionPlane_));
    state.selectionPlane = selectionPlane_.Data();
  }
  if (window == nullptr) return;
  state.previewMode = true;
  state.viewScale = static_cast<float>(window->scale);
  state.viewOriginX = window->x;
  state.viewOriginY = window->y;
  view_ = state.view = window->view;
  if (job.selection == nullptr) return;
  for (int y = 0; y < window->height; ++y) {
    const int row = std::min((window->y + y) * window->scale, job.height - 1);
    for (int x = 0; x < window->width; ++x) {
      const int column = std::min((window->x + x) * window->scale, job.width - 1);
      shownSelection_.push_back(job.selection[row * job.selectionRowBytes + column]);
    }
  }
  state.selection = shownSelection_.data();
  state.selectionRowBytes = window->width;
}

SteppedRender::~SteppedRender() = default;

void SteppedRender::Run(EffectSettings& settings, const SettingsSession& session) {
  ASSERT_EQ(FetchSource(state, job_), ApplyOutcome::kDone);
  CreateLayers(layers, state, settings, session);
  after.clear();
  RenderPipeline(layers, state, settings, view_);
  ASSERT_EQ(WriteResult(state, job_), ApplyOutcome::kDone);
}

// The first report that reaches a stage's end comes right after that stage.
void SteppedRender::Report(int done, int) {
  const struct {
    int done;
    const char* stage;
  } ends[] = {
      {40, "surface-result"}, {50, "surface"}, {60, "wash1"}, {70, "wash2"}, {100, "background"}};
  for (const auto& end : ends) {
    if (done >= end.done && after.count(end.stage) == 0) TakePixels(end.stage);
  }
}

void SteppedRender::TakePixels(const char* stage) {
  const std::uint8_t* const pixels = state.outputPixels.Data();
  after[stage] = Bytes(pixels, pixels + state.PixelCount() * 4);
}

Pnm MapOf(const ImagePtr& image, int flat, int width, int height) {
  if (flat < 0) return image == nullptr ? Pnm{} : InteriorOf(*image);
  Pnm map{width, height, 1, {}};
  map.samples.assign(static_cast<std::size_t>(width * height), static_cast<std::uint8_t>(flat));
  return map;
}

}  // namespace tarnwick::testing
