#pragma once
#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

namespace tarnwick {

// What the picture library leaves behind of a TIFF file's metadata. EXIF, which
// there is spread over the file's own directories, it neither reads nor writes;
// of IPTC it writes a quarter.

// What a TIFF file says of camera, author and place, as a block for the other
// formats ("Exif", two zeros, then a TIFF structure). Empty if it says nothing
// or cannot be read. Orientation and small pictures are not taken over.
[[nodiscard]] std::vector<std::uint8_t> ExifOfTiff(const std::filesystem::path& path);

// Adds such a block and bare IPTC data (iptc_block.h), each if it is not empty,
// to a finished TIFF file of width x height pixels. EXIF fields that the file
// has already stay. False, with the file as it was, when the block or the file
// is of a form that cannot be joined, such as a TIFF with 64-bit offsets.
[[nodiscard]] bool AddMetadataToTiff(const std::filesystem::path& path,
                                     std::span<const std::uint8_t> exif,
                                     std::span<const std::uint8_t> iptc, int width, int height);

}  // namespace tarnwick
