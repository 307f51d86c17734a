#pragma once
#include <windows.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace tarnwick {

// A user of the modal boxes that the code under test brings up on this thread. For each
// box, in the order in which they come, an answer is given beforehand; one that is
// never asked for, or a box without an answer, is a failure (and the box is cancelled).
// One at a time.
class BoxScript {
 public:
  using Answer = std::function<void(HWND box)>;

  BoxScript();
  ~BoxScript();
  BoxScript(const BoxScript&) = delete;
  BoxScript& operator=(const BoxScript&) = delete;

  // `title` is the box's.
  void Expect(const std::string& title, Answer answer);
  // The same with a press of a button, by its id.
  void ExpectPress(const std::string& title, int button);

 private:
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
  void Look();

  struct Step {
    std::string title;
    Answer answer;
  };
  std::deque<Step> steps_;
  UINT_PTR timer_ = 0;
  int quietTicks_ = 0;
};

// Presses a button or a key in a box whose loop runs; returns at once.
void PressButton(HWND box, int button);
void PressKey(HWND control, int key);

}  // namespace tarnwick
