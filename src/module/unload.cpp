// Gives back to the process what the linked-in run-time libraries take when the
// module is loaded and keep when it is unloaded. A host that loads it for each run
// would in time have nothing left.
//
// The thread library takes one of about a thousand thread-local slots; its calls
// are caught here, to know which. The C++ library takes memory for exceptions that
// are thrown when there is no other.
#include <windows.h>

#include <atomic>

namespace __gnu_cxx {
void __freeres();  // in no header
}

namespace {

// Slots of this module plus 1; 0 is a free place. Filled before any constructor runs.
constinit std::atomic<DWORD> takenSlots[16] = {};

// Asked anew each time: a local static would lock, and a lock wants a slot.
template <class Function>
Function* FromSystem(const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleA("kernel32.dll"), name);
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

void ReplaceEntry(DWORD wanted, DWORD value) {
  for (std::atomic<DWORD>& entry : takenSlots) {
    DWORD expected = wanted;
    if (entry.compare_exchange_strong(expected, value)) return;
  }
}

DWORD WINAPI TakeSlot() {
  const DWORD slot = FromSystem<decltype(TlsAlloc)>("TlsAlloc")();
  if (slot != TLS_OUT_OF_INDEXES) ReplaceEntry(0, slot + 1);
  return slot;
}

BOOL WINAPI GiveSlotBack(DWORD slot) {
  ReplaceEntry(slot + 1, 0);
  return FromSystem<decltype(TlsFree)>("TlsFree")(slot);
}

struct GiveBack {
  ~GiveBack() {
    for (const std::atomic<DWORD>& entry : takenSlots) {
      if (const DWORD slot = entry; slot != 0) GiveSlotBack(slot - 1);
    }
    __gnu_cxx::__freeres();
  }
};

// Made before all others and so destroyed after them: they may still need both.
__attribute__((init_priority(101))) GiveBack giveBack;

}  // namespace

// The linker finds these before the system's own.
#ifdef _WIN64
#define IMPORTED(name, bytes) asm("__imp_" name)
#else
#define IMPORTED(name, bytes) asm("__imp__" name "@" bytes)
#endif
extern "C" {
extern decltype(&TlsAlloc) const importedTlsAlloc IMPORTED("TlsAlloc", "0");
decltype(&TlsAlloc) const importedTlsAlloc = TakeSlot;
extern decltype(&TlsFree) const importedTlsFree IMPORTED("TlsFree", "4");
decltype(&TlsFree) const importedTlsFree = GiveSlotBack;
}
