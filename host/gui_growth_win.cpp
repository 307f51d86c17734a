#include <windows.h>

#include <psapi.h>

#include <vector>

#include "host/gui_growth.h"

namespace tarnwick::testhost {
namespace {

// More than any system has room for.
constexpr std::size_t kMost = 70000;

template <typename Handle, typename Make, typename Free>
int RoomFor(Make make, Free free) {
  std::vector<Handle> made;
  while (made.size() < kMost) {
    const Handle one = make();
    if (one == nullptr) break;
    made.push_back(one);
  }
  for (const Handle one : made) free(one);
  return static_cast<int>(made.size());
}

}  // namespace

void BecomeScreenAware() {
  SetProcessDPIAware();
}

GuiRoom MeasureGuiRoom() {
  GuiRoom room;
  room.graphics = RoomFor<HPEN>([] { return CreatePen(PS_SOLID, 1, RGB(1, 2, 3)); },
                                [](HPEN pen) { DeleteObject(pen); });
  room.windows = RoomFor<HMENU>([] { return CreateMenu(); }, [](HMENU menu) { DestroyMenu(menu); });
  PROCESS_MEMORY_COUNTERS memory{};
  memory.cb = sizeof memory;
  GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
  room.bytes = static_cast<long long>(memory.PagefileUsage);
  return room;
}

}  // namespace tarnwick::testhost
