#include "resources/art_generator/sheet_drawing.h"

#include <algorithm>

namespace tarnwick {
namespace {

std::string Box(int x, int y, int width, int height) {
  return "x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\" width=\"" +
         std::to_string(width) + "\" height=\"" + std::to_string(height) + "\"";
}

}  // namespace

void SheetDrawing::Reach(int x, int y) {
  width_ = std::max(width_, x + margin_);
  height_ = std::max(height_, y + margin_);
}

void SheetDrawing::PutPicture(const std::string& file, int x, int y, int width, int height,
                              int times) {
  body_ += "<image href=\"" + file + "\" " + Box(x, y, width * times, height * times) +
           " style=\"image-rendering:pixelated\"/>\n";
  Reach(x + width * times, y + height * times);
}

void SheetDrawing::PutText(const std::string& text, int x, int y, const char* color, int weight) {
  body_ += "<text x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\" fill=\"" + color +
           "\" style=\"font-family:Inter;font-size:12px;font-weight:" + std::to_string(weight) +
           "\">" + text + "</text>\n";
  // Wide enough for the font's usual letters.
  Reach(x + 7 * static_cast<int>(text.size()), y + 4);
}

void SheetDrawing::PutRectangle(int x, int y, int width, int height, const char* color) {
  body_ += "<rect " + Box(x, y, width, height) + " fill=\"" + color + "\"/>\n";
  Reach(x + width, y + height);
}

std::string SheetDrawing::Svg() const {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + std::to_string(width_) +
         "\" height=\"" + std::to_string(height_) + "\">\n<rect " + Box(0, 0, width_, height_) +
         " fill=\"" + ground_ + "\"/>\n" + body_ + "</svg>\n";
}

}  // namespace tarnwick
