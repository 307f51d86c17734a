#include "host/host_procs.h"
#include "host/test_host.h"

namespace tarnwick::testhost {
namespace {

host::Handle TARNWICK_HOST_CALL NewHandle(std::int32_t size) {
  return TheHost().handles.New(size);
}
void TARNWICK_HOST_CALL DisposeHandle(host::Handle handle) {
  TheHost().handles.Dispose(handle);
}
std::int32_t TARNWICK_HOST_CALL GetHandleSize(host::Handle handle) {
  return TheHost().handles.Size(handle);
}
host::OSErr TARNWICK_HOST_CALL SetHandleSize(host::Handle handle, std::int32_t size) {
  return TheHost().handles.SetSize(handle, size) ? host::noErr : host::memFullErr;
}
char* TARNWICK_HOST_CALL LockHandle(host::Handle handle, host::Boolean) {
  return TheHost().handles.Lock(handle);
}
void TARNWICK_HOST_CALL UnlockHandle(host::Handle handle) {
  TheHost().handles.Unlock(handle);
}
void TARNWICK_HOST_CALL RecoverSpace(std::int32_t) {}

}  // namespace

host::HandleProcs* HandleProcTable() {
  static host::HandleProcs table = {1,
                                    8,
                                    NewHandle,
                                    DisposeHandle,
                                    GetHandleSize,
                                    SetHandleSize,
                                    LockHandle,
                                    UnlockHandle,
                                    RecoverSpace,
                                    DisposeHandle};
  return &table;
}

void NoteFault(const char* text) {
  TheHost().log.faults.emplace_back(text);
}

}  // namespace tarnwick::testhost
