#pragma once
#include <windows.h>

#include <array>
#include <list>
#include <memory>
#include <vector>

#include "controls/color_swatch.h"
#include "controls/image_button.h"
#include "controls/mac_slider.h"
#include "controls/rotor_control.h"
#include "dialog/filmstrip/filmstrip_control.h"
#include "dialog/models/page_rows.h"
#include "dialog/models/page_values.h"
#include "dialog/models/texture_matches.h"
#include "dialog/pages/page_context.h"

namespace tarnwick {

// One of the four pages under the tabs: a modeless child of the dialog, whose controls
// write straight into the settings. Asks the dialog for a redraw after each change.
class SettingsPage {
 public:
  // Null when the page cannot be made: its tab stays empty then.
  [[nodiscard]] static SettingsPage* Create(const PageContext& context, int tab, const RECT& place);

  SettingsPage(const PageContext& context, int tab) : context_(context), tab_(tab) {}
  SettingsPage(const SettingsPage&) = delete;
  SettingsPage& operator=(const SettingsPage&) = delete;

  INT_PTR Answer(UINT message, WPARAM wParam, LPARAM lParam);

  void Place(const RECT& place);
  void Show(bool isShown);
  // All values of the settings into the controls, then Enable.
  void ShowValues();
  // What can be used of the page. Updates the flags of use and links.
  void Enable();
  // The wash has moved under the pointer.
  void ShowOffset();
  // The texture has been chosen: its name, and the offer to link where there is one.
  void TextureChosen();
  // The work that a click on an up-down has put off, now: what it was for is about to
  // change. The redraw comes in its time.
  void FinishSpin();
  // The same for a caller that redraws by itself: nothing comes later, which would take
  // what replaces the settings for the last used.
  void SettleSpin();
  // That and the redraw, which takes the settings as they are for the last used.
  void FlushSpin();

  [[nodiscard]] HWND Window() const { return window_; }
  void Attach(HWND window);

 private:
  [[nodiscard]] HWND Item(int id) const { return GetDlgItem(window_, id); }
  [[nodiscard]] TMacSlider* Slider(const ControlRow& row) const { return GetSlider(row.id); }
  [[nodiscard]] TMacSlider* GetSlider(int id) const;

  // settings_page.cpp
  void Make();
  void MakeRow(const ControlRow& row);
  void SkinButton(int id, std::array<int, 6> art);
  void AddTips(const ControlRow& row);
  void AddPresetTips();
  void KeepWidths();
  void FitAcross(int width);
  void Stretch();

  // page_filmstrip.cpp
  void MakeFilmstrip();
  // Below the colours; true with where it ends.
  [[nodiscard]] bool PlaceFilmstrip(int& bottom);

  // page_values.cpp
  void ShowRow(const ControlRow& row);
  void EnableRow(const ControlRow& row, const PageFacts& facts);
  void EnableItem(int id, bool isOn);
  void ShowLink(const ControlRow& row, const TextureMatches& matches);
  [[nodiscard]] TextureOffset OffsetNow(TextureOffset& range) const;

  // page_commands.cpp
  bool Command(WPARAM wParam, LPARAM lParam);
  bool RowCommand(const ControlRow& row, int id, WORD notification);
  void Changed();
  void Set(const ControlRow& row, std::int32_t value);
  void ClickRadio(const ControlRow& row, int id);
  void CommitValue(const ControlRow& row);
  void UndoField(int editId, const std::string& text);
  void CommitSeed(const ControlRow& row);
  void TakeSeed(const ControlRow& row, std::int32_t seed);
  void CommitLight(const ControlRow& row, int editId);
  void CommitOffset(const ControlRow& row, int editId);
  void DragOffset(const ControlRow& row);
  void MoveOffsetTo(OffsetPoint wanted);
  void ClickLink();
  bool OfferLink(const TextureMatches& matches);
  [[nodiscard]] std::string TextOf(int id) const;
  [[nodiscard]] std::string FieldText(const ControlRow& row, int editId) const;

  // page_spin.cpp
  bool Scroll(WPARAM wParam, LPARAM lParam);
  void ArmTimer(const ControlRow& row);
  void TimerExpired(UINT_PTR timer);

  PageContext context_;
  int tab_;
  HWND window_ = nullptr;
  // Of the skinned buttons, whose windows look into them.
  std::list<ImageButtonState> skins_;
  std::unique_ptr<TFilmstripControl> film_;  // on the background page
  HWND stretchedTip_ = nullptr;              // of the list that stretches

  // How far the controls reach, and the page, as the template has them.
  struct Across {
    HWND window;
    int left, right;
  };
  std::vector<Across> across_;
  int templateWidth_ = 0;
  int width_ = 0;  // that the controls are laid out for
  // A click on an up-down has been, and its work waits for the next ones.
  const ControlRow* spinRow_ = nullptr;
  UINT_PTR spinTimer_ = 0;
};

}  // namespace tarnwick
