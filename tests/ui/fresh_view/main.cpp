// tarnwick-fresh-view: what a window of a picture has to look like, rendered from
// nothing, as the command line's "age" does it. It knows no dialog.
//
//   tarnwick-fresh-view TEXTURES IN OUT SCALE X Y WIDTH HEIGHT [FIELD=VALUE...] [View=N]
//
// IN and OUT are binary PPM. A width of 0 stands for the whole picture at full size.
#include <cstdio>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>

#include "engine/apply_run.h"
#include "settings/settings_access.h"
#include "settings/settings_text.h"
#include "support/pnm.h"

namespace {

using namespace tarnwick;  // NOLINT(google-build-using-namespace): its own program

void Set(const std::string& assignment, EffectSettings& settings, SettingsSession& session) {
  const std::size_t sign = assignment.find('=');
  const SettingField* const field = FindSetting(assignment.substr(0, sign));
  if (sign == std::string::npos || field == nullptr ||
      SetSettingFromText(*field, assignment.substr(sign + 1), settings, session) !=
          SettingError::kNone) {
    throw std::runtime_error("cannot set " + assignment);
  }
}

void Write(const std::string& path, int width, int height, const std::string& samples) {
  std::ofstream out(path, std::ios::binary);
  out << "P6\n" << width << ' ' << height << "\n255\n" << samples;
  if (!out) throw std::runtime_error(path + " cannot be written");
}

void Render(int argc, char** argv) {
  const testing::Pnm picture = testing::ReadPnm(argv[2]);
  EffectSettings settings;
  SettingsSession session;
  InitSettingsToDefaults(settings, session);
  PreviewWindow window;
  const std::string view = "View=";
  for (int i = 9; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument.compare(0, view.size(), view) == 0) {
      window.view = static_cast<ViewMode>(std::stoi(argument.substr(view.size())));
    } else {
      Set(argument, settings, session);
    }
  }
  window.scale = std::stoi(argv[4]);
  window.x = std::stoi(argv[5]);
  window.y = std::stoi(argv[6]);
  window.width = std::stoi(argv[7]);
  window.height = std::stoi(argv[8]);
  const bool isWhole = window.width == 0;
  if (isWhole) {
    window.width = picture.width;
    window.height = picture.height;
  }
  std::string samples(static_cast<std::size_t>(window.width * window.height * 3), '\0');
  PictureJob job;
  job.width = picture.width;
  job.height = picture.height;
  job.in = picture.samples.data();
  job.inRowBytes = picture.width * 3;
  job.out = reinterpret_cast<std::uint8_t*>(samples.data());
  job.outRowBytes = window.width * 3;
  job.textureFolder = argv[1];
  const ApplyOutcome outcome = isWhole ? ApplyToPicture(settings, session, job)
                                       : RenderPreview(settings, session, job, window);
  if (picture.planes != 3 || outcome != ApplyOutcome::kDone) {
    throw std::runtime_error("the picture cannot be rendered");
  }
  Write(argv[3], window.width, window.height, samples);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 9) return 2;
  try {
    Render(argc, argv);
  } catch (const std::exception& error) {
    std::printf("%s\n", error.what());
    return 1;
  }
  return 0;
}
