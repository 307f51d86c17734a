#include "host/host_procs.h"
#include "host/test_host.h"

namespace tarnwick::host {

struct SPAccess {
  void* module;
};

}  // namespace tarnwick::host

namespace tarnwick::testhost {
namespace {

using host::SPAccess;
using host::SPErr;

SPErr TARNWICK_HOST_CALL GetPluginAccess(host::SPPlugin* plugin, SPAccess** access) {
  static SPAccess only;
  if (plugin == nullptr) return host::kSPBadParameterError;
  only.module = TheHost().module->Handle();
  *access = &only;
  return host::kSPNoError;
}

SPErr TARNWICK_HOST_CALL GetAccessInfo(SPAccess* access, host::SPPlatformAccessInfo* info) {
  *info = {access->module, nullptr, 0};
  return host::kSPNoError;
}

}  // namespace

const void* AccessTable() {
  static const host::SPAccessSuite table = [] {
    host::SPAccessSuite suite{};
    suite.GetPluginAccess = GetPluginAccess;
    suite.GetAccessInfo = GetAccessInfo;
    return suite;
  }();
  return &table;
}

}  // namespace tarnwick::testhost
