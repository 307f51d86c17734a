#pragma once
#include "host_interface/filter_record.h"

namespace tarnwick::testhost {

// The procedure tables of the record. They work on TheHost().
[[nodiscard]] host::HandleProcs* HandleProcTable();
[[nodiscard]] host::ReadDescriptorProcs* ReadDescriptorTable();
[[nodiscard]] host::WriteDescriptorProcs* WriteDescriptorTable();
[[nodiscard]] host::ChannelPortProcs* ChannelPortTable();
[[nodiscard]] host::SPBasicSuite* BrokerTable();
host::OSErr TARNWICK_HOST_CALL ServeColors(host::ColorServicesInfo* info);

// Null for a suite that this host does not have.
[[nodiscard]] const void* FindSuite(const char* name, std::int32_t version);

// Tables of suites.
[[nodiscard]] const void* ActionDescriptorTable();
[[nodiscard]] const void* ActionReferenceTable();
[[nodiscard]] const void* ActionControlTable();
[[nodiscard]] const void* RegistryTable();
[[nodiscard]] const void* ChannelPortsTable();
[[nodiscard]] const void* ColorSpaceTable();
[[nodiscard]] const void* AccessTable();

// The action descriptor that lends out a copy of `descriptor`.
struct Descriptor;
[[nodiscard]] host::ActionDescriptor* LendDescriptor(const Descriptor& descriptor);
[[nodiscard]] const Descriptor& DescriptorOf(const host::ActionDescriptor* lent);

// Takes a note of a broken rule.
void NoteFault(const char* text);

}  // namespace tarnwick::testhost
