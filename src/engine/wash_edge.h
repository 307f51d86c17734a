#pragma once
#include "engine/effect_layer.h"
#include "engine/render_state.h"

namespace tarnwick {

// The edge map keeps a wash away from the rim of the selection, or of what is
// transparent, or of the picture. All of these return at once on layers that
// are no wash.

// Percent of the way to the deepest point of the selection; sets edgeDirty.
void SetEdgeDistance(EffectLayer& layer, int value);

// 0..200, limited; derives edgeBlurRadius and sets edgeDirty.
void SetEdgeSoftness(EffectLayer& layer, int value);

// Copies the document's selection plane, or white, into `selectionMap` with a
// cleared margin, forgets the old distance field and sets edgeDirty. The field
// and its maximum are worked out when a distance or softness other than 0 asks
// for them: no other use ever sees them.
void BuildSelectionMap(EffectLayer& layer, RenderState& state);

// Rebuilds `edgeMap` if edgeDirty is set and the layer has a texture. Any
// selection above 0 counts as whole. A map that is white throughout has no
// pixels, but edgeWhole; without memory edgeMap is null.
void BuildEdgeMap(EffectLayer& layer, RenderState& state);

}  // namespace tarnwick
