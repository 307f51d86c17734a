#include "controls/slider_paint.h"

#include <algorithm>

#include "controls/back_buffer.h"
#include "controls/control_shared.h"

namespace tarnwick {
namespace {

constexpr int kMargin = 5;
constexpr int kPointerHalf = 5;

// A pen for the length of a scope.
class Pen {
 public:
  Pen(int width, COLORREF color) : pen_(CreatePen(PS_SOLID, width, color)) {}
  ~Pen() { DeleteObject(pen_); }
  Pen(const Pen&) = delete;
  Pen& operator=(const Pen&) = delete;
  [[nodiscard]] HPEN Get() const { return pen_; }

 private:
  HPEN pen_;
};

void Line(HDC dc, int x0, int y0, int x1, int y1) {
  MoveToEx(dc, x0, y0, nullptr);
  LineTo(dc, x1, y1);
}

// Always lies flat: a line with a tick at each end, and a pointer below it.
void PaintLine(HDC dc, const TMacSlider& slider) {
  const Pen pen(1, slider.enabled != 0 ? RGB(0, 0, 0) : RGB(127, 127, 127));
  const Selected selected(dc, pen.Get());
  const int middle = slider.height / 2;
  const int right = slider.width - kMargin;
  Line(dc, kMargin, middle, right, middle);
  Line(dc, kMargin, middle - kMargin, kMargin, middle);
  Line(dc, right, middle - kMargin, right, middle + 1);
  const int p = PositionOf(slider.range, slider.value, slider.width);
  const int base = slider.height - 2;
  const POINT pointer[3] = {{p, slider.height - middle}, {p - 3, base}, {p + 3, base}};
  Polygon(dc, pointer, 3);
}

// A triangle on the far long side, its tip inwards.
void PaintPointer(HDC dc, const TMacSlider& slider, float value, bool isVertical) {
  const int length = isVertical ? slider.height : slider.width;
  const int depth = isVertical ? slider.width : slider.height;
  const int p = PositionOf(slider.range, value, length);
  POINT corners[3] = {
      {p, depth - 1 - kPointerHalf}, {p - kPointerHalf, depth - 1}, {p + kPointerHalf, depth - 1}};
  if (isVertical) {
    for (POINT& corner : corners) std::swap(corner.x, corner.y);
  }
  Polygon(dc, corners, 3);
}

void PaintGauge(HDC dc, const TMacSlider& slider) {
  const bool isVertical = slider.orientation == kVertical;
  const int length = isVertical ? slider.height : slider.width;
  const int depth = isVertical ? slider.width : slider.height;
  const int inset = std::max(depth / 4, 1);
  {
    const Pen pen(1, slider.enabled != 0 ? RGB(0, 0, 0) : RGB(127, 127, 127));
    const Selected selected(dc, pen.Get());
    if (isVertical) {
      Rectangle(dc, inset, kMargin, depth - inset, length - kMargin);
    } else {
      Rectangle(dc, kMargin, inset, length - kMargin, depth - inset);
    }
    PaintPointer(dc, slider, slider.value, isVertical);
  }
  if (!slider.range.limited) return;
  const Pen pen(2, RGB(155, 0, 0));
  const Selected selected(dc, pen.Get());
  PaintPointer(dc, slider, slider.range.limitLow, isVertical);
  PaintPointer(dc, slider, slider.range.limitHigh, isVertical);
}

}  // namespace

void PaintSlider(const TMacSlider& slider) {
  const BackBuffer buffer(slider.window);
  if (buffer.Dc() == nullptr) return;
  FillRect(buffer.Dc(), &buffer.Client(), SharedControls().faceBrush);
  if (!(slider.range.maximum > slider.range.minimum)) return;
  if (slider.look == kLineLook) {
    PaintLine(buffer.Dc(), slider);
  } else {
    PaintGauge(buffer.Dc(), slider);
  }
}

}  // namespace tarnwick
