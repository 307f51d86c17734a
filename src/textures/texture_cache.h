#pragma once
#include <cstddef>
#include <cstdint>
#include <list>
#include <string>

#include "imaging/raster_image.h"

namespace tarnwick {

// Textures as layers take them, unpacked and scaled to cover a document, kept
// for the next render of the same document: reading and enlarging a texture
// costs more than most stages of a preview.
//
// Shared   images are handed out as they are and must not be changed; LoadTexture
//          copies one before it would. Layers that were set up with a cache are
//          for rendering only: layer_edit.h changes textures in place.
// Files    are not looked at again: what changes on the disk goes unnoticed.
// Memory   at most `maxBytes` of samples; what was not asked for the longest goes
//          first. An image lives on where a layer holds it.
// Threads  for one at a time.
class TextureCache {
 public:
  explicit TextureCache(std::size_t maxBytes) : maxBytes_(maxBytes) {}

  // What a scaled texture hangs on. `slider` is the scale setting, 0..200.
  struct Key {
    std::string path;
    std::int32_t documentWidth = 0;
    std::int32_t documentHeight = 0;
    double slider = 0;
    bool operator==(const Key&) const = default;
  };

  struct Entry {
    ImagePtr image;  // scaled, but as the file has it: not inverted, flipped or turned
    std::int32_t fileWidth = 0;
    std::int32_t fileHeight = 0;
  };

  // Null if it is not kept; else good until the next Keep.
  [[nodiscard]] const Entry* Find(const Key& key);
  void Keep(const Key& key, const Entry& entry);

 private:
  struct Kept {
    Key key;
    Entry entry;
    std::size_t bytes;
  };
  std::list<Kept> kept_;  // the last used one first
  std::size_t bytes_ = 0;
  std::size_t maxBytes_;
};

}  // namespace tarnwick
