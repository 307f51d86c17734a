#include "textures/texture_cache.h"

#include <algorithm>

namespace tarnwick {

const TextureCache::Entry* TextureCache::Find(const Key& key) {
  const auto found =
      std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) { return kept.key == key; });
  if (found == kept_.end()) return nullptr;
  kept_.splice(kept_.begin(), kept_, found);
  return &kept_.front().entry;
}

void TextureCache::Keep(const Key& key, const Entry& entry) {
  const std::size_t bytes = entry.image->PlaneBytes();
  if (bytes > maxBytes_ || Find(key) != nullptr) return;
  while (bytes_ + bytes > maxBytes_) {
    bytes_ -= kept_.back().bytes;
    kept_.pop_back();
  }
  kept_.push_front({key, entry, bytes});
  bytes_ += bytes;
}

}  // namespace tarnwick
