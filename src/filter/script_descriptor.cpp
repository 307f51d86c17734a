#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "filter/script_keys.h"
#include "filter/scripting.h"
#include "filter/suite_parts.h"
#include "settings/settings_access.h"

namespace tarnwick {
namespace {

using host::OSErr;
using host::OSType;

void DisposeDescriptor(FilterGlobals& g) {
  host::PIDescriptorParameters& parameters = *g.gFilterRecord->descriptorParameters;
  const host::HandleProcs* const procs = g.gFilterRecord->handleProcs;
  if (parameters.descriptor != nullptr && procs != nullptr && procs->disposeProc != nullptr) {
    procs->disposeProc(parameters.descriptor);
  }
  parameters.descriptor = nullptr;
}

bool IsReadFromScript(OSType key) {
  const auto keys = ScriptKeys();
  return std::any_of(keys.begin(), keys.end(), [&](const ScriptKey& k) {
    return k.key == key && (k.uses & kScriptRead) != 0;
  });
}

// An empty text, or one that its field cannot hold, leaves the field alone.
OSErr ReadText(const host::ReadDescriptorProcs& procs, host::ReadDescriptor* token,
               const SettingField& field, FilterGlobals& g) {
  host::Str255 text = {};
  const OSErr error = procs.getStringProc(token, &text);
  if (error != host::noErr) return error;
  const std::size_t length = text[0];
  if (length >= 1 && length < kTextureNameSize) {
    const std::string name(reinterpret_cast<const char*>(text + 1), length);
    StoreSettingText(field, name, *g.gParams, g.session);
  }
  return host::noErr;
}

OSErr ReadValue(const host::ReadDescriptorProcs& procs, host::ReadDescriptor* token,
                const SettingField& field, FilterGlobals& g) {
  switch (ScriptTypeOf(field)) {
    case ScriptType::kBoolean: {
      host::Boolean value = 0;
      const OSErr error = procs.getBooleanProc(token, &value);
      if (error == host::noErr) StoreSettingNumber(field, value, *g.gParams, g.session);
      return error;
    }
    case ScriptType::kInteger: {
      std::int32_t value = 0;
      const OSErr error = procs.getIntegerProc(token, &value);
      if (error == host::noErr) StoreSettingNumber(field, value, *g.gParams, g.session);
      return error;
    }
    case ScriptType::kFloat: {
      double value = 0;
      const OSErr error = procs.getFloatProc(token, &value);
      if (error == host::noErr) StoreSettingFloat(field, static_cast<float>(value), *g.gParams);
      return error;
    }
    case ScriptType::kPercent: {
      OSType unit = 0;
      double value = 0;
      const OSErr error = procs.getUnitFloatProc(token, &unit, &value);
      if (error == host::noErr) {
        if (const auto number = PercentNumber(value)) {
          StoreSettingNumber(field, *number, *g.gParams, g.session);
        }
      }
      return error;
    }
    case ScriptType::kString:
      return ReadText(procs, token, field, g);
    case ScriptType::kEnumerated:
    case ScriptType::kAddress:
      break;
  }
  return host::noErr;
}

OSErr ReadAllKeys(const host::ReadDescriptorProcs& procs, host::ReadDescriptor* token,
                  FilterGlobals& g) {
  OSType key = 0;
  OSType type = 0;
  std::int32_t flags = 0;
  while (procs.getKeyProc(token, &key, &type, &flags) != 0) {
    const SettingField* const field = IsReadFromScript(key) ? FindSettingByKey(key) : nullptr;
    if (field == nullptr) continue;
    const OSErr error = ReadValue(procs, token, *field, g);
    if (error != host::noErr) return error;
  }
  return host::noErr;
}

OSErr PutText(const host::WriteDescriptorProcs& procs, host::WriteDescriptor* token, OSType key,
              std::string_view text) {
  host::Str255 counted = {};
  const std::size_t length = std::min<std::size_t>(text.size(), 255);
  counted[0] = static_cast<std::uint8_t>(length);
  std::memcpy(counted + 1, text.data(), length);
  return procs.putStringProc(token, key, &counted);
}

void PutValue(const host::WriteDescriptorProcs& procs, host::WriteDescriptor* token,
              const SettingField& field, const FilterGlobals& g) {
  const EffectSettings& settings = *g.gParams;
  const std::int64_t number = SettingNumber(field, settings, g.session);
  switch (ScriptTypeOf(field)) {
    case ScriptType::kBoolean:
      procs.putBooleanProc(token, field.key, static_cast<host::Boolean>(number));
      break;
    case ScriptType::kInteger:
      procs.putIntegerProc(token, field.key,
                           static_cast<std::int32_t>(static_cast<std::uint32_t>(number)));
      break;
    case ScriptType::kFloat: {
      const double value = static_cast<double>(SettingFloat(field, settings));
      procs.putFloatProc(token, field.key, &value);
      break;
    }
    case ScriptType::kPercent: {
      const auto value = static_cast<double>(number);
      procs.putUnitFloatProc(token, field.key, host::unitPercent, &value);
      break;
    }
    case ScriptType::kString:
      PutText(procs, token, field.key, SettingText(field, settings, g.session));
      break;
    case ScriptType::kEnumerated:
      procs.putEnumeratedProc(token, field.key, kDispositionType,
                              DispositionCode(static_cast<std::uint16_t>(number)));
      break;
    case ScriptType::kAddress:
      break;
  }
}

}  // namespace

OSErr ReadScriptParameters(FilterGlobals& g, bool& displayDialog) {
  displayDialog = g.gData->queryForParameters != 0;
  host::PIDescriptorParameters* const parameters = g.gFilterRecord->descriptorParameters;
  if (parameters == nullptr || parameters->readDescriptorProcs == nullptr ||
      parameters->descriptor == nullptr || !HasParts(*parameters->readDescriptorProcs)) {
    return host::noErr;
  }
  const host::ReadDescriptorProcs& procs = *parameters->readDescriptorProcs;
  const auto expected = ExpectedKeys();
  std::vector<OSType> keys(expected.begin(), expected.end());
  OSErr error = host::noErr;
  host::ReadDescriptor* const token =
      procs.openReadDescriptorProc(parameters->descriptor, keys.data());
  if (token != nullptr) {
    error = ReadAllKeys(procs, token, g);
    const OSErr closing = procs.closeReadDescriptorProc(token);
    if (error == host::noErr) error = closing;
  }
  DisposeDescriptor(g);
  displayDialog = parameters->playInfo == host::plugInDialogDisplay;
  return error;
}

OSErr WriteScriptParameters(FilterGlobals& g) {
  host::PIDescriptorParameters* const parameters = g.gFilterRecord->descriptorParameters;
  if (parameters == nullptr || parameters->writeDescriptorProcs == nullptr ||
      !HasParts(*parameters->writeDescriptorProcs)) {
    return host::noErr;
  }
  const host::WriteDescriptorProcs& procs = *parameters->writeDescriptorProcs;
  host::WriteDescriptor* const token = procs.openWriteDescriptorProc();
  if (token == nullptr) return host::errAEParamMissed;
  for (const ScriptKey& key : ScriptKeys()) {
    if ((key.uses & kScriptWrite) == 0) continue;
    if (key.key == host::FourCC("ignS") && g.gParams->IgnoreSelection == 0) continue;
    const SettingField* const field = FindSettingByKey(key.key);
    if (field != nullptr) PutValue(procs, token, *field, g);
  }
  DisposeDescriptor(g);
  host::Handle recorded = nullptr;
  procs.closeWriteDescriptorProc(token, &recorded);
  parameters->descriptor = recorded;
  parameters->recordInfo = host::plugInDialogOptional;
  return host::noErr;
}

}  // namespace tarnwick
