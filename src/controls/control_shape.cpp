#include "controls/control_shape.h"

namespace tarnwick {

void SetControlShape(const TContaner& record) {
  HRGN region = nullptr;
  const int width = record.width;
  const int height = record.height;
  switch (record.style) {
    case 1:
      region = CreateEllipticRgn(0, 0, width, height);
      break;
    case 2:
      region = CreateRoundRectRgn(0, 0, width, height, width / 2, height / 2);
      break;
    case 4:
      region = CreateEllipticRgn(-1, -1, width + 1, height + 1);
      break;
    default:
      return;
  }
  // The window owns it from now on.
  if (region != nullptr && SetWindowRgn(record.window, region, TRUE) == 0) DeleteObject(region);
}

}  // namespace tarnwick
