#pragma once
#include <windows.h>

#include <functional>

#include "dialog/bitmap_set.h"
#include "dialog/edits/setting_edits.h"
#include "dialog/models/effect_views.h"
#include "filter/filter_globals.h"
#include "presets/auto_dice.h"

namespace tarnwick {

class PresetLibrary;

// What the pages work with, and how they reach the dialog around them. The dialog owns
// all of it and outlives them.
struct PageContext {
  FilterGlobals& g;
  const EffectViews& views;
  HINSTANCE instance;
  HWND dialog;
  SettingEdits& edits;
  PresetLibrary& presets;
  BitmapSet& bitmaps;
  AutoDice& dice;

  // Ends the dialog as Escape does, but leaves the settings as they are.
  std::function<void()> leave;
  // Inside a handler of what was thrown: the dialog ends with that.
  std::function<void()> fail;
  // Every page that has been made shows the settings; the pages set it themselves.
  std::function<void()> showAll;
  // The drawers, for the effect of the page.
  std::function<void(int tab)> openTextures;
  std::function<void(int tab)> openColors;
  // The full-size picker of textures.
  std::function<void(int tab)> openFullSize;
};

}  // namespace tarnwick
