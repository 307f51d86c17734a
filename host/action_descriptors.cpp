#include <algorithm>
#include <cstring>
#include <utility>

#include "host/host_procs.h"
#include "host/test_host.h"

namespace tarnwick::host {

struct ActionDescriptor {
  testhost::Descriptor descriptor;
};

}  // namespace tarnwick::host

namespace tarnwick::testhost {
namespace {

using host::ActionDescriptor;
using host::OSErr;
using host::OSType;

OSErr TARNWICK_HOST_CALL Make(ActionDescriptor** descriptor) {
  if (std::exchange(TheHost().failures.makeDescriptor, false)) return host::memFullErr;
  *descriptor = LendDescriptor({});
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL Free(ActionDescriptor* descriptor) {
  if (descriptor == nullptr) {
    NoteFault("no descriptor was freed");
    return host::paramErr;
  }
  --TheHost().descriptorsHeld;
  delete descriptor;
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL HasKey(ActionDescriptor* from, OSType key, host::Boolean* hasKey) {
  *hasKey = from->descriptor.Find(key) != nullptr ? 1 : 0;
  return host::noErr;
}

OSErr Put(ActionDescriptor* to, const DescriptorItem& item) {
  HostFailures& failures = TheHost().failures;
  if (failures.putKey == item.key) {
    failures.putKey = 0;
    return failures.putKeyError;
  }
  to->descriptor.Put(item);
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL PutInteger(ActionDescriptor* to, OSType key, std::int32_t value) {
  DescriptorItem item{key, kTypeInteger};
  item.integer = value;
  return Put(to, item);
}
OSErr TARNWICK_HOST_CALL PutFloat(ActionDescriptor* to, OSType key, double value) {
  DescriptorItem item{key, kTypeFloat};
  item.real = value;
  return Put(to, item);
}
OSErr TARNWICK_HOST_CALL PutUnitFloat(ActionDescriptor* to, OSType key, OSType unit, double value) {
  DescriptorItem item{key, kTypeUnitFloat};
  item.kind = unit;
  item.real = value;
  return Put(to, item);
}
OSErr TARNWICK_HOST_CALL PutString(ActionDescriptor* to, OSType key, const char* value) {
  DescriptorItem item{key, kTypeText};
  item.text = value;
  return Put(to, item);
}
OSErr TARNWICK_HOST_CALL PutBoolean(ActionDescriptor* to, OSType key, host::Boolean value) {
  DescriptorItem item{key, kTypeBoolean};
  item.integer = value & 1;
  if (value > 1) NoteFault("a boolean is neither 0 nor 1");
  return Put(to, item);
}
OSErr TARNWICK_HOST_CALL PutEnumerated(ActionDescriptor* to, OSType key, OSType type,
                                       OSType value) {
  DescriptorItem item{key, kTypeEnumerated};
  item.kind = type;
  item.value = value;
  return Put(to, item);
}

const DescriptorItem* Get(ActionDescriptor* from, OSType key, OSType type) {
  const DescriptorItem* const item = from->descriptor.Find(key);
  return item != nullptr && item->type == type ? item : nullptr;
}

OSErr TARNWICK_HOST_CALL GetInteger(ActionDescriptor* from, OSType key, std::int32_t* value) {
  const DescriptorItem* const item = Get(from, key, kTypeInteger);
  if (item == nullptr) return host::errAEParamMissed;
  *value = item->integer;
  return host::noErr;
}
OSErr TARNWICK_HOST_CALL GetFloat(ActionDescriptor* from, OSType key, double* value) {
  const DescriptorItem* const item = Get(from, key, kTypeFloat);
  if (item == nullptr) return host::errAEParamMissed;
  *value = item->real;
  return host::noErr;
}
OSErr TARNWICK_HOST_CALL GetUnitFloat(ActionDescriptor* from, OSType key, OSType* unit,
                                      double* value) {
  const DescriptorItem* const item = Get(from, key, kTypeUnitFloat);
  if (item == nullptr) return host::errAEParamMissed;
  *unit = item->kind;
  *value = item->real;
  return host::noErr;
}
OSErr TARNWICK_HOST_CALL GetStringLength(ActionDescriptor* from, OSType key,
                                         std::uint32_t* length) {
  const DescriptorItem* const item = Get(from, key, kTypeText);
  if (item == nullptr) return host::errAEParamMissed;
  *length = static_cast<std::uint32_t>(item->text.size());
  return host::noErr;
}
OSErr TARNWICK_HOST_CALL GetString(ActionDescriptor* from, OSType key, char* value,
                                   std::uint32_t maxLength) {
  const DescriptorItem* const item = Get(from, key, kTypeText);
  if (item == nullptr || maxLength == 0) return host::errAEParamMissed;
  const std::size_t length = std::min<std::size_t>(item->text.size(), maxLength - 1);
  std::memcpy(value, item->text.data(), length);
  value[length] = '\0';
  return host::noErr;
}
OSErr TARNWICK_HOST_CALL GetBoolean(ActionDescriptor* from, OSType key, host::Boolean* value) {
  const DescriptorItem* const item = Get(from, key, kTypeBoolean);
  if (item == nullptr) return host::errAEParamMissed;
  *value = static_cast<host::Boolean>(item->integer);
  return host::noErr;
}
OSErr TARNWICK_HOST_CALL GetEnumerated(ActionDescriptor* from, OSType key, OSType* type,
                                       OSType* value) {
  const DescriptorItem* const item = Get(from, key, kTypeEnumerated);
  if (item == nullptr) return host::errAEParamMissed;
  *type = item->kind;
  *value = item->value;
  return host::noErr;
}

}  // namespace

ActionDescriptor* LendDescriptor(const Descriptor& descriptor) {
  ++TheHost().descriptorsHeld;
  return new ActionDescriptor{descriptor};
}

const Descriptor& DescriptorOf(const ActionDescriptor* lent) {
  return lent->descriptor;
}

const void* ActionDescriptorTable() {
  static const host::PSActionDescriptorProcs table = [] {
    host::PSActionDescriptorProcs procs{};
    procs.Make = Make;
    procs.Free = Free;
    procs.HasKey = HasKey;
    procs.PutInteger = PutInteger;
    procs.PutFloat = PutFloat;
    procs.PutUnitFloat = PutUnitFloat;
    procs.PutString = PutString;
    procs.PutBoolean = PutBoolean;
    procs.PutEnumerated = PutEnumerated;
    procs.GetInteger = GetInteger;
    procs.GetFloat = GetFloat;
    procs.GetUnitFloat = GetUnitFloat;
    procs.GetStringLength = GetStringLength;
    procs.GetString = GetString;
    procs.GetBoolean = GetBoolean;
    procs.GetEnumerated = GetEnumerated;
    return procs;
  }();
  return &table;
}

}  // namespace tarnwick::testhost
