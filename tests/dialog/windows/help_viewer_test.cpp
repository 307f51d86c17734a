#include "dialog/help_viewer.h"

#include <gtest/gtest.h>

#include <mutex>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using ::testing::ElementsAre;

// Notes what is opened, and holds each opening up until told to go on.
class Shell {
 public:
  explicit Shell(bool goesOn = true) : goOn_(CreateEventA(nullptr, TRUE, goesOn, nullptr)) {}
  ~Shell() { CloseHandle(goOn_); }
  Shell(const Shell&) = delete;
  Shell& operator=(const Shell&) = delete;

  PageOpener Opener() {
    return [this](HWND owner, const std::string& address) {
      {
        const std::lock_guard lock(mutex_);
        opened_.push_back(address);
        owner_ = owner;
        thread_ = GetCurrentThreadId();
      }
      WaitForSingleObject(goOn_, INFINITE);
    };
  }
  void GoOn() { SetEvent(goOn_); }
  std::vector<std::string> Opened() {
    const std::lock_guard lock(mutex_);
    return opened_;
  }
  HWND Owner() const { return owner_; }
  DWORD Thread() const { return thread_; }

 private:
  std::mutex mutex_;
  std::vector<std::string> opened_;
  HWND owner_ = nullptr;
  DWORD thread_ = 0;
  HANDLE goOn_;
};

template <class Condition>
bool Soon(Condition condition) {
  for (int i = 0; i < 500; ++i) {
    if (condition()) return true;
    Sleep(10);
  }
  return false;
}

TEST(HelpViewer, OpensOnAThreadOfItsOwnForTheOwner) {
  Shell shell;
  const HWND owner = GetDesktopWindow();
  HelpViewer viewer(owner, "C:\\Data\\Help\\", shell.Opener());
  viewer.OpenHelp(778);
  ASSERT_TRUE(Soon([&] { return !viewer.IsRunning(); }));
  viewer.OpenHelp(0);
  ASSERT_TRUE(Soon([&] { return !viewer.IsRunning(); }));
  viewer.OpenFile("C:\\Terms.txt");
  viewer.Stop();
  EXPECT_THAT(shell.Opened(), ElementsAre("C:\\Data\\Help\\wash.html", "C:\\Data\\Help\\index.html",
                                          "C:\\Terms.txt"));
  EXPECT_EQ(shell.Owner(), owner);
  EXPECT_NE(shell.Thread(), GetCurrentThreadId());
}

TEST(HelpViewer, ASecondRequestIsKeptButNotOpened) {
  Shell shell(false);
  HelpViewer viewer(nullptr, "H\\", shell.Opener());
  viewer.OpenHelp(777);
  viewer.OpenHelp(779);
  EXPECT_TRUE(viewer.IsRunning());
  EXPECT_EQ(viewer.LatestCode(), 779);
  shell.GoOn();
  ASSERT_TRUE(Soon([&] { return !viewer.IsRunning(); }));
  EXPECT_THAT(shell.Opened(), ElementsAre("H\\basic.html"));
}

TEST(HelpViewer, WhatAnOpenerThrowsGoesNoFurther) {
  HelpViewer viewer(nullptr, "H\\",
                    [](HWND, const std::string&) { throw std::runtime_error("no browser"); });
  viewer.OpenExamples();
  for (int i = 0; i < 3; ++i) {
    viewer.OpenHelp(i);
    ASSERT_TRUE(Soon([&] { return !viewer.IsRunning(); }));
  }
}

TEST(HelpViewer, EndsALaunchThatHangs) {
  Shell hangs(false);
  HelpViewer viewer(nullptr, "H\\", hangs.Opener());
  viewer.OpenHelp(877);
  ASSERT_TRUE(Soon([&] { return hangs.Opened().size() == 1; }));
  const DWORD start = GetTickCount();
  viewer.Stop();
  EXPECT_LT(GetTickCount() - start, 5000U);
  EXPECT_FALSE(viewer.IsRunning());
  hangs.GoOn();
  Sleep(50);
  // The next one goes well.
  viewer.OpenHelp(780);
  ASSERT_TRUE(Soon([&] { return !viewer.IsRunning(); }));
  EXPECT_THAT(hangs.Opened(), ElementsAre("H\\texture_picker.html", "H\\background.html"));
}

// A shell that asks the owner something while the owner waits for it.
TEST(HelpViewer, AnswersWhileItWaits) {
  const HWND owner =
      CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  ASSERT_NE(owner, nullptr);
  std::atomic<int> answers = 0;
  HelpViewer viewer(owner, "H\\", [&](HWND window, const std::string&) {
    Sleep(100);
    char text[8];
    SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    ++answers;
  });
  viewer.OpenHelp(0);
  viewer.Stop();
  EXPECT_EQ(answers, 1);
  DestroyWindow(owner);
}

TEST(HelpViewer, OpensTheExamplesAtOnce) {
  Shell shell;
  HelpViewer viewer(nullptr, "H\\", shell.Opener());
  viewer.OpenExamples();
  EXPECT_THAT(shell.Opened(), ElementsAre("H\\presets.html"));
  EXPECT_EQ(shell.Thread(), GetCurrentThreadId());
}

// The system's own shell; a message box would hold the test up.
TEST(HelpViewer, AMissingFolderIsSilent) {
  HelpViewer viewer(nullptr, "C:\\no such folder\\Help\\");
  viewer.OpenHelp(0);
  EXPECT_TRUE(Soon([&] { return !viewer.IsRunning(); }));
  viewer.OpenExamples();
}

}  // namespace
}  // namespace tarnwick
