#include "age_picture.h"

#include <algorithm>
#include <new>
#include <system_error>
#include <vector>

#include "cli_error.h"
#include "data_folders.h"
#include "did_you_mean.h"
#include "engine/apply_run.h"
#include "output_file.h"
#include "picture.h"
#include "picture_load.h"
#include "picture_save.h"
#include "settings_recipe.h"
#include "textures/texture_path.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

class AlertList : public TextureAlerts {
 public:
  void TextureAlert(const std::string& text) override {
    if (std::find(texts_.begin(), texts_.end(), text) == texts_.end()) texts_.push_back(text);
  }
  [[nodiscard]] const std::vector<std::string>& Texts() const { return texts_; }

 private:
  std::vector<std::string> texts_;
};

// What may be meant instead of the texture that an alert is about.
std::string Advice(const std::string& alert, const AgeRun& run) {
  const std::string otherwise = "see tarnwick textures list";
  for (const std::string& name : TexturesInUse(run.settings)) {
    const std::string path = TexturePath(run.textureFolder.string(), name);
    std::error_code fault;
    if (alert.find(path) == std::string::npos || fs::exists(path, fault)) continue;
    return DidYouMean(name, TextureNames(run.textureFolder), otherwise);
  }
  return otherwise;
}

PreviewWindow WindowOf(const AgeOptions& options, const Picture& picture) {
  PreviewWindow window = WholeWindow(picture.Width(), picture.Height(), options.scale);
  if (options.window) {
    window.x = options.window->x;
    window.y = options.window->y;
    window.width = options.window->width;
    window.height = options.window->height;
  }
  window.view = options.view;
  return window;
}

ApplyOutcome Render(const AgeRun& run, Picture& picture, PictureJob& job) {
  EffectSettings settings = run.settings;
  SettingsSession session = run.session;
  job.width = picture.Width();
  job.height = picture.Height();
  job.planes = picture.Planes();
  job.in = picture.Pixels();
  job.inRowBytes = picture.RowBytes();
  job.textureFolder = run.textureFolder.string();
  job.pool = &run.pool;
  if (!run.selection.is_null()) {
    job.selection = static_cast<const std::uint8_t*>(run.selection.data());
    job.selectionRowBytes = run.selection.width();
  }
  if (!run.options.preview) {
    job.out = picture.Pixels();
    job.outRowBytes = picture.RowBytes();
    return ApplyToPicture(settings, session, job);
  }
  const PreviewWindow window = WindowOf(run.options, picture);
  Picture shown = PictureLike(picture, window.width, window.height);
  job.out = shown.Pixels();
  job.outRowBytes = shown.RowBytes();
  const ApplyOutcome outcome = RenderPreview(settings, session, job, window);
  picture = shown;
  return outcome;
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

void Warn(const AgeRun& run, const fs::path& input, const PictureNotes& notes) {
  for (const std::string& note : notes) run.console.Warning(input.string() + ": " + note);
}

// With --strict the last one is thrown, and so all are told.
void TellAlerts(const AgeRun& run, const fs::path& input, const AlertList& alerts) {
  const std::vector<std::string>& texts = alerts.Texts();
  for (const std::string& text : texts) {
    const std::string line = input.string() + ": " + text + " (" + Advice(text, run) + ")";
    if (!run.options.strict) {
      run.console.Warning(line);
    } else if (&text != &texts.back()) {
      run.console.Error(line);
    } else {
      FailInput(input.string(), text, Advice(text, run));
    }
  }
}

// Before the work rather than after it; OutputFile looks again.
void RequireFreeTarget(const PlannedOutput& item, bool force) {
  std::error_code fault;
  if (!force && fs::exists(fs::symlink_status(item.output, fault))) {
    FailInput(item.output.string(), "is there already", "give --force to replace it");
  }
}

}  // namespace

void AgePicture(const AgeRun& run, const PlannedOutput& item, const std::string& label) try {
  RequireFreeTarget(item, run.options.force);
  PictureNotes notes;
  AlertList alerts;
  Picture picture = LoadPicture(item.input, notes);
  {
    ProgressBar bar(run.console, label);
    PictureJob job;
    job.alerts = &alerts;
    job.progress = &bar;
    RequireDone(Render(run, picture, job), item.input);
  }
  Warn(run, item.input, notes);
  TellAlerts(run, item.input, alerts);

  OutputFile file(item.output, run.options.force);
  PictureNotes saveNotes;
  SavePicture(picture, file.TemporaryPath(), item.output.string(), *item.format,
              run.options.quality, saveNotes);
  file.Commit();
  Warn(run, item.output, saveNotes);
} catch (const std::bad_alloc&) {
  FailInput(item.input.string(), "there is not enough memory for it",
            "close other programs or make the picture smaller");
}

}  // namespace tarnwick
