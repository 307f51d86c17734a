#include "iptc_block.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tarnwick {
namespace {

constexpr std::string_view kBlockHead("Photoshop 3.0\0", 14);
constexpr std::string_view kResourceHead = "8BIM";
constexpr std::uint32_t kIptcResource = 0x0404;

bool StartsWith(std::span<const std::uint8_t> data, std::string_view text) {
  return data.size() >= text.size() &&
         std::equal(text.begin(), text.end(), data.begin(),
                    [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
}

std::uint32_t GetBig(std::span<const std::uint8_t> data, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < size; ++i) value = value << 8 | data[at + i];
  return value;
}

std::size_t Even(std::size_t size) {
  return size + size % 2;
}

}  // namespace

std::vector<std::uint8_t> BareIptc(std::span<const std::uint8_t> data) {
  if (!StartsWith(data, kBlockHead)) return {data.begin(), data.end()};
  data = data.subspan(kBlockHead.size());
  // Each resource: "8BIM", number, a name with its length before it, length,
  // data; name and data padded to even lengths.
  constexpr std::size_t kNameAt = 6;
  while (data.size() > kNameAt && StartsWith(data, kResourceHead)) {
    const std::size_t lengthAt = kNameAt + Even(data[kNameAt] + std::size_t{1});
    if (data.size() < lengthAt + 4) break;
    const std::size_t length = GetBig(data, lengthAt, 4);
    const std::span<const std::uint8_t> rest = data.subspan(lengthAt + 4);
    if (length > rest.size()) break;
    if (GetBig(data, 4, 2) == kIptcResource)
      return {rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(length)};
    data = rest.subspan(std::min(Even(length), rest.size()));
  }
  return {};
}

std::vector<std::uint8_t> WrappedIptc(std::span<const std::uint8_t> data) {
  if (StartsWith(data, kBlockHead)) return {data.begin(), data.end()};
  std::vector<std::uint8_t> block;
  for (const std::string_view text : {kBlockHead, kResourceHead}) {
    for (const char c : text) block.push_back(static_cast<std::uint8_t>(c));
  }
  // The number, and an empty name.
  block.insert(block.end(), {0x04, 0x04, 0x00, 0x00});
  for (int shift = 24; shift >= 0; shift -= 8) {
    block.push_back(static_cast<std::uint8_t>(data.size() >> shift));
  }
  block.insert(block.end(), data.begin(), data.end());
  if (data.size() % 2 != 0) block.push_back(0);
  return block;
}

}  // namespace tarnwick
