#pragma once
#include "dialog/preview/preview_stage.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick::testing {

// The pictures of cells by their definition, straight from a document's samples.
class CellModel {
 public:
  CellModel(const PreviewStage& stage, ThumbnailSize size) : stage_(stage), size_(size) {}

  // What lies under the picture: three values a pixel. Empty: nothing.
  std::vector<double> under;
  // The document over the grid of squares.
  [[nodiscard]] std::vector<double> Backdrop() const;

  [[nodiscard]] std::vector<double> Wash(const ThumbnailPicture& grey, int type,
                                         std::uint32_t stain) const;
  [[nodiscard]] std::vector<double> Surface(const ThumbnailPicture& grey, int type, bool invert,
                                            float factor) const;

 private:
  // Red, green, blue, own alpha and selection of a point of the picture.
  struct Point {
    int channels[3];
    int alpha;
    int selection;
  };
  [[nodiscard]] Point At(int x, int y) const;
  [[nodiscard]] Point Sampled(int x, int y, float stepX, float stepY) const;
  [[nodiscard]] Point Overlaid(int x, int y) const;
  [[nodiscard]] std::vector<float> Light(const ThumbnailPicture& grey, bool invert,
                                         float factor) const;
  [[nodiscard]] double Over(double value, double alpha, std::size_t at) const;
  [[nodiscard]] int Width() const;
  [[nodiscard]] int Height() const;

  const PreviewStage& stage_;
  ThumbnailSize size_;
};

// The first sample that is not the truncated value, as a text. A value so near to a
// whole number that 32 bits may lie on its other side can be either.
[[nodiscard]] std::string FirstOff(const ThumbnailPicture& picture,
                                   const std::vector<double>& want);

}  // namespace tarnwick::testing
