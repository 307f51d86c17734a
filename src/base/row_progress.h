#pragma once
#include "base/progress.h"
#include "base/thread_pool.h"

namespace tarnwick {

// The share of the progress bar that a stage may use: from `base`, `budget`
// hundredths further. A stage nested in another narrows both for its length.
struct Progress {
  ProgressSink* sink = nullptr;
  double base = 0;
  double budget = 0;

  // Values are truncated and floored at 0.
  void Report(double done, double total = 100);
  // Row `row` of `rows` is done: base + trunc(budget * row / rows) of 100.
  void ReportRow(int row, int rows);
};

// Narrows `progress` for a scope and puts it back at its end.
class ProgressShare {
 public:
  ProgressShare(Progress& progress, double base, double budget)
      : progress_(progress), base_(progress.base), budget_(progress.budget) {
    progress_.base = base;
    progress_.budget = budget;
  }
  ~ProgressShare() {
    progress_.base = base_;
    progress_.budget = budget_;
  }
  ProgressShare(const ProgressShare&) = delete;
  ProgressShare& operator=(const ProgressShare&) = delete;

 private:
  Progress& progress_;
  double base_;
  double budget_;
};

// Rows 0..rows through the pool, band by band, so that the calling thread can
// report each row in order. `progress` may be null.
void ForRowsReporting(ThreadPool* pool, Progress* progress, int rows,
                      const ThreadPool::RowWork& work);

}  // namespace tarnwick
