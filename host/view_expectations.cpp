#include <algorithm>

#include "host/scenario_run.h"

namespace tarnwick::testhost {
namespace {

const PlanarPicture& PictureNamed(const DocumentView& view, const std::string& name) {
  if (name == "copy") return view.documentCopy;
  if (name == "below") return view.layersBelow;
  if (name == "sampled") return view.sampled;
  if (name == "selection") return view.selectionPlane;
  if (name == "pixels") return view.documentPixels;
  throw ScenarioError("the dialog sees no " + name);
}

std::string PixelText(const PlanarPicture& picture, int x, int y) {
  if (x < 0 || y < 0 || x >= picture.width || y >= picture.height) {
    throw ScenarioError("there is no such pixel");
  }
  std::string text;
  const std::size_t planeSize = static_cast<std::size_t>(picture.width * picture.height);
  for (int plane = 0; plane < picture.planes; ++plane) {
    const std::size_t at = static_cast<std::size_t>(plane) * planeSize +
                           static_cast<std::size_t>(y * picture.width + x);
    text += (plane == 0 ? "" : " ") + std::to_string(picture.samples.at(at));
  }
  return text;
}

void Compare(const std::string& what, const std::string& found, const std::string& wanted) {
  if (found != wanted) throw ScenarioError(what + " is " + found + ", not " + wanted);
}

// expect seen error N [fetch N] | expect seen copy|below|sampled|selection|pixels absent |
// size WxH planes N | at X Y VALUE ... | all VALUE ...
// expect seen module
void ExpectSeen(ScenarioRun& run, Words& words) {
  const DocumentView& view = run.view;
  if (words.Accept("module")) {
    if (!view.knowsModule) throw ScenarioError("the module's handle was not found");
    return;
  }
  if (words.Accept("error")) {
    Compare("the error", std::to_string(view.error), std::to_string(words.NextInt("error")));
    if (words.Accept("fetch")) {
      Compare("the error", std::to_string(view.fetchError), std::to_string(words.NextInt("error")));
    }
    return;
  }
  const PlanarPicture& picture = PictureNamed(view, words.Next("picture"));
  if (words.Accept("absent")) {
    if (!picture.samples.empty()) throw ScenarioError("it is there");
    return;
  }
  if (picture.samples.empty()) throw ScenarioError("it is not there");
  if (words.Accept("size")) {
    const std::string wanted = words.Next("size");
    words.Demand("planes");
    Compare("the size",
            std::to_string(picture.width) + "x" + std::to_string(picture.height) + " planes " +
                std::to_string(picture.planes),
            wanted + " planes " + words.Next("planes"));
    return;
  }
  const bool isAll = words.Accept("all");
  if (!isAll) words.Demand("at");
  const int x = isAll ? 0 : words.NextInt("column");
  const int y = isAll ? 0 : words.NextInt("row");
  std::string wanted;
  while (!words.IsEmpty()) wanted += (wanted.empty() ? "" : " ") + words.Next("value");
  const int right = isAll ? picture.width : x + 1;
  const int bottom = isAll ? picture.height : y + 1;
  for (int row = y; row < bottom; ++row) {
    for (int column = x; column < right; ++column) {
      Compare("pixel " + std::to_string(column) + " " + std::to_string(row),
              PixelText(picture, column, row), wanted);
    }
  }
}

}  // namespace

const CommandTable& ViewExpectations() {
  static const CommandTable table = {{"seen", ExpectSeen}};
  return table;
}

}  // namespace tarnwick::testhost
