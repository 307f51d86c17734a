#pragma once
#include <string>

#include "news/news_address.h"

namespace tarnwick {

// How long something may take, and what ends it before: a HANDLE and DWORDs, whose
// header would shut out that of sockets.
class Deadline {
 public:
  Deadline(void* stop, unsigned long patienceMs);

  [[nodiscard]] void* Stop() const { return stop_; }
  // 0 when it is over, or when `stop` is set.
  [[nodiscard]] unsigned long RestMs() const;

 private:
  void* stop_;
  unsigned long start_;
  unsigned long patienceMs_;
};

// The body of the file at the address; empty if it did not come whole and in time.
// The search for the host's name alone may take longer than the deadline.
[[nodiscard]] std::string FetchNews(const NewsAddress& address, const Deadline& deadline);

}  // namespace tarnwick
