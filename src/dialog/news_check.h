#pragma once
#include <windows.h>

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

namespace tarnwick {

// Asks a server for its news file, once, on a thread of its own: one plain request,
// nothing followed, within a time and a size. Whatever the server does or leaves
// undone, nobody waits for it.
//
// Threads  all calls from one thread.
// Errors   none is shown: without an answer that tells of news there are none.
// Ending   Stop, or the destructor, ends the thread. One that is still asking for the
//          host's name cannot be ended; it is left to itself, keeps the module in
//          memory until it is done and touches nothing but what is its own.
class NewsCheck {
 public:
  enum class Answer : std::uint8_t { kPending, kNothing, kNews };

  static constexpr DWORD kPatienceMs = 5000;

  // Begins at once. `ownVersion` is what the news are compared with.
  NewsCheck(const std::string& address, const std::string& ownVersion,
            DWORD patienceMs = kPatienceMs);
  ~NewsCheck() { Stop(); }
  NewsCheck(const NewsCheck&) = delete;
  NewsCheck& operator=(const NewsCheck&) = delete;

  // kNothing where it could not begin, and once it was stopped.
  [[nodiscard]] Answer Ask() const;
  void Stop();

 private:
  struct Job;

  std::shared_ptr<Job> job_;  // the thread's too
  HANDLE thread_ = nullptr;
};

}  // namespace tarnwick
