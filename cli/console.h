#pragma once
#include <string>
#include <string_view>

#include "base/progress.h"

namespace tarnwick {

// The lines that go to standard error, and the one progress bar among them.
//
// The bar is drawn only on a terminal and never with Quiet; a message wipes it
// first, so the two do not mix. Not for several threads.
class Console {
 public:
  Console();

  // No progress bar. Warnings and errors are still told.
  void BeQuiet() { showProgress_ = false; }

  void Error(std::string_view text);
  void Warning(std::string_view text);

  // `percent` 0..100 of the work called `label`.
  void DrawProgress(std::string_view label, int percent);
  void WipeProgress();

 private:
  bool showProgress_ = false;
  bool drawn_ = false;
  int lastPercent_ = -1;
  std::string lastLabel_;
};

// Shows the progress of one render as a bar with the picture's name.
class ProgressBar : public ProgressSink {
 public:
  ProgressBar(Console& console, std::string label);
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  ~ProgressBar() override;
  void Report(int done, int total) override;

 private:
  Console& console_;
  std::string label_;
};

}  // namespace tarnwick
