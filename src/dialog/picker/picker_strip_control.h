#pragma once
#include <vector>

#include "controls/control_button.h"
#include "controls/object_controls.h"
#include "dialog/models/picker_strip.h"

namespace tarnwick {

// The page strip of the full-size picker: page numbers between buttons for the first, the
// previous, the next and the last one. Posts WM_COMMAND with its own id to the dialog when
// another page is wanted.
class TPickerPages : public TPickerControl {
 public:
  // On the template's item. `fontScale`: by how much fonts have grown.
  bool Make(HWND dialog, int itemId, float fontScale);
  LRESULT WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) override;

  // So many pages, and the one that is up: the labels anew.
  void Show(int pages, int page);
  // As its controls do.
  void Press(int command);

  int pageCount = 0;
  int currentPage = 0;

 private:
  void MakeEnds();
  void MakeLabels();
  void Paint();

  float scale_ = 1;
  StripPlaces places_;
  // Their windows'.
  ControlButton* first_ = nullptr;
  ControlButton* last_ = nullptr;
  TContaner* previous_ = nullptr;
  TContaner* next_ = nullptr;
  std::vector<HWND> labels_;
};

}  // namespace tarnwick
