#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "engine/apply_run.h"
#include "settings/effect_settings.h"
#include "textures/texture_alerts.h"

namespace tarnwick {

// The alerts of a render, each once.
class AlertList : public TextureAlerts {
 public:
  void TextureAlert(const std::string& text) override;
  [[nodiscard]] const std::vector<std::string>& Texts() const { return texts_; }

 private:
  std::vector<std::string> texts_;
};

// What may be meant instead of the texture that an alert is about, or where to
// look.
[[nodiscard]] std::string AlertAdvice(const std::string& alert,
                                      const std::filesystem::path& textureFolder,
                                      const EffectSettings& settings);

// Throws for an outcome that is not kDone: std::bad_alloc without memory, else
// CliError (input failed).
void RequireDone(ApplyOutcome outcome, const std::filesystem::path& input);

}  // namespace tarnwick
