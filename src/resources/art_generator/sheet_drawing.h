#pragma once
#include <string>

namespace tarnwick {

// A sheet that grows as things are put on it; sizes and places in its pixels.
class SheetDrawing {
 public:
  SheetDrawing(const char* ground, int margin) : ground_(ground), margin_(margin) {}

  // A picture in the folder of the sheet, at a whole multiple of its size.
  void PutPicture(const std::string& file, int x, int y, int width, int height, int times = 1);
  void PutText(const std::string& text, int x, int y, const char* color, int weight = 400);
  void PutRectangle(int x, int y, int width, int height, const char* color);

  [[nodiscard]] std::string Svg() const;

 private:
  void Reach(int x, int y);

  std::string ground_;
  int margin_;  // to the right and below
  std::string body_;
  int width_ = 0, height_ = 0;
};

}  // namespace tarnwick
