#include "presets/preset_check.h"

#include <algorithm>
#include <charconv>

#include "presets/preset_lines.h"
#include "presets/preset_reader.h"
#include "settings/settings_access.h"
#include "settings/settings_reference.h"
#include "settings/settings_text.h"

namespace tarnwick {
namespace {

constexpr SettingRange kColorWords{0, 0xFFFFFF};

// What stands in a line before its terminator, without blanks at the start.
std::string_view Content(const PresetLine& line) {
  const std::string_view text = std::string_view(line.text).substr(0, line.end);
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

template <class Number>
bool IsWhole(std::string_view text) {
  Number number = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end;
}

bool IsColorKey(std::uint32_t key) {
  return key == kHighlightColorKey || key == kMidtoneColorKey || key == kShadowColorKey;
}

// Coverage is counted the other way round in version 1.
bool IsCoverage(const SettingField& field) {
  return field.key == PresetKey("1voC") || field.key == PresetKey("2voC");
}

class Checker {
 public:
  explicit Checker(std::string_view bytes) : source_{bytes} {}

  PresetReport Run() {
    PresetLine line;
    if (!ReadPresetLine(source_, line) || !IsPresetHeader(line)) {
      Fault(PresetFaultKind::kNoHeader,
            "the first line is not \"" + std::string(kPresetHeader) + '"');
      return report_;
    }
    std::size_t begin = 0;
    while (true) {
      const std::string_view read = source_.bytes.substr(begin, source_.at - begin);
      lineNumber_ += static_cast<int>(std::ranges::count(read, '\n'));
      begin = source_.at;
      if (!ReadPresetLine(source_, line)) break;
      CheckLine(line);
    }
    if (begin < source_.bytes.size()) {
      Fault(PresetFaultKind::kUnendedLine, "the last line has no line end and is not read");
    }
    return report_;
  }

 private:
  void Fault(PresetFaultKind kind, std::string text) {
    report_.faults.push_back({lineNumber_, kind, std::move(text)});
  }

  void CheckLine(const PresetLine& line) {
    CheckTerminator(line);
    const std::string_view content = Content(line);
    if (content.empty() || content[0] == ';') return;
    if (line.text[0] == 'V' && content.find("Version") != content.npos) {
      CheckVersion(line);
      return;
    }
    if (content.size() < 4) {
      Fault(PresetFaultKind::kNoKey, '"' + std::string(content) + "\" is no key line");
      return;
    }
    PresetCursor cursor(line);
    cursor.SkipBlanks();
    const std::uint32_t key = cursor.TakeKey();
    cursor.SkipBlanks();
    const std::string value = cursor.TakeText();
    if (const SettingField* field = FindPresetField(key)) {
      CheckValue(*field, value);
    } else if (IsColorKey(key)) {
      CheckNumber(content.substr(0, 4), kColorWords, "0 to 16777215", value, false);
    } else if (key != kCategoryKey) {
      Fault(PresetFaultKind::kUnknownKey,
            "unknown key \"" + std::string(content.substr(0, 4)) + '"');
    }
  }

  void CheckTerminator(const PresetLine& line) {
    const char terminator = source_.bytes[source_.at - 1];
    if (terminator == '\n' || terminator == '\r') return;
    Fault(PresetFaultKind::kBrokenLine,
          "byte " + std::to_string(static_cast<unsigned char>(terminator)) +
              " ends the line after \"" + line.text.substr(0, line.end) + '"');
  }

  void CheckVersion(const PresetLine& line) {
    const std::int32_t version = PresetVersionOf(line);
    if (version == 1 || version == 2) {
      version_ = version;
    } else {
      Fault(PresetFaultKind::kUnknownVersion, "the version is neither 1 nor 2");
    }
  }

  void CheckValue(const SettingField& field, const std::string& value) {
    if (field.type == SettingType::kText) {
      CheckName(field, value);
    } else if (field.type == SettingType::kFloat) {
      if (!IsWhole<double>(value)) NotANumber(field.name, value);
    } else {
      CheckNumber(field.name, field.range, DescribeSettingValues(field), value,
                  version_ == 1 && IsCoverage(field));
    }
  }

  void CheckName(const SettingField& field, const std::string& value) {
    if (value.size() > MaxSettingText(field)) {
      Fault(PresetFaultKind::kNameTooLong, std::string(field.name) + ": the name is longer than " +
                                               std::to_string(MaxSettingText(field)) + " bytes");
    } else if (!value.empty() && value != kNoTextureName) {
      report_.textures.push_back({lineNumber_, value});
    }
  }

  void CheckNumber(std::string_view name, const SettingRange& range, const std::string& values,
                   const std::string& value, bool isInverted) {
    if (!IsWhole<std::int32_t>(value)) {
      NotANumber(name, value);
      return;
    }
    std::int64_t number = 0;
    std::from_chars(value.data(), value.data() + value.size(), number);
    if (isInverted) number = 100 - number;
    if (NumberIsInRange(range, static_cast<double>(number))) return;
    Fault(PresetFaultKind::kOutOfRange,
          std::string(name) + ": " + std::to_string(number) + " is outside its values, " + values);
  }

  void NotANumber(std::string_view name, const std::string& value) {
    Fault(PresetFaultKind::kNotANumber,
          std::string(name) + ": \"" + value + "\" is not a number of this kind");
  }

  PresetSource source_;
  PresetReport report_;
  int lineNumber_ = 1;
  std::int32_t version_ = 2;
};

}  // namespace

PresetReport CheckPreset(std::string_view bytes) {
  return Checker(bytes).Run();
}

}  // namespace tarnwick
