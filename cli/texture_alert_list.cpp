#include "texture_alert_list.h"

#include <algorithm>
#include <new>
#include <system_error>

#include "cli_error.h"
#include "data_folders.h"
#include "did_you_mean.h"
#include "settings_recipe.h"
#include "textures/texture_path.h"

namespace tarnwick {

namespace fs = std::filesystem;

void AlertList::TextureAlert(const std::string& text) {
  if (std::find(texts_.begin(), texts_.end(), text) == texts_.end()) texts_.push_back(text);
}

std::string AlertAdvice(const std::string& alert, const fs::path& textureFolder,
                        const EffectSettings& settings) {
  const std::string otherwise = "see tarnwick textures list";
  for (const std::string& name : TexturesInUse(settings)) {
    const std::string path = TexturePath(textureFolder.string(), name);
    std::error_code fault;
    if (alert.find(path) == std::string::npos || fs::exists(path, fault)) continue;
    return DidYouMean(name, TextureNames(textureFolder), otherwise);
  }
  return otherwise;
}

void RequireDone(ApplyOutcome outcome, const fs::path& input) {
  switch (outcome) {
    case ApplyOutcome::kDone:
      return;
    case ApplyOutcome::kOutOfMemory:
      throw std::bad_alloc();
    case ApplyOutcome::kBadPicture:
    case ApplyOutcome::kUnsupportedMode:
    case ApplyOutcome::kNoConverter:
      break;
  }
  FailInput(input.string(), "cannot be aged", "convert it to an 8-bit RGB picture first");
}

}  // namespace tarnwick
