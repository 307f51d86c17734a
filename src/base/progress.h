#pragma once

namespace tarnwick {

// Receives the progress of a render, always on the thread that started it.
// `done` of `total`; a render reports values up to 100 of 100, and a last
// report with a total of 0 tells that it is over.
class ProgressSink {
 public:
  virtual ~ProgressSink() = default;
  virtual void Report(int done, int total) = 0;
};

}  // namespace tarnwick
