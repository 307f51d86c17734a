#include "unfinished_files.h"

#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <climits>
#include <cstring>

namespace tarnwick {
namespace {

// The handler may run between any two instructions: it reads these buffers only
// while `armed` says that they are whole.
char unfinished[PATH_MAX + 1];
char unfinishedPart[PATH_MAX + 8];
std::atomic<bool> armed{false};

extern "C" void RemoveAndEnd(int number) {
  if (armed.load()) {
    unlink(unfinished);
    unlink(unfinishedPart);
  }
  // SA_RESETHAND has put the default action back, which ends the program with
  // the status that the caller expects of a signal.
  raise(number);
}

}  // namespace

void RemoveUnfinishedOnSignals() {
  struct sigaction action = {};
  action.sa_handler = RemoveAndEnd;
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
  sigemptyset(&action.sa_mask);
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction before = {};
    // A signal that the caller has switched off stays so, as under nohup.
    if (sigaction(number, nullptr, &before) == 0 && before.sa_handler == SIG_IGN) continue;
    sigaction(number, &action, nullptr);
  }
  signal(SIGXFSZ, SIG_IGN);
}

void SetUnfinishedFile(const std::string& path) {
  armed.store(false);
  if (path.empty() || path.size() > PATH_MAX) return;
  std::memcpy(unfinished, path.c_str(), path.size() + 1);
  std::memcpy(unfinishedPart, path.c_str(), path.size());
  std::memcpy(unfinishedPart + path.size(), ".part", sizeof ".part");
  armed.store(true);
}

}  // namespace tarnwick
