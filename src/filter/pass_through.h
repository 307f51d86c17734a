#pragma once
#include "engine/apply_run.h"

namespace tarnwick {

// The input becomes the output, `planes` bytes a pixel, row by row.
void CopyInputToOutput(const PictureJob& job);

}  // namespace tarnwick
