#include "base/thread_pool.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "base/row_progress.h"

namespace tarnwick::testing {
namespace {

TEST(ThreadPool, CoversEveryRowOnce) {
  for (const int threads : {1, 2, 3, 7}) {
    ThreadPool pool(threads);
    EXPECT_EQ(pool.ThreadCount(), threads);
    for (const auto& [begin, end] : {std::pair{0, 0}, {5, 5}, {7, 3}, {0, 1}, {3, 11}, {0, 1000}}) {
      for (const int grain : {0, 1, 8, 5000}) {
        std::vector<std::atomic<int>> visits(1000);
        pool.ForRows(begin, end, grain, [&](int first, int last) {
          ASSERT_LT(first, last);
          for (int row = first; row < last; ++row) ++visits[static_cast<std::size_t>(row)];
        });
        for (int row = 0; row < 1000; ++row) {
          const int wanted = row >= begin && row < end ? 1 : 0;
          ASSERT_EQ(visits[static_cast<std::size_t>(row)], wanted) << threads << ' ' << row;
        }
      }
    }
  }
}

TEST(ThreadPool, TakesManySmallJobs) {
  ThreadPool pool(3);
  std::atomic<int> sum = 0;
  for (int job = 0; job < 5000; ++job) {
    pool.ForRows(0, 4, 1, [&](int first, int last) { sum += last - first; });
    ASSERT_EQ(sum, 4 * (job + 1)) << "a job came back before its rows were done";
  }
}

struct Reports : ProgressSink {
  void Report(int done, int total) override {
    EXPECT_EQ(std::this_thread::get_id(), thread);
    EXPECT_EQ(total, 100);
    values.push_back(done);
  }
  std::thread::id thread = std::this_thread::get_id();
  std::vector<int> values;
};

TEST(RowProgress, ReportsEachRowInOrderOnTheCaller) {
  Reports reports;
  Progress progress{&reports, 10, 50};
  {
    const ProgressShare share(progress, 20, 30);
    ThreadPool pool(3);
    ForRowsReporting(&pool, &progress, 300, [](int, int) {});
  }
  ASSERT_EQ(reports.values.size(), 300U);
  for (int row = 0; row < 300; ++row) {
    // 20 + trunc(30 * row / 300)
    EXPECT_EQ(reports.values[static_cast<std::size_t>(row)], 20 + row / 10) << row;
  }
  EXPECT_EQ(progress.base, 10);
  EXPECT_EQ(progress.budget, 50);
  progress.Report(-3.5);
  progress.Report(7.9);
  progress.ReportRow(1, 0);
  EXPECT_EQ(std::vector<int>(reports.values.begin() + 300, reports.values.end()),
            std::vector<int>({0, 7}));
}

}  // namespace
}  // namespace tarnwick::testing
