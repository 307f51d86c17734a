#include "base/row_progress.h"

#include <algorithm>

namespace tarnwick {

void Progress::Report(double done, double total) {
  if (sink != nullptr) sink->Report(std::max(static_cast<int>(done), 0), static_cast<int>(total));
}

void Progress::ReportRow(int row, int rows) {
  if (sink != nullptr && rows > 0) Report(base + static_cast<int>(budget * row / rows));
}

void ForRowsReporting(ThreadPool* pool, Progress* progress, int rows,
                      const ThreadPool::RowWork& work) {
  if (progress == nullptr || progress->sink == nullptr) {
    ForRows(pool, 0, rows, work);
    return;
  }
  // Bands long enough to keep all hands busy, short enough for a smooth bar.
  const int band = std::max(64, rows / 16);
  for (int first = 0; first < rows; first += band) {
    const int last = std::min(first + band, rows);
    ForRows(pool, first, last, work);
    for (int row = first; row < last; ++row) progress->ReportRow(row, rows);
  }
}

}  // namespace tarnwick
