#pragma once
#include <windows.h>

#include <array>
#include <vector>

#include "controls/control_record.h"
#include "dialog/models/effect_strip.h"

namespace tarnwick {

// The windows of the strip above the pane. All are made at once and wait hidden; the
// dialog hears of them as commands with their ids.
class EffectTabs {
 public:
  EffectTabs() = default;
  EffectTabs(const EffectTabs&) = delete;
  EffectTabs& operator=(const EffectTabs&) = delete;

  // In `parent`, whose they are. The controls' fonts have to be there. What cannot be
  // made is left out.
  void Create(HWND parent, HINSTANCE instance, int dpi);

  // Places these and hides the rest; `selected` is drawn as the current view. They are
  // painted with the strip behind them, which is the caller's to redraw.
  void Show(const std::vector<StripPlace>& row, int selected);

  void Enable(bool isEnabled);

  // How wide the texts are at most; see StripFrame.
  using TextWidths = std::array<int, kStripTexts.size()>;
  [[nodiscard]] const TextWidths& Widths() const { return widths_; }

 private:
  struct Item {
    int id;
    HWND window;
    TContaner* label;  // its window's; null for crosses and separators
  };

  void Measure(HWND parent);
  void MakeTexts(HWND parent, int dpi);
  void MakeCrosses(HWND parent, HINSTANCE instance);
  void MakeSeparators(HWND parent, HINSTANCE instance);

  HWND parent_ = nullptr;
  std::vector<Item> items_;
  TextWidths widths_{};
};

}  // namespace tarnwick
