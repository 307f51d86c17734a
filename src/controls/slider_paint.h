#pragma once
#include "controls/mac_slider.h"

namespace tarnwick {

// A slider without a trackbar, in answer to WM_PAINT.
void PaintSlider(const TMacSlider& slider);

}  // namespace tarnwick
