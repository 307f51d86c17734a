#include "console.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace tarnwick {
namespace {

constexpr int kFallbackColumns = 80;

int TerminalColumns() {
  winsize size{};
  if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return kFallbackColumns;
  return size.ws_col;
}

void Put(std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stderr);
}

}  // namespace

Console::Console() : showProgress_(isatty(STDERR_FILENO) == 1) {}

void Console::Error(std::string_view text) {
  WipeProgress();
  Put("tarnwick: " + std::string(text) + "\n");
}

void Console::Warning(std::string_view text) {
  WipeProgress();
  Put("tarnwick: warning: " + std::string(text) + "\n");
}

void Console::DrawProgress(std::string_view label, int percent) {
  if (!showProgress_) return;
  percent = std::clamp(percent, 0, 100);
  // A render reports each row of each stage; the terminal needs a hundredth.
  if (drawn_ && percent == lastPercent_ && label == lastLabel_) return;
  lastPercent_ = percent;
  lastLabel_ = label;

  constexpr int kBarColumns = 30;
  constexpr int kOtherColumns = 9;  // brackets, blanks and the number
  const int room = std::max(0, TerminalColumns() - kBarColumns - kOtherColumns);
  const std::string name = lastLabel_.substr(0, static_cast<std::size_t>(room));
  const int filled = percent * kBarColumns / 100;
  std::string line = "\r" + name + " [";
  line.append(static_cast<std::size_t>(filled), '#');
  line.append(static_cast<std::size_t>(kBarColumns - filled), '.');
  line += "] " + std::to_string(percent) + "%\x1b[K";
  Put(line);
  std::fflush(stderr);
  drawn_ = true;
}

void Console::WipeProgress() {
  if (!drawn_) return;
  Put("\r\x1b[K");
  std::fflush(stderr);
  drawn_ = false;
}

ProgressBar::ProgressBar(Console& console, std::string label)
    : console_(console), label_(std::move(label)) {
  console_.DrawProgress(label_, 0);
}

ProgressBar::~ProgressBar() {
  console_.WipeProgress();
}

void ProgressBar::Report(int done, int total) {
  if (total <= 0) return;  // The render is over; the picture is still to be written.
  console_.DrawProgress(label_, static_cast<int>(100LL * done / total));
}

}  // namespace tarnwick
