#include "filter/document_layers.h"

#include <algorithm>
#include <optional>
#include <string>

#include "filter/channel_reading.h"
#include "filter/document_queries.h"
#include "filter/host_colors.h"
#include "filter/host_rects.h"
#include "imaging/fill.h"
#include "imaging/layer_merge.h"
#include "imaging/orientation.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kByteDepth = 8;

Rect DocumentBounds(const host::FilterRecord& record) {
  if (record.documentInfo == nullptr) {
    const host::VPoint size = GetImageSize(record);
    return {0, 0, size.v, size.h};
  }
  const host::VRect& bounds = record.documentInfo->bounds;
  return {bounds.top, bounds.left, bounds.bottom, bounds.right};
}

std::int8_t PlaneCount(const host::FilterRecord& record) {
  std::int32_t count = DocumentPlaneCount(record);
  // Room for the transparency; but black of a CMYK document shares its plane.
  if (record.planes > 3 && count < 5) count = 4;
  return static_cast<std::int8_t>(std::clamp(count, 1, 127));
}

class LayerReader {
 public:
  explicit LayerReader(FilterGlobals& g)
      : g_(g),
        bounds_(DocumentBounds(*g.gFilterRecord)),
        planes_(PlaneCount(*g.gFilterRecord)),
        merged_(NewImage()),
        color_(NewImage()),
        alpha_(MakeGrayImage(bounds_, 0)) {}

  bool Read() {
    const bool hasMemory = FillBlack();
    bool result = hasMemory;
    const std::optional<std::string> target = GetTargetLayerName(g_.gBasicSuite);
    const host::ReadLayerDesc* layer = HasLayerInfo(*g_.gFilterRecord)
                                           ? g_.gFilterRecord->documentInfo->layersDescriptor
                                           : nullptr;
    if (target) {
      for (; layer != nullptr; layer = layer->next) {
        if (layer->name != nullptr && *target == layer->name) {
          result = ReadTarget(*layer);
          break;
        }
        // A group or an adjustment has no colours of its own.
        if (layer->compositeChannelsList != nullptr && IsLayerVisible(g_.gBasicSuite, *layer)) {
          result = Merge(*layer);
        }
      }
    }
    const bool isKept = result && merged_->PeekInterior() != nullptr;
    g_.layersBelow = isKept ? merged_ : nullptr;
    // Readings that went well do not make up for it.
    if (!hasMemory && *g_.gResult == host::noErr) *g_.gResult = host::memFullErr;
    return result;
  }

 private:
  [[nodiscard]] ImagePtr NewImage() const {
    return std::make_shared<RasterImage>(static_cast<std::uint16_t>(g_.gFilterRecord->imageMode),
                                         bounds_, planes_, kByteDepth, 0, std::uint8_t{0});
  }

  // Where nothing lies, the merge stays black.
  [[nodiscard]] bool FillBlack() {
    HostColorServices services(g_.gFilterRecord->colorServices);
    return FillImage(*merged_, kBlackFill, &services);
  }

  [[nodiscard]] bool HasAlphaPlane() const { return planes_ >= 4; }

  [[nodiscard]] bool Merge(const host::ReadLayerDesc& layer) {
    if (!ReadChannelChain(g_, layer.compositeChannelsList, *color_)) return false;
    if (layer.transparency == nullptr) {
      if (!CopyPixels(*merged_, *color_)) return false;
      if (HasAlphaPlane()) RaiseAlpha(*merged_, 255);
      return true;
    }
    if (!ReadChannelChain(g_, layer.transparency, *alpha_)) return false;
    const Rect all{0, 0, bounds_.Height(), bounds_.Width()};
    if (!CompositeThroughMask(*merged_, *color_, *alpha_, all)) return false;
    if (HasAlphaPlane()) MergeAlpha(*merged_, *alpha_);
    return true;
  }

  // A copy that is only half read would show a picture that is none.
  [[nodiscard]] bool ReadTarget(const host::ReadLayerDesc& layer) {
    g_.documentCopy = nullptr;
    const ImagePtr copy = NewImage();
    if (!ReadChannelChain(g_, layer.compositeChannelsList, *copy)) return false;
    if (layer.transparency != nullptr) {
      if (!ReadChannelChain(g_, layer.transparency, *alpha_)) return false;
      if (HasAlphaPlane()) MergeAlpha(*copy, *alpha_);
    } else if (HasAlphaPlane()) {
      RaiseAlpha(*copy, 255);
    }
    g_.documentCopy = copy;
    return true;
  }

  FilterGlobals& g_;
  Rect bounds_;
  std::int8_t planes_;
  ImagePtr merged_;
  ImagePtr color_;
  ImagePtr alpha_;
};

}  // namespace

bool ReadDocumentLayers(FilterGlobals& g, const host::ReadChannelDesc* depthChannel) {
  const std::int32_t depth = depthChannel != nullptr ? depthChannel->depth : 0;
  if (depth != 0 && depth != kByteDepth) {
    FreeDocumentLayers(g);
    return false;
  }
  return LayerReader(g).Read();
}

void FreeDocumentLayers(FilterGlobals& g) {
  g.documentCopy = nullptr;
  g.layersBelow = nullptr;
}

}  // namespace tarnwick
