#include "engine/golden_cases.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "settings/settings_table.h"
#include "settings/settings_text.h"
#include "support/flat_json.h"

namespace tarnwick::testing {
namespace {

Pnm WithAlpha(const Pnm& color, const std::string& alphaPath) {
  if (!FileExists(alphaPath)) return color;
  const Pnm alpha = ReadPnm(alphaPath);
  Pnm both{color.width, color.height, 4, {}};
  for (std::size_t i = 0; i < alpha.samples.size(); ++i) {
    both.samples.insert(both.samples.end(), {color.samples[3 * i], color.samples[3 * i + 1],
                                             color.samples[3 * i + 2], alpha.samples[i]});
  }
  return both;
}

ViewMode ViewOf(const std::string& name) {
  const std::vector<std::string> names = {"composite", "wash1",    "wash2",   "background",
                                          "surface1",  "surface2", "original"};
  const auto found = std::find(names.begin(), names.end(), name);
  if (found == names.end()) throw std::runtime_error("no view " + name);
  return static_cast<ViewMode>(found - names.begin());
}

PreviewWindow WindowOf(const std::string& path, const Pnm& input) {
  auto members = ReadFlatJson(path);
  const int scale = std::stoi(members["scale"].at(0));
  PreviewWindow window{scale,
                       0,
                       0,
                       std::max(input.width / scale, 1),
                       std::max(input.height / scale, 1),
                       ViewOf(members["view"].at(0))};
  const std::vector<std::string>& area = members["window"];
  if (area.size() == 4) {
    window.x = std::stoi(area[0]);
    window.y = std::stoi(area[1]);
    window.width = std::stoi(area[2]);
    window.height = std::stoi(area[3]);
  }
  return window;
}

}  // namespace

std::string GoldenFolder() {
  return std::string(TARNWICK_TEST_DATA) + "/golden/";
}

std::vector<std::string> GoldenCases(const std::string& kind) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(GoldenFolder() + kind)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

GoldenCase::GoldenCase(const std::string& folder) {
  input = WithAlpha(ReadPnm(folder + "/in.ppm"), folder + "/in-alpha.pgm");
  wanted = WithAlpha(ReadPnm(folder + "/out.ppm"), folder + "/out-alpha.pgm");
  if (FileExists(folder + "/selection.pgm")) selection = ReadPnm(folder + "/selection.pgm");
  if (FileExists(folder + "/preview.json")) window = WindowOf(folder + "/preview.json", input);
  ResetAllSettings(settings, session);
  for (const auto& [name, values] : ReadFlatJson(folder + "/settings.json")) {
    const SettingField* const field = FindSetting(name);
    if (field == nullptr ||
        SetSettingFromText(*field, values.at(0), settings, session) != SettingError::kNone) {
      throw std::runtime_error(folder + ": cannot set " + name);
    }
  }
}

PictureJob GoldenCase::Job(Pnm& out) const {
  out = Pnm{wanted.width, wanted.height, input.planes, {}};
  out.samples.assign(static_cast<std::size_t>(out.width) * static_cast<std::size_t>(out.height) *
                         static_cast<std::size_t>(out.planes),
                     0xA5);
  PictureJob job;
  job.width = input.width;
  job.height = input.height;
  job.planes = input.planes;
  job.in = input.samples.data();
  job.inRowBytes = static_cast<std::ptrdiff_t>(input.width) * input.planes;
  job.out = out.samples.data();
  job.outRowBytes = static_cast<std::ptrdiff_t>(out.width) * out.planes;
  if (!selection.samples.empty()) {
    job.selection = selection.samples.data();
    job.selectionRowBytes = selection.width;
  }
  job.textureFolder = GoldenFolder() + "textures";
  return job;
}

}  // namespace tarnwick::testing
