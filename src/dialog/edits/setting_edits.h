#pragma once
#include <cstdint>

#include "dialog/edits/active_effect.h"
#include "dialog/edits/link_edits.h"
#include "dialog/models/page_enable.h"
#include "dialog/models/page_rows.h"
#include "dialog/models/texture_matches.h"
#include "dialog/preview/live_preview.h"
#include "filter/filter_globals.h"

namespace tarnwick {

// What the controls of the pages do to the settings, the layers and what is linked to
// them. Nothing renders here: a redraw is due after each change.
//
// Values are stored as they come; whoever reads them from a control keeps to its range.
class SettingEdits {
 public:
  // Owns none; `preview` may be null: then there are settings, but nothing to see.
  SettingEdits(FilterGlobals& g, const EffectViews& views, LivePreview* preview)
      : g_(g), views_(views), preview_(preview) {}

  // Of the effect that the page edits.
  [[nodiscard]] std::int32_t Value(int tab, const ControlRow& row) const;
  // Stores, and does to the layer, to links and the surface what the row says.
  void Set(int tab, const ControlRow& row, std::int32_t value);

  // The same in two steps, for an up-down whose clicks come in bursts: what costs a
  // texture or a pattern waits for the end of them.
  void Store(int tab, const ControlRow& row, std::int32_t value);
  void FinishStored(int tab, const ControlRow& row);
  [[nodiscard]] static bool IsFinishedLater(const ControlRow& row);

  // The light's direction, degrees.
  void SetLight(float alpha, float beta);

  // Moves the texture of the page's effect by document pixels, as far as it goes, and
  // what is linked to it.
  void MoveOffset(int tab, int dx, int dy);
  [[nodiscard]] bool CanMove(int tab) const;

  // Matches, with use and link flags, as the settings are now.
  TextureMatches Update();
  [[nodiscard]] PageFacts Facts(int tab, const TextureMatches& matches) const;

  [[nodiscard]] LinkScope Scope() const {
    return {g_.layers, g_.render, *g_.gParams, g_.session, views_};
  }

 private:
  void CallSetter(const ControlRow& row, EffectLayer& layer, std::int32_t value);
  void Finish(int tab, const ControlRow& row);

  FilterGlobals& g_;
  const EffectViews& views_;
  LivePreview* preview_;
};

// The kind whose page it is; tabs but Basic.
[[nodiscard]] LayerKind KindOfTab(int tab);
[[nodiscard]] int TabOfKind(LayerKind kind);

}  // namespace tarnwick
