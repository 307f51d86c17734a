#pragma once
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "controls/image_button.h"
#include "controls/object_controls.h"
#include "dialog/bitmap_set.h"
#include "dialog/models/filmstrip.h"
#include "dialog/presets/preset_library.h"
#include "dialog/thumbnail_bitmap.h"
#include "filter/filter_globals.h"
#include "presets/auto_dice.h"
#include "presets/preset_kind.h"

namespace tarnwick {

// How the strip reaches the page around it. All are set.
struct FilmstripHooks {
  std::function<void()> aboutToApply;  // what up-downs have put off, before layers change
  std::function<void()> applied;       // every page shows the settings
  std::function<void()> fail;          // inside a handler of what was thrown
};

// The strip of looks on the background page: five pictures at a time, an arrow at each
// end. A press on a picture applies its look at once.
//
// In the order of use: ScanPresets, AttachToDialogItem, CreateStrip, LoadThumbnails;
// RescanAndLoad after that. Does not own its window, and has nothing to show without it.
class TFilmstripControl : public TTWK2Control {
 public:
  // All outlive it.
  TFilmstripControl(FilterGlobals& g, PresetLibrary& presets, BitmapSet& bitmaps,
                    FilmstripHooks hooks);

  // The names of the looks in the kind's folder, "none" first, and how many.
  int ScanPresets(PresetKind kind);
  // Takes over the window that the page's template has made.
  void AttachToDialogItem(HWND page, int id);
  // The arrows, their skins and all tips.
  void CreateStrip(HINSTANCE instance);
  // A picture for each name, on the first page.
  void LoadThumbnails(PresetKind kind);
  // After presets have changed; what is in sight stays if these names have not.
  void RescanAndLoad(PresetKind kind);

  // Loads a look into the settings and no more: any of them, or the first.
  void ApplyRandomPreset(AutoDice& dice);
  void ApplyFirstPreset();

  // Where the page has room for it: below `top`, in `room` pixels across.
  void Place(int top, int room);

  LRESULT WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  LRESULT Dispatch(HWND target, UINT message, WPARAM wParam, LPARAM lParam);
  void Move(int x, int y, bool isPressed);
  void Press(int x, int y);
  void Slide(FilmSlide direction);
  void Step();
  void Apply(const std::string& name);
  [[nodiscard]] bool Load(const std::string& name);
  void UpdateArrows();
  void EnableArrow(HWND arrow, bool isOn);
  void GiveUpKeys(HWND arrow);
  void Paint() const;
  void Repaint() const;

  FilterGlobals& g_;
  PresetLibrary& presets_;
  BitmapSet& bitmaps_;
  FilmstripHooks hooks_;
  Filmstrip film_;
  PresetKind presetKind_ = PresetKind::kBackPalette;
  std::vector<std::string> names_;
  std::vector<ThumbnailBitmap> cells_;  // one for each name, empty without a picture
  HWND prevButton_ = nullptr;
  HWND nextButton_ = nullptr;
  // The arrows' windows look into these.
  ImageButtonState prevButtonState_;
  ImageButtonState nextButtonState_;
};

}  // namespace tarnwick
