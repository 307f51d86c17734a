#pragma once
#include <cstddef>
#include <vector>

namespace tarnwick {

// Where a cell's picture takes the document's pixels.

// Pixels of a document of this width that one of a cell's picture stands for: as many
// as of its textures, which cover the document however large it is. 4 for a width of 0.
[[nodiscard]] float CellStep(int documentWidth);

// The places of `points` samples, `step` > 0 apart, around the middle of a side of
// `side` >= 1 pixels; what would lie outside is the first or last one.
[[nodiscard]] std::vector<std::ptrdiff_t> CentredPlaces(int side, int points, float step);

// The same 4 apart, or as much less as makes a shorter side fit in.
[[nodiscard]] std::vector<std::ptrdiff_t> BackdropPlaces(int side, int points);

}  // namespace tarnwick
