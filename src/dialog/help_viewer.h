#pragma once
#include <windows.h>

#include <atomic>
#include <functional>
#include <string>

namespace tarnwick {

// Shows a file or an address in the program that the user has for it. May throw;
// what it throws goes no further.
using PageOpener = std::function<void(HWND owner, const std::string& address)>;

// The shell's "open". Silent when that fails. From any thread.
void OpenInShell(HWND owner, const std::string& address);

// Brings up the pages of the manual. The shell may take seconds to start a
// browser, so a page is launched on a thread of its own, one at a time.
//
// Owner    the main dialog; null is allowed. It has to outlive the viewer's work:
//          Stop in its WM_DESTROY.
// Threads  all calls from the dialog's thread.
// Errors   none is shown: without the page or the thread nothing opens.
class HelpViewer {
 public:
  // `helpFolder` ends with a separator. A test opens pages in its own way.
  HelpViewer(HWND owner, std::string helpFolder, PageOpener opener = OpenInShell);
  ~HelpViewer() { Stop(); }
  HelpViewer(const HelpViewer&) = delete;
  HelpViewer& operator=(const HelpViewer&) = delete;

  // Opens the page of a code of help_pages.h. While a launch runs only the code is
  // kept, and nothing comes of it: F1 pressed twice opens one page.
  void OpenHelp(int code);

  // The same for any file.
  void OpenFile(const std::string& path);

  // Opens the page of example looks, in the calling thread.
  void OpenExamples();

  // Waits a moment for a launch to end, then ends it by force, since its code must
  // be gone before the module is. Messages sent to the thread's windows go on.
  void Stop();

  [[nodiscard]] bool IsRunning() const { return running_; }
  [[nodiscard]] int LatestCode() const { return code_; }

 private:
  static DWORD WINAPI Launch(void* viewer);

  const HWND owner_;
  const std::string helpFolder_;
  const PageOpener opener_;
  int code_ = 0;
  std::string page_;  // of the launch; it reads it, so unchanged while it runs
  std::atomic<bool> running_ = false;
  HANDLE thread_ = nullptr;
};

}  // namespace tarnwick
