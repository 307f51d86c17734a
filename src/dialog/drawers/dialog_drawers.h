#pragma once
#include <windows.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "dialog/cells/cell_preview.h"
#include "dialog/drawers/drawer_picker.h"
#include "dialog/edits/texture_target.h"
#include "dialog/models/color_target.h"
#include "dialog/models/dialog_layout.h"
#include "dialog/models/drawer_lists.h"
#include "dialog/models/effect_views.h"
#include "dialog/models/shadow_strip.h"
#include "dialog/presets/preset_library.h"
#include "dialog/preview/live_preview.h"
#include "filter/filter_globals.h"

namespace tarnwick {

// What the drawers ask of the dialog. All are set.
struct DialogDrawerHooks {
  std::function<void(bool isBusy)> setBusy;
  std::function<void()> textureChosen;    // the page of the tab prints and offers links
  std::function<void()> showPage;         // it shows the settings anew
  std::function<void()> settingsChanged;  // command 1008
  std::function<void()> fail;             // inside a handler of what was thrown
};

// The two drawers of the dialog, what they apply to, and the panel behind them; and the
// full-size picker, which puts a texture in as they do. One of them at most is open; the
// rest of the dialog is busy then.
class DialogDrawers {
 public:
  // Owns none; all outlive it. `preview` has been opened by then.
  DialogDrawers(FilterGlobals& g, const EffectViews& views, LivePreview& preview,
                PresetLibrary& presets, DialogDrawerHooks hooks);
  ~DialogDrawers();
  DialogDrawers(const DialogDrawers&) = delete;
  DialogDrawers& operator=(const DialogDrawers&) = delete;

  // Both at `place`, hidden, with their lists read and their first pages loaded.
  // `shade` rounds the panel off; `bar` is the dialog's progress bar.
  void Create(HWND owner, HWND bar, const StripShade& shade, const Place& place);

  // For the effect of the page of this tab. Where it has none, nothing happens.
  void OpenTextures(int tab);
  void OpenColors(int tab);
  // Modal; done when it returns.
  void OpenFullSize(int tab);

  // What a drawer tells; false for other ids.
  bool Command(int id, WORD notification);

  // The open one's Select and Cancel; false while none is open.
  bool Accept();
  bool Cancel();

  // To the open one; false while none is open.
  bool TakeFocus();

  // Along with the dialog; the cells follow with Relayout, once it has its size.
  void Move(const Place& place);
  void Relayout();

  // A colour preset that chance has drawn, without its extension, as if it had been
  // chosen; no name changes nothing.
  void NameColors(const std::string& name);

  // What they show by now, for chance to choose from.
  [[nodiscard]] DrawerLists Lists();

 private:
  class Bar : public ProgressSink {
   public:
    void Report(int done, int total) override;
    HWND window = nullptr;
  };

  void MakePanel(const Place& place);
  [[nodiscard]] TextureSetTable TextureSets() const;
  void PrepareCells(int tab, bool isDepthCrossed);
  void DoTextureWork(const TextureWork& work);
  void Open(TDrawerPicker& drawer);
  void Closed();
  void GiveFocusBack();
  [[nodiscard]] TDrawerPicker* OpenOne();
  void TextureTold(WORD notification);
  void ColorTold(WORD notification);
  [[nodiscard]] std::optional<ThumbnailPicture> ColorPicture(const std::string& name);

  FilterGlobals& g_;
  const EffectViews& views_;
  LivePreview& preview_;
  PresetLibrary& presets_;
  DialogDrawerHooks hooks_;
  TextureTarget texture_;
  ColorTarget color_;
  CellPreview cellPreview_;
  std::optional<ThumbnailPicture> colorSource_;  // grey, of the texture that is coloured
  Bar bar_;
  StripShade shade_{};
  HWND owner_ = nullptr;
  HBITMAP panel_ = nullptr;
  int laidHeight_ = 0;  // that the cells are made for
  HWND focusBefore_ = nullptr;
  std::unique_ptr<TDrawerPicker> textures_;
  std::unique_ptr<TDrawerPicker> colors_;
};

}  // namespace tarnwick
