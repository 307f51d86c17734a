#include "dialog/windows/box_script.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarnwick {
namespace {

constexpr UINT kTickMs = 20;
constexpr int kPatience = 250;  // ticks

BoxScript*& Running() {
  static BoxScript* script = nullptr;
  return script;
}

std::string TitleOf(HWND window) {
  char title[128] = "";
  GetWindowTextA(window, title, sizeof title);
  return title;
}

// The box that is up on this thread, if there is one: dialogs have a class of their own.
HWND BoxNow() {
  HWND found = nullptr;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM box) -> BOOL {
        char name[16] = "";
        GetClassNameA(window, name, sizeof name);
        if (std::string(name) != "#32770" || IsWindowVisible(window) == FALSE ||
            GetPropA(window, "NoBox") != nullptr) {
          return TRUE;
        }
        *reinterpret_cast<HWND*>(box) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

}  // namespace

BoxScript::BoxScript() : timer_(SetTimer(nullptr, 0, kTickMs, Tick)) {
  Running() = this;
}

BoxScript::~BoxScript() {
  KillTimer(nullptr, timer_);
  Running() = nullptr;
  for (const Step& step : steps_) ADD_FAILURE() << "never came: " << step.title;
}

void BoxScript::Expect(const std::string& title, Answer answer) {
  steps_.push_back({title, std::move(answer)});
}

void BoxScript::ExpectPress(const std::string& title, int button) {
  Expect(title, [button](HWND box) { PressButton(box, button); });
}

void CALLBACK BoxScript::Tick(HWND, UINT, UINT_PTR, DWORD) {
  if (Running() != nullptr) Running()->Look();
}

void BoxScript::Look() {
  const HWND box = BoxNow();
  if (box == nullptr) return;
  if (!steps_.empty() && TitleOf(box) == steps_.front().title) {
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    quietTicks_ = 0;
    step.answer(box);
  } else if (++quietTicks_ > kPatience) {
    ADD_FAILURE() << "unexpected: " << TitleOf(box);
    quietTicks_ = 0;
    PostMessageA(box, WM_COMMAND, IDCANCEL, 0);
  }
}

void PressButton(HWND box, int button) {
  PostMessageA(box, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(box, button)));
}

void PressKey(HWND control, int key) {
  PostMessageA(control, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
}

}  // namespace tarnwick
