#include "age_picture.h"

#include <new>
#include <system_error>
#include <vector>

#include "cli_error.h"
#include "engine/apply_run.h"
#include "output_file.h"
#include "picture.h"
#include "picture_load.h"
#include "picture_save.h"
#include "texture_alert_list.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

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

void Warn(const AgeRun& run, const fs::path& input, const PictureNotes& notes) {
  for (const std::string& note : notes) run.console.Warning(input.string() + ": " + note);
}

// With --strict the last one is thrown, and so all are told.
void TellAlerts(const AgeRun& run, const fs::path& input, const AlertList& alerts) {
  const std::vector<std::string>& texts = alerts.Texts();
  const auto advice = [&](const std::string& text) {
    return AlertAdvice(text, run.textureFolder, run.settings);
  };
  for (const std::string& text : texts) {
    const std::string line = input.string() + ": " + text + " (" + advice(text) + ")";
    if (!run.options.strict) {
      run.console.Warning(line);
    } else if (&text != &texts.back()) {
      run.console.Error(line);
    } else {
      FailInput(input.string(), text, advice(text));
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
