#include <utility>

#include "host/host_procs.h"
#include "host/test_host.h"

namespace tarnwick::host {

// A step that is being recorded.
struct WriteDescriptor {
  testhost::Descriptor descriptor;
};

}  // namespace tarnwick::host

namespace tarnwick::testhost {
namespace {

using host::OSErr;
using host::OSType;
using host::WriteDescriptor;

WriteDescriptor* TARNWICK_HOST_CALL OpenWrite() {
  TestHost& host = TheHost();
  if (std::exchange(host.failures.openWrite, false)) return nullptr;
  ++host.writersOpen;
  return new WriteDescriptor;
}

OSErr TARNWICK_HOST_CALL CloseWrite(WriteDescriptor* writer, host::Handle* descriptor) {
  TestHost& host = TheHost();
  --host.writersOpen;
  const std::vector<char> bytes = BytesOf(writer->descriptor);
  delete writer;
  *descriptor = host.handles.New(static_cast<std::int32_t>(bytes.size()));
  if (*descriptor == nullptr) return host::memFullErr;
  host.handles.Contents(*descriptor) = bytes;
  return host::noErr;
}

OSErr Put(WriteDescriptor* writer, DescriptorItem item) {
  // A key put twice would stand twice in the recorded step.
  if (writer->descriptor.Find(item.key) != nullptr) NoteFault("a key was put twice");
  writer->descriptor.items.push_back(std::move(item));
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL PutInteger(WriteDescriptor* writer, OSType key, std::int32_t data) {
  DescriptorItem item{key, kTypeInteger};
  item.integer = data;
  return Put(writer, item);
}
OSErr TARNWICK_HOST_CALL PutFloat(WriteDescriptor* writer, OSType key, const double* data) {
  DescriptorItem item{key, kTypeFloat};
  item.real = *data;
  return Put(writer, item);
}
OSErr TARNWICK_HOST_CALL PutUnitFloat(WriteDescriptor* writer, OSType key, OSType unit,
                                      const double* data) {
  DescriptorItem item{key, kTypeUnitFloat};
  item.kind = unit;
  item.real = *data;
  return Put(writer, item);
}
OSErr TARNWICK_HOST_CALL PutBoolean(WriteDescriptor* writer, OSType key, host::Boolean data) {
  DescriptorItem item{key, kTypeBoolean};
  item.integer = data & 1;
  if (data > 1) NoteFault("a boolean is neither 0 nor 1");
  return Put(writer, item);
}
OSErr TARNWICK_HOST_CALL PutEnumerated(WriteDescriptor* writer, OSType key, OSType type,
                                       OSType data) {
  DescriptorItem item{key, kTypeEnumerated};
  item.kind = type;
  item.value = data;
  return Put(writer, item);
}
OSErr TARNWICK_HOST_CALL PutString(WriteDescriptor* writer, OSType key, const host::Str255* data) {
  DescriptorItem item{key, kTypeText};
  item.text.assign(reinterpret_cast<const char*>(*data) + 1, (*data)[0]);
  return Put(writer, item);
}
OSErr TARNWICK_HOST_CALL PutText(WriteDescriptor* writer, OSType key, host::Handle data) {
  const std::vector<char>& text = TheHost().handles.Contents(data);
  DescriptorItem item{key, kTypeText};
  item.text.assign(text.begin(), text.end());
  return Put(writer, item);
}

}  // namespace

host::WriteDescriptorProcs* WriteDescriptorTable() {
  static host::WriteDescriptorProcs table = [] {
    host::WriteDescriptorProcs procs{};
    procs.numWriteDescriptorProcs = 16;
    procs.openWriteDescriptorProc = OpenWrite;
    procs.closeWriteDescriptorProc = CloseWrite;
    procs.putIntegerProc = PutInteger;
    procs.putFloatProc = PutFloat;
    procs.putUnitFloatProc = PutUnitFloat;
    procs.putBooleanProc = PutBoolean;
    procs.putTextProc = PutText;
    procs.putEnumeratedProc = PutEnumerated;
    procs.putStringProc = PutString;
    return procs;
  }();
  return &table;
}

}  // namespace tarnwick::testhost
