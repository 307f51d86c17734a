#pragma once
#include "host_interface/descriptor_procs.h"
#include "host_interface/suites.h"

namespace tarnwick {

// Whether a table of the host's procedures has those that the filter calls. A host
// may leave members null, and an older one's table may end sooner: the table then
// counts as missing.

[[nodiscard]] bool HasParts(const host::SPBasicSuite& suite);
[[nodiscard]] bool HasParts(const host::PSActionDescriptorProcs& suite);
[[nodiscard]] bool HasParts(const host::PSActionReferenceProcs& suite);
[[nodiscard]] bool HasParts(const host::PSBasicActionControlProcs& suite);
[[nodiscard]] bool HasParts(const host::PSDescriptorRegistryProcs& suite);
[[nodiscard]] bool HasParts(const host::PSChannelPortsSuite& suite);
[[nodiscard]] bool HasParts(const host::PSColorSpaceSuite& suite);
[[nodiscard]] bool HasParts(const host::SPAccessSuite& suite);
[[nodiscard]] bool HasParts(const host::ReadDescriptorProcs& procs);
[[nodiscard]] bool HasParts(const host::WriteDescriptorProcs& procs);

}  // namespace tarnwick
