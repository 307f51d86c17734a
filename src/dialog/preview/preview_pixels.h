#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/page_buffer.h"
#include "dialog/models/pane_image.h"
#include "dialog/models/pane_zoom.h"
#include "engine/apply_run.h"
#include "filter/filter_globals.h"

namespace tarnwick {

// The samples of the window that a preview shows, between host and render.
//
// Result  a copy of the host's output buffer, row length, planes and depth included:
//         the render writes there what an apply run would write to the host, and
//         bytes that nobody writes are the host's.
// Errors  of the host are in *g.gResult; then there is neither result nor selection.
class PreviewPixels {
 public:
  // Keeps the selection that was delivered with the whole document at full size. A
  // host samples it from its own corner; the render wants the picture's.
  void KeepSelection(const FilterGlobals& g);

  // Asks the host for the window at its scale, all planes, and sets the render's
  // size, scale, origin and selection.
  void Request(FilterGlobals& g, const PaneZoom& zoom);

  // Fills sourcePixels from the copy of the target layer, or from the host's input if
  // there is none, and the backdrop from what lies below.
  void FetchSource(FilterGlobals& g);

  // The render's output, or the picture as it was, into the result.
  void WriteRender(const FilterGlobals& g);
  void WriteOriginal(FilterGlobals& g);

  // The kept selection at each of `columns` in each of `rows` of the document at full
  // size; places beyond it are its last ones. Empty when everything is selected.
  [[nodiscard]] std::vector<std::uint8_t> SampleSelection(
      const std::vector<std::ptrdiff_t>& columns, const std::vector<std::ptrdiff_t>& rows) const;

  // Without samples if there is none.
  [[nodiscard]] PaneSource Result() const;
  [[nodiscard]] PaneSize Size() const { return size_; }
  // Null without layers below.
  [[nodiscard]] const std::uint8_t* Backdrop() const {
    return backdrop_.empty() ? nullptr : backdrop_.data();
  }

 private:
  void TakeOutput(const host::FilterRecord& record);
  void TakeSelection(FilterGlobals& g, const PictureJob& delivered);

  PaneSize size_;
  std::vector<std::uint8_t> result_;
  std::ptrdiff_t rowBytes_ = 0;
  int planes_ = 0;
  bool is16Bit_ = false;
  bool isCmyk_ = false;
  PageBuffer<std::uint8_t> wholeSelection_;
  PaneSize wholeSize_;
  std::vector<std::uint8_t> selection_;  // rows of size_.width
  std::vector<std::uint8_t> backdrop_;
};

}  // namespace tarnwick
