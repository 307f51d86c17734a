#pragma once
#include <filesystem>
#include <string>
#include <vips/vips8>

#include "age_options.h"
#include "base/thread_pool.h"
#include "console.h"
#include "output_plan.h"
#include "settings/effect_settings.h"

namespace tarnwick {

// What is the same for all pictures of a run. Nothing is owned.
struct AgeRun {
  const AgeOptions& options;
  const EffectSettings& settings;
  const SettingsSession& session;
  std::filesystem::path textureFolder;  // empty when no texture is in use
  vips::VImage selection;               // null: everything is selected
  ThreadPool& pool;
  Console& console;
};

// Reads, ages and writes one picture. `label` goes before the progress bar.
// The settings are copied first, so that nothing carries over to the next one.
//
// Errors  CliError; the output is then as it was. Memory that does not suffice
//         is an input that failed, like any other.
void AgePicture(const AgeRun& run, const PlannedOutput& item, const std::string& label);

}  // namespace tarnwick
