#pragma once
#include <windows.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/progress.h"
#include "controls/control_button.h"
#include "controls/control_shared.h"
#include "controls/object_controls.h"
#include "dialog/drawers/drawer_cell.h"
#include "dialog/models/dialog_layout.h"
#include "dialog/models/drawer_list.h"

namespace tarnwick {

// What a drawer tells its owner, in the high word of WM_COMMAND with its own id.
inline constexpr WORD kDrawerTried = 0;  // a record was pressed: a look at it
inline constexpr WORD kDrawerAccepted = 1;
inline constexpr WORD kDrawerCancelled = 2;

// What the owner of a drawer does for it. All may be unset.
struct DrawerHooks {
  // Turns a texture's grey thumbnail into a picture of the effect and returns its scale.
  std::function<float(ThumbnailPicture&)> livePreview;
  // The picture of a colour preset by its display name, on the texture it is for.
  std::function<std::optional<ThumbnailPicture>(const std::string& name)> colorPreview;
  // The bar that shows how far a page of cells has come.
  ProgressSink* progress = nullptr;
  // Inside a handler of what was thrown: nothing may be thrown through the system.
  std::function<void()> fail;
};

// The drawer: a black panel with thumbnails of textures, or of colour presets, that
// slides over the left side of the dialog. A press on one tries it at once; Select keeps
// it, Cancel brings back what was there. Arrows, Page Up and Page Down, Enter and Escape
// do the same by keys.
class TDrawerPicker : public TDrawerWindow {
 public:
  explicit TDrawerPicker(DrawerMode mode) : mode_(mode) {}
  ~TDrawerPicker() override;

  void OnCreated() override;
  LRESULT WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) override;

  // The first call reads the folder and makes the cells; a texture's name, if there is
  // one, is selected; the page is loaded. `folder` may end in a separator. Without
  // `sets` there is nothing in the set box but its first rows.
  void OpenList(const std::string& name, const std::string& folder);
  void SetSets(TextureSetTable sets);
  void LoadPage();

  // For another size of the panel: cells, pages and buttons anew.
  void Relayout();

  // Comes in with the focus, or goes.
  void Open();
  void Close();
  [[nodiscard]] bool IsOpen() const { return isOpen_; }

  // As the buttons do.
  void Accept() { Tell(kDrawerAccepted); }
  void Cancel() { Tell(kDrawerCancelled); }

  [[nodiscard]] const DrawerList& List() const { return list_; }
  // What the owner takes: a texture's file name, a colour preset's name without its
  // extension. Empty when nothing is selected.
  [[nodiscard]] std::string SelectedName() const;
  void NameSelected(std::string_view fileName) { list_.NameSelected(fileName); }

  DrawerHooks hooks;

  // From the cells.
  void CellPressed(int place);
  void CellDoubleClicked();

 private:
  // drawer_controls.cpp
  HWND MakeCaption(int controlId, int left, int top, int w, int h, const char* text);
  HWND MakeBox(int controlId, int left, int top, int w, int h, const char* tip);
  ControlButton* MakeButton(int controlId, const Place& place, int normal, int hover, int pressed,
                            const char* tip);
  void FillBoxes();
  void MakeCells();
  void PlaceButtons();
  void ShowPageButtons();

  LRESULT Handle(HWND target, UINT message, WPARAM wParam, LPARAM lParam);
  bool Command(int controlId, WORD notification);
  void FilterChanged();
  void TurnPage(int step);
  bool Key(WPARAM key);
  void MoveSelection(int step);
  void MarkSelected();
  void Tell(WORD notification);
  void ReadFolder();
  [[nodiscard]] std::optional<ThumbnailPicture> PictureOf(int place, float& scale);

  DrawerMode mode_;
  std::string folder_;
  DrawerList list_;
  TextureSetTable sets_;
  bool listReady_ = false;
  bool liveOn_ = false;
  bool isOpen_ = false;
  std::unique_ptr<TDrawerWindow> cellHost_;
  std::vector<std::unique_ptr<TPickerThump2>> cells_;
  HWND setBox_ = nullptr;     // textures only
  HWND effectBox_ = nullptr;  // or the categories of colours
  HFONT captionFont_ = nullptr;
  // Their windows'.
  ControlButton* selectButton_ = nullptr;
  ControlButton* cancelButton_ = nullptr;
  ControlButton* liveButton_ = nullptr;  // textures only
  ControlButton* pageLeft_ = nullptr;
  ControlButton* pageRight_ = nullptr;
};

}  // namespace tarnwick
