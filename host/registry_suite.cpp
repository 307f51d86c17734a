#include "host/host_procs.h"
#include "host/test_host.h"

namespace tarnwick::testhost {
namespace {

using host::ActionDescriptor;
using host::OSErr;

OSErr TARNWICK_HOST_CALL Register(const char* key, ActionDescriptor* descriptor,
                                  host::Boolean isPersistent) {
  if (descriptor == nullptr) return host::paramErr;
  // The only entries that outlive this program are persistent ones.
  if (isPersistent == 0) NoteFault("an entry of the registry is not persistent");
  TheHost().registry[key] = DescriptorOf(descriptor);
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL Erase(const char* key) {
  TheHost().registry.erase(key);
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL Get(const char* key, ActionDescriptor** descriptor) {
  TestHost& host = TheHost();
  const auto found = host.registry.find(key);
  if (found == host.registry.end()) {
    // Hosts differ: some leave the place alone and give an error.
    if (host.options.registryError) return host::errAEParamMissed;
    *descriptor = nullptr;
    return host::noErr;
  }
  *descriptor = LendDescriptor(found->second);
  return host::noErr;
}

}  // namespace

const void* RegistryTable() {
  static const host::PSDescriptorRegistryProcs table = {Register, Erase, Get};
  return &table;
}

}  // namespace tarnwick::testhost
