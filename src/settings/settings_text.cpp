#include "settings/settings_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "settings/ascii_text.h"
#include "settings/near_names.h"
#include "settings/settings_access.h"

namespace tarnwick {
namespace {

constexpr std::string_view kTextureExtension = ".twk";

struct NumberLimits {
  std::int64_t lowest, highest;
};

template <class Number>
constexpr NumberLimits LimitsOf() {
  return {std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max()};
}

NumberLimits TypeLimits(SettingType type) {
  switch (type) {
    case SettingType::kFlag:
    case SettingType::kByte:
      return LimitsOf<std::uint8_t>();
    case SettingType::kColor:
      return LimitsOf<std::uint32_t>();
    case SettingType::kShort:
      return LimitsOf<std::int16_t>();
    case SettingType::kWord:
      return LimitsOf<std::uint16_t>();
    default:
      return LimitsOf<std::int32_t>();
  }
}

// All of `text` as a number in one of the forms of std::from_chars.
template <class Number, class... Form>
std::errc ParseWhole(std::string_view text, Number& number, Form... form) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, form...);
  if (error == std::errc() && stop != end) return std::errc::invalid_argument;
  return error;
}

std::optional<std::int64_t> SwitchWord(std::string_view text) {
  for (const char* word : {"on", "true", "yes"}) {
    if (EqualIgnoringCase(text, word)) return 1;
  }
  for (const char* word : {"off", "false", "no"}) {
    if (EqualIgnoringCase(text, word)) return 0;
  }
  return std::nullopt;
}

// The words of a field whose value is a switch or a choice.
std::optional<std::int64_t> ValueWord(const SettingRange& range, std::string_view text) {
  for (std::size_t i = 0; i < range.labels.size(); ++i) {
    if (EqualIgnoringCase(text, range.labels[i])) return static_cast<std::int64_t>(i);
  }
  if (range.minimum == 0 && range.maximum == 1) return SwitchWord(text);
  return std::nullopt;
}

SettingError ParseInteger(const SettingField& field, std::string_view text, std::int64_t& number) {
  if (const auto word = ValueWord(field.range, text)) {
    number = *word;
    return SettingError::kNone;
  }
  const std::errc error = ParseWhole(text, number);
  if (error == std::errc::result_out_of_range) return SettingError::kDoesNotFit;
  if (error != std::errc()) return SettingError::kNotANumber;
  const NumberLimits limits = TypeLimits(field.type);
  const bool fits = number >= limits.lowest && number <= limits.highest;
  return fits ? SettingError::kNone : SettingError::kDoesNotFit;
}

SettingError ParseColor(const SettingField& field, std::string_view text, std::int64_t& number) {
  if (text.empty() || text[0] != '#') {
    const SettingError error = ParseInteger(field, text, number);
    return error == SettingError::kNotANumber ? SettingError::kNotAColor : error;
  }
  std::uint32_t written = 0;
  if (text.size() != 7 || ParseWhole(text.substr(1), written, 16) != std::errc()) {
    return SettingError::kNotAColor;
  }
  // Written red first, stored red lowest.
  number = (written >> 16) | (written & 0xFF00) | (written & 0xFF) << 16;
  return SettingError::kNone;
}

SettingError ParseFloat(std::string_view text, float& number) {
  const std::errc error = ParseWhole(text, number);
  if (error == std::errc::result_out_of_range) return SettingError::kDoesNotFit;
  // "inf" and "nan" are numbers to from_chars.
  if (error != std::errc() || !std::isfinite(number)) return SettingError::kNotANumber;
  return SettingError::kNone;
}

bool HasTextureExtension(std::string_view name) {
  return name.size() >= kTextureExtension.size() &&
         EqualIgnoringCase(name.substr(name.size() - kTextureExtension.size()), kTextureExtension);
}

bool IsQuoted(std::string_view text) {
  return text.size() >= 2 && text.front() == '"' && text.back() == '"';
}

std::string TextureName(std::string_view text) {
  if (IsQuoted(text)) return std::string(text.substr(1, text.size() - 2));
  std::string name(text);
  if (!name.empty() && !HasTextureExtension(name)) name += kTextureExtension;
  return name;
}

std::string ColorAsText(std::uint32_t color) {
  if (color > 0xFFFFFF) return std::to_string(color);
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text = "#";
  for (const std::uint32_t part : {color, color >> 8, color >> 16}) {
    text += kDigits[part >> 4 & 15];
    text += kDigits[part & 15];
  }
  return text;
}

std::string FloatAsText(float number) {
  std::array<char, 64> text;
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number);
  return {text.data(), end};
}

}  // namespace

SettingError SetSettingFromText(const SettingField& field, std::string_view text,
                                EffectSettings& settings, SettingsSession& session) {
  if (!UserMaySet(field)) return SettingError::kNotSettable;
  if (IsText(field.type)) {
    const bool isTexture = field.type == SettingType::kText;
    const std::string value = isTexture ? TextureName(text) : std::string(text);
    if (value.size() > MaxSettingText(field)) return SettingError::kTooLong;
    StoreSettingText(field, value, settings, session);
    return SettingError::kNone;
  }
  if (field.type == SettingType::kFloat) {
    float number = 0;
    const SettingError error = ParseFloat(text, number);
    if (error == SettingError::kNone) StoreSettingFloat(field, number, settings);
    return error;
  }
  std::int64_t number = 0;
  const SettingError error = field.type == SettingType::kColor ? ParseColor(field, text, number)
                                                               : ParseInteger(field, text, number);
  if (error == SettingError::kNone) StoreSettingNumber(field, number, settings, session);
  return error;
}

std::string SettingAsText(const SettingField& field, const EffectSettings& settings,
                          const SettingsSession& session) {
  if (field.type == SettingType::kText) {
    const std::string name(SettingText(field, settings, session));
    if (TextureName(name) == name) return name;
    return '"' + name + '"';
  }
  if (field.type == SettingType::kCategory) {
    return std::string(SettingText(field, settings, session));
  }
  if (field.type == SettingType::kFloat) return FloatAsText(SettingFloat(field, settings));
  const std::int64_t number = SettingNumber(field, settings, session);
  if (field.type == SettingType::kColor) return ColorAsText(static_cast<std::uint32_t>(number));
  return std::to_string(number);
}

bool NumberIsInRange(const SettingRange& range, double number) {
  if (!range.IsStated()) return true;
  return number >= range.minimum && number <= range.maximum &&
         std::fmod(number - range.minimum, range.step) == 0;
}

bool SettingIsInRange(const SettingField& field, const EffectSettings& settings,
                      const SettingsSession& session) {
  if (IsText(field.type)) return true;
  if (field.type == SettingType::kFloat) {
    const float number = SettingFloat(field, settings);
    return std::isfinite(number) && NumberIsInRange(field.range, number);
  }
  return NumberIsInRange(field.range, static_cast<double>(SettingNumber(field, settings, session)));
}

const char* DescribeSettingError(SettingError error) {
  switch (error) {
    case SettingError::kNone:
      return "is fine";
    case SettingError::kNotSettable:
      return "is for a field that only the program sets";
    case SettingError::kNotANumber:
      return "is not a value of this field";
    case SettingError::kDoesNotFit:
      return "is too large a number for this field";
    case SettingError::kNotAColor:
      return "is not a colour";
    case SettingError::kTooLong:
      return "is too long";
  }
  return "";
}

std::vector<std::string> NearSettingNames(std::string_view name) {
  constexpr std::size_t kMostNames = 5;
  std::vector<std::string> names;
  for (const SettingField& field : SettingsTable()) {
    if (UserMaySet(field)) names.emplace_back(field.name);
  }
  return NearNames(name, names, kMostNames);
}

}  // namespace tarnwick
