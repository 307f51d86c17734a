#include "host/document_description.h"

namespace tarnwick::testhost {
namespace {

// Kinds of channels.
constexpr int kFirstRgbChannel = 1;
constexpr int kFirstCmykChannel = 4;
constexpr int kTransparencyChannel = 16;
constexpr int kLayerMaskChannel = 17;

}  // namespace

host::ReadChannelDesc* DocumentDescription::AddChannel(const Document& document, std::size_t layer,
                                                       int plane, int type) {
  ports_.push_back({layer, plane});
  host::ReadChannelDesc channel{};
  channel.maxVersion = 0;
  channel.port = &ports_.back();
  channel.bounds = document.Bounds();
  channel.depth = document.depth;
  channel.tileSize = {document.height, document.width};
  channel.target = channel.shown = 1;
  channel.channelType = static_cast<std::int16_t>(type);
  channel.name = "channel";
  channels_.push_back(channel);
  return &channels_.back();
}

host::ReadChannelDesc* DocumentDescription::AddColors(const Document& document, std::size_t layer) {
  const int colors = ColorPlanes(document.mode);
  const int firstType = colors == 4 ? kFirstCmykChannel : colors == 3 ? kFirstRgbChannel : 0;
  host::ReadChannelDesc* first = nullptr;
  host::ReadChannelDesc* last = nullptr;
  for (int plane = 0; plane < colors; ++plane) {
    host::ReadChannelDesc* const channel = AddChannel(document, layer, plane, firstType + plane);
    if (last != nullptr) last->next = channel;
    if (first == nullptr) first = channel;
    last = channel;
  }
  return first;
}

host::ReadLayerDesc* DocumentDescription::AddLayer(const Document& document, std::size_t layer) {
  const int colors = ColorPlanes(document.mode);
  const Layer& source = document.layers[layer];
  host::ReadLayerDesc description{};
  description.compositeChannelsList = AddColors(document, layer);
  if (source.planes > colors) {
    description.transparency = AddChannel(document, layer, colors, kTransparencyChannel);
  }
  if (source.planes > colors + 1) {
    description.layerMask = AddChannel(document, layer, colors + 1, kLayerMaskChannel);
  }
  description.sheetID = static_cast<std::uint32_t>(layer + 1);
  description.name = source.name.c_str();
  layers_.push_back(description);
  return &layers_.back();
}

DocumentDescription::DocumentDescription(const Document& document, bool withLayers) {
  description_.maxVersion = withLayers ? 2 : 0;
  description_.imageMode = document.mode;
  description_.depth = document.depth;
  description_.bounds = document.Bounds();
  description_.hResolution = description_.vResolution = 72 * host::kFixedOne;
  const int colors = ColorPlanes(document.mode);
  const Layer& target = document.layers.at(document.target);
  description_.targetCompositeChannels = AddColors(document, document.target);
  description_.mergedCompositeChannels = AddColors(document, document.target);
  if (target.planes > colors) {
    description_.targetTransparency =
        AddChannel(document, document.target, colors, kTransparencyChannel);
  }
  if (target.planes > colors + 1) {
    description_.targetLayerMask =
        AddChannel(document, document.target, colors + 1, kLayerMaskChannel);
  }
  if (!withLayers) return;
  host::ReadLayerDesc* last = nullptr;
  for (std::size_t layer = 0; layer < document.layers.size(); ++layer) {
    host::ReadLayerDesc* const added = AddLayer(document, layer);
    if (last == nullptr) {
      description_.layersDescriptor = added;
    } else {
      last->next = added;
    }
    last = added;
  }
}

}  // namespace tarnwick::testhost
