#include <algorithm>
#include <cstring>
#include <utility>

#include "host/host_procs.h"
#include "host/test_host.h"

namespace tarnwick::host {

// A recorded step that is being read.
struct ReadDescriptor {
  testhost::Descriptor descriptor;
  std::size_t next = 0;
  OSType* expected = nullptr;  // the module's array, ended by a zero
  int valuesRead = 0;
  OSErr error = noErr;
};

}  // namespace tarnwick::host

namespace tarnwick::testhost {
namespace {

using host::OSErr;
using host::OSType;
using host::ReadDescriptor;

bool CrossOff(OSType* expected, OSType key) {
  for (OSType* entry = expected; entry != nullptr && *entry != 0; ++entry) {
    if (*entry != key) continue;
    *entry = host::typeNull;
    return true;
  }
  return false;
}

ReadDescriptor* TARNWICK_HOST_CALL OpenRead(host::Handle handle, OSType* keys) {
  TestHost& host = TheHost();
  if (std::exchange(host.failures.openRead, false)) return nullptr;
  if (handle == nullptr || !host.handles.Knows(handle)) {
    NoteFault("a descriptor was opened that does not exist");
    return nullptr;
  }
  ++host.readersOpen;
  host.expectedKeys.clear();
  for (const OSType* key = keys; key != nullptr && *key != 0; ++key) {
    host.expectedKeys.push_back(*key);
  }
  return new ReadDescriptor{DescriptorFrom(host.handles.Contents(handle)), 0, keys, 0, host::noErr};
}

OSErr TARNWICK_HOST_CALL CloseRead(ReadDescriptor* reader) {
  TestHost& host = TheHost();
  --host.readersOpen;
  host.missingKeys.clear();
  for (const OSType* key = reader->expected; key != nullptr && *key != 0; ++key) {
    if (*key != host::typeNull) host.missingKeys.push_back(*key);
  }
  const OSErr error = reader->error;
  delete reader;
  return error != host::noErr ? error : std::exchange(host.failures.closeRead, host::noErr);
}

host::Boolean TARNWICK_HOST_CALL GetKey(ReadDescriptor* reader, OSType* key, OSType* type,
                                        std::int32_t* flags) {
  const auto& items = reader->descriptor.items;
  while (reader->next < items.size()) {
    const DescriptorItem& item = items[reader->next++];
    const bool isExpected = CrossOff(reader->expected, item.key);
    if (!isExpected && TheHost().options.onlyExpectedKeys) continue;
    *key = item.key;
    *type = item.type;
    *flags = 0;
    return 1;
  }
  return 0;
}

// The value of the key that was handed out last, or an error.
const DescriptorItem* Current(ReadDescriptor* reader) {
  HostFailures& failures = TheHost().failures;
  if (++reader->valuesRead == failures.readKey) {
    failures.readKey = 0;
    reader->error = failures.readKeyError;
    return nullptr;
  }
  if (reader->next == 0) {
    NoteFault("a value was read before its key");
    reader->error = host::paramErr;
    return nullptr;
  }
  return &reader->descriptor.items[reader->next - 1];
}

bool IsNumber(const DescriptorItem& item) {
  return item.type == kTypeInteger || item.type == kTypeBoolean || item.type == kTypeFloat ||
         item.type == kTypeUnitFloat;
}

double NumberOf(const DescriptorItem& item) {
  return item.type == kTypeFloat || item.type == kTypeUnitFloat ? item.real : item.integer;
}

// Stores the value if its type is the wanted one, or a number that can be turned
// into it; that is told by coercedParam.
template <typename Store>
OSErr GetNumber(ReadDescriptor* reader, OSType type, const Store& store) {
  const DescriptorItem* const item = Current(reader);
  if (item == nullptr) return reader->error;
  const bool isSame = item->type == type;
  if (!isSame && (!TheHost().options.coercions || !IsNumber(*item))) {
    return reader->error = host::paramErr;
  }
  store(*item);
  return isSame ? host::noErr : host::coercedParam;
}

OSErr TARNWICK_HOST_CALL GetInteger(ReadDescriptor* reader, std::int32_t* data) {
  return GetNumber(reader, kTypeInteger, [&](const DescriptorItem& item) {
    *data = static_cast<std::int32_t>(NumberOf(item));
  });
}
OSErr TARNWICK_HOST_CALL GetFloat(ReadDescriptor* reader, double* data) {
  return GetNumber(reader, kTypeFloat, [&](const DescriptorItem& item) { *data = NumberOf(item); });
}
OSErr TARNWICK_HOST_CALL GetUnitFloat(ReadDescriptor* reader, OSType* unit, double* data) {
  return GetNumber(reader, kTypeUnitFloat, [&](const DescriptorItem& item) {
    *unit = item.kind;
    *data = NumberOf(item);
  });
}
OSErr TARNWICK_HOST_CALL GetBoolean(ReadDescriptor* reader, host::Boolean* data) {
  return GetNumber(reader, kTypeBoolean,
                   [&](const DescriptorItem& item) { *data = NumberOf(item) != 0 ? 1 : 0; });
}

OSErr TARNWICK_HOST_CALL GetString(ReadDescriptor* reader, host::Str255* data) {
  const DescriptorItem* const item = Current(reader);
  if (item == nullptr) return reader->error;
  if (item->type != kTypeText) return reader->error = host::paramErr;
  const std::size_t length = std::min<std::size_t>(item->text.size(), 255);
  (*data)[0] = static_cast<std::uint8_t>(length);
  std::memcpy(*data + 1, item->text.data(), length);
  return host::noErr;
}

// The caller disposes of the new handle.
OSErr TARNWICK_HOST_CALL GetText(ReadDescriptor* reader, host::Handle* data) {
  const DescriptorItem* const item = Current(reader);
  if (item == nullptr) return reader->error;
  if (item->type != kTypeText) return reader->error = host::paramErr;
  HandleStore& handles = TheHost().handles;
  *data = handles.New(static_cast<std::int32_t>(item->text.size()));
  if (*data == nullptr) return reader->error = host::memFullErr;
  handles.Contents(*data).assign(item->text.begin(), item->text.end());
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL GetEnumerated(ReadDescriptor* reader, OSType* data) {
  const DescriptorItem* const item = Current(reader);
  if (item == nullptr) return reader->error;
  if (item->type != kTypeEnumerated) return reader->error = host::paramErr;
  *data = item->value;
  return host::noErr;
}

}  // namespace

host::ReadDescriptorProcs* ReadDescriptorTable() {
  static host::ReadDescriptorProcs table = [] {
    host::ReadDescriptorProcs procs{};
    procs.numReadDescriptorProcs = 18;
    procs.openReadDescriptorProc = OpenRead;
    procs.closeReadDescriptorProc = CloseRead;
    procs.getKeyProc = GetKey;
    procs.getIntegerProc = GetInteger;
    procs.getFloatProc = GetFloat;
    procs.getUnitFloatProc = GetUnitFloat;
    procs.getBooleanProc = GetBoolean;
    procs.getTextProc = GetText;
    procs.getEnumeratedProc = GetEnumerated;
    procs.getStringProc = GetString;
    return procs;
  }();
  return &table;
}

}  // namespace tarnwick::testhost
