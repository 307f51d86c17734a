// Texts that common controls hand out only into the memory of their own process.
#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <string>
#include <vector>

#include "ui/window_agent/windows_seen.h"

namespace tarnwick::testui {
namespace {

constexpr std::size_t kLongestText = 1024;

// A record and a text behind it, in the process of a window.
class RemoteRecord {
 public:
  RemoteRecord(HWND window, std::size_t size) : size_(size) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    process_ =
        OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, process);
    memory_ = static_cast<std::byte*>(
        VirtualAllocEx(process_, nullptr, size + kLongestText, MEM_COMMIT, PAGE_READWRITE));
  }
  ~RemoteRecord() {
    VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }
  RemoteRecord(const RemoteRecord&) = delete;
  RemoteRecord& operator=(const RemoteRecord&) = delete;

  [[nodiscard]] wchar_t* TextPlace() const { return reinterpret_cast<wchar_t*>(memory_ + size_); }
  void Put(const void* record) { WriteProcessMemory(process_, memory_, record, size_, nullptr); }
  void Take(void* record) { ReadProcessMemory(process_, memory_, record, size_, nullptr); }
  // Of wide letters, which all have to be of ASCII.
  [[nodiscard]] std::string Text() const {
    std::vector<wchar_t> text(kLongestText / sizeof(wchar_t));
    ReadProcessMemory(process_, TextPlace(), text.data(), kLongestText, nullptr);
    text.back() = 0;
    std::string narrow;
    for (const wchar_t* c = text.data(); *c != 0; ++c) narrow += static_cast<char>(*c);
    return narrow;
  }
  // The answer to a message about the record.
  LRESULT Send(HWND window, UINT message, WPARAM wParam) {
    LRESULT answer = 0;
    if (!Ask(window, message, wParam, reinterpret_cast<LPARAM>(memory_), answer)) return 0;
    return answer;
  }

 private:
  std::size_t size_;
  HANDLE process_ = nullptr;
  std::byte* memory_ = nullptr;
};

struct TipSearch {
  HWND target;
  JsonLine* answer;
};

BOOL CALLBACK TellTipsOf(HWND tip, LPARAM lParam) {
  const auto& search = *reinterpret_cast<const TipSearch*>(lParam);
  char className[32] = {};
  GetClassNameA(tip, className, sizeof className);
  if (std::string(className) != TOOLTIPS_CLASSA || GetWindow(tip, GW_OWNER) == nullptr) return TRUE;
  LRESULT count = 0;
  if (!Ask(tip, TTM_GETTOOLCOUNT, 0, 0, count)) return TRUE;
  for (LRESULT i = 0; i < count; ++i) {
    // With narrow letters a text would be cut at its 80th.
    RemoteRecord remote(tip, TTTOOLINFOW_V1_SIZE);
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    remote.Put(&tool);
    remote.Send(tip, TTM_ENUMTOOLSW, static_cast<WPARAM>(i));
    remote.Take(&tool);
    if (tool.hwnd != search.target) continue;
    tool.lpszText = remote.TextPlace();
    remote.Put(&tool);
    remote.Send(tip, TTM_GETTEXTW, kLongestText / sizeof(wchar_t));
    search.answer->Text(remote.Text());
  }
  return TRUE;
}

}  // namespace

void TellTips(HWND window, JsonLine& answer) {
  TipSearch search{window, &answer};
  answer.Begin('[');
  EnumWindows(TellTipsOf, reinterpret_cast<LPARAM>(&search));
  answer.End(']');
}

void TellTabs(HWND tabs, JsonLine& answer) {
  LRESULT count = 0;
  if (!Ask(tabs, TCM_GETITEMCOUNT, 0, 0, count)) count = 0;
  answer.Begin('[');
  for (LRESULT i = 0; i < count; ++i) {
    RemoteRecord remote(tabs, sizeof(TCITEMW));
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = remote.TextPlace();
    item.cchTextMax = kLongestText / sizeof(wchar_t);
    remote.Put(&item);
    remote.Send(tabs, TCM_GETITEMW, static_cast<WPARAM>(i));
    answer.Text(remote.Text());
  }
  answer.End(']');
}

}  // namespace tarnwick::testui
