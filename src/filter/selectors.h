#pragma once
#include "filter/filter_globals.h"

namespace tarnwick {

// The handlers of the host's selectors. Each writes its error to *gResult and
// leaves 0 on success.
void DoAbout(FilterGlobals& g);
void DoParameters(FilterGlobals& g);
void DoPrepare(FilterGlobals& g);
void DoStart(FilterGlobals& g);
void DoContinue(FilterGlobals& g);
void DoFinish(FilterGlobals& g);

// Finds the folders anew.
void InitPaths(FilterGlobals& g);
// Reads the ini file into `settings` and the run-time values; nothing where the
// module does not know where it lies.
void ReadUiFile(FilterGlobals& g, EffectSettings& settings);

}  // namespace tarnwick
