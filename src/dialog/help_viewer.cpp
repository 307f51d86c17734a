#include "dialog/help_viewer.h"

#include <objbase.h>
#include <shellapi.h>

#include <utility>

#include "dialog/models/help_pages.h"

namespace tarnwick {
namespace {

// A shell that hangs must not hold up the end of the dialog for longer.
constexpr DWORD kPatienceMs = 700;

// True once the thread has ended. The shell may send the owner a message, which the
// thread here has to answer, or both would wait for each other.
bool WaitForEnd(HANDLE thread, DWORD patienceMs) {
  const DWORD start = GetTickCount();
  for (;;) {
    const DWORD waited = GetTickCount() - start;
    const DWORD rest = waited < patienceMs ? patienceMs - waited : 0;
    const DWORD event = MsgWaitForMultipleObjects(1, &thread, FALSE, rest, QS_SENDMESSAGE);
    if (event != WAIT_OBJECT_0 + 1) return event == WAIT_OBJECT_0;
    MSG message;
    PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
  }
}

}  // namespace

void OpenInShell(HWND owner, const std::string& address) {
  // Some that open pages are components, and those want this of the thread.
  const HRESULT ready = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
  ShellExecuteA(owner, "open", address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  if (SUCCEEDED(ready)) CoUninitialize();
}

HelpViewer::HelpViewer(HWND owner, std::string helpFolder, PageOpener opener)
    : owner_(owner), helpFolder_(std::move(helpFolder)), opener_(std::move(opener)) {}

void HelpViewer::OpenHelp(int code) {
  code_ = code;
  if (helpFolder_.empty()) return;  // where the module is unknown
  OpenFile(helpFolder_ + HelpPageOf(code));
}

void HelpViewer::OpenFile(const std::string& path) {
  if (running_) return;
  Stop();  // the one before has nothing left to do; its handle goes
  page_ = path;
  running_ = true;
  thread_ = CreateThread(nullptr, 0, Launch, this, 0, nullptr);
  if (thread_ == nullptr) running_ = false;
}

DWORD WINAPI HelpViewer::Launch(void* viewer) {
  auto& self = *static_cast<HelpViewer*>(viewer);
  try {
    self.opener_(self.owner_, self.page_);
  } catch (...) {
    // A page that does not open is no reason to end the host.
  }
  self.running_ = false;
  return 0;
}

void HelpViewer::OpenExamples() {
  if (helpFolder_.empty()) return;
  try {
    opener_(owner_, helpFolder_ + kExamplesPage);
  } catch (...) {
  }
}

void HelpViewer::Stop() {
  // Taken first: a message answered during the wait may lead here again.
  const HANDLE thread = std::exchange(thread_, nullptr);
  if (thread == nullptr) return;
  if (!WaitForEnd(thread, kPatienceMs)) {
    TerminateThread(thread, 1);
    WaitForSingleObject(thread, kPatienceMs);
  }
  CloseHandle(thread);
  running_ = false;
}

}  // namespace tarnwick
