#pragma once
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace tarnwick {

// A fixed crew of threads that share out the rows of one stage at a time.
//
// Threads  The caller works too, so a pool of 1 starts none. A pool serves one
//          caller at a time and its work must not call the pool again.
// Errors   A thread that cannot be started is done without. What work throws is
//          thrown on by ForRows, on the caller's thread, when all hands rest.
class ThreadPool {
 public:
  // `threads` counts the caller; 0 or less means one for each processor.
  explicit ThreadPool(int threads);
  ~ThreadPool();
  ThreadPool(const ThreadPool&) = delete;
  ThreadPool& operator=(const ThreadPool&) = delete;

  [[nodiscard]] int ThreadCount() const { return static_cast<int>(workers_.size()) + 1; }

  // Calls work(first, last) on disjoint ranges that cover begin..end once, and
  // returns when all are done. The split is not fixed: no result may depend on
  // it. `grain` is the smallest range worth a hand-over.
  using RowWork = std::function<void(int first, int last)>;
  void ForRows(int begin, int end, int grain, const RowWork& work);

 private:
  void WorkerLoop();
  void TakeRanges();

  std::vector<std::thread> workers_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::condition_variable idle_;
  const RowWork* work_ = nullptr;
  int next_ = 0;
  int end_ = 0;
  int step_ = 1;
  int busy_ = 0;
  std::exception_ptr failure_;
  unsigned long generation_ = 0;
  bool stop_ = false;
};

// The rows begin..end through `pool`, or by the caller alone if it is null.
void ForRows(ThreadPool* pool, int begin, int end, const ThreadPool::RowWork& work);

}  // namespace tarnwick
