#pragma once
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace tarnwick {

// Directories of tagged values, as TIFF files and EXIF blocks share them: the
// classic form with 32-bit offsets, of either byte order.

struct TiffEntry {
  std::uint16_t tag = 0;
  std::uint16_t type = 0;
  std::uint32_t count = 0;
  std::vector<std::uint8_t> value;  // all of it, little-endian
  // Where the value lies in the file it was read from, if not in the entry.
  std::uint32_t heldAt = 0;
};

struct TiffDirectory {
  std::vector<TiffEntry> entries;
  bool whole = true;       // no entry had to be left out
  std::uint32_t next = 0;  // the directory after this one, 0 for none

  [[nodiscard]] const TiffEntry* Find(std::uint16_t tag) const;
  // The value as an offset to another directory: 0 if there is none.
  [[nodiscard]] std::uint32_t OffsetAt(std::uint16_t tag) const;
  // Replaces an entry of the same tag.
  void Put(TiffEntry entry);
  void Remove(std::uint16_t tag);
};

// Reads `bytes.size()` bytes at `offset`, or returns false.
using TiffBytes = std::function<bool(std::uint64_t offset, std::span<std::uint8_t> bytes)>;

class TiffReader {
 public:
  // `bytes` is read as long as the reader lives.
  explicit TiffReader(TiffBytes bytes);

  // False for what is no classic TIFF; then nothing can be read.
  [[nodiscard]] bool IsGood() const { return first_ != 0; }
  [[nodiscard]] bool IsLittleEndian() const { return little_; }
  [[nodiscard]] std::uint32_t FirstDirectory() const { return first_; }

  // Entries that lead outside, or are of no known type, are left out; nothing
  // if there is no directory at all. Large values are left out too: what is
  // read here describes a picture, it is not one.
  [[nodiscard]] std::optional<TiffDirectory> Read(std::uint32_t offset) const;

 private:
  [[nodiscard]] bool ReadEntry(std::uint64_t offset, TiffEntry& entry) const;

  TiffBytes bytes_;
  bool little_ = true;
  std::uint32_t first_ = 0;
};

// The directory as bytes that will stand at `offset`, little-endian and the last
// of its file. Values come behind it, but for those that are held elsewhere in
// the same file.
[[nodiscard]] std::vector<std::uint8_t> PackDirectory(TiffDirectory directory,
                                                      std::uint32_t offset);

// A number of 16 or 32 bits at the start of `bytes`, and the way back.
[[nodiscard]] std::uint32_t GetLittle(std::span<const std::uint8_t> bytes, std::size_t size);
void PutLittle(std::vector<std::uint8_t>& bytes, std::uint32_t value, std::size_t size);

inline constexpr std::uint16_t kTiffLong = 4;
inline constexpr std::uint16_t kTiffUndefined = 7;

}  // namespace tarnwick
