#include <algorithm>
#include <string>
#include <vector>

#include "filter/host_suites.h"
#include "filter/saved_blocks.h"
#include "filter/script_keys.h"
#include "filter/scripting.h"
#include "settings/settings_access.h"

namespace tarnwick {
namespace {

using host::ActionDescriptor;
using host::FourCC;
using host::OSErr;
using host::OSType;

// Frees a descriptor at the end of a scope.
class OwnedDescriptor {
 public:
  explicit OwnedDescriptor(const DescriptorSuite& suite) : suite_(suite) {}
  ~OwnedDescriptor() {
    if (descriptor_ != nullptr) suite_->Free(descriptor_);
  }
  OwnedDescriptor(const OwnedDescriptor&) = delete;
  OwnedDescriptor& operator=(const OwnedDescriptor&) = delete;
  ActionDescriptor** Place() { return &descriptor_; }
  [[nodiscard]] ActionDescriptor* Get() const { return descriptor_; }

 private:
  const DescriptorSuite& suite_;
  ActionDescriptor* descriptor_ = nullptr;
};

void GetText(const DescriptorSuite& suite, ActionDescriptor* from, const SettingField& field,
             FilterGlobals& g) {
  std::uint32_t length = 0;
  if (suite->GetStringLength(from, field.key, &length) != host::noErr) return;
  length = std::min<std::uint32_t>(length, kTextureNameSize);
  std::vector<char> text(length + 1, '\0');
  if (suite->GetString(from, field.key, text.data(), length + 1) != host::noErr) return;
  text[length] = '\0';
  StoreSettingText(field, text.data(), *g.gParams, g.session);
}

// A missing key leaves its field, but for an address: that becomes 0.
bool GetValue(const DescriptorSuite& suite, ActionDescriptor* from, const SettingField& field,
              FilterGlobals& g) {
  const auto store = [&](std::int64_t value) {
    StoreSettingNumber(field, value, *g.gParams, g.session);
  };
  switch (ScriptTypeOf(field)) {
    case ScriptType::kBoolean: {
      host::Boolean value = 0;
      if (suite->GetBoolean(from, field.key, &value) == host::noErr) store(value);
      return true;
    }
    case ScriptType::kInteger: {
      std::int32_t value = 0;
      if (suite->GetInteger(from, field.key, &value) == host::noErr) store(value);
      return true;
    }
    case ScriptType::kFloat: {
      double value = 0;
      if (suite->GetFloat(from, field.key, &value) == host::noErr) {
        StoreSettingFloat(field, static_cast<float>(value), *g.gParams);
      }
      return true;
    }
    case ScriptType::kPercent: {
      OSType unit = 0;
      double value = 0;
      if (suite->GetUnitFloat(from, field.key, &unit, &value) != host::noErr) return false;
      if (const auto number = PercentNumber(value)) store(*number);
      return true;
    }
    case ScriptType::kString:
      GetText(suite, from, field, g);
      return true;
    case ScriptType::kEnumerated: {
      // Asked for and dropped.
      OSType type = 0;
      OSType value = 0;
      (void)suite->GetEnumerated(from, field.key, &type, &value);
      return true;
    }
    case ScriptType::kAddress: {
      std::int32_t token = 0;
      const bool found = suite->GetInteger(from, field.key, &token) == host::noErr;
      const SavedBlock block = found ? FindBlockByToken(token) : SavedBlock{};
      store(static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(block.pages)));
      return true;
    }
  }
  return true;
}

OSErr PutValue(const DescriptorSuite& suite, ActionDescriptor* to, const SettingField& field,
               const FilterGlobals& g) {
  const EffectSettings& settings = *g.gParams;
  const std::int64_t number = SettingNumber(field, settings, g.session);
  switch (ScriptTypeOf(field)) {
    case ScriptType::kBoolean:
      return suite->PutBoolean(to, field.key, static_cast<host::Boolean>(number));
    case ScriptType::kInteger:
      return suite->PutInteger(to, field.key,
                               static_cast<std::int32_t>(static_cast<std::uint32_t>(number)));
    case ScriptType::kFloat:
      return suite->PutFloat(to, field.key, static_cast<double>(SettingFloat(field, settings)));
    case ScriptType::kPercent:
      return suite->PutUnitFloat(to, field.key, host::unitPercent, static_cast<double>(number));
    case ScriptType::kString:
      return suite->PutString(to, field.key,
                              std::string(SettingText(field, settings, g.session)).c_str());
    case ScriptType::kEnumerated:
      return suite->PutEnumerated(to, field.key, kDispositionType,
                                  DispositionCode(static_cast<std::uint16_t>(number)));
    case ScriptType::kAddress:
      return suite->PutInteger(to, field.key, TokenOf(static_cast<std::uintptr_t>(number)));
  }
  return host::noErr;
}

// Only these three stop the writing when they fail.
bool IsChecked(OSType key) {
  return key == FourCC("Amnt") || key == FourCC("disP") || key == FourCC("ignS");
}

}  // namespace

void ReadRegistryParameters(FilterGlobals& g) {
  if (g.gBasicSuite == nullptr) return;
  const RegistrySuite registry(g.gBasicSuite, host::kPSDescriptorRegistrySuite, 1);
  const DescriptorSuite descriptors(g.gBasicSuite, host::kPSActionDescriptorSuite, 3);
  if (!registry || !descriptors) return;
  OwnedDescriptor kept(descriptors);
  if (registry->Get(kModuleIdentifier, kept.Place()) != host::noErr || kept.Get() == nullptr) {
    return;
  }
  bool skipCarried = false;
  for (const ScriptKey& key : ScriptKeys()) {
    if ((key.uses & kRegistryRead) == 0) continue;
    // Without the amount the two after it are not asked for.
    if (skipCarried && IsChecked(key.key)) continue;
    const SettingField* const field = FindSettingByKey(key.key);
    if (field == nullptr) continue;
    if (!GetValue(descriptors, kept.Get(), *field, g)) skipCarried = true;
  }
}

std::int32_t WriteRegistryParameters(FilterGlobals& g) {
  if (g.gBasicSuite == nullptr) return host::errPlugInHostInsufficient;
  const RegistrySuite registry(g.gBasicSuite, host::kPSDescriptorRegistrySuite, 1);
  if (!registry) return registry.Error();
  const DescriptorSuite descriptors(g.gBasicSuite, host::kPSActionDescriptorSuite, 3);
  if (!descriptors) return descriptors.Error();
  OwnedDescriptor made(descriptors);
  const OSErr making = descriptors->Make(made.Place());
  if (making != host::noErr || made.Get() == nullptr) return making;
  for (const ScriptKey& key : ScriptKeys()) {
    if ((key.uses & kRegistryWrite) == 0) continue;
    const SettingField* const field = FindSettingByKey(key.key);
    if (field == nullptr) continue;
    const OSErr error = PutValue(descriptors, made.Get(), *field, g);
    if (error != host::noErr && IsChecked(key.key)) return error;
  }
  return registry->Register(kModuleIdentifier, made.Get(), 1);
}

}  // namespace tarnwick
