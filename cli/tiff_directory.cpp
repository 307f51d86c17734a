#include "tiff_directory.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarnwick {
namespace {

constexpr std::size_t kEntryBytes = 12;
constexpr std::size_t kInlineBytes = 4;
constexpr std::uint32_t kMostEntries = 1000;
constexpr std::uint64_t kLargestValue = 1u << 24;

// Bytes of one value by type, and of the numbers that it is made of: a rational
// is two numbers. 0: unknown.
struct TypeSize {
  std::size_t value;
  std::size_t number;
};

constexpr TypeSize SizeOf(std::uint16_t type) {
  constexpr std::array<TypeSize, 14> kSizes = {{{0, 0},
                                                {1, 1},
                                                {1, 1},
                                                {2, 2},
                                                {4, 4},
                                                {8, 4},
                                                {1, 1},
                                                {1, 1},
                                                {2, 2},
                                                {4, 4},
                                                {8, 4},
                                                {4, 4},
                                                {8, 8},
                                                {4, 4}}};
  return type < kSizes.size() ? kSizes[type] : TypeSize{0, 0};
}

// To little-endian, number by number.
void Normalize(std::span<std::uint8_t> bytes, std::size_t numberSize, bool little) {
  if (little || numberSize < 2) return;
  for (std::size_t at = 0; at + numberSize <= bytes.size(); at += numberSize) {
    std::ranges::reverse(bytes.subspan(at, numberSize));
  }
}

}  // namespace

std::uint32_t GetLittle(std::span<const std::uint8_t> bytes, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i-- > 0;) value = value << 8 | bytes[i];
  return value;
}

void PutLittle(std::vector<std::uint8_t>& bytes, std::uint32_t value, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
  }
}

const TiffEntry* TiffDirectory::Find(std::uint16_t tag) const {
  const auto found = std::ranges::find(entries, tag, &TiffEntry::tag);
  return found == entries.end() ? nullptr : &*found;
}

std::uint32_t TiffDirectory::OffsetAt(std::uint16_t tag) const {
  const TiffEntry* entry = Find(tag);
  return entry != nullptr && entry->value.size() == 4 ? GetLittle(entry->value, 4) : 0;
}

void TiffDirectory::Put(TiffEntry entry) {
  Remove(entry.tag);
  entries.push_back(std::move(entry));
}

void TiffDirectory::Remove(std::uint16_t tag) {
  std::erase_if(entries, [&](const TiffEntry& entry) { return entry.tag == tag; });
}

TiffReader::TiffReader(TiffBytes bytes) : bytes_(std::move(bytes)) {
  std::array<std::uint8_t, 8> header{};
  if (!bytes_(0, header)) return;
  if (header[0] != header[1] || (header[0] != 'I' && header[0] != 'M')) return;
  little_ = header[0] == 'I';
  Normalize(std::span(header).subspan(2, 2), 2, little_);
  Normalize(std::span(header).subspan(4, 4), 4, little_);
  constexpr std::uint32_t kClassic = 42;
  if (GetLittle(std::span(header).subspan(2), 2) != kClassic) return;
  first_ = GetLittle(std::span(header).subspan(4), 4);
}

bool TiffReader::ReadEntry(std::uint64_t offset, TiffEntry& entry) const {
  std::array<std::uint8_t, kEntryBytes> raw{};
  if (!bytes_(offset, raw)) return false;
  const std::span all(raw);
  Normalize(all.first(2), 2, little_);
  Normalize(all.subspan(2, 2), 2, little_);
  Normalize(all.subspan(4, 4), 4, little_);
  entry.tag = static_cast<std::uint16_t>(GetLittle(all, 2));
  entry.type = static_cast<std::uint16_t>(GetLittle(all.subspan(2), 2));
  entry.count = GetLittle(all.subspan(4), 4);
  const TypeSize size = SizeOf(entry.type);
  const std::uint64_t length = std::uint64_t{entry.count} * size.value;
  if (length == 0 || length > kLargestValue) return false;
  entry.value.resize(static_cast<std::size_t>(length));
  if (length <= kInlineBytes) {
    std::copy_n(raw.begin() + 8, length, entry.value.begin());
  } else {
    Normalize(all.subspan(8), 4, little_);
    entry.heldAt = GetLittle(all.subspan(8), 4);
    if (!bytes_(entry.heldAt, entry.value)) return false;
  }
  Normalize(entry.value, size.number, little_);
  return true;
}

std::optional<TiffDirectory> TiffReader::Read(std::uint32_t offset) const {
  std::array<std::uint8_t, 2> head{};
  if (offset == 0 || !bytes_(offset, head)) return std::nullopt;
  Normalize(head, 2, little_);
  const std::uint32_t count = GetLittle(head, 2);
  if (count > kMostEntries) return std::nullopt;
  TiffDirectory directory;
  for (std::uint32_t i = 0; i < count; ++i) {
    TiffEntry entry;
    if (ReadEntry(std::uint64_t{offset} + 2 + i * kEntryBytes, entry)) {
      directory.Put(std::move(entry));
    } else {
      directory.whole = false;
    }
  }
  std::array<std::uint8_t, 4> next{};
  if (bytes_(std::uint64_t{offset} + 2 + count * kEntryBytes, next)) {
    Normalize(next, 4, little_);
    directory.next = GetLittle(next, 4);
  }
  return directory;
}

std::vector<std::uint8_t> PackDirectory(TiffDirectory directory, std::uint32_t offset) {
  std::ranges::stable_sort(directory.entries, {}, &TiffEntry::tag);
  const std::size_t count = directory.entries.size();
  std::vector<std::uint8_t> bytes;
  std::vector<std::uint8_t> values;
  const std::size_t valuesAt = offset + 2 + count * kEntryBytes + 4;
  PutLittle(bytes, static_cast<std::uint32_t>(count), 2);
  for (const TiffEntry& entry : directory.entries) {
    PutLittle(bytes, entry.tag, 2);
    PutLittle(bytes, entry.type, 2);
    PutLittle(bytes, entry.count, 4);
    if (entry.value.size() <= kInlineBytes) {
      bytes.insert(bytes.end(), entry.value.begin(), entry.value.end());
      bytes.resize(bytes.size() + kInlineBytes - entry.value.size());
    } else if (entry.heldAt != 0) {
      PutLittle(bytes, entry.heldAt, 4);
    } else {
      PutLittle(bytes, static_cast<std::uint32_t>(valuesAt + values.size()), 4);
      values.insert(values.end(), entry.value.begin(), entry.value.end());
      if (values.size() % 2 != 0) values.push_back(0);
    }
  }
  PutLittle(bytes, 0, 4);
  bytes.insert(bytes.end(), values.begin(), values.end());
  return bytes;
}

}  // namespace tarnwick
