#include <algorithm>

#include "engine/golden_cases.h"
#include "host/layer_fill.h"
#include "host/scenario_run.h"

namespace tarnwick::testhost {
namespace {

using testing::Pnm;

void Compare(const Pnm& found, const Pnm& wanted) {
  const std::string difference = testing::FirstDifference(found, wanted);
  if (!difference.empty()) throw ScenarioError(difference);
}

Pnm WholeOf(const Document& document, const std::vector<std::uint8_t>& samples, int planes) {
  return {document.width, document.height, planes * document.SampleBytes(), samples};
}

// What a picture without transparency shows of a pixel that has some.
std::uint8_t OnBlack(std::uint8_t color, std::uint8_t alpha) {
  return static_cast<std::uint8_t>(static_cast<float>(color) *
                                   (static_cast<float>(alpha) / 255.0F));
}

// The colours of a layer, and its alpha if the picture to compare with has it; a
// picture without one was recorded on black.
Pnm Shown(const Document& document, const Layer& layer, int planes) {
  const int colors = ColorPlanes(document.mode);
  Pnm shown{document.width, document.height, planes, {}};
  const auto step = static_cast<std::size_t>(layer.planes);
  for (std::size_t at = 0; at < layer.samples.size(); at += step) {
    const bool hasAlpha = layer.planes > colors;
    const std::uint8_t alpha =
        hasAlpha ? layer.samples[at + static_cast<std::size_t>(colors)] : std::uint8_t{255};
    for (std::size_t plane = 0; plane < 3; ++plane) {
      const std::uint8_t color = layer.samples[at + plane];
      shown.samples.push_back(planes == 3 ? OnBlack(color, alpha) : color);
    }
    if (planes == 4) shown.samples.push_back(alpha);
  }
  return shown;
}

// expect golden CASE: the picture, and that planes beyond the alpha, and in CMYK
// the black, are as they were.
void ExpectGolden(ScenarioRun& run, Words& words) {
  const testing::GoldenCase golden(run.DataPath("golden/render/" + words.Next("case")));
  const Document& document = run.Host().document;
  const Layer& layer = document.layers.at(document.target);
  Compare(Shown(document, layer, golden.wanted.planes), golden.wanted);
  const int colors = ColorPlanes(document.mode);
  Layer before = layer;
  before.samples = before.original;
  for (int plane = 3; plane < layer.planes; ++plane) {
    if (plane == colors) continue;
    Compare(PlanesOf(document, layer, plane, plane), PlanesOf(document, before, plane, plane));
  }
}

// expect pixels FILE: as many of the first planes as the picture has.
// expect pixels as NAME: all planes as they were kept.
void ExpectPixels(ScenarioRun& run, Words& words) {
  const Document& document = run.Host().document;
  const Layer& layer = document.layers.at(document.target);
  if (words.Accept("as")) {
    return Compare(WholeOf(document, layer.samples, layer.planes),
                   WholeOf(document, run.keptPixels.at(words.Next("name")), layer.planes));
  }
  const Pnm wanted = testing::ReadPnm(run.DataPath(words.Next("picture")));
  Compare(PlanesOf(document, layer, 0, wanted.planes - 1), wanted);
}

// expect planes A to B as NAME: of the target, as they were kept.
// expect planes A to B as opened
void ExpectPlanes(ScenarioRun& run, Words& words) {
  const Document& document = run.Host().document;
  Layer before = document.layers.at(document.target);
  const int low = words.NextInt("plane");
  words.Demand("to");
  const int high = words.NextInt("plane");
  words.Demand("as");
  const bool isOpened = words.Accept("opened");
  before.samples = isOpened ? before.original : run.keptPixels.at(words.Next("name"));
  Compare(PlanesOf(document, document.layers.at(document.target), low, high),
          PlanesOf(document, before, low, high));
}

// expect plane A at most LIMIT and plane B of NAME: the lesser of both.
void ExpectPlaneAtMost(ScenarioRun& run, Words& words, int plane) {
  const Document& document = run.Host().document;
  Layer before = document.layers.at(document.target);
  words.Demand("most");
  const auto limit = static_cast<std::uint8_t>(words.NextInt("limit"));
  words.Demand("and");
  words.Demand("plane");
  const int other = words.NextInt("plane");
  words.Demand("of");
  before.samples = run.keptPixels.at(words.Next("name"));
  Pnm wanted = PlanesOf(document, before, other, other);
  for (std::uint8_t& sample : wanted.samples) sample = std::min(sample, limit);
  Compare(PlanesOf(document, document.layers.at(document.target), plane, plane), wanted);
}

// expect plane A as plane B of NAME
void ExpectPlane(ScenarioRun& run, Words& words) {
  const Document& document = run.Host().document;
  Layer before = document.layers.at(document.target);
  const int plane = words.NextInt("plane");
  if (words.Accept("at")) return ExpectPlaneAtMost(run, words, plane);
  words.Demand("as");
  words.Demand("plane");
  const int other = words.NextInt("plane");
  words.Demand("of");
  before.samples = run.keptPixels.at(words.Next("name"));
  Compare(PlanesOf(document, document.layers.at(document.target), plane, plane),
          PlanesOf(document, before, other, other));
}

// expect untouched: all layers as they were opened.
void ExpectUntouched(ScenarioRun& run, Words&) {
  const Document& document = run.Host().document;
  for (const Layer& layer : document.layers) {
    Compare(WholeOf(document, layer.samples, layer.planes),
            WholeOf(document, layer.original, layer.planes));
  }
}

// Whether a column of a layer is as it was opened.
bool IsColumnSame(const Document& document, const Layer& layer, int column) {
  const auto pixelBytes = static_cast<std::size_t>(layer.planes * document.SampleBytes());
  for (std::size_t i = 0; i < layer.samples.size(); ++i) {
    const int x = static_cast<int>(i / pixelBytes % static_cast<std::size_t>(document.width));
    if (x == column && layer.samples[i] != layer.original[i]) return false;
  }
  return true;
}

// expect changed [plane N | column N]: the target is not as it was opened.
void ExpectChanged(ScenarioRun& run, Words& words) {
  const Document& document = run.Host().document;
  const Layer& layer = document.layers.at(document.target);
  Layer before = layer;
  before.samples = before.original;
  bool isSame = layer.samples == layer.original;
  if (words.Accept("column")) {
    isSame = IsColumnSame(document, layer, words.NextInt("column"));
  } else if (words.Accept("plane")) {
    const int plane = words.NextInt("plane");
    isSame = PlanesOf(document, layer, plane, plane).samples ==
             PlanesOf(document, before, plane, plane).samples;
  }
  if (isSame) throw ScenarioError("it is as it was");
}

// expect outside as opened: all pixels that are not selected at all.
void ExpectOutside(ScenarioRun& run, Words& words) {
  words.Demand("as");
  words.Demand("opened");
  const Document& document = run.Host().document;
  const Layer& layer = document.layers.at(document.target);
  const auto planes = static_cast<std::size_t>(layer.planes);
  for (std::size_t i = 0; i < layer.samples.size(); ++i) {
    if (document.selection.at(i / planes) == 0 && layer.samples[i] != layer.original[i]) {
      throw ScenarioError("pixel " + std::to_string(i / planes) + " has changed");
    }
  }
}

// expect columns A to B as opened: B is not one of them.
void ExpectColumns(ScenarioRun& run, Words& words) {
  const Document& document = run.Host().document;
  const Layer& layer = document.layers.at(document.target);
  const int first = words.NextInt("column");
  words.Demand("to");
  const int end = words.NextInt("column");
  words.Demand("as");
  words.Demand("opened");
  for (int x = first; x < end; ++x) {
    if (!IsColumnSame(document, layer, x)) {
      throw ScenarioError("column " + std::to_string(x) + " has changed");
    }
  }
}

// expect bytes FILE [alpha FILE]: the layer's memory begins with the picture's samples, and
// goes on as it was opened.
void ExpectBytes(ScenarioRun& run, Words& words) {
  const Document& document = run.Host().document;
  const Layer& layer = document.layers.at(document.target);
  Pnm picture = testing::ReadPnm(run.DataPath(words.Next("picture")));
  if (words.Accept("alpha")) {
    picture = WithAlpha(picture, testing::ReadPnm(run.DataPath(words.Next("picture"))));
  }
  std::vector<std::uint8_t>& wanted = picture.samples;
  wanted.insert(wanted.end(), layer.original.begin() + static_cast<std::ptrdiff_t>(wanted.size()),
                layer.original.end());
  Compare(WholeOf(document, layer.samples, layer.planes), WholeOf(document, wanted, layer.planes));
}

}  // namespace

const CommandTable& PixelExpectations() {
  static const CommandTable table = {
      {"golden", ExpectGolden},       {"columns", ExpectColumns}, {"bytes", ExpectBytes},
      {"pixels", ExpectPixels},       {"planes", ExpectPlanes},   {"plane", ExpectPlane},
      {"untouched", ExpectUntouched}, {"changed", ExpectChanged}, {"outside", ExpectOutside},
  };
  return table;
}

}  // namespace tarnwick::testhost
