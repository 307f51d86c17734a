#pragma once
#include <windows.h>

#include <cstdint>
#include <string>

namespace tarnwick {

// What every control of our own carries. The record belongs to its window: it is
// made with it and goes with it. The owner of a control reads and writes it through
// GetControlRecord and asks for a redraw afterwards.
struct TContaner {
  std::string text;       // the caption
  std::uint32_t hot = 0;  // the pointer is inside; colour swatch
  HWND window = nullptr;
  HBRUSH textBrush = nullptr;  // fill of a plain text button; not owned
  std::int32_t id = 0;
  COLORREF textColor = 0;
  std::int32_t bitmapX = 0;  // source origin in backBitmap
  std::int32_t bitmapY = 0;
  HFONT font = nullptr;  // of the caption, if it has one of its own; not owned
  HBRUSH backBrush = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
  COLORREF colorNormal = RGB(127, 127, 127);
  COLORREF colorHover = RGB(180, 188, 180);
  COLORREF colorDisabled = RGB(100, 100, 100);
  COLORREF colorActive = RGB(255, 255, 255);
  std::int32_t x = 0;  // in the parent's skin
  std::int32_t y = 0;
  std::int32_t width = 0;  // of the client area
  std::int32_t height = 0;
  std::uint8_t state = 0;  // ControlState
  std::uint8_t mode = 0;
  std::uint8_t latched = 0;  // a toggle that is on
  std::uint8_t kind = 0;     // CaptionKind
  std::uint8_t enabled = 1;  // 0: ignores the pointer and looks disabled
  std::uint32_t style = 0;   // LabelStyle, or the shape of a shaped control
  std::int32_t spriteIndex = -1;
  std::uint32_t leftAligned = 0;  // 0: the caption is centred
  HBITMAP backBitmap = nullptr;   // not owned

  TContaner() = default;
  TContaner(const TContaner&) = delete;
  TContaner& operator=(const TContaner&) = delete;
};

enum ControlState : std::uint8_t { kIdle = 0, kHovered = 1, kPressed = 2 };
enum CaptionKind : std::uint8_t { kButtonCaption = 4, kLabelCaption = 5 };
enum LabelStyle : std::uint32_t { kPlainLink = 0, kTrackingLabel = 6 };

// Invalidates the whole window and paints it at once.
void RedrawControl(HWND window);

// WM_COMMAND with the control's id, to its parent.
void PostControlCommand(const TContaner& record);
void SendControlCommand(const TContaner& record, LPARAM detail);

}  // namespace tarnwick
