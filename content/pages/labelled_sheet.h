#pragma once
#include <string>
#include <vector>

#include "builder/contact_sheet.h"

namespace tarnwick::content {

// A picture of a page, with its name under it.
struct LabelledPicture {
  std::string name;
  std::string note;     // small print below the name; may be empty
  GreyPicture picture;  // at most kCellWidth x kCellHeight
  GreyPicture tile;     // stands beside the name; may be empty
};

inline constexpr int kCellWidth = 300, kCellHeight = 225;
inline constexpr int kTileWidth = 112, kTileHeight = 84;

// Writes the pictures in rows of `columns` as a grey JPEG. Names are set in
// whatever sans-serif the machine has, so the file differs from one to the next.
// Throws vips::VError if the file cannot be written; needs VIPS_INIT before.
void WriteLabelledSheet(const std::string& path, const std::vector<LabelledPicture>& pictures,
                        int columns);

}  // namespace tarnwick::content
