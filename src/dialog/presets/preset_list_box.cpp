#include "dialog/presets/preset_list_box.h"

#include <algorithm>

#include "controls/control_shared.h"

namespace tarnwick {
namespace {

constexpr int kIconWidth = 16;
constexpr int kIconHeight = 14;
constexpr int kIconLeft = 2;
constexpr int kIconTop = 1;
constexpr int kFolderTextLeft = kIconLeft + 21;
constexpr int kPresetTextLeft = 2 + 3;
constexpr int kTextGap = 2;  // between the rows' letters
// How much of the system's selection colour lies on the window's, of 100: the text
// keeps its own colour on it.
constexpr int kSelectionTint = 22;

std::string RowText(HWND list, int row) {
  const LRESULT length = SendMessageA(list, LB_GETTEXTLEN, static_cast<WPARAM>(row), 0);
  if (length == LB_ERR) return {};
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  const LRESULT got = SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(row),
                                   reinterpret_cast<LPARAM>(text.data()));
  text.resize(got == LB_ERR ? 0 : static_cast<std::size_t>(got));
  return text;
}

int RowHeight(HWND list, HFONT font) {
  const HDC dc = GetDC(list);
  const HGDIOBJ before = font != nullptr ? SelectObject(dc, font) : nullptr;
  TEXTMETRICA metric{};
  GetTextMetricsA(dc, &metric);
  if (before != nullptr) SelectObject(dc, before);
  ReleaseDC(list, dc);
  return std::max(static_cast<int>(metric.tmHeight) + kTextGap, kIconHeight + 2 * kIconTop);
}

COLORREF Mixed(COLORREF color, COLORREF onto, int percent) {
  const auto mix = [&](int a, int b) { return (a * percent + b * (100 - percent)) / 100; };
  return RGB(mix(GetRValue(color), GetRValue(onto)), mix(GetGValue(color), GetGValue(onto)),
             mix(GetBValue(color), GetBValue(onto)));
}

bool IsLight(COLORREF color) {
  return GetRValue(color) * 3 + GetGValue(color) * 6 + GetBValue(color) > 10 * 128;
}

void DrawGround(const DRAWITEMSTRUCT& item) {
  if ((item.itemState & ODS_SELECTED) == 0) {
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_WINDOW));
    return;
  }
  const COLORREF selection = GetSysColor(COLOR_HIGHLIGHT);
  SelectObject(item.hDC, GetStockObject(DC_PEN));
  SelectObject(item.hDC, GetStockObject(DC_BRUSH));
  SetDCPenColor(item.hDC, selection);
  SetDCBrushColor(item.hDC, Mixed(selection, GetSysColor(COLOR_WINDOW), kSelectionTint));
  Rectangle(item.hDC, item.rcItem.left, item.rcItem.top, item.rcItem.right, item.rcItem.bottom);
}

// The icons are drawn for white; on any other light ground it is to show through.
void DrawIcon(const DRAWITEMSTRUCT& item, HBITMAP icon) {
  if (icon == nullptr) return;
  const HDC from = CreateCompatibleDC(item.hDC);
  if (from == nullptr) return;
  const HGDIOBJ before = SelectObject(from, icon);
  const DWORD operation = IsLight(GetSysColor(COLOR_WINDOW)) ? SRCAND : SRCCOPY;
  BitBlt(item.hDC, item.rcItem.left + kIconLeft, item.rcItem.top + kIconTop, kIconWidth,
         kIconHeight, from, 0, 0, operation);
  SelectObject(from, before);
  DeleteDC(from);
}

}  // namespace

void FillPresetList(HWND list, std::span<const std::string> rows) {
  const HFONT font = SharedControls().fonts.FontList;
  SendMessageA(list, WM_SETREDRAW, FALSE, 0);
  if (font != nullptr) SendMessageA(list, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  SendMessageA(list, LB_SETITEMHEIGHT, 0, RowHeight(list, font));
  ClearPresetList(list);
  for (const std::string& row : rows) {
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str()));
  }
  SendMessageA(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
}

void ClearPresetList(HWND list) {
  for (auto row = static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0)) - 1; row >= 0; --row) {
    SendMessageA(list, LB_DELETESTRING, static_cast<WPARAM>(row), 0);
  }
}

int SelectedRow(HWND list) {
  return static_cast<int>(SendMessageA(list, LB_GETCURSEL, 0, 0));
}

std::string SelectedText(HWND list) {
  const int row = SelectedRow(list);
  return row < 0 ? std::string() : RowText(list, row);
}

void UpdateDeleteButton(HWND page, const PresetList& list) {
  const HWND button = list.deleteId != 0 ? GetDlgItem(page, list.deleteId) : nullptr;
  if (button == nullptr) return;
  const HWND box = GetDlgItem(page, list.listId);
  const bool isUseful = SelectedRow(box) >= 0 && !IsFolderRow(SelectedText(box));
  if (!isUseful && GetFocus() == button) {
    SendMessageA(page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(box), TRUE);
  }
  EnableWindow(button, isUseful ? TRUE : FALSE);
}

void DrawPresetRow(const DRAWITEMSTRUCT& item, const PresetListIcons& icons) {
  const bool isEmpty = item.itemID == static_cast<UINT>(-1);
  const int saved = SaveDC(item.hDC);
  if (!isEmpty) {
    DrawGround(item);
    std::string text = RowText(item.hwndItem, static_cast<int>(item.itemID));
    RECT place = item.rcItem;
    if (IsFolderRow(text)) {
      DrawIcon(item, IsUpRow(text) ? icons.up : icons.folder);
      text.erase(0, 1);
      place.left += kFolderTextLeft;
    } else {
      place.left += kPresetTextLeft;
    }
    place.right -= kTextGap;
    const bool isOff = (item.itemState & ODS_DISABLED) != 0;
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(isOff ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT));
    DrawTextA(item.hDC, text.c_str(), static_cast<int>(text.size()), &place,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  }
  // Where the keys are, as long as nothing is selected.
  const bool hasFocus = (item.itemState & ODS_FOCUS) != 0;
  const bool isQuiet = (item.itemState & (ODS_SELECTED | ODS_NOFOCUSRECT)) != 0;
  if (hasFocus && !isQuiet) DrawFocusRect(item.hDC, &item.rcItem);
  RestoreDC(item.hDC, saved);
}

}  // namespace tarnwick
