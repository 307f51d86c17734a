#pragma once
#include "filter/filter_globals.h"

namespace tarnwick {

// Pixels of the document for a preview.

// Asks the host for the filter's rectangle at the view's scale, and builds
// g.selectionPlane and g.documentPixels from it: red, green, blue and alpha times
// selection, four bytes a pixel. The host's outcome is in *gResult; on failure
// there are neither.
//
// Needs  padding that lets a request reach beyond the picture, if the scale is not
//        1: the rectangle is that of the whole picture at any scale.
// Leaves the output open: what is written there becomes the picture with the next
//        request, so a preview has to put it back.
void FetchDocumentAtZoom(FilterGlobals& g);

// Samples g.documentCopy by nearest neighbour for the view's window: into
// g.render.sourcePixels, or into the host's output if `toOutput`. As many rows
// and columns as the window and the copy both have; beyond the copy its last ones
// repeat. The fourth byte is the fourth plane of a document with 4 planes or
// more, else 255, or in the host's output nothing. Nothing without a copy.
void CopyDocumentToPixels(FilterGlobals& g, bool toOutput);

}  // namespace tarnwick
