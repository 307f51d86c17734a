#pragma once
#include <cstddef>
#include <cstdint>

// The host's plug-in interface, in our own words: scalars, results, selectors.
// Everything in this folder is layout and numbers; it has no code of its own.
//
// Names that the host publishes are spelled as it spells them. All procedures
// are cdecl, in both directions. Four-character codes are words whose most
// significant byte is the first character.

#if defined(__i386__)
#define TARNWICK_HOST_CALL __attribute__((cdecl))
#else
#define TARNWICK_HOST_CALL
#endif

namespace tarnwick::host {

using Boolean = std::uint8_t;  // 0 or 1
using OSErr = std::int16_t;
using SPErr = std::int32_t;
using SPBoolean = std::int32_t;
using Fixed = std::int32_t;  // 16.16
using OSType = std::uint32_t;
using Str255 = std::uint8_t[256];  // a length byte, then the characters

// The master pointer of a block. The block may move while it is not locked.
using Handle = char**;

struct Point {
  std::int16_t v, h;
};

// Bottom and right lie outside.
struct Rect16 {
  std::int16_t top, left, bottom, right;
};

struct VPoint {
  std::int32_t v, h;
};

struct VRect {
  std::int32_t top, left, bottom, right;
};

struct RGBColor {
  std::uint16_t red, green, blue;
};

static_assert(sizeof(Point) == 4 && sizeof(Rect16) == 8 && sizeof(VPoint) == 8 &&
              sizeof(VRect) == 16 && sizeof(RGBColor) == 6);

inline constexpr Fixed kFixedOne = 0x10000;

[[nodiscard]] constexpr OSType FourCC(const char (&text)[5]) {
  return static_cast<OSType>(static_cast<std::uint8_t>(text[0])) << 24 |
         static_cast<OSType>(static_cast<std::uint8_t>(text[1])) << 16 |
         static_cast<OSType>(static_cast<std::uint8_t>(text[2])) << 8 |
         static_cast<OSType>(static_cast<std::uint8_t>(text[3]));
}

inline constexpr std::int16_t filterSelectorAbout = 0;
inline constexpr std::int16_t filterSelectorParameters = 1;
inline constexpr std::int16_t filterSelectorPrepare = 2;
inline constexpr std::int16_t filterSelectorStart = 3;
inline constexpr std::int16_t filterSelectorContinue = 4;
inline constexpr std::int16_t filterSelectorFinish = 5;

inline constexpr OSErr noErr = 0;
inline constexpr OSErr coercedParam = 2;
inline constexpr OSErr paramErr = -50;
inline constexpr OSErr memFullErr = -108;
inline constexpr OSErr userCanceledErr = -128;
inline constexpr OSErr errAEParamMissed = -1715;
inline constexpr OSErr filterBadParameters = -30100;
inline constexpr OSErr filterBadMode = -30101;
inline constexpr OSErr errPlugInHostInsufficient = -30900;

inline constexpr SPErr kSPNoError = 0;
inline constexpr SPErr kSPBadParameterError = static_cast<SPErr>(FourCC("Parm"));
inline constexpr SPErr kSPSuiteNotFoundError = static_cast<SPErr>(FourCC("S!Fd"));
inline constexpr SPErr kSPUnimplementedError = static_cast<SPErr>(FourCC("!IMP"));

// Values of imageMode.
inline constexpr std::int16_t plugInModeGrayScale = 1;
inline constexpr std::int16_t plugInModeIndexedColor = 2;
inline constexpr std::int16_t plugInModeRGBColor = 3;
inline constexpr std::int16_t plugInModeCMYKColor = 4;
inline constexpr std::int16_t plugInModeRGB48 = 11;
inline constexpr std::int16_t plugInModeCMYK64 = 13;

}  // namespace tarnwick::host
