#pragma once
#include "host_interface/host_types.h"

// Procedure tables that hang on the filter record, as far as they are used.

namespace tarnwick::host {

struct HandleProcs {
  std::int16_t handleProcsVersion;
  std::int16_t numHandleProcs;
  Handle(TARNWICK_HOST_CALL* newProc)(std::int32_t size);
  void(TARNWICK_HOST_CALL* disposeProc)(Handle h);
  std::int32_t(TARNWICK_HOST_CALL* getSizeProc)(Handle h);
  OSErr(TARNWICK_HOST_CALL* setSizeProc)(Handle h, std::int32_t newSize);
  char*(TARNWICK_HOST_CALL* lockProc)(Handle h, Boolean moveHigh);
  void(TARNWICK_HOST_CALL* unlockProc)(Handle h);
  void(TARNWICK_HOST_CALL* recoverSpaceProc)(std::int32_t size);
  void(TARNWICK_HOST_CALL* disposeRegularHandleProc)(Handle h);
};
static_assert(sizeof(HandleProcs) == (sizeof(void*) == 4 ? 36 : 72));

inline constexpr std::int16_t plugIncolorServicesChooseColor = 0;
inline constexpr std::int16_t plugIncolorServicesConvertColor = 1;

// Colour spaces of the colour services and the colour space suite.
inline constexpr std::int16_t plugIncolorServicesRGBSpace = 0;
inline constexpr std::int16_t plugIncolorServicesCMYKSpace = 2;
inline constexpr std::int16_t plugIncolorServicesGraySpace = 4;
inline constexpr std::int16_t plugIncolorServicesChosenSpace = -1;

struct ColorServicesInfo {
  std::int32_t infoSize;
  std::int16_t selector;
  std::int16_t sourceSpace;
  std::int16_t resultSpace;
  Boolean resultGamutInfoValid;
  Boolean resultInGamut;
  void* reservedSourceSpaceInfo;
  void* reservedResultSpaceInfo;
  std::int16_t colorComponents[4];
  void* reserved;
  union {
    Str255* pickerPrompt;
    Point* globalSamplePoint;
    std::int32_t specialColorID;
  } selectorParameter;
};
static_assert(sizeof(ColorServicesInfo) == (sizeof(void*) == 4 ? 36 : 56));
static_assert(offsetof(ColorServicesInfo, colorComponents) == (sizeof(void*) == 4 ? 20 : 32));
static_assert(offsetof(ColorServicesInfo, selectorParameter) == (sizeof(void*) == 4 ? 32 : 48));

using ColorServicesProc = OSErr(TARNWICK_HOST_CALL*)(ColorServicesInfo* info);

// Steps are in bits.
struct PixelMemoryDesc {
  void* data;
  std::int32_t rowBits;
  std::int32_t colBits;
  std::int32_t bitOffset;
  std::int32_t depth;
};
static_assert(sizeof(PixelMemoryDesc) == (sizeof(void*) == 4 ? 20 : 24));

struct PSScaling {
  VRect sourceRect;
  VRect destinationRect;
};
static_assert(sizeof(PSScaling) == 32);

struct ChannelPort;  // the host's own

struct ChannelPortProcs {
  std::int16_t channelPortProcsVersion;
  std::int16_t numChannelPortProcs;
  OSErr(TARNWICK_HOST_CALL* readPixelsProc)(ChannelPort* port, const PSScaling* scaling,
                                            const VRect* writeRect,
                                            const PixelMemoryDesc* destination, VRect* wroteRect);
  OSErr(TARNWICK_HOST_CALL* writeBasePixelsProc)(ChannelPort* port, const VRect* writeRect,
                                                 const PixelMemoryDesc* source);
  OSErr(TARNWICK_HOST_CALL* readPortForWritePortProc)(ChannelPort** readPort,
                                                      ChannelPort* writePort);
};
static_assert(sizeof(ChannelPortProcs) == (sizeof(void*) == 4 ? 16 : 32));

}  // namespace tarnwick::host
