#pragma once
#include "host_interface/descriptor_procs.h"
#include "host_interface/document_info.h"
#include "host_interface/host_procs.h"
#include "host_interface/suites.h"

// The records that the host passes to the entry point.

namespace tarnwick::host {

struct AboutRecord {
  void* platformData;
  SPBasicSuite* sSPBasic;
  void* plugInRef;
  char reserved[244];
};
static_assert(sizeof(AboutRecord) == (sizeof(void*) == 4 ? 256 : 272));

// The host's window; `platformData` points at this.
struct PlatformData {
  void* hwnd;
};

// 32-bit rectangles beside the 16-bit ones of the filter record.
struct BigDocumentStruct {
  std::int32_t PluginUsing32BitCoordinates;  // set by the module
  VPoint imageSize32;
  VRect filterRect32;
  VRect inRect32;
  VRect outRect32;
  VRect maskRect32;
  VPoint floatCoord32;
  VPoint wholeSize32;
};
static_assert(sizeof(BigDocumentStruct) == 92);

using TestAbortProc = Boolean(TARNWICK_HOST_CALL*)();
using ProgressProc = void(TARNWICK_HOST_CALL*)(std::int32_t done, std::int32_t total);
using AdvanceStateProc = OSErr(TARNWICK_HOST_CALL*)();

// Declared up to bigDocumentData; the host's own may be longer.
#pragma pack(push, 4)
struct FilterRecord {
  std::int32_t serialNumber;
  TestAbortProc abortProc;
  ProgressProc progressProc;
  Handle parameters;
  Point imageSize;
  std::int16_t planes;
  Rect16 filterRect;
  RGBColor background;
  RGBColor foreground;
  std::int32_t maxSpace;
  std::int32_t bufferSpace;
  Rect16 inRect;
  std::int16_t inLoPlane, inHiPlane;
  Rect16 outRect;
  std::int16_t outLoPlane, outHiPlane;
  void* inData;
  std::int32_t inRowBytes;
  void* outData;
  std::int32_t outRowBytes;
  Boolean isFloating;
  Boolean haveMask;
  Boolean autoMask;
  Rect16 maskRect;
  void* maskData;  // 255: fully selected
  std::int32_t maskRowBytes;
  std::uint8_t backColor[4];
  std::uint8_t foreColor[4];
  OSType hostSig;
  void* hostProc;
  std::int16_t imageMode;
  Fixed imageHRes, imageVRes;
  Point floatCoord;
  Point wholeSize;
  Fixed monitor[10];
  PlatformData* platformData;
  void* bufferProcs;
  void* resourceProcs;
  void* processEvent;
  void* displayPixels;
  HandleProcs* handleProcs;
  Boolean supportsDummyChannels;
  Boolean supportsAlternateLayouts;
  std::int16_t wantLayout;
  std::int16_t filterCase;
  std::int16_t dummyPlaneValue;
  void* premiereHook;
  AdvanceStateProc advanceState;
  Boolean supportsAbsolute;
  Boolean wantsAbsolute;
  void* getPropertyObsolete;
  Boolean cannotUndo;
  Boolean supportsPadding;
  std::int16_t inputPadding, outputPadding, maskPadding;
  std::uint8_t samplingSupport;
  std::uint8_t reservedByte;
  Fixed inputRate;
  Fixed maskRate;
  ColorServicesProc colorServices;
  std::int16_t inLayerPlanes, inTransparencyMask, inLayerMasks, inInvertedLayerMasks,
      inNonLayerPlanes;
  std::int16_t outPlaneCounts[5];
  std::int16_t absPlaneCounts[5];
  std::int16_t dummyPlaneCounts[4];
  std::int32_t inColumnBytes, inPlaneBytes, outColumnBytes, outPlaneBytes;
  void* imageServicesProcs;
  void* propertyProcs;
  std::int16_t tiles[16];  // four times height, width, origin
  PIDescriptorParameters* descriptorParameters;
  Str255* errorString;
  ChannelPortProcs* channelPortProcs;
  ReadImageDocumentDesc* documentInfo;
  SPBasicSuite* sSPBasic;
  SPPlugin* plugInRef;
  std::int32_t depth;  // bits a sample; 0 in old hosts: 8
  Handle iCCprofileData;
  std::int32_t iCCprofileSize;
  std::int32_t canUseICCProfiles;
  std::int32_t hasImageScrap;
  BigDocumentStruct* bigDocumentData;
};
#pragma pack(pop)

#define TARNWICK_AT(field, at32, at64) \
  static_assert(offsetof(FilterRecord, field) == (sizeof(void*) == 4 ? (at32) : (at64)), #field)
TARNWICK_AT(parameters, 12, 20);
TARNWICK_AT(planes, 20, 32);
TARNWICK_AT(maxSpace, 44, 56);
TARNWICK_AT(inRect, 52, 64);
TARNWICK_AT(inData, 76, 88);
TARNWICK_AT(outData, 84, 100);
TARNWICK_AT(haveMask, 93, 113);
TARNWICK_AT(maskRect, 96, 116);
TARNWICK_AT(maskData, 104, 124);
TARNWICK_AT(imageMode, 128, 156);
TARNWICK_AT(floatCoord, 140, 168);
TARNWICK_AT(platformData, 188, 216);
TARNWICK_AT(handleProcs, 208, 256);
TARNWICK_AT(advanceState, 224, 280);
TARNWICK_AT(inputPadding, 238, 302);
TARNWICK_AT(inputRate, 248, 312);
TARNWICK_AT(colorServices, 256, 320);
TARNWICK_AT(inColumnBytes, 300, 368);
TARNWICK_AT(propertyProcs, 320, 392);
TARNWICK_AT(descriptorParameters, 356, 432);
TARNWICK_AT(channelPortProcs, 364, 448);
TARNWICK_AT(documentInfo, 368, 456);
TARNWICK_AT(sSPBasic, 372, 464);
TARNWICK_AT(plugInRef, 376, 472);
TARNWICK_AT(depth, 380, 480);
TARNWICK_AT(bigDocumentData, 400, 504);
#undef TARNWICK_AT
static_assert(sizeof(FilterRecord) == (sizeof(void*) == 4 ? 404 : 512));

}  // namespace tarnwick::host
