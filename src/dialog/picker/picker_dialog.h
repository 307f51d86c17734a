#pragma once
#include <windows.h>

#include <array>
#include <exception>
#include <memory>

#include "dialog/help_viewer.h"
#include "dialog/models/picker_grid.h"
#include "dialog/models/picker_pages.h"
#include "dialog/picker/picker_cell.h"
#include "dialog/picker/picker_strip_control.h"
#include "dialog/picker/texture_picker.h"

namespace tarnwick {

class PickerDialog;

// What the cells lie in. It has the keys: arrows and Page Up and Down come here.
class PickerGridWindow : public TPickerControl {
 public:
  explicit PickerGridWindow(PickerDialog& dialog) : dialog_(dialog) {}
  LRESULT WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  PickerDialog& dialog_;
};

// The full-size picker's window, as long as it is open; see OpenTexturePicker.
class PickerDialog {
 public:
  PickerDialog(TPicker& picker, PickerPages& pages);
  ~PickerDialog();
  PickerDialog(const PickerDialog&) = delete;
  PickerDialog& operator=(const PickerDialog&) = delete;

  INT_PTR Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  // From the grid; false for other keys. The wheel turns pages.
  bool Key(WPARAM key);
  void Wheel(WPARAM wParam);

 private:
  INT_PTR Dispatch(UINT message, WPARAM wParam, LPARAM lParam);
  void Start();
  void Finish();
  void FillBoxes();
  void CentreInBand();
  void MakePageButtons();
  void MakeCells();
  void Paint();
  [[nodiscard]] INT_PTR ColorOf(HDC dc, HWND control) const;

  bool Command(int id, WORD notification);
  void LoadPage();
  void LoadCell(TPickerThump& cell, int place);
  void PageChanged();
  void MarkCurrent();
  void ShowPageButtons();
  void Move(int step);
  void ShowDetail(int place);
  void Choose(int place);
  void Guard(const std::function<void()>& work);

  [[nodiscard]] HWND Item(int id) const { return GetDlgItem(window_, id); }
  [[nodiscard]] Place FrameOf(int id) const;

  TPicker& picker_;
  PickerPages& pages_;
  HWND window_ = nullptr;
  int dpi_ = 96;
  float scale_ = 1;
  HPEN bandPen_ = nullptr;
  PickerBands bands_;
  PickerGrid grid_;
  PickerCellHooks cellHooks_;
  std::unique_ptr<TPickerPages> strip_;
  std::unique_ptr<PickerGridWindow> gridWindow_;
  std::array<std::unique_ptr<TPickerThump>, kPickerCells> cells_;
  ControlButton* previous_ = nullptr;  // their windows'
  ControlButton* next_ = nullptr;
  std::unique_ptr<HelpViewer> help_;
};

}  // namespace tarnwick
