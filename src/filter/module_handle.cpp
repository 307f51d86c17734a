#include "filter/module_handle.h"

#include "environment/platform_calls.h"
#include "filter/suite_parts.h"

namespace tarnwick {

void* GetModuleHandleFor(FilterGlobals& g, host::SPPlugin* pluginRef) {
  if (pluginRef != nullptr) {
    const auto* const suite =
        static_cast<const host::SPAccessSuite*>(AcquireSuite(g.gBasicSuite, g.accessSuite));
    host::SPAccess* access = nullptr;
    host::SPPlatformAccessInfo info{};
    if (HasParts(*suite) && suite->GetPluginAccess(pluginRef, &access) == host::kSPNoError &&
        access != nullptr && suite->GetAccessInfo(access, &info) == host::kSPNoError) {
      g.moduleHandle = info.defaultAccess;
    }
  }
  if (g.moduleHandle == nullptr) g.moduleHandle = OwnModuleHandle();
  return g.moduleHandle;
}

}  // namespace tarnwick
