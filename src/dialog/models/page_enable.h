#pragma once
#include "dialog/models/effect_views.h"
#include "dialog/models/page_rows.h"
#include "dialog/models/texture_matches.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// Which controls of a page can be used.

// The second of two layers is the one that the page edits: it is in view.
[[nodiscard]] bool IsSecondActive(int tab, const EffectViews& views,
                                  const EffectSettings& settings);

// The texture that the page's effect has; a name field of kTextureNameSize bytes. Null
// on Basic.
[[nodiscard]] const char* TextureNameOf(int tab, const EffectViews& views,
                                        const EffectSettings& settings);
[[nodiscard]] char* TextureNameOf(int tab, const EffectViews& views, EffectSettings& settings);

// What a page's rules look at.
struct PageFacts {
  bool isUsed = false;      // the effect has a texture
  bool isOriginal = false;  // the pane shows the untouched picture
  bool isAlone = false;     // there is one layer, or one of two is in view
  bool isSolid = false;     // the texture has no shape
  bool hasMatch = false;
  bool canMove = false;
  bool hasColor = false;         // the wash's type has one
  bool hasTransparency = false;  // the document
  bool hasWash = false;
  bool fillsCanvas = false;  // the surface
};

struct DocumentFacts {
  int planes = 3;
  bool isCmyk = false;
};

// The use flags and matches have to be up to date. `canMove`: of the texture of the
// page's effect; see GetOffset.
[[nodiscard]] PageFacts FactsOf(int tab, const EffectViews& views, const EffectSettings& settings,
                                const TextureMatches& matches, const DocumentFacts& document,
                                bool canMove);

[[nodiscard]] bool IsEnabled(RowNeeds needs, const PageFacts& facts);

}  // namespace tarnwick
