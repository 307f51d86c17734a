#include "dialog/news_check.h"

#include <utility>

#include "dialog/news_socket.h"
#include "news/news_address.h"
#include "news/news_text.h"

namespace tarnwick {
namespace {

// A stopped thread needs no more than this, unless it is asking for a name.
constexpr DWORD kLeaveAfterMs = 200;

}  // namespace

struct NewsCheck::Job {
  Job(NewsAddress wanted, std::string version, DWORD patience)
      : address(std::move(wanted)), ownVersion(std::move(version)), patienceMs(patience) {}
  ~Job() {
    if (stop != nullptr) CloseHandle(stop);
  }
  Job(const Job&) = delete;
  Job& operator=(const Job&) = delete;

  void Do() {
    try {
      const bool isNews = TellsOfNewer(FetchNews(address, Deadline(stop, patienceMs)), ownVersion);
      answer = isNews ? Answer::kNews : Answer::kNothing;
    } catch (...) {
      // Without memory there are no news.
      answer = Answer::kNothing;
    }
  }

  // What the thread begins with, and ends with: it holds the job and the module.
  struct Start {
    std::shared_ptr<Job> job;
    HMODULE module = nullptr;
  };

  static DWORD WINAPI Run(void* parameter) {
    HMODULE module = nullptr;
    {
      const std::unique_ptr<Start> start(static_cast<Start*>(parameter));
      module = start->module;
      start->job->Do();
    }
    // Nothing of this module may run once it may be gone, not even a return.
    FreeLibraryAndExitThread(module, 0);
  }

  const NewsAddress address;
  const std::string ownVersion;
  const DWORD patienceMs;
  const HANDLE stop = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  std::atomic<Answer> answer = Answer::kPending;
};

NewsCheck::NewsCheck(const std::string& address, const std::string& ownVersion, DWORD patienceMs) {
  auto place = ParseNewsAddress(address);
  if (!place) return;
  auto job = std::make_shared<Job>(std::move(*place), ownVersion, patienceMs);
  if (job->stop == nullptr) return;
  auto start = std::make_unique<Job::Start>();
  start->job = job;
  // Counts as one more user of the module.
  if (GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                         reinterpret_cast<LPCSTR>(&Job::Run), &start->module) == FALSE) {
    return;
  }
  thread_ = CreateThread(nullptr, 0, Job::Run, start.get(), 0, nullptr);
  if (thread_ == nullptr) {
    FreeLibrary(start->module);
    return;
  }
  (void)start.release();  // the thread's now
  job_ = std::move(job);
}

NewsCheck::Answer NewsCheck::Ask() const {
  return job_ ? job_->answer.load() : Answer::kNothing;
}

void NewsCheck::Stop() {
  if (thread_ == nullptr) return;
  SetEvent(job_->stop);
  WaitForSingleObject(thread_, kLeaveAfterMs);
  CloseHandle(std::exchange(thread_, nullptr));
  job_.reset();
}

}  // namespace tarnwick
