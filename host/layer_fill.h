#pragma once
#include "host/document.h"
#include "support/pnm.h"

namespace tarnwick::testhost {

// A layer of `planes` planes whose first planes come from a picture: its red,
// green and blue (in CMYK without black), then its fourth plane as transparency.
// The others hold PlaneFill. Throws std::runtime_error when the sizes differ.
[[nodiscard]] Layer MakeLayer(const Document& document, const std::string& name, int planes,
                              const testing::Pnm& picture);

// A picture of three planes with a fourth from another one.
[[nodiscard]] testing::Pnm WithAlpha(const testing::Pnm& color, const testing::Pnm& alpha);

// A pattern of colours.
[[nodiscard]] testing::Pnm PatternPicture(int width, int height);

// For a document of 16 bits: the picture's bytes one after the other from the
// first sample on, the rest a pattern.
[[nodiscard]] Layer MakeByteLayer(const Document& document, const std::string& name, int planes,
                                  const testing::Pnm& picture);

// Planes `low` to `high` of a layer, as a picture; 8 bits.
[[nodiscard]] testing::Pnm PlanesOf(const Document& document, const Layer& layer, int low,
                                    int high);

void WritePam(const std::string& path, const testing::Pnm& picture);

}  // namespace tarnwick::testhost
