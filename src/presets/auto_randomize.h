#pragma once
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "presets/preset_session.h"
#include "presets/random_preset.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// What chance chooses from.
struct AutoLibrary {
  std::filesystem::path presetRoot;  // holds Basic, Surface, Background, Colors
  FolderOrder order = FolderOrder::kAsScanned;
  // What the drawers show, in their order: file names of textures; names of
  // colour presets, the first one "Reset Colors". No colours: no colour drawer.
  std::vector<std::string> textures;
  std::vector<std::string> colors;
  // Asked for each seed: a clock that moves between two of them gives another
  // throw, as it should; one that stands makes the throw repeatable.
  std::function<std::uint32_t()> seconds;
};

// What was drawn, in the order in which it went into the settings.
struct AutoThrow {
  std::vector<std::filesystem::path> presets;  // only those that could be read
  std::string surfaceColors;                   // empty: left alone
  std::string backgroundColors;
};

// Replaces all settings by a random look: now and then a Basic preset as it is,
// else a background and a surface from their folders under one or two washes of
// random texture, kind and colour.
//
// What it stores may lie outside what the dialog can set: kind 4 of a wash, for
// which there is no name, and a coverage scale of 0. Coverage that is thrown is
// -98..0; that of a Basic preset below it may stay. All are taken as they stand. Of "Reset Colors"
// for the background only the category shows: the record keeps the colours of its preset.
//
// With no textures the wash is "No_Texture.twk".
AutoThrow AutoRandomize(const AutoLibrary& library, EffectSettings& settings,
                        PresetSession& session);

// An entry of a drawer, as its own button for chance draws it: the dice are
// seeded anew by the clock first, so that two draws within a second agree. -1,
// and still seeded, from an empty list.
[[nodiscard]] int RandomRecord(std::size_t count, std::uint32_t seconds, AutoDice& dice);

}  // namespace tarnwick
