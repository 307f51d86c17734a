#include "controls/control_record.h"

namespace tarnwick {

void RedrawControl(HWND window) {
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void PostControlCommand(const TContaner& record) {
  PostMessageA(GetParent(record.window), WM_COMMAND, static_cast<WPARAM>(record.id), 0);
}

void SendControlCommand(const TContaner& record, LPARAM detail) {
  SendMessageA(GetParent(record.window), WM_COMMAND, static_cast<WPARAM>(record.id), detail);
}

}  // namespace tarnwick
