#include "filter/suite_parts.h"

namespace tarnwick {
namespace {

template <typename... Procedures>
bool AllThere(Procedures... procedures) {
  return (... && (procedures != nullptr));
}

// How many procedures a table has up to and with the last one that is called.
constexpr int kReadProcsUsed = 15;   // getStringProc
constexpr int kWriteProcsUsed = 14;  // putStringProc

}  // namespace

bool HasParts(const host::SPBasicSuite& s) {
  return AllThere(s.AcquireSuite, s.ReleaseSuite);
}

bool HasParts(const host::PSActionDescriptorProcs& s) {
  return AllThere(s.Make, s.Free, s.HasKey, s.PutInteger, s.PutFloat, s.PutUnitFloat, s.PutString,
                  s.PutBoolean, s.PutEnumerated, s.GetInteger, s.GetFloat, s.GetUnitFloat,
                  s.GetStringLength, s.GetString, s.GetBoolean, s.GetEnumerated);
}

bool HasParts(const host::PSActionReferenceProcs& s) {
  return AllThere(s.Make, s.Free, s.PutName, s.PutEnumerated, s.PutProperty);
}

bool HasParts(const host::PSBasicActionControlProcs& s) {
  return AllThere(s.Get);
}

bool HasParts(const host::PSDescriptorRegistryProcs& s) {
  return AllThere(s.Register, s.Get);
}

bool HasParts(const host::PSChannelPortsSuite& s) {
  return AllThere(s.CanRead, s.ReadPixelsFromLevel);
}

bool HasParts(const host::PSColorSpaceSuite& s) {
  return AllThere(s.Convert8);
}

bool HasParts(const host::SPAccessSuite& s) {
  return AllThere(s.GetPluginAccess, s.GetAccessInfo);
}

bool HasParts(const host::ReadDescriptorProcs& p) {
  return p.numReadDescriptorProcs >= kReadProcsUsed &&
         AllThere(p.openReadDescriptorProc, p.closeReadDescriptorProc, p.getKeyProc,
                  p.getIntegerProc, p.getFloatProc, p.getUnitFloatProc, p.getBooleanProc,
                  p.getStringProc);
}

bool HasParts(const host::WriteDescriptorProcs& p) {
  return p.numWriteDescriptorProcs >= kWriteProcsUsed &&
         AllThere(p.openWriteDescriptorProc, p.closeWriteDescriptorProc, p.putIntegerProc,
                  p.putFloatProc, p.putUnitFloatProc, p.putBooleanProc, p.putEnumeratedProc,
                  p.putStringProc);
}

}  // namespace tarnwick
