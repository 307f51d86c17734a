#include "host/box_watcher_win.h"

#include <windows.h>

#include <cstring>

namespace tarnwick::testhost {
namespace {

HostLog*& WatchedLog() {
  static HostLog* log = nullptr;
  return log;
}

// A box that tells of the module has this caption.
constexpr char kAboutCaption[] = "About ";

bool IsAboutBox(HWND box) {
  char caption[32] = {};
  GetWindowTextA(box, caption, sizeof caption);
  return std::strncmp(caption, kAboutCaption, sizeof kAboutCaption - 1) == 0;
}

bool& AreDialogsLeft() {
  static bool areLeft = false;
  return areLeft;
}

bool IsModuleDialog(HWND box) {
  char caption[32] = {};
  GetWindowTextA(box, caption, sizeof caption);
  return std::strcmp(caption, "Tarnwick Studio") == 0 && GetDlgItem(box, IDCANCEL) != nullptr;
}

// The command by which controls of the dialog ask for a new preview.
constexpr WPARAM kRefresh = 1008;
constexpr int kRefreshes = 10;

void RefreshAndCancel(HWND dialog) {
  for (int i = 0; i < kRefreshes; ++i) PostMessageA(dialog, WM_COMMAND, kRefresh, 0);
  PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

// The static control of a message box that holds its text.
constexpr int kBoxText = 0xFFFF;

LRESULT CALLBACK OnActivation(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HCBT_ACTIVATE) {
    const auto box = reinterpret_cast<HWND>(wParam);
    char className[16] = {};
    GetClassNameA(box, className, sizeof className);
    const HWND label = GetDlgItem(box, kBoxText);
    const bool isDialog = std::strcmp(className, "#32770") == 0 && WatchedLog() != nullptr;
    if (isDialog && IsModuleDialog(box)) {
      if (!AreDialogsLeft()) RefreshAndCancel(box);
    } else if (isDialog && IsAboutBox(box)) {
      ++WatchedLog()->aboutsShown;
      if (!AreDialogsLeft()) PostMessageA(box, WM_COMMAND, IDOK, 0);
    } else if (isDialog && label != nullptr) {
      char text[2048] = {};
      GetWindowTextA(label, text, sizeof text);
      WatchedLog()->boxes.emplace_back(text);
      // Only a user knows the answer to a question.
      const bool isQuestion = GetDlgItem(box, IDYES) != nullptr;
      if (!isQuestion || !AreDialogsLeft()) PostMessageA(box, WM_COMMAND, IDOK, 0);
    }
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

BoxWatcher::BoxWatcher(HostLog& log)
    : hook_(SetWindowsHookExA(WH_CBT, OnActivation, nullptr, GetCurrentThreadId())) {
  WatchedLog() = &log;
}

void BoxWatcher::LeaveDialogs(bool isLeft) {
  AreDialogsLeft() = isLeft;
}

BoxWatcher::~BoxWatcher() {
  AreDialogsLeft() = false;
  UnhookWindowsHookEx(static_cast<HHOOK>(hook_));
  WatchedLog() = nullptr;
}

}  // namespace tarnwick::testhost
