#pragma once
#include <windows.h>

#include <cstdint>
#include <functional>

#include "controls/models/drawer_slide.h"

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

  // A visible child of "Picker Class", or a child that is in the dialog already; false
  // where there is none. `kind` is the owner's own.
  bool Create(HWND parent, int windowId, std::uint8_t windowKind, int left, int top, int w, int h,
              DWORD exStyle);
  bool Attach(HWND dialog, int windowId, std::uint8_t windowKind);

  int id = 0;
  std::uint8_t kind = 0;
  int width = 0, height = 0;
  RECT client{};

 private:
  bool Take(HWND control, int windowId, std::uint8_t windowKind);
};

// Panels that slide over the dialog, and what is in them. Owns its window.
class TDrawerWindow : public WindowObject {
 public:
  ~TDrawerWindow() override;

  // A hidden child of `parent`; then calls OnCreated. False when it cannot be made.
  bool Create(HWND parent, int left, int top, int w, int h, int windowId);
  // At the end of the window's creation.
  virtual void OnCreated() {}
  LRESULT WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) override;

  // Comes in from the left to its place, if it is not to be seen yet; goes out there
  // again, and calls `closed` then.
  void SlideIn();
  void SlideOut();
  // Another place and size, from now on. One that slides goes on from there.
  void MoveTo(int left, int top, int w, int h);
  [[nodiscard]] bool IsSliding() const { return !slide_.IsStill(); }

  HWND owner = nullptr;
  int x = 0, y = 0, width = 0, height = 0;  // in the owner
  int id = 0;
  HBITMAP panelBitmap = nullptr;  // behind all that is in it; not owned
  std::function<void()> closed;

 private:
  void SlideOn();

  DrawerSlide slide_;
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
