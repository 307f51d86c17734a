#include "controls/object_controls.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>

#include "controls/control_classes.h"
#include "controls/control_page.h"

namespace tarnwick {
namespace {

struct Heard {
  int commands = 0;
  int ends = 0;
};

template <typename Base>
class Listener : public Base {
 public:
  explicit Listener(Heard& heard) : heard_(heard) {}
  LRESULT WindowProc(HWND target, UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_COMMAND) ++heard_.commands;
    if (message == WM_NCDESTROY) ++heard_.ends;
    return DefWindowProcA(target, message, wParam, lParam);
  }

 private:
  Heard& heard_;
};

TEST(ObjectControls, HearTheirWindowToItsEnd) {
  ControlPage page;
  const HWND window = page.Add(kFilmstripClass, 1, 10, 10, 60, 20);
  SendMessageA(window, WM_COMMAND, 0, 0);
  Heard heard;
  Listener<TTWK2Control> control(heard);
  control.AttachTo(window);
  SendMessageA(window, WM_COMMAND, 0, 0);
  EXPECT_EQ(heard.commands, 1);
  DestroyWindow(window);
  EXPECT_EQ(heard.ends, 1);
  // Its handle may be another window's by now.
  EXPECT_EQ(control.window, nullptr);
}

TEST(ObjectControls, OnlyDrawersTakeTheirWindowWithThem) {
  ControlPage page;
  const HWND filmstrip = page.Add(kFilmstripClass, 1, 10, 10, 60, 20);
  const HWND drawer = page.Add(kDrawerClass, 2, 10, 40, 60, 20);
  Heard heard;
  auto control = std::make_unique<Listener<TTWK2Control>>(heard);
  auto panel = std::make_unique<Listener<TDrawerWindow>>(heard);
  control->AttachTo(filmstrip);
  panel->AttachTo(drawer);
  control.reset();
  panel.reset();
  EXPECT_TRUE(IsWindow(filmstrip));
  EXPECT_FALSE(IsWindow(drawer));
  SendMessageA(filmstrip, WM_COMMAND, 0, 0);
  EXPECT_EQ(heard.commands, 0);
}

}  // namespace
}  // namespace tarnwick
