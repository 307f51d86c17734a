#pragma once
#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "dialog/bitmap_set.h"
#include "dialog/models/effect_views.h"
#include "dialog/models/kept_layers.h"
#include "dialog/models/preset_folders.h"
#include "dialog/models/preset_lists.h"
#include "filter/filter_globals.h"

namespace tarnwick {

// What the library asks of the dialog. All are set.
struct PresetLibraryHooks {
  std::function<void()> syncStrip;        // MainDialog::SyncStrip
  std::function<void()> showOptions;      // those of new layers, from the record
  std::function<void()> settingsChanged;  // command 1008
  std::function<void()> showPage;         // the page of the current tab shows the record
  std::function<void(KeptLayers)> remakeLayers;
};

// The presets of the dialog: the five lists on its pages, and what is loaded, saved and
// deleted by them. One lives as long as the dialog; all lists then start in the folders
// of their kinds.
//
// A page hands on what it hears of the lists and of their buttons. Boxes belong to the
// window that g.ownerWindow names by then. A preset that cannot be read changes nothing
// but the names of colours, and nobody is told.
class PresetLibrary {
 public:
  // `lastUsed` is what the second row of the Basic list brings back. All outlive it.
  PresetLibrary(FilterGlobals& g, EffectViews& views, const EffectSettings& lastUsed,
                PresetLibraryHooks hooks);
  PresetLibrary(const PresetLibrary&) = delete;
  PresetLibrary& operator=(const PresetLibrary&) = delete;

  // The list of a kind from its folder, as the page is made; with the folder's label
  // and the Delete button.
  void Fill(HWND page, PresetKind kind);
  // At the page's WM_DRAWITEM; false if the control is no list of presets.
  [[nodiscard]] bool Draw(const DRAWITEMSTRUCT& item);
  // At the page's WM_COMMAND; false if it is none of the lists' and of their buttons'.
  [[nodiscard]] bool Command(HWND page, WPARAM wParam);
  // The Delete button of the kind's list, at the end of showing a page's values.
  void UpdateDelete(HWND page, PresetKind kind);

  // True if the file was read; the strip then shows the second effects it brought.
  // Names come with or without the extension. Colours and back palettes are found in
  // their folders, all others where their list stands.
  [[nodiscard]] bool LoadPreset(std::string_view name, PresetKind kind);
  // A look of the filmstrip, for which the strip above the pane stays as it is.
  [[nodiscard]] bool LoadBackPalette(std::string_view name);
  // After such a look: the background's layer is made anew, and a redraw asked for.
  void ShowNewBackground();

  // Asks for a name and saves the share of the kind. With a page, a new name goes into
  // its list; a kind of colours has none.
  void Save(PresetKind kind, HWND page = nullptr);

  [[nodiscard]] const PresetFolders& Folders() const { return folders_; }

  // Who wants to know that a preset was saved or deleted; none takes it off.
  void TellOfChanges(std::function<void()> listener) { listener_ = std::move(listener); }

 private:
  void Select(HWND page, const PresetList& list);
  [[nodiscard]] bool Choose(HWND page, const PresetList& list);
  void Open(HWND page, const PresetList& list);
  void Delete(HWND page, const PresetList& list);
  [[nodiscard]] bool Read(std::string_view name, PresetKind kind);
  // Presets have a folder where the module's own is known.
  [[nodiscard]] bool IsThere() const { return !g_.folders.presetFolder.empty(); }
  [[nodiscard]] HWND Owner() const { return static_cast<HWND>(g_.ownerWindow); }

  FilterGlobals& g_;
  EffectViews& views_;
  const EffectSettings& lastUsed_;
  PresetLibraryHooks hooks_;
  PresetFolders folders_;
  BitmapSet bitmaps_;
  std::function<void()> listener_;
};

}  // namespace tarnwick
