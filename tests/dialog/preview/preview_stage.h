#pragma once
#include <memory>
#include <string>
#include <utility>

#include "dialog/preview/live_preview.h"
#include "engine/apply_run.h"
#include "host/record_setup.h"
#include "host/test_host.h"
#include "support/pnm.h"

namespace tarnwick::testing {

// A dialog's surroundings: a host with a document, the settings, and the preview.
class PreviewStage {
 public:
  explicit PreviewStage(testhost::Document document, testhost::HostOptions options = {});
  ~PreviewStage();
  PreviewStage(const PreviewStage&) = delete;
  PreviewStage& operator=(const PreviewStage&) = delete;

  void Open(PaneSize pane);
  // The dialog's end: the preview goes, the host takes what is in its output.
  void Close();

  // The pane's rows from the top, red, green and blue.
  [[nodiscard]] Pnm Shown(ViewMode view, PaneSize pane);
  // What an own render of the same window shows, as the pane composes it.
  [[nodiscard]] Pnm Fresh(ViewMode view, PaneSize pane);

  testhost::TestHost host;
  EffectSettings settings;
  FilterGlobals g;
  std::int16_t result = 0;
  std::unique_ptr<LivePreview> preview;

 private:
  std::unique_ptr<testhost::DocumentDescription> description_;
};

// A document of one layer: a noisy picture, with a transparency that comes and goes if
// there are four planes.
[[nodiscard]] testhost::Document NoisyDocument(int width, int height, int planes);
// A rendered window as the pane shows it when nothing lies below: cut to its size, the
// width to a multiple of 4, transparency over the grid of squares.
[[nodiscard]] Pnm PaneOf(const Pnm& rendered, PaneSize pane);
// Selects softly, all over.
void SelectSoftly(testhost::Document& document);
// No effect at all.
void NameNoTextures(EffectSettings& settings);

}  // namespace tarnwick::testing
