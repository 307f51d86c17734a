#pragma once
#include "host/host_log.h"

namespace tarnwick::testhost {

// Answers the message boxes of this thread: notes their texts and presses OK. The
// module's dialog, if it shows, renders its preview some times and is cancelled. One watcher at a
// time.
class BoxWatcher {
 public:
  explicit BoxWatcher(HostLog& log);
  ~BoxWatcher();
  BoxWatcher(const BoxWatcher&) = delete;
  BoxWatcher& operator=(const BoxWatcher&) = delete;

  // The module's dialogs and its questions wait for their user; other boxes do not.
  void LeaveDialogs(bool isLeft);

 private:
  void* hook_;
};

}  // namespace tarnwick::testhost
