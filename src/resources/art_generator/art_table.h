#pragma once
#include <span>

namespace tarnwick {

// Everything drawn for the module: the one list of numbers, sizes, states and sources.

// One bitmap: a source in one state. The states of a control share their source, where
// the state is the class of the root element, so nothing else can differ.
struct ArtBitmap {
  int id;
  const char* source;   // in src/resources/art, without ".svg"
  const char* classes;  // of the root: "normal", or what differs from it
  int width, height;    // pixels; those of the source, unless it is cut out of one
  // Where in the source, of a button that is drawn on the whole of what it lies on: moved
  // drawing rounds here and there to another shade, and its outline would show.
  int cutLeft = 0, cutTop = 0;
};

// An icon or a cursor: one source, drawn at several sizes. Up to `smallUpTo` pixels a
// source named with "_small" behind takes its place.
struct ArtIcon {
  int id;
  const char* source;
  int smallUpTo;
  bool isCursor;
  double hotX, hotY;  // of a cursor, as shares of its side
};

[[nodiscard]] std::span<const ArtBitmap> ArtBitmaps();
[[nodiscard]] std::span<const ArtIcon> ArtIcons();

// Sides in pixels, ascending.
[[nodiscard]] std::span<const int> IconSides();
[[nodiscard]] std::span<const int> CursorSides();

}  // namespace tarnwick
