#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/page_buffer.h"
#include "filter/filter_globals.h"

namespace tarnwick {

// The preview shows the copy of the target layer, and not what the host delivers.
[[nodiscard]] bool ShowsDocumentCopy(const FilterGlobals& g);

// The document at full size as it was opened, as the preview would show its pixels.
class UnfilteredDocument {
 public:
  // Keeps what g.documentPixels do not hold of the document that the host has just
  // delivered as a whole: black, and transparency apart from the selection.
  void Keep(const FilterGlobals& g);

  // Red, green, blue and the document's own alpha at each of `columns` in each of
  // `rows`; places beyond the document are its last ones. Empty when there is no
  // document, or no converter for its inks.
  [[nodiscard]] std::vector<std::uint8_t> Sample(const FilterGlobals& g,
                                                 const std::vector<std::ptrdiff_t>& columns,
                                                 const std::vector<std::ptrdiff_t>& rows) const;

 private:
  // `extraPlanes_` samples a pixel, from the fourth plane on.
  PageBuffer<std::uint8_t> extra_;
  std::ptrdiff_t extraPlanes_ = 0;
};

}  // namespace tarnwick
