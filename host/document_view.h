#pragma once
#include "filter/filter_globals.h"
#include "host/module_entry.h"

namespace tarnwick::testhost {

// Reads the document through the filter as a dialog does when it opens.
void LookAtDocument(FilterGlobals& g, DocumentView& view);

}  // namespace tarnwick::testhost
