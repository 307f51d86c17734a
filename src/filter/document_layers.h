#pragma once
#include "filter/filter_globals.h"

namespace tarnwick {

// Reads what a preview shows the effect on and over: g.documentCopy becomes the
// target layer, its transparency in the fourth plane, and g.layersBelow all the
// visible layers below it, flattened, on black. Both have the document's bounds,
// mode and planes in the host's order, without a margin.
//
// `depthChannel` (see DepthChannel) tells the depth; null or a depth of 0 counts
// as 8. Samples deeper than a byte are not merged: nothing is read then.
//
// Layers are known by their names alone, so the lowest one of the target's name
// counts as the target. One without transparency replaces all that is below it.
// If none has the name, all visible ones are flattened, and documentCopy stays.
//
// Result  that of the last read or merge; false leaves no layersBelow. A layer
//         that fails is passed over. If the target itself fails there is no
//         documentCopy. A host without names or layers gives black.
bool ReadDocumentLayers(FilterGlobals& g, const host::ReadChannelDesc* depthChannel);

// Gives both up.
void FreeDocumentLayers(FilterGlobals& g);

}  // namespace tarnwick
