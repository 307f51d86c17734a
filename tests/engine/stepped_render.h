#pragma once
#include <map>
#include <string>
#include <vector>

#include "engine/apply_run.h"
#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "support/forms.h"
#include "support/pnm.h"
#include "support/test_random.h"

namespace tarnwick::testing {

// A run as apply_run makes it, with what a job does not offer: the instruction
// set, a look at what stands after each stage, and layers that stay.
class SteppedRender : private ProgressSink {
 public:
  // The whole picture at full size, or a preview's window.
  SteppedRender(const PictureJob& job, const Form& form, const PreviewWindow* window = nullptr);
  ~SteppedRender() override;

  // Runs everything and writes job.out.
  void Run(EffectSettings& settings, const SettingsSession& session);

  RenderState state;
  EffectLayers layers;
  // The 4-byte pixels after "surface-result" (before it is merged), "surface",
  // "wash1", "wash2" and "background".
  std::map<std::string, Bytes> after;

 private:
  void Report(int done, int total) override;
  void TakePixels(const char* stage);

  const PictureJob job_;
  ViewMode view_ = ViewMode::kComposite;
  PageBuffer<std::uint8_t> selectionPlane_;
  Bytes shownSelection_;
};

// The sample at (x, y) of a map that may be held as one value for all.
[[nodiscard]] Pnm MapOf(const ImagePtr& image, int flat, int width, int height);

}  // namespace tarnwick::testing
