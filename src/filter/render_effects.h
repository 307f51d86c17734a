#pragma once
#include "filter/filter_globals.h"

namespace tarnwick {

// Turns the settings into pixels on the host's output: format check, routing of
// the pass, source, layers, stages, result. Needs the whole filter rectangle in
// inData, outData and, with a selection, maskData. The outcome is in *gResult.
void RenderEffects(FilterGlobals& g);

}  // namespace tarnwick
