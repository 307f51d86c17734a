#pragma once
#include <cstdint>
#include <optional>
#include <span>

#include "host_interface/host_types.h"
#include "settings/settings_table.h"

namespace tarnwick {

// Which of the four scripting routines deals with a key.
enum ScriptUse : std::uint8_t {
  kScriptWrite = 1,
  kScriptRead = 2,
  kRegistryWrite = 4,
  kRegistryRead = 8,
};

// How a field's value travels.
enum class ScriptType : std::uint8_t {
  kBoolean,
  kInteger,
  kFloat,
  kString,
  kPercent,     // a unit float
  kEnumerated,  // Disposition
  kAddress,     // an integer that stands for a block of pages
};

struct ScriptKey {
  host::OSType key;
  std::uint8_t uses;
};

// All keys, in the order in which the script writer puts them.
//
// Odd, and relied on by recorded actions: SurfaceFlipHor2 is stored in the
// registry and never read from it, WashInvert2 and WashInside2 are asked of it
// and never stored, and nobody takes Disposition back.
[[nodiscard]] std::span<const ScriptKey> ScriptKeys();

[[nodiscard]] ScriptType ScriptTypeOf(const SettingField& field);

// The keys that a recorded step is expected to have, ended by a zero: what the
// host crosses off while it hands them out. The caller copies it for each read.
[[nodiscard]] std::span<const host::OSType> ExpectedKeys();

// A percentage as its 16-bit field takes it; nothing for what is no number.
[[nodiscard]] std::optional<std::int16_t> PercentNumber(double percent);

// Values of Disposition as they are stored.
inline constexpr host::OSType kDispositionType = host::FourCC("mooD");
[[nodiscard]] host::OSType DispositionCode(std::uint16_t disposition);

// What the registry keeps the settings under.
inline constexpr char kModuleIdentifier[] = "d9543b0c-3c91-11d4-98bc-00b008042009";

}  // namespace tarnwick
