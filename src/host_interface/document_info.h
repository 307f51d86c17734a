#pragma once
#include "host_interface/host_procs.h"

// The host's description of the document: channels and layers. The host owns it
// all; lists end with null, and minVersion and maxVersion tell how far a record
// reaches. Declared as far as it is used.

namespace tarnwick::host {

struct ReadChannelDesc {
  std::int32_t minVersion, maxVersion;
  ReadChannelDesc* next;
  ChannelPort* port;
  VRect bounds;
  std::int32_t depth;
  VPoint tileSize, tileOrigin;
  Boolean target, shown;
  std::int16_t channelType;
  void* contextInfo;
  const char* name;
};
static_assert(sizeof(ReadChannelDesc) == (sizeof(void*) == 4 ? 64 : 80));
static_assert(offsetof(ReadChannelDesc, bounds) == (sizeof(void*) == 4 ? 16 : 24));

// Bottom layer first.
struct ReadLayerDesc {
  std::int32_t minVersion, maxVersion;
  ReadLayerDesc* next;
  ReadChannelDesc* compositeChannelsList;
  ReadChannelDesc* transparency;  // null: opaque
  ReadChannelDesc* layerMask;
  std::uint32_t sheetID;
  const char* name;
};
static_assert(sizeof(ReadLayerDesc) == (sizeof(void*) == 4 ? 32 : 56));

struct ReadImageDocumentDesc {
  std::int32_t minVersion, maxVersion;
  std::int32_t imageMode;
  std::int32_t depth;
  VRect bounds;
  Fixed hResolution, vResolution;
  std::uint8_t redLUT[256], greenLUT[256], blueLUT[256];
  ReadChannelDesc* targetCompositeChannels;
  ReadChannelDesc* targetTransparency;
  ReadChannelDesc* targetLayerMask;
  ReadChannelDesc* mergedCompositeChannels;
  ReadChannelDesc* mergedTransparency;
  ReadChannelDesc* alphaChannels;
  ReadChannelDesc* selection;
  // From version 2 on; older records end here.
  void* fileSpec;
  ReadLayerDesc* layersDescriptor;
};
static_assert(offsetof(ReadImageDocumentDesc, targetCompositeChannels) == 808);
static_assert(offsetof(ReadImageDocumentDesc, layersDescriptor) ==
              (sizeof(void*) == 4 ? 840 : 872));

}  // namespace tarnwick::host
