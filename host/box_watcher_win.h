#pragma once
#include "host/host_log.h"

namespace tarnwick::testhost {

// Answers the message boxes of this thread: notes their texts and presses OK. The
// module's dialog is answered too as soon as it shows, unless it is left to a user. One
// watcher at a time.
class BoxWatcher {
 public:
  explicit BoxWatcher(HostLog& log);
  ~BoxWatcher();
  BoxWatcher(const BoxWatcher&) = delete;
  BoxWatcher& operator=(const BoxWatcher&) = delete;

  // The command that ends the dialog: OK at first; 0 leaves it to a user.
  void AnswerDialog(int command);

 private:
  void* hook_;
};

}  // namespace tarnwick::testhost
