#include "dialog/picker/texture_detail.h"

#include <algorithm>
#include <exception>
#include <string_view>

#include "controls/back_buffer.h"
#include "controls/control_button.h"
#include "controls/control_shared.h"
#include "controls/models/dpi_scale.h"
#include "controls/tool_tip.h"
#include "dialog/models/picker_grid.h"
#include "dialog/thumbnail_bitmap.h"
#include "resources/art_ids.h"
#include "resources/picker_dialog_ids.h"

namespace tarnwick {
namespace {

constexpr int kSelectButton = 998;
constexpr INT_PTR kChosen = 1, kClosed = 2;
constexpr int kFrameWidth = 3;
constexpr int kAfterLabel = 4;
constexpr COLORREF kFrameColor = RGB(220, 220, 220);
constexpr COLORREF kLabelColor = RGB(200, 200, 200), kValueColor = RGB(255, 255, 255);

void DrawLine(HDC dc, int x, int y, int right, COLORREF color, const std::string& text) {
  RECT line = {x, y, right, y + 100};
  SetTextColor(dc, color);
  DrawTextA(dc, text.c_str(), -1, &line, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

// Where the pointer was as the message came about; by now it may be elsewhere.
POINT MessagePoint() {
  const DWORD place = GetMessagePos();
  return {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
}

class DetailWindow {
 public:
  explicit DetailWindow(const TextureDetail& detail) : detail_(detail) {}
  ~DetailWindow() {
    if (pen_ != nullptr) DeleteObject(pen_);
  }
  DetailWindow(const DetailWindow&) = delete;
  DetailWindow& operator=(const DetailWindow&) = delete;

  bool Show(HWND owner) {
    const INT_PTR answer =
        DialogBoxParamA(SharedControls().instance, MAKEINTRESOURCEA(TARNWICK_TEXTURE_DETAIL), owner,
                        Proc, reinterpret_cast<LPARAM>(this));
    if (fault_) std::rethrow_exception(fault_);
    return answer == kChosen;
  }

 private:
  static INT_PTR CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) SetWindowLongPtrA(window, DWLP_USER, lParam);
    auto* const detail = reinterpret_cast<DetailWindow*>(GetWindowLongPtrA(window, DWLP_USER));
    if (detail == nullptr) return FALSE;
    detail->window_ = window;
    try {
      return detail->Answer(message, LOWORD(wParam));
    } catch (...) {
      // Nothing may be thrown through the system.
      detail->fault_ = std::current_exception();
      EndDialog(window, kClosed);
      return TRUE;
    }
  }

  INT_PTR Answer(UINT message, int command) {
    switch (message) {
      case WM_INITDIALOG:
        Start();
        return FALSE;  // the focus is where it should be
      case WM_ERASEBKGND:
        return TRUE;
      case WM_PAINT:
        Paint();
        return TRUE;
      case WM_LBUTTONDOWN:
        SetCapture(window_);
        held_ = MessagePoint();
        isHeld_ = true;
        return TRUE;
      case WM_MOUSEMOVE:
        Move();
        return TRUE;
      case WM_LBUTTONUP:
        if (isHeld_) ReleaseCapture();
        return TRUE;
      case WM_CAPTURECHANGED:
        isHeld_ = false;
        return TRUE;
      case WM_COMMAND:
        Command(command);
        return TRUE;
      default:
        return FALSE;
    }
  }

  void Start() {
    Centre();
    pen_ = CreatePen(PS_INSIDEFRAME, kFrameWidth, kFrameColor);
    RECT client{};
    GetClientRect(window_, &client);
    const HDC dc = GetDC(window_);
    const int dpi = GetDeviceCaps(dc, LOGPIXELSY);
    ReleaseDC(window_, dc);
    places_ = DetailPlacesIn(client.right, client.bottom, dpi, DpiFactorOf(dpi));
    ControlButton* const close =
        CreateButtonControl(window_, SharedControls().instance, places_.close.x, places_.close.y,
                            places_.close.width, places_.close.height, TARNWICK_DETAIL_CLOSE);
    if (close != nullptr) {
      SetButtonBitmaps(*close, TARNWICK_ART_DETAIL_CLOSE, TARNWICK_ART_DETAIL_CLOSE_HOVER,
                       TARNWICK_ART_DETAIL_CLOSE, 0);
      AddToolTip(close->window, "Close window", nullptr);
    }
    AddToolTip(GetDlgItem(window_, IDOK), "Select and apply this texture", nullptr);
    AddToolTip(GetDlgItem(window_, IDCANCEL), "Close window", nullptr);
    const ThumbnailSize size = {places_.picture.width, places_.picture.height};
    if (size.width < 1 || size.height < 1 || !detail_.picture) return;
    const ThumbnailPicture picture = detail_.picture(size);
    // That of a small document stands in the middle.
    pictureX_ = places_.picture.x + (size.width - picture.width) / 2;
    pictureY_ = places_.picture.y + (size.height - picture.height) / 2;
    picture_ = ThumbnailBitmap(picture);
  }

  void Centre() const {
    RECT own{}, around{};
    GetWindowRect(window_, &own);
    GetWindowRect(GetParent(window_), &around);
    SetWindowPos(window_, nullptr, (around.left + around.right - own.right + own.left) / 2,
                 (around.top + around.bottom - own.bottom + own.top) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }

  // By as much as the pointer, which stays over the same point of it.
  void Move() {
    if (!isHeld_) return;
    const POINT now = MessagePoint();
    RECT own{};
    if (GetWindowRect(window_, &own) == FALSE) return;
    SetWindowPos(window_, nullptr, own.left + now.x - held_.x, own.top + now.y - held_.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    held_ = now;
  }

  void Command(int command) {
    if (command == IDOK || command == kSelectButton) EndDialog(window_, kChosen);
    if (command == IDCANCEL || command == TARNWICK_DETAIL_CLOSE) EndDialog(window_, kClosed);
  }

  void Paint() const {
    const BackBuffer buffer(window_);
    const HDC dc = buffer.Dc();
    if (dc == nullptr) return;
    const RECT& client = buffer.Client();
    {
      const Selected brush(dc, GetStockObject(GRAY_BRUSH));
      const Selected pen(dc, pen_ != nullptr ? pen_ : GetStockObject(NULL_PEN));
      Rectangle(dc, client.left, client.top, client.right, client.bottom);
    }
    picture_.Draw(dc, pictureX_, pictureY_);
    const Selected font(dc, SharedControls().fonts.FontThumbCaption);
    SetBkMode(dc, TRANSPARENT);
    const int right = client.right - places_.textLeft;
    // Some systems' letters are wider.
    constexpr std::string_view kName = "Texture Name:";
    SIZE widest{};
    GetTextExtentPoint32A(dc, kName.data(), static_cast<int>(kName.size()), &widest);
    const int valueLeft =
        std::max<int>(places_.valueLeft, places_.textLeft + widest.cx + kAfterLabel);
    const auto line = [&](int y, const char* label, const std::string& value) {
      DrawLine(dc, places_.textLeft, y, right, kLabelColor, label);
      DrawLine(dc, valueLeft, y, right, kValueColor, value);
    };
    line(places_.nameTop, kName.data(), detail_.name);
    if (!detail_.setName.empty()) line(places_.setTop, "Textures Set:", detail_.setName);
  }

  const TextureDetail& detail_;
  HWND window_ = nullptr;
  std::exception_ptr fault_;
  HPEN pen_ = nullptr;
  DetailPlaces places_;
  ThumbnailBitmap picture_;
  int pictureX_ = 0, pictureY_ = 0;
  bool isHeld_ = false;
  POINT held_{};
};

}  // namespace

bool ShowTextureDetail(HWND owner, const TextureDetail& detail) {
  return DetailWindow(detail).Show(owner);
}

}  // namespace tarnwick
