#include "base/thread_pool.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace tarnwick {

ThreadPool::ThreadPool(int threads) {
  if (threads <= 0) threads = static_cast<int>(std::thread::hardware_concurrency());
  workers_.reserve(static_cast<std::size_t>(std::max(threads - 1, 0)));
  for (int i = 1; i < threads; ++i) {
    try {
      workers_.emplace_back([this] { WorkerLoop(); });
    } catch (const std::exception&) {
      break;  // Fewer hands do the same work, be it threads or memory that lack.
    }
  }
}

ThreadPool::~ThreadPool() {
  {
    std::lock_guard lock(mutex_);
    stop_ = true;
  }
  wake_.notify_all();
  for (std::thread& worker : workers_) worker.join();
}

void ThreadPool::WorkerLoop() {
  unsigned long seen = 0;
  std::unique_lock lock(mutex_);
  for (;;) {
    wake_.wait(lock, [&] { return stop_ || generation_ != seen; });
    if (stop_) return;
    seen = generation_;
    lock.unlock();
    TakeRanges();
    lock.lock();
    if (--busy_ == 0) idle_.notify_one();
  }
}

void ThreadPool::TakeRanges() {
  for (;;) {
    int first = 0;
    int last = 0;
    {
      std::lock_guard lock(mutex_);
      if (next_ >= end_) return;
      first = next_;
      last = end_ - next_ > step_ ? next_ + step_ : end_;
      next_ = last;
    }
    try {
      (*work_)(first, last);
    } catch (...) {
      std::lock_guard lock(mutex_);
      if (failure_ == nullptr) failure_ = std::current_exception();
      next_ = end_;  // The rest is not worth doing.
    }
  }
}

void ThreadPool::ForRows(int begin, int end, int grain, const RowWork& work) {
  if (begin >= end) return;
  const int rows = end - begin;
  grain = std::max(grain, 1);
  if (workers_.empty() || rows <= grain) {
    work(begin, end);
    return;
  }
  {
    std::lock_guard lock(mutex_);
    work_ = &work;
    next_ = begin;
    end_ = end;
    // A few ranges for each thread level out rows of unequal cost.
    step_ = std::max(grain, rows / (ThreadCount() * 4));
    busy_ = static_cast<int>(workers_.size());
    ++generation_;
  }
  wake_.notify_all();
  TakeRanges();
  std::unique_lock lock(mutex_);
  idle_.wait(lock, [&] { return busy_ == 0; });
  work_ = nullptr;
  if (failure_ != nullptr) std::rethrow_exception(std::exchange(failure_, nullptr));
}

void ForRows(ThreadPool* pool, int begin, int end, const ThreadPool::RowWork& work) {
  constexpr int kGrainRows = 8;
  if (pool != nullptr) {
    pool->ForRows(begin, end, kGrainRows, work);
  } else if (begin < end) {
    work(begin, end);
  }
}

}  // namespace tarnwick
