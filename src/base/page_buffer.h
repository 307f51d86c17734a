#pragma once
#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/page_memory.h"

namespace tarnwick {

// Owns a block of zeroed pages that holds `Size()` samples of type T. Empty
// after a failed Allocate; every user asks before it writes.
template <typename T>
class PageBuffer {
 public:
  PageBuffer() = default;
  ~PageBuffer() { Free(); }
  PageBuffer(const PageBuffer&) = delete;
  PageBuffer& operator=(const PageBuffer&) = delete;
  PageBuffer(PageBuffer&& other) noexcept
      : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)) {}
  PageBuffer& operator=(PageBuffer&& other) noexcept {
    if (this != &other) {
      Free();
      data_ = std::exchange(other.data_, nullptr);
      size_ = std::exchange(other.size_, 0);
    }
    return *this;
  }

  // Frees what it holds and takes `count` zeroed samples; false, and empty,
  // without memory.
  [[nodiscard]] bool Allocate(std::size_t count) {
    Free();
    if (count > SIZE_MAX / sizeof(T)) return false;
    data_ = static_cast<T*>(AllocatePages(count * sizeof(T)));
    size_ = data_ != nullptr ? count : 0;
    return data_ != nullptr;
  }
  void Free() {
    FreePages(data_, size_ * sizeof(T));
    data_ = nullptr;
    size_ = 0;
  }
  [[nodiscard]] T* Data() { return data_; }
  [[nodiscard]] const T* Data() const { return data_; }
  [[nodiscard]] std::size_t Size() const { return size_; }
  explicit operator bool() const { return data_ != nullptr; }

  // Hands the pages out; whoever takes them frees them with FreePages.
  [[nodiscard]] T* Detach() {
    size_ = 0;
    return std::exchange(data_, nullptr);
  }
  // Takes pages of `count` samples that Detach or AllocatePages gave.
  void Adopt(T* pages, std::size_t count) {
    Free();
    data_ = pages;
    size_ = pages != nullptr ? count : 0;
  }

 private:
  T* data_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace tarnwick
