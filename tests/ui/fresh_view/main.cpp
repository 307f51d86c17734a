// tarnwick-fresh-view: what a window of a picture has to look like, rendered from
// nothing, as the command line's "age" does it. It knows no dialog.
//
//   tarnwick-fresh-view TEXTURES IN OUT SCALE X Y WIDTH HEIGHT [FIELD=VALUE...] [View=N]
//       [Alpha=FILE]
//
// IN and OUT are binary PPM, with an alpha plane (PGM) OUT is PAM. A width of 0 stands
// for the whole picture at full size.
#include <cstdio>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

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

void Write(const std::string& path, int width, int height, int planes, const std::string& samples) {
  std::ofstream out(path, std::ios::binary);
  if (planes == 3) {
    out << "P6\n" << width << ' ' << height << "\n255\n";
  } else {
    out << "P7\nWIDTH " << width << "\nHEIGHT " << height << "\nDEPTH " << planes
        << "\nMAXVAL 255\nENDHDR\n";
  }
  out << samples;
  if (!out) throw std::runtime_error(path + " cannot be written");
}

void AddAlpha(testing::Pnm& picture, const testing::Pnm& alpha) {
  if (picture.planes != 3 || alpha.planes != 1 || alpha.width != picture.width ||
      alpha.height != picture.height) {
    throw std::runtime_error("the alpha plane does not fit");
  }
  std::vector<std::uint8_t> samples;
  for (std::size_t i = 0; i < alpha.samples.size(); ++i) {
    for (std::size_t c = 0; c < 3; ++c) samples.push_back(picture.samples[3 * i + c]);
    samples.push_back(alpha.samples[i]);
  }
  picture.planes = 4;
  picture.samples = std::move(samples);
}

void Render(int argc, char** argv) {
  testing::Pnm picture = testing::ReadPnm(argv[2]);
  EffectSettings settings;
  SettingsSession session;
  InitSettingsToDefaults(settings, session);
  PreviewWindow window;
  const std::string view = "View=";
  const std::string alpha = "Alpha=";
  for (int i = 9; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument.compare(0, view.size(), view) == 0) {
      window.view = static_cast<ViewMode>(std::stoi(argument.substr(view.size())));
    } else if (argument.compare(0, alpha.size(), alpha) == 0) {
      AddAlpha(picture, testing::ReadPnm(argument.substr(alpha.size())));
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
  std::string samples(static_cast<std::size_t>(window.width * window.height * picture.planes),
                      '\0');
  PictureJob job;
  job.width = picture.width;
  job.height = picture.height;
  job.in = picture.samples.data();
  job.planes = picture.planes;
  job.inRowBytes = picture.width * picture.planes;
  job.out = reinterpret_cast<std::uint8_t*>(samples.data());
  job.outRowBytes = window.width * picture.planes;
  job.textureFolder = argv[1];
  const ApplyOutcome outcome = isWhole ? ApplyToPicture(settings, session, job)
                                       : RenderPreview(settings, session, job, window);
  if (picture.planes < 3 || outcome != ApplyOutcome::kDone) {
    throw std::runtime_error("the picture cannot be rendered");
  }
  Write(argv[3], window.width, window.height, picture.planes, samples);
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
