#pragma once
#include "controls/control_record.h"

namespace tarnwick {

// Gives the window the shape that its style tells: 1 an ellipse, 4 an ellipse one
// pixel larger on each side, 2 a rectangle whose corners are rounded by half its
// width and height; else it stays as it is.
void SetControlShape(const TContaner& record);

}  // namespace tarnwick
