#include <algorithm>

#include "engine/golden_cases.h"
#include "host/layer_fill.h"
#include "host/scenario_run.h"

namespace tarnwick::testhost {
namespace {

using testing::Pnm;
using testing::ReadPnm;

void SelectAll(Document& document) {
  document.selection.clear();
  document.filterRect = document.Bounds();
}

// document MODE WxH [planes N] [from FILE [alpha FILE] | bytes from FILE]
// Without a file it is a pattern.
void NewDocument(ScenarioRun& run, Words& words) {
  Document document;
  SetMode(document, words.Next("mode"));
  const std::string size = words.Next("size");
  const std::size_t cross = size.find('x');
  if (cross == std::string::npos) throw ScenarioError("a size is written 96x72");
  document.width = std::stoi(size.substr(0, cross));
  document.height = std::stoi(size.substr(cross + 1));
  int planes = ColorPlanes(document.mode);
  if (words.Accept("planes")) planes = words.NextInt("planes");
  const bool isBytes = words.Accept("bytes");
  Pnm picture = PatternPicture(document.width, document.height);
  if (words.Accept("from")) {
    picture = ReadPnm(run.DataPath(words.Next("picture")));
    if (words.Accept("alpha")) {
      picture = WithAlpha(picture, ReadPnm(run.DataPath(words.Next("picture"))));
    }
  }
  document.layers = {isBytes ? MakeByteLayer(document, "Layer 1", planes, picture)
                             : MakeLayer(document, "Layer 1", planes, picture)};
  SelectAll(document);
  run.Host().document = document;
}

void Select(Document& document, const Pnm& mask, bool overAll) {
  if (mask.width != document.width || mask.height != document.height || mask.planes != 1) {
    throw ScenarioError("the selection has another size than the document");
  }
  document.selection = mask.samples;
  document.filterRect = overAll ? document.Bounds() : SelectionBounds(document);
}

// golden CASE [MODE] [planes N]: its picture and, over the whole picture, its
// selection.
void GoldenDocument(ScenarioRun& run, Words& words) {
  const testing::GoldenCase golden(run.DataPath("golden/render/" + words.Next("case")));
  Document document;
  if (words.Accept("cmyk")) SetMode(document, "cmyk");
  document.width = golden.input.width;
  document.height = golden.input.height;
  int planes = std::max(golden.input.planes, ColorPlanes(document.mode));
  if (words.Accept("planes")) planes = words.NextInt("planes");
  document.layers = {MakeLayer(document, "Layer 1", planes, golden.input)};
  SelectAll(document);
  if (!golden.selection.samples.empty()) Select(document, golden.selection, true);
  run.Host().document = document;
}

// add layer NAME above | below [hidden] [planes N] [from FILE]: next to the
// target, which it becomes.
void AddLayer(ScenarioRun& run, Words& words) {
  Document& document = run.Host().document;
  words.Demand("layer");
  const std::string name = words.Next("name");
  const bool isAbove = words.Accept("above");
  if (!isAbove) words.Demand("below");
  const bool isHidden = words.Accept("hidden");
  int planes = ColorPlanes(document.mode) + 1;
  if (words.Accept("planes")) planes = words.NextInt("planes");
  const Pnm picture = words.Accept("from") ? ReadPnm(run.DataPath(words.Next("picture")))
                                           : PatternPicture(document.width, document.height);
  Layer layer = MakeLayer(document, name, planes, picture);
  layer.visible = !isHidden;
  const std::size_t place = document.target + (isAbove ? 1 : 0);
  document.layers.insert(document.layers.begin() + static_cast<std::ptrdiff_t>(place), layer);
  document.target = place;
}

// target layer NAME
void TargetLayer(ScenarioRun& run, Words& words) {
  Document& document = run.Host().document;
  words.Demand("layer");
  const std::string name = words.Next("name");
  const auto found = std::find_if(document.layers.begin(), document.layers.end(),
                                  [&](const Layer& layer) { return layer.name == name; });
  if (found == document.layers.end()) throw ScenarioError("there is no layer " + name);
  document.target = static_cast<std::size_t>(found - document.layers.begin());
}

// select FILE [over everything] | select all | select rect TOP LEFT BOTTOM RIGHT
// VALUE
void SelectCommand(ScenarioRun& run, Words& words) {
  Document& document = run.Host().document;
  if (words.Accept("all")) return SelectAll(document);
  Pnm mask{document.width, document.height, 1, {}};
  bool overAll = false;
  if (words.Accept("rect")) {
    const int top = words.NextInt("top");
    const int left = words.NextInt("left");
    const int bottom = words.NextInt("bottom");
    const int right = words.NextInt("right");
    const int value = words.NextInt("value");
    for (int y = 0; y < document.height; ++y) {
      for (int x = 0; x < document.width; ++x) {
        const bool isInside = y >= top && y < bottom && x >= left && x < right;
        mask.samples.push_back(isInside ? static_cast<std::uint8_t>(value) : std::uint8_t{0});
      }
    }
  } else {
    mask = ReadPnm(run.DataPath(words.Next("selection")));
    overAll = words.Accept("over");
    if (overAll) words.Demand("everything");
  }
  Select(document, mask, overAll);
}

// revert document: all layers as they were opened.
void Revert(ScenarioRun& run, Words& words) {
  words.Demand("document");
  for (Layer& layer : run.Host().document.layers) layer.samples = layer.original;
}

// fill planes A to B with VALUE: of the target, which has been opened so then.
void FillPlanes(ScenarioRun& run, Words& words) {
  Layer& layer = run.Host().document.Target();
  words.Demand("planes");
  const int low = words.NextInt("plane");
  words.Demand("to");
  const int high = words.NextInt("plane");
  words.Demand("with");
  const int value = words.NextInt("value");
  for (std::size_t i = 0; i < layer.samples.size(); ++i) {
    const int plane = static_cast<int>(i % static_cast<std::size_t>(layer.planes));
    if (plane >= low && plane <= high) layer.samples[i] = static_cast<std::uint8_t>(value);
  }
  layer.original = layer.samples;
}

// save layer NAME to FILE
void SaveLayer(ScenarioRun& run, Words& words) {
  words.Demand("layer");
  const std::string name = words.Next("name");
  words.Demand("to");
  const std::string path = run.OutPath(words.Next("file name"));
  const Document& document = run.Host().document;
  for (const Layer& layer : document.layers) {
    if (layer.name == name) return WritePam(path, PlanesOf(document, layer, 0, layer.planes - 1));
  }
  throw ScenarioError("there is no layer " + name);
}

// keep pixels as NAME: of the target, to compare with later.
void Keep(ScenarioRun& run, Words& words) {
  words.Demand("pixels");
  words.Demand("as");
  run.keptPixels[words.Next("name")] = run.Host().document.Target().samples;
}

}  // namespace

const CommandTable& DocumentCommands() {
  static const CommandTable table = {
      {"document", NewDocument}, {"golden", GoldenDocument},
      {"add", AddLayer},         {"target", TargetLayer},
      {"select", SelectCommand}, {"revert", Revert},
      {"save", SaveLayer},       {"keep", Keep},
      {"fill", FillPlanes},
  };
  return table;
}

}  // namespace tarnwick::testhost
