#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "engine/effect_layer.h"
#include "engine/render_state.h"
#include "environment/folders.h"
#include "environment/ui_file.h"
#include "filter/suite_record.h"
#include "host_interface/filter_record.h"
#include "presets/preset_session.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// What the host keeps for the module between calls, beside the settings.
struct SessionData {
  std::uint8_t queryForParameters;  // the next start shows the dialog
  std::int16_t proxyTop, proxyLeft, proxyBottom, proxyRight;
};

// The module's own variables. They live as long as the host keeps it loaded;
// one filter run at a time, on the host's thread.
struct FilterGlobals {
  // Of the present call.
  host::FilterRecord* gFilterRecord = nullptr;
  std::intptr_t* gDataSlot = nullptr;
  std::int16_t* gResult = nullptr;
  host::SPBasicSuite* gBasicSuite = nullptr;
  void* ownerWindow = nullptr;

  // Valid between LockBlocks and UnlockBlocks. Odd, and kept: the pointers of
  // the last lock stay.
  EffectSettings* gParams = nullptr;
  SessionData* gData = nullptr;

  SuiteRecord accessSuite{nullptr, 3, host::kSPAccessSuite};
  void* moduleHandle = nullptr;  // see GetModuleHandleFor

  bool HostHasActions = false;    // its action suites answer
  std::int32_t DialogActive = 0;  // 1 while the main dialog exists

  // Set by the settings pages and by scripting; survive from run to run.
  SettingsSession session;
  UiValues ui;
  bool hasNews = false;  // a newer version has been told of
  Folders folders;
  std::unique_ptr<PresetSession> presets;  // see PresetsOf

  // Of the present run.
  RenderState render;
  EffectLayers layers;
  PageBuffer<std::uint8_t> selectionPlane;  // alpha times selection, a byte a pixel
  std::int32_t selectionPlaneRowBytes = 0;

  // What the dialog has read of the document; it frees them when it closes.
  ImagePtr documentCopy;                    // the target layer
  ImagePtr layersBelow;                     // what is visible under it, flattened
  PageBuffer<std::uint8_t> documentPixels;  // red, green, blue, selectionPlane
  std::int32_t documentPixelsWidth = 0;
  std::int32_t documentPixelsHeight = 0;
};

// The one set of them.
[[nodiscard]] FilterGlobals& Globals();

// What presets keep from one file to the next, made when the first is read.
[[nodiscard]] PresetSession& PresetsOf(FilterGlobals& g);

}  // namespace tarnwick
