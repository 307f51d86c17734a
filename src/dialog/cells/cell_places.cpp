#include "dialog/cells/cell_places.h"

#include <algorithm>

#include "base/truncate.h"
#include "textures/texture_record.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

float CellStep(int documentWidth) {
  const auto reference = static_cast<float>(TextureRecord{}.referenceWidth);
  const float factor = documentWidth > 0 ? reference / static_cast<float>(documentWidth) : 1.0F;
  return kThumbnailScale / factor;
}

std::vector<std::ptrdiff_t> CentredPlaces(int side, int points, float step) {
  const int sampled = TruncateToInt(static_cast<float>(points) * step);
  const int offset = (side - sampled) / 2;
  std::vector<std::ptrdiff_t> places(static_cast<std::size_t>(points));
  for (int i = 0; i < points; ++i) {
    const int at = TruncateToInt(static_cast<float>(i) * step + static_cast<float>(offset));
    places[static_cast<std::size_t>(i)] = std::clamp(at, 0, side - 1);
  }
  return places;
}

std::vector<std::ptrdiff_t> BackdropPlaces(int side, int points) {
  const float whole = static_cast<float>(side) / static_cast<float>(points);
  return CentredPlaces(side, points, std::min(kThumbnailScale, whole));
}

}  // namespace tarnwick
