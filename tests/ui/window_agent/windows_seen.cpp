#include "ui/window_agent/windows_seen.h"

#include <cstring>

namespace tarnwick::testui {
namespace {

constexpr UINT kPatienceMs = 20000;

long long NumberOf(HWND window) {
  return static_cast<long long>(reinterpret_cast<LONG_PTR>(window));
}

std::string TextOf(HWND window) {
  char text[1024] = {};
  LRESULT length = 0;
  if (!Ask(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text), length)) return "";
  return text;
}

void Rect(JsonLine& answer, const char* name, const RECT& rect) {
  answer.Key(name).Begin('[').Number(rect.left).Number(rect.top);
  answer.Number(rect.right).Number(rect.bottom).End(']');
}

bool IsCheckable(const char* className, HWND window) {
  return std::strcmp(className, "Button") == 0 &&
         (GetWindowLongA(window, GWL_STYLE) & BS_TYPEMASK) != BS_GROUPBOX;
}

BOOL CALLBACK TellVisible(HWND window, LPARAM answer) {
  if (IsWindowVisible(window) != FALSE) TellWindow(window, *reinterpret_cast<JsonLine*>(answer));
  return TRUE;
}

BOOL CALLBACK TellAny(HWND window, LPARAM answer) {
  TellWindow(window, *reinterpret_cast<JsonLine*>(answer));
  return TRUE;
}

}  // namespace

bool Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
  DWORD_PTR result = 0;
  if (SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, kPatienceMs, &result) == 0)
    return false;
  answer = static_cast<LRESULT>(result);
  return true;
}

void TellWindow(HWND window, JsonLine& answer) {
  char className[64] = {};
  GetClassNameA(window, className, sizeof className);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  RECT frame{}, client{};
  GetWindowRect(window, &frame);
  GetClientRect(window, &client);
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
  LRESULT checked = 0;
  if (IsCheckable(className, window) && !Ask(window, BM_GETCHECK, 0, 0, checked)) checked = -1;
  answer.Begin('{').Key("window").Number(NumberOf(window)).Key("process").Number(process);
  answer.Key("id").Number(static_cast<int>(GetWindowLongA(window, GWL_ID)));
  answer.Key("class").Text(className).Key("text").Text(TextOf(window));
  answer.Key("visible").Number(IsWindowVisible(window)).Key("enabled");
  answer.Number(IsWindowEnabled(window)).Key("checked").Number(checked);
  Rect(answer, "frame", frame);
  Rect(answer, "client", client);
  answer.End('}');
}

void TellTopWindows(JsonLine& answer) {
  answer.Begin('[');
  EnumWindows(TellVisible, reinterpret_cast<LPARAM>(&answer));
  answer.End(']');
}

void TellChildren(HWND window, JsonLine& answer) {
  answer.Begin('[');
  EnumChildWindows(window, TellAny, reinterpret_cast<LPARAM>(&answer));
  answer.End(']');
}

void TellFocus(JsonLine& answer) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  GetGUIThreadInfo(0, &info);
  answer.Begin('{').Key("focus").Number(NumberOf(info.hwndFocus));
  answer.Key("capture").Number(NumberOf(info.hwndCapture));
  answer.Key("active").Number(NumberOf(info.hwndActive)).End('}');
}

void TellRows(HWND list, JsonLine& answer) {
  LRESULT count = 0;
  if (!Ask(list, LB_GETCOUNT, 0, 0, count)) count = 0;
  answer.Begin('[');
  for (LRESULT row = 0; row < count; ++row) {
    // From another process they come in wide letters, whatever is asked for.
    wchar_t wide[512] = {};
    DWORD_PTR length = 0;
    SendMessageTimeoutW(list, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(wide),
                        SMTO_NORMAL, kPatienceMs, &length);
    char text[512] = {};
    WideCharToMultiByte(CP_ACP, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    answer.Text(text);
  }
  answer.End(']');
}

long long PointerShape() {
  CURSORINFO info{};
  info.cbSize = sizeof info;
  if (GetCursorInfo(&info) == FALSE || (info.flags & CURSOR_SHOWING) == 0) return 0;
  return static_cast<long long>(reinterpret_cast<LONG_PTR>(info.hCursor));
}

}  // namespace tarnwick::testui
