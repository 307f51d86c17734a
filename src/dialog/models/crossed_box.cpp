#include "dialog/models/crossed_box.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

constexpr int kLineGrey = 192;

class Canvas {
 public:
  explicit Canvas(ThumbnailPicture& picture) : picture_(picture) {}

  // Mixes the line over a pixel; `part` 0..1.
  void Mix(int x, int y, float part) {
    if (x < 0 || y < 0 || x >= picture_.width || y >= picture_.height) return;
    const auto at = (static_cast<std::size_t>(y) * static_cast<std::size_t>(picture_.width) +
                     static_cast<std::size_t>(x)) *
                    3;
    for (std::size_t i = at; i < at + 3; ++i) {
      const auto under = static_cast<float>(picture_.samples[i]);
      picture_.samples[i] =
          static_cast<std::uint8_t>(under + (static_cast<float>(kLineGrey) - under) * part + 0.5F);
    }
  }

  // From the middle of one pixel to that of another, one pixel wide: along its longer
  // side two pixels share what the line covers.
  void Line(int x0, int y0, int x1, int y1) {
    const bool isSteep = std::abs(y1 - y0) > std::abs(x1 - x0);
    const int first = isSteep ? y0 : x0;
    const int last = isSteep ? y1 : x1;
    const int steps = std::max(std::abs(last - first), 1);
    const auto from = static_cast<float>(isSteep ? x0 : y0);
    const float slope = (static_cast<float>(isSteep ? x1 : y1) - from) / static_cast<float>(steps);
    for (int i = 0; i <= std::abs(last - first); ++i) {
      const int along = first + (last >= first ? i : -i);
      const float across = from + slope * static_cast<float>(i);
      const auto whole = static_cast<int>(std::floor(across));
      const float part = across - static_cast<float>(whole);
      if (isSteep) {
        Mix(whole, along, 1.0F - part);
        Mix(whole + 1, along, part);
      } else {
        Mix(along, whole, 1.0F - part);
        Mix(along, whole + 1, part);
      }
    }
  }

 private:
  ThumbnailPicture& picture_;
};

}  // namespace

ThumbnailPicture CrossedBox(ThumbnailSize size, const std::array<std::uint8_t, 3>& ground) {
  ThumbnailPicture picture(size.width, size.height);
  for (std::size_t i = 0; i < picture.samples.size(); ++i) picture.samples[i] = ground[i % 3];
  Canvas canvas(picture);
  const int right = size.width - 1;
  const int bottom = size.height - 1;
  canvas.Line(0, 0, right, bottom);
  canvas.Line(0, bottom, right, 0);
  canvas.Line(0, 0, right, 0);
  canvas.Line(0, bottom, right, bottom);
  canvas.Line(0, 0, 0, bottom);
  canvas.Line(right, 0, right, bottom);
  return picture;
}

}  // namespace tarnwick
