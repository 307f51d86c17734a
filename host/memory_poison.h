#pragma once
#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
#define TARNWICK_POISONS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TARNWICK_POISONS 1
#endif
#endif
#ifdef TARNWICK_POISONS
#include <sanitizer/asan_interface.h>
#endif

namespace tarnwick::testhost {

inline constexpr unsigned char kPoison = 0xA5;

inline void UnpoisonMemory(char* bytes, std::size_t size) {
#ifdef TARNWICK_POISONS
  __asan_unpoison_memory_region(bytes, size);
#else
  (void)bytes;
  (void)size;
#endif
}

// Fills memory with a pattern; under the address sanitizer reading it is a fault
// at once.
inline void PoisonMemory(char* bytes, std::size_t size) {
  UnpoisonMemory(bytes, size);
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(kPoison);
#ifdef TARNWICK_POISONS
  __asan_poison_memory_region(bytes, size);
#endif
}

}  // namespace tarnwick::testhost
