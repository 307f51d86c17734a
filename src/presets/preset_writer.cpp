#include "presets/preset_writer.h"

#include <array>
#include <charconv>

#include "presets/preset_lines.h"
#include "presets/preset_reader.h"
#include "settings/settings_access.h"

namespace tarnwick {
namespace {

constexpr std::string_view kVersionLine = "Version 2;";

// What stands between a value and its comment's text. The light angles, which
// are the only floats, go without.
constexpr std::string_view kCommentTabs = "\t\t\t\t";

// Real categories come with the colours made for the program.
constexpr char kWrittenCategory[] = "Empty";

void WriteStart(std::string& out, std::uint32_t key) {
  for (const int shift : {0, 8, 16, 24}) out += static_cast<char>(key >> shift & 0xFF);
  out += ' ';
}

void WriteEnd(std::string& out, std::string_view comment, std::string_view ending) {
  out += ' ';
  out += comment;
  out += ending;
}

std::string WithTabs(std::string_view comment) {
  return std::string(kCommentTabs) + std::string(comment);
}

// The sections of one preset, in the order that PresetText calls for them.
class SectionWriter {
 public:
  SectionWriter(std::string& out, const EffectSettings& settings, const SettingsSession& session)
      : out_(out), settings_(settings), session_(session) {}

  void Wash() {
    WritePresetComment(out_, ";------Wash parameters------");
    Lines(PresetSection::kWash);
    if (settings_.WashUse == 0) return;
    Lines(PresetSection::kFirstWash);
    if (settings_.SecondWashExists != 0) Lines(PresetSection::kSecondWash);
  }

  void Surface() {
    WritePresetComment(out_, ";------Surface parameters------");
    Lines(PresetSection::kSurface);
    if (settings_.SurfaceUse == 0) return;
    Lines(PresetSection::kFirstSurface);
    if (settings_.SecondSurfaceExists != 0) Lines(PresetSection::kSecondSurface);
  }

  void Background() {
    WritePresetComment(out_, ";------Background parameters------");
    Lines(PresetSection::kBackground);
    if (settings_.BackgroundUse != 0) {
      Lines(PresetSection::kBackgroundDetails);
    } else {
      // Its switch is derived from the name, so the name says it again.
      WritePresetText(out_, PresetKey("NFkB"), kNoTextureName, WithTabs(";Name of Background"));
    }
  }

  void Colors(std::uint32_t highlight, std::uint32_t midtone, std::uint32_t shadow) {
    WritePresetComment(out_, ";------Color Preset------");
    WritePresetText(out_, kCategoryKey, kWrittenCategory, WithTabs(";Preset Category"));
    WritePresetInteger(out_, kHighlightColorKey, static_cast<std::int32_t>(highlight),
                       WithTabs(";Hightlight Color"));
    WritePresetInteger(out_, kMidtoneColorKey, static_cast<std::int32_t>(midtone),
                       WithTabs(";Midtone Color"));
    WritePresetInteger(out_, kShadowColorKey, static_cast<std::int32_t>(shadow),
                       WithTabs(";Shadow Color"));
  }

  void Lines(PresetSection section) {
    for (const SettingField& field : SettingsTable()) {
      if (field.section == section) Line(field);
    }
  }

 private:
  void Line(const SettingField& field) {
    if (field.type == SettingType::kFloat) {
      WritePresetFloat(out_, field.key, SettingFloat(field, settings_), field.presetComment);
      return;
    }
    const std::string comment = WithTabs(field.presetComment);
    if (IsText(field.type)) {
      const std::string text(SettingText(field, settings_, session_));
      WritePresetText(out_, field.key, text.c_str(), comment);
      return;
    }
    const std::int64_t number = SettingNumber(field, settings_, session_);
    if (field.type == SettingType::kFlag) {
      WritePresetFlag(out_, field.key, static_cast<std::uint8_t>(number), comment);
    } else {
      WritePresetInteger(out_, field.key, static_cast<std::int32_t>(number), comment);
    }
  }

  std::string& out_;
  const EffectSettings& settings_;
  const SettingsSession& session_;
};

}  // namespace

void WritePresetFlag(std::string& out, std::uint32_t key, std::uint8_t value,
                     std::string_view comment) {
  WriteStart(out, key);
  out += std::to_string(value);
  WriteEnd(out, comment, " \n");
}

void WritePresetInteger(std::string& out, std::uint32_t key, std::int32_t value,
                        std::string_view comment) {
  WriteStart(out, key);
  out += std::to_string(value);
  WriteEnd(out, comment, "\n");
}

void WritePresetFloat(std::string& out, std::uint32_t key, float value, std::string_view comment) {
  // The largest float has 39 digits before the point.
  std::array<char, 64> text;
  const auto result = std::to_chars(text.data(), text.data() + text.size(),
                                    static_cast<double>(value), std::chars_format::fixed, 2);
  WriteStart(out, key);
  out.append(text.data(), result.ptr);
  WriteEnd(out, comment, " \n");
}

void WritePresetText(std::string& out, std::uint32_t key, const char* text,
                     std::string_view comment) {
  if (text == nullptr) return;
  WriteStart(out, key);
  out += text;
  WriteEnd(out, comment, " \n");
}

void WritePresetComment(std::string& out, const char* text) {
  if (text == nullptr) return;
  if (*text != ';') out += ';';
  out += text;
  out += '\n';
}

std::string PresetText(PresetKind kind, const EffectSettings& settings,
                       const SettingsSession& session) {
  const bool isUser = kind == PresetKind::kUser;
  std::string out;
  SectionWriter section(out, settings, session);
  out += kPresetHeader;
  out += '\n';
  out += kVersionLine;
  out += '\n';
  if (isUser) {
    WritePresetComment(out, ";------Common parameters------");
    section.Lines(PresetSection::kCommon);
  }
  if (isUser || kind == PresetKind::kWash) section.Wash();
  if (kind == PresetKind::kSurfaceColor) {
    section.Colors(settings.SurfaceHighlightColor, settings.SurfaceMidtoneColor,
                   settings.SurfaceShadowColor);
  } else if (kind == PresetKind::kBackgroundColor) {
    section.Colors(settings.BackgroundHighlightColor, settings.BackgroundMidtoneColor,
                   settings.BackgroundShadowColor);
  }
  if (IsColorKind(kind)) return out;
  if (isUser || kind == PresetKind::kSurface) section.Surface();
  if (isUser || kind == PresetKind::kBackground) section.Background();
  section.Lines(PresetSection::kLinks);
  return out;
}

}  // namespace tarnwick
