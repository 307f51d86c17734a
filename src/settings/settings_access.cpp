#include "settings/settings_access.h"

#include <algorithm>
#include <cstring>

namespace tarnwick {
namespace {

const unsigned char* Address(const SettingField& field, const EffectSettings& settings,
                             const SettingsSession& session) {
  const void* home = field.inSession ? static_cast<const void*>(&session) : &settings;
  return static_cast<const unsigned char*>(home) + field.offset;
}

unsigned char* Address(const SettingField& field, EffectSettings& settings,
                       SettingsSession& session) {
  void* home = field.inSession ? static_cast<void*>(&session) : &settings;
  return static_cast<unsigned char*>(home) + field.offset;
}

template <class Number>
Number Load(const unsigned char* from) {
  Number value;
  std::memcpy(&value, from, sizeof value);
  return value;
}

template <class Number>
void Store(unsigned char* to, std::int64_t value) {
  const auto low = static_cast<Number>(value);
  std::memcpy(to, &low, sizeof low);
}

}  // namespace

bool IsText(SettingType type) {
  return type == SettingType::kText || type == SettingType::kCategory;
}

std::int64_t SettingNumber(const SettingField& field, const EffectSettings& settings,
                           const SettingsSession& session) {
  const unsigned char* at = Address(field, settings, session);
  switch (field.type) {
    case SettingType::kFlag:
    case SettingType::kByte:
      return *at;
    case SettingType::kInteger:
      return Load<std::int32_t>(at);
    case SettingType::kColor:
      return Load<std::uint32_t>(at);
    case SettingType::kShort:
      return Load<std::int16_t>(at);
    case SettingType::kWord:
      return Load<std::uint16_t>(at);
    case SettingType::kAddress:
      return static_cast<std::int64_t>(Load<std::uintptr_t>(at));
    case SettingType::kFloat:
    case SettingType::kText:
    case SettingType::kCategory:
      break;
  }
  return 0;
}

void StoreSettingNumber(const SettingField& field, std::int64_t value, EffectSettings& settings,
                        SettingsSession& session) {
  unsigned char* at = Address(field, settings, session);
  switch (field.type) {
    case SettingType::kFlag:
    case SettingType::kByte:
      Store<std::uint8_t>(at, value);
      break;
    case SettingType::kInteger:
      Store<std::int32_t>(at, value);
      break;
    case SettingType::kColor:
      Store<std::uint32_t>(at, value);
      break;
    case SettingType::kShort:
      Store<std::int16_t>(at, value);
      break;
    case SettingType::kWord:
      Store<std::uint16_t>(at, value);
      break;
    case SettingType::kAddress:
      Store<std::uintptr_t>(at, value);
      break;
    case SettingType::kFloat:
    case SettingType::kText:
    case SettingType::kCategory:
      break;
  }
}

float SettingFloat(const SettingField& field, const EffectSettings& settings) {
  if (field.type != SettingType::kFloat) return 0.0f;
  return Load<float>(Address(field, settings, {}));
}

void StoreSettingFloat(const SettingField& field, float value, EffectSettings& settings) {
  if (field.type != SettingType::kFloat) return;
  SettingsSession unused;
  std::memcpy(Address(field, settings, unused), &value, sizeof value);
}

std::string_view SettingText(const SettingField& field, const EffectSettings& settings,
                             const SettingsSession& session) {
  const unsigned char* at = Address(field, settings, session);
  if (field.type == SettingType::kText) {
    const auto* text = reinterpret_cast<const char*>(at);
    // A name without its terminator ends with the array.
    return {text, static_cast<std::size_t>(std::find(text, text + field.size, '\0') - text)};
  }
  if (field.type == SettingType::kCategory) return *reinterpret_cast<const std::string*>(at);
  return {};
}

void StoreSettingText(const SettingField& field, std::string_view text, EffectSettings& settings,
                      SettingsSession& session) {
  unsigned char* at = Address(field, settings, session);
  if (field.type == SettingType::kText) {
    StoreTextureName(*reinterpret_cast<char(*)[kTextureNameSize]>(at), text);
  } else if (field.type == SettingType::kCategory) {
    *reinterpret_cast<std::string*>(at) = text.substr(0, kMaxCategoryName);
  }
}

std::size_t MaxSettingText(const SettingField& field) {
  if (field.type == SettingType::kText) return kTextureNameSize - 1;
  return field.type == SettingType::kCategory ? kMaxCategoryName : 0;
}

void StoreTextureName(char (&name)[kTextureNameSize], std::string_view text) {
  const std::size_t length = std::min(text.size(), kTextureNameSize - 1);
  // memmove: the text may be this very name, or its pair's.
  if (length != 0) std::memmove(name, text.data(), length);
  std::memset(name + length, 0, kTextureNameSize - length);
}

void StoreSettingDefault(const SettingField& field, EffectSettings& settings,
                         SettingsSession& session) {
  if (IsText(field.type)) {
    StoreSettingText(field, field.initial.text, settings, session);
  } else if (field.type == SettingType::kFloat) {
    StoreSettingFloat(field, static_cast<float>(field.initial.number), settings);
  } else {
    StoreSettingNumber(field, static_cast<std::int64_t>(field.initial.number), settings, session);
  }
}

}  // namespace tarnwick
