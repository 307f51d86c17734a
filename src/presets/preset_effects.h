#pragma once
#include <cstdint>

#include "settings/effect_settings.h"

namespace tarnwick {

// What a key of a preset does beyond its own field. Called after the field took
// its value; `key` is that of the line.

// A group that is switched off loses its textures, so that it stays off when
// the switches are derived from the names; a background without texture is off.
void ApplyPresetSideEffects(std::uint32_t key, EffectSettings& settings, std::int32_t version);

// Files of version 1 know one kind of wash and surface, count the coverage the
// other way round, and lack the hues and levels that came later.
void ConvertFromVersion1(std::uint32_t key, EffectSettings& settings);

}  // namespace tarnwick
