#pragma once
#include "filter/filter_globals.h"

namespace tarnwick {

// True for a document of colours: RGB or CMYK, of 8 or 16 bits. Any other is told in a
// box, and *g.gResult is userCanceledErr then.
[[nodiscard]] bool CheckImageMode(FilterGlobals& g);

}  // namespace tarnwick
