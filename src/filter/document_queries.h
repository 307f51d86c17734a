#pragma once
#include <cstdint>
#include <optional>
#include <string>

#include "host_interface/filter_record.h"

namespace tarnwick {

// What the host tells of the document and its layers. Hosts may lack all of it.

// Colour channels of the target layer; of the whole picture if it has none; the
// record's planes where the host describes no document.
[[nodiscard]] std::int32_t DocumentPlaneCount(const host::FilterRecord& record);

// Whether the description is new enough to list layers.
[[nodiscard]] bool HasLayerInfo(const host::FilterRecord& record);

// The channel that tells how deep the document's samples are: the first of its
// colours, or else the first of its other channels. Null without a description.
[[nodiscard]] const host::ReadChannelDesc* DepthChannel(const host::FilterRecord& record);

// Asked through the host's action suites. A layer that it cannot answer for does
// not count as visible.
[[nodiscard]] bool IsLayerVisible(host::SPBasicSuite* broker, const host::ReadLayerDesc& layer);

// The name of the layer that is worked on; nothing without the suites.
[[nodiscard]] std::optional<std::string> GetTargetLayerName(host::SPBasicSuite* broker);

}  // namespace tarnwick
