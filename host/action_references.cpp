#include <algorithm>
#include <string>
#include <utility>

#include "host/host_procs.h"
#include "host/test_host.h"

namespace tarnwick::host {

// A property of a layer, which is told by its name or is the target.
struct ActionReference {
  OSType property = 0;
  bool isTarget = false;
  bool hasName = false;
  std::string name;
};

}  // namespace tarnwick::host

namespace tarnwick::testhost {
namespace {

using host::ActionDescriptor;
using host::ActionReference;
using host::FourCC;
using host::OSErr;
using host::OSType;

OSErr TARNWICK_HOST_CALL Make(ActionReference** reference) {
  TestHost& host = TheHost();
  if (std::exchange(host.failures.makeReference, false)) return host::memFullErr;
  ++host.referencesHeld;
  *reference = new ActionReference;
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL Free(ActionReference* reference) {
  if (reference == nullptr) {
    NoteFault("no reference was freed");
    return host::paramErr;
  }
  --TheHost().referencesHeld;
  delete reference;
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL PutProperty(ActionReference* reference, OSType desiredClass, OSType key) {
  // From the inside out: nothing may stand in it yet.
  if (desiredClass != FourCC("Prpr") || reference->hasName || reference->isTarget) {
    NoteFault("a reference was built in the wrong order");
    return host::paramErr;
  }
  reference->property = key;
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL PutName(ActionReference* reference, OSType desiredClass,
                                 const char* name) {
  if (desiredClass != FourCC("Lyr ")) return host::paramErr;
  reference->hasName = true;
  reference->name = name;
  return host::noErr;
}

OSErr TARNWICK_HOST_CALL PutEnumerated(ActionReference* reference, OSType desiredClass, OSType type,
                                       OSType value) {
  if (desiredClass != FourCC("Lyr ") || type != FourCC("Ordn") || value != FourCC("Trgt")) {
    return host::paramErr;
  }
  reference->isTarget = true;
  return host::noErr;
}

const Layer* FindLayer(const ActionReference& reference) {
  const Document& document = TheHost().document;
  if (reference.isTarget) return &document.layers.at(document.target);
  // Of two layers with one name the lower one answers.
  const auto found = std::find_if(document.layers.begin(), document.layers.end(),
                                  [&](const Layer& layer) { return layer.name == reference.name; });
  return found == document.layers.end() ? nullptr : &*found;
}

OSErr TARNWICK_HOST_CALL GetThroughReference(ActionDescriptor** result,
                                             ActionReference* reference) {
  const Layer* const layer = FindLayer(*reference);
  if (layer == nullptr) return host::errAEParamMissed;
  Descriptor answer;
  DescriptorItem item{reference->property};
  if (reference->property == FourCC("Vsbl")) {
    item.type = kTypeBoolean;
    item.integer = layer->visible ? 1 : 0;
  } else if (reference->property == FourCC("Nm  ")) {
    item.type = kTypeText;
    item.text = layer->name;
  } else {
    return host::errAEParamMissed;
  }
  answer.Put(item);
  *result = LendDescriptor(answer);
  return host::noErr;
}

}  // namespace

const void* ActionReferenceTable() {
  static const host::PSActionReferenceProcs table = [] {
    host::PSActionReferenceProcs procs{};
    procs.Make = Make;
    procs.Free = Free;
    procs.PutName = PutName;
    procs.PutEnumerated = PutEnumerated;
    procs.PutProperty = PutProperty;
    return procs;
  }();
  return &table;
}

const void* ActionControlTable() {
  static const host::PSBasicActionControlProcs table = [] {
    host::PSBasicActionControlProcs procs{};
    procs.Get = GetThroughReference;
    return procs;
  }();
  return &table;
}

}  // namespace tarnwick::testhost
