#pragma once
#include "host/host_log.h"

namespace tarnwick::testhost {

// Answers the message boxes of this thread: notes their texts and presses OK. One
// at a time.
class BoxWatcher {
 public:
  explicit BoxWatcher(HostLog& log);
  ~BoxWatcher();
  BoxWatcher(const BoxWatcher&) = delete;
  BoxWatcher& operator=(const BoxWatcher&) = delete;

 private:
  void* hook_;
};

}  // namespace tarnwick::testhost
