#include <array>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "host/host_procs.h"
#include "host/test_host.h"

namespace tarnwick::testhost {
namespace {

using host::SPErr;

const struct {
  const char* name;
  std::int32_t version;
  const void* (*table)();
} kSuites[] = {
    // One table answers both versions: the newer one only adds to its end.
    {host::kPSActionDescriptorSuite, 2, ActionDescriptorTable},
    {host::kPSActionDescriptorSuite, 3, ActionDescriptorTable},
    {host::kPSActionReferenceSuite, 2, ActionReferenceTable},
    {host::kPSActionReferenceSuite, 3, ActionReferenceTable},
    {host::kPSBasicActionControlSuite, 1, ActionControlTable},
    {host::kPSDescriptorRegistrySuite, 1, RegistryTable},
    {host::kPSChannelPortsSuite, 2, ChannelPortsTable},
    {host::kPSColorSpaceSuite, 1, ColorSpaceTable},
    {host::kSPAccessSuite, 3, AccessTable},
};

SPErr TARNWICK_HOST_CALL AcquireSuite(const char* name, std::int32_t version, const void** suite) {
  TestHost& host = TheHost();
  const void* const table =
      host.options.refusedSuites.contains({name, version}) ? nullptr : FindSuite(name, version);
  if (table == nullptr) return host::kSPSuiteNotFoundError;
  static const std::array<const void*, 64> kEmpty = {};
  ++host.suitesHeld[{name, version}];
  *suite = host.options.emptySuites.contains({name, version}) ? kEmpty.data() : table;
  return host::kSPNoError;
}

SPErr TARNWICK_HOST_CALL ReleaseSuite(const char* name, std::int32_t version) {
  if (--TheHost().suitesHeld[{name, version}] < 0) {
    NoteFault("a suite was released that was not held");
    return host::kSPBadParameterError;
  }
  return host::kSPNoError;
}

host::SPBoolean TARNWICK_HOST_CALL IsEqual(const char* a, const char* b) {
  return std::strcmp(a, b) == 0 ? 1 : 0;
}

// Blocks of the broker; nobody asks for them.
SPErr TARNWICK_HOST_CALL AllocateBlock(std::size_t, void**) {
  return host::kSPUnimplementedError;
}
SPErr TARNWICK_HOST_CALL FreeBlock(void*) {
  return host::kSPUnimplementedError;
}
SPErr TARNWICK_HOST_CALL ReallocateBlock(void*, std::size_t, void**) {
  return host::kSPUnimplementedError;
}
SPErr TARNWICK_HOST_CALL Undefined() {
  return host::kSPUnimplementedError;
}

}  // namespace

const void* FindSuite(const char* name, std::int32_t version) {
  for (const auto& suite : kSuites) {
    if (std::strcmp(suite.name, name) == 0 && suite.version == version) return suite.table();
  }
  return nullptr;
}

host::SPBasicSuite* BrokerTable() {
  static host::SPBasicSuite table = {AcquireSuite, ReleaseSuite,    IsEqual,  AllocateBlock,
                                     FreeBlock,    ReallocateBlock, Undefined};
  return &table;
}

}  // namespace tarnwick::testhost
