#pragma once
#include "engine/apply_run.h"
#include "filter/filter_globals.h"

namespace tarnwick {

// A result on another layer takes several invocations of the filter; the markers
// in the settings tell each of them which one it is. Only hosts whose action
// suites answer have them.

// What this invocation is to do.
struct PassPlan {
  bool passThrough = false;     // mark and leave the picture alone
  bool backgroundHeld = false;  // the background comes in a later pass
  bool writesMask = false;      // the wash goes into the layer mask
  ViewMode view = ViewMode::kComposite;
};

// Before the layers are made: sets state.layerOutputMode and the markers.
[[nodiscard]] PassPlan RoutePass(FilterGlobals& g);

// With the layers made: which stages wait. May clear WashUse or BackgroundUse
// for this pass and set state.deferWash.
void DecideBackground(FilterGlobals& g, PassPlan& plan);
void DecideMask(FilterGlobals& g, PassPlan& plan);

// The pass that writes the layer mask, from the samples that an earlier one kept.
void WriteMask(FilterGlobals& g, const PictureJob& job);

// Keeps what a later pass needs, in page memory that outlives this one.
void KeepForLaterPass(FilterGlobals& g);

}  // namespace tarnwick
