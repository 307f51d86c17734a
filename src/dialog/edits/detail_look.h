#pragma once
#include <string_view>

#include "dialog/models/effect_views.h"
#include "dialog/preview/live_preview.h"
#include "engine/effect_layer.h"
#include "filter/filter_globals.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// The middle of what the pane would show, no larger than `size`, if the effect of `kind`
// that its page edits had the texture of this file name. Of the current view; where that
// is the picture without effects, of all effects together.
//
// Leaves no trace: settings, layers, *g.gResult and what `preview` has rendered are as
// they were. Without pixels when there is nothing to show.
[[nodiscard]] ThumbnailPicture LookAtTexture(FilterGlobals& g, LivePreview& preview,
                                             const EffectViews& views, LayerKind kind,
                                             std::string_view name, ThumbnailSize size);

}  // namespace tarnwick
