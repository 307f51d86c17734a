// The module in a process: loaded, called and let go, again and again. Runs on
// Windows or under Wine; the module's path is its argument.
#include <windows.h>

#include <gtest/gtest.h>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "float_controls.h"
#include "module_path.h"
#include "small_host.h"

namespace tarnwick {
namespace {

using DialogProcedure = INT_PTR CALLBACK(HWND, UINT, WPARAM, LPARAM);

DWORD OpenHandles() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return count;
}

// How many thread-local slots are left; a process has 1088.
int FreeSlots() {
  std::vector<DWORD> slots;
  for (DWORD slot = TlsAlloc(); slot != TLS_OUT_OF_INDEXES; slot = TlsAlloc()) {
    slots.push_back(slot);
  }
  for (const DWORD slot : slots) TlsFree(slot);
  return static_cast<int>(slots.size());
}

// Memory of the process's own, heaps included.
SIZE_T CommittedBytes() {
  SIZE_T bytes = 0;
  MEMORY_BASIC_INFORMATION region{};
  for (const char* at = nullptr; VirtualQuery(at, &region, sizeof region) != 0;
       at += region.RegionSize) {
    if (region.State == MEM_COMMIT && region.Type != MEM_IMAGE) bytes += region.RegionSize;
  }
  return bytes;
}

class Loaded {
 public:
  Loaded() : library_(LoadLibraryA(ModulePath().c_str())) {
    if (library_ == nullptr) {
      ADD_FAILURE() << ModulePath() << " does not load: error " << GetLastError();
      return;
    }
    entryPoint = Find<EntryPoint>("PluginMain");
    dialogProcedure = Find<DialogProcedure>("DissolveProc");
  }
  ~Loaded() {
    if (library_ != nullptr) FreeLibrary(library_);
  }
  Loaded(const Loaded&) = delete;
  Loaded& operator=(const Loaded&) = delete;

  EntryPoint* entryPoint = nullptr;
  DialogProcedure* dialogProcedure = nullptr;

 private:
  template <class Function>
  Function* Find(const char* name) {
    const FARPROC found = GetProcAddress(library_, name);
    EXPECT_NE(found, nullptr) << name;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
  }

  HMODULE library_;
};

// A selector that does not exist, one that finds a host without anything, and
// messages to the dialog procedure.
void CallWithNothing(const Loaded& module) {
  alignas(16) unsigned char record[1024] = {};
  const unsigned char zeros[1024] = {};
  std::intptr_t slot = 0;
  std::int16_t result = 0;
  module.entryPoint(99, record, &slot, &result);
  EXPECT_EQ(ReadFloatControls(), kOddControls);
  EXPECT_EQ(result, 0);
  module.entryPoint(host::filterSelectorParameters, record, &slot, &result);
  EXPECT_EQ(ReadFloatControls(), kOddControls);
  EXPECT_NE(result, 0);
  EXPECT_EQ(slot, 0);
  EXPECT_EQ(std::memcmp(record, zeros, sizeof record), 0);
  EXPECT_EQ(module.dialogProcedure(nullptr, WM_NULL, 0, 0), 0);
  EXPECT_EQ(module.dialogProcedure(nullptr, WM_DESTROY, 0, 0), 0);
}

void Visit(void (*stay)(const Loaded&)) {
  const OddControls odd;
  {
    const Loaded module;
    ASSERT_NE(module.entryPoint, nullptr);
    ASSERT_NE(module.dialogProcedure, nullptr);
    stay(module);
  }
  EXPECT_EQ(ReadFloatControls(), kOddControls);
  EXPECT_EQ(GetModuleHandleA("TarnikStudi.8bf"), nullptr) << "still there after it was let go";
}

// A whole run: threads start and end, pages come and go.
void RunOnce(const Loaded& module) {
  SmallHost host;
  EXPECT_EQ(host.Run(module.entryPoint), 0);
  EXPECT_EQ(ReadFloatControls(), kOddControls);
  EXPECT_TRUE(host.Result() == host.Original()) << "changed without any texture";
}

TEST(ModuleInAProcess, ComesAndGoesWithoutATrace) {
  const struct {
    const char* name;
    void (*stay)(const Loaded&);
    int times;
  } visits[] = {{"short visits", CallWithNothing, 100}, {"runs", RunOnce, 40}};
  for (const auto& row : visits) {
    for (int i = 0; i < 3; ++i) Visit(row.stay);  // what the system keeps from the first time
    const DWORD handles = OpenHandles();
    const int slots = FreeSlots();
    const SIZE_T bytes = CommittedBytes();
    for (int i = 0; i < row.times && !HasFailure(); ++i) Visit(row.stay);
    EXPECT_EQ(OpenHandles(), handles) << row.name;
    EXPECT_EQ(FreeSlots(), slots) << row.name;
    // A heap grows in steps; this is one.
    EXPECT_LE(CommittedBytes(), bytes + 0x10000) << row.name;
  }
}

struct Events {
  HANDLE visited = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  HANDLE mayEnd = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  ~Events() {
    CloseHandle(visited);
    CloseHandle(mayEnd);
  }
};

DWORD WINAPI VisitAndLinger(void* argument) {
  const auto* const events = static_cast<const Events*>(argument);
  Visit(RunOnce);
  SetEvent(events->visited);
  WaitForSingleObject(events->mayEnd, INFINITE);
  return 7;
}

// A thread that has used the module ends when the module is gone, and again when
// it has come back: nothing of what is no longer there may be called.
TEST(ModuleInAProcess, LeavesNothingToThreadsThatOutliveIt) {
  for (const bool cameBack : {false, true}) {
    Events events;
    const HANDLE thread = CreateThread(nullptr, 0, VisitAndLinger, &events, 0, nullptr);
    ASSERT_NE(thread, nullptr);
    EXPECT_EQ(WaitForSingleObject(events.visited, 20000), WAIT_OBJECT_0);
    const auto again = cameBack ? std::make_unique<Loaded>() : nullptr;
    SetEvent(events.mayEnd);
    EXPECT_EQ(WaitForSingleObject(thread, 20000), WAIT_OBJECT_0);
    DWORD code = 0;
    EXPECT_TRUE(GetExitCodeThread(thread, &code));
    EXPECT_EQ(code, 7U) << cameBack;
    CloseHandle(thread);
  }
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc != 2) {
    std::fputs("usage: tarnwick_load_tests MODULE\n", stderr);
    return 2;
  }
  tarnwick::ModulePath() = argv[1];
  std::freopen("NUL", "w", stderr);  // what the module says of missing textures
  return RUN_ALL_TESTS();
}
