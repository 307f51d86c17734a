#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick::content {

// A grey picture of bytes, rows without padding.
struct GreyPicture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> samples;
};

// The picture reduced to fit width x height by means of areas, keeping its
// shape; never enlarged.
[[nodiscard]] GreyPicture Reduced(const GreyPicture& picture, int width, int height);

// The tile that a texture chooser shows: every fourth sample from the middle,
// unfiltered.
[[nodiscard]] GreyPicture ChooserTile(const GreyPicture& picture, int width, int height);

// One picture below the other, both centred, on mid grey.
[[nodiscard]] GreyPicture Stacked(const GreyPicture& above, const GreyPicture& below);

// Pictures in rows of `columns`, each centred in a cell of the given size, on
// mid grey.
[[nodiscard]] GreyPicture ContactSheet(const std::vector<GreyPicture>& pictures, int columns,
                                       int cellWidth, int cellHeight);

// Writes binary PGM; false if the file cannot be written.
[[nodiscard]] bool WritePgm(const std::string& path, const GreyPicture& picture);

}  // namespace tarnwick::content
