#pragma once
#include <optional>
#include <string>

#include "textures/thumbnail_picture.h"

namespace tarnwick {

// Thumbnails as files: plain 24-bit Windows bitmaps. 14 and 40 bytes of header,
// then the rows from the bottom up, blue first, each padded to 4 bytes.

// Where the thumbnail of a texture lies: its whole file name with ".bmp".
[[nodiscard]] std::string ThumbnailPath(const std::string& folder, const std::string& textureName);

// Nothing for a file that is missing, cut or of another kind, or that is larger
// than a thumbnail can be (4096 pixels a side).
[[nodiscard]] std::optional<ThumbnailPicture> ReadThumbnail(const std::string& path);

// The same, and nothing for a picture of another size.
[[nodiscard]] std::optional<ThumbnailPicture> ReadThumbnail(const std::string& path,
                                                            ThumbnailSize size);

// Writes the file as a whole or not at all, through `path` with ".part" added.
// False, and what was at `path` untouched, if that cannot be done.
[[nodiscard]] bool WriteThumbnail(const std::string& path, const ThumbnailPicture& picture);

}  // namespace tarnwick
