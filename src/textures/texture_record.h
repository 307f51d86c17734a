#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

namespace tarnwick {

// Room for a name in a list of textures. Longer names are cut, and a cut name opens
// no file: such a texture is listed, but has no thumbnail. It has no tags either,
// unless only the extension is cut off.
inline constexpr std::size_t kMaxListedName = 32;

// What a picker knows of a texture: its file's name and what the header tells.
struct TextureRecord {
  std::string fileName;                // with extension, at most kMaxListedName bytes
  float scale = 4.0F;                  // source pixels per thumbnail pixel
  std::int32_t referenceWidth = 2048;  // image width at which `scale` holds
  std::int32_t listIndex = 0;          // in a filtered list: its place in the full one
  bool smallSource = false;            // smaller than the area that a thumbnail samples
  std::uint32_t headerWord = 0;        // kept, no picker reads it
  std::uint32_t effectMask = 0;        // bit n set: effect n of texture_effects.h
  std::uint32_t setId = 0;             // of the set that holds it
};

// The name without a final ".twk". By case: "Rusted.TWK" stays as it is.
[[nodiscard]] std::string TextureDisplayName(const std::string& fileName);

// The header's words from the file at `folder`, the platform's separator and the
// record's name, which gets ".twk" if it lacks it. A file that is missing, short
// or none of ours leaves the record as it is.
void ReadRecordHeader(const std::string& folder, TextureRecord& record);

}  // namespace tarnwick
