#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>

#include "settings/effect_settings.h"

namespace tarnwick {

// The one description of every field of the settings. Defaults, resets,
// scripting keys, preset lines, the command line's --set and --help and the
// settings reference all come from it: a new field is one row in
// settings_table.cpp (and its member in the record).

// How a field is stored, and as what scripting carries it.
enum class SettingType : std::uint8_t {
  kFlag,      // 8-bit; a boolean in scripting
  kByte,      // 8-bit number or choice; an integer in scripting
  kInteger,   // signed 32-bit
  kColor,     // unsigned 32-bit, red in the low byte; an integer in scripting
  kFloat,     // 32-bit float, widened in scripting
  kText,      // char[kTextureNameSize], a texture's file name
  kCategory,  // std::string of the session
  kShort,     // signed 16-bit
  kWord,      // unsigned 16-bit
  kAddress,   // std::uintptr_t
};

// Fields that are reset together. ResetAllSettings goes through them in this
// order, up to kCarried.
enum class SettingBlock : std::uint8_t {
  kFrame,
  kOutput,
  kSwitches,
  kWash1,
  kWashName1,
  kWash2,
  kWashName2,
  kBackground,
  kBackgroundName,
  kSurface1,
  kSurfaceName1,
  kSurface2,
  kSurfaceName2,
  kSurfaceCommon,
  kSurfaceColors,
  kPasses,
  kAddresses,
  kCarried,   // carried through scripting without effect
  kBatch,     // only a fresh block sets it
  kSnapshot,  // only a fresh block sets it
  kLinks,     // never reset
};

// Which lines of a preset a field belongs to. Within a section the lines stand
// in the order of the table's rows.
enum class PresetSection : std::uint8_t {
  kNone,               // in no preset
  kReadOnly,           // read from older files, never written
  kCommon,             //
  kWash,               // always written with the washes
  kFirstWash,          // if WashUse
  kSecondWash,         // if SecondWashExists as well
  kSurface,            // always written with the surfaces
  kFirstSurface,       // if SurfaceUse
  kSecondSurface,      // if SecondSurfaceExists as well
  kBackground,         // always written with the background
  kBackgroundDetails,  // if BackgroundUse
  kLinks,              //
};

// What the dialog's controls can set. Presets, scripting and the command line
// may go beyond: nothing in the engine relies on it.
struct SettingRange {
  double minimum;
  double maximum;  // below `minimum`: no range is stated
  double step = 1;
  std::span<const char* const> labels = {};  // names of the values from 0 on

  [[nodiscard]] constexpr bool IsStated() const { return minimum <= maximum; }
};

// A number for all types but the texts.
struct SettingDefault {
  template <class Number>
  requires std::is_arithmetic_v<Number>
  // NOLINTNEXTLINE(google-explicit-constructor): rows of the table name the value alone
  constexpr SettingDefault(Number value) : number(static_cast<double>(value)) {}
  // NOLINTNEXTLINE(google-explicit-constructor)
  constexpr SettingDefault(const char* value) : text(value) {}

  double number = 0;
  const char* text = nullptr;
};

struct SettingField {
  const char* name;  // as in the record
  bool inSession;    // a member of SettingsSession, not of EffectSettings
  std::size_t offset;
  std::size_t size;
  std::uint32_t key;  // four-character scripting code; 0: none
  SettingType type;
  SettingRange range;
  SettingDefault initial;
  SettingBlock block;
  PresetSection section;
  const char* presetComment;  // from the ";" on; null outside presets
  const char* help;           // one line, lower case, no full stop
};

// A four-character code, first character in the highest byte.
[[nodiscard]] constexpr std::uint32_t FourCharacterCode(const char (&text)[5]) {
  std::uint32_t code = 0;
  for (int i = 0; i < 4; ++i) code = code << 8 | static_cast<unsigned char>(text[i]);
  return code;
}

// All rows. Static; valid for the life of the program.
[[nodiscard]] std::span<const SettingField> SettingsTable();

// The field of a scripting code, or null. 0 finds nothing.
[[nodiscard]] const SettingField* FindSettingByKey(std::uint32_t key);

// The field of a name, whatever its case, or null.
[[nodiscard]] const SettingField* FindSetting(std::string_view name);

// False for what only the program itself writes: addresses, the dialog's frame,
// batch flags and the snapshot flag.
[[nodiscard]] bool UserMaySet(const SettingField& field);

}  // namespace tarnwick
