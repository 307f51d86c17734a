#pragma once
#include <windows.h>

namespace tarnwick {

// Controls that are objects: the window finds its object in its user data and
// hands it all messages. Until that is attached, the system answers them. Once the
// window is gone, the object has none.
class WindowObject {
 public:
  WindowObject() = default;
  virtual ~WindowObject() = default;
  WindowObject(const WindowObject&) = delete;
  WindowObject& operator=(const WindowObject&) = delete;
  virtual LRESULT WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  // Whose messages it answers from now on; null takes it off.
  void AttachTo(HWND window);

  HWND window = nullptr;
};

// Cells and pages of the full-size picker. Does not own its window.
class TPickerControl : public WindowObject {
 public:
  ~TPickerControl() override { AttachTo(nullptr); }
};

// Panels that slide over the dialog, and what is in them. Owns its window.
class TDrawerWindow : public WindowObject {
 public:
  ~TDrawerWindow() override;
  // At the end of the window's creation.
  virtual void OnCreated() {}
};

// Controls that a template holds. Does not own its window.
class TTWK2Control : public WindowObject {
 public:
  ~TTWK2Control() override { AttachTo(nullptr); }
  LRESULT WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override = 0;
};

LRESULT CALLBACK PickerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK DrawerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK FilmstripProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace tarnwick
