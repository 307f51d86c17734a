#pragma once
#include <cstdint>

#include "settings/settings_table.h"

namespace tarnwick {

// What the resources of the module share.

inline constexpr char kProductName[] = "Tarnwick Studio";
inline constexpr char kVendorName[] = "Quayside Ink";

// Both descriptions bear this number, and the first refers to the second by it.
inline constexpr std::uint16_t kDescriptionId = 16000;

// What a recorded step is filed under.
inline constexpr std::uint32_t kScriptClass = FourCharacterCode("TNWK");
inline constexpr std::uint32_t kScriptEvent = FourCharacterCode("TNWK");

}  // namespace tarnwick
