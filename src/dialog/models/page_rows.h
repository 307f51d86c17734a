#pragma once
#include <cstdint>
#include <span>

#include "settings/effect_settings.h"

namespace tarnwick {

// The controls of the four pages: which field each shows and edits, what it says, and
// what its change means to the layers. Pages, edits and their tests read this table.

enum class RowKind : std::uint8_t {
  kValue,        // slider, edit field and up-down that show one number together
  kCheck,        // check box
  kRadio,        // two radio buttons, `id` for 1 and `editId` for 0
  kChoice,       // drop list
  kSwatch,       // colour swatch
  kTurn,         // button: a quarter turn of the texture
  kLink,         // check-style button
  kTexture,      // read-only edit: the texture's name
  kPickTexture,  // button: the drawer of textures
  kColors,       // read-only edit: the name of the colours
  kPickColors,   // button: the drawer of colours
  kSeedField,    // edit field
  kDraw,         // button: another seed
  kLight,        // ball, and its two edit fields
  kOffset,       // ball, and its two edit fields
};

// The operation on the layer that follows a new value.
enum class LayerSetter : std::uint8_t {
  kNone,
  kScale,
  kIntensity,
  kCoverage,
  kCoverageScale,
  kSeed,
  kInside,
  kEdgeDistance,
  kEdgeSoftness,
  kMirror,  // left and right change places
  kUpsideDown,
  kInvert,
  kTurnLeft,
  kTurnRight,
  kTones,
  kWashType,
  kWashColor,
  kSurfaceType,
  kDepth,
  kPerspective,
  kEnhanced,
};

// When a control can be used; see IsRowEnabled.
enum class RowNeeds : std::uint8_t {
  kNothing,
  kUse,            // the effect is in use
  kView,           // and it is the one effect that is seen, where there are two
  kShape,          // and its texture has a shape to turn
  kMove,           // and the texture can move
  kMatch,          // and another effect has the same texture
  kColoredType,    // and its type needs a colour
  kUsedAtAll,      // in use, whatever is seen
  kUsedAndShaped,  // the same, and its texture has a shape
  kUsedAndMatch,
  kTransparency,   // the document can be transparent
  kWashAndCanvas,  // and there is a wash, and the effect fills the canvas
};

// A number of the settings, whatever its type; colours as their words. `second`: of
// the second of two layers, where the field has two forms.
struct NumberField {
  std::int32_t (*get)(const EffectSettings& settings, bool second) = nullptr;
  void (*set)(EffectSettings& settings, bool second, std::int32_t value) = nullptr;
};

struct ControlRow {
  RowKind kind{};
  int id = 0;
  int editId = 0;  // of the edit field beside it
  int spinId = 0;  // of the up-down, or of the second edit field
  int labelId = 0;
  int secondLabelId = 0;
  const char* tip = nullptr;
  const char* secondTip = nullptr;  // of the other radio button
  std::int32_t minimum = 0;
  std::int32_t maximum = 0;
  NumberField field{};
  LayerSetter setter{};
  RowNeeds needs{};
  bool isLinked = false;        // what is linked to the effect follows
  bool changesSurface = false;  // the surface has to be rendered anew
  bool makesCustom = false;     // the colours lose their name
  std::span<const char* const> choices{};
};

// Of a page by its tab; Basic has none.
[[nodiscard]] std::span<const ControlRow> RowsOf(int tab);

// The groups whose titles follow their effect, by tab.
[[nodiscard]] std::span<const int> GroupsOf(int tab);

}  // namespace tarnwick
