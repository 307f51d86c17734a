#include "support/wash_bytes.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

void PutLittle(Bytes& bytes, std::uint32_t word) {
  for (int shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<std::uint8_t>(word >> shift));
  }
}

void PutBig(Bytes& bytes, std::uint32_t word) {
  for (int shift = 24; shift >= 0; shift -= 8) {
    bytes.push_back(static_cast<std::uint8_t>(word >> shift));
  }
}

}  // namespace

Bytes StoredStream(const Bytes& samples) {
  Bytes stream = {0x78, 0x01};
  std::size_t at = 0;
  do {
    const std::size_t length = std::min<std::size_t>(samples.size() - at, 65535);
    stream.push_back(at + length == samples.size() ? 1 : 0);
    const auto low = static_cast<std::uint8_t>(length);
    const auto high = static_cast<std::uint8_t>(length >> 8);
    stream.insert(stream.end(),
                  {low, high, static_cast<std::uint8_t>(~low), static_cast<std::uint8_t>(~high)});
    const auto first = samples.begin() + static_cast<std::ptrdiff_t>(at);
    stream.insert(stream.end(), first, first + static_cast<std::ptrdiff_t>(length));
    at += length;
  } while (at < samples.size());
  std::uint32_t a = 1;
  std::uint32_t b = 0;
  for (const std::uint8_t sample : samples) {
    a = (a + sample) % 65521;
    b = (b + a) % 65521;
  }
  PutBig(stream, b << 16 | a);
  return stream;
}

Bytes WashHeader(std::uint32_t width, std::uint32_t height, std::uint32_t channels) {
  Bytes header = {'1', 'k', 'w', 't'};
  for (const std::uint32_t word : {width, height, channels}) PutLittle(header, word);
  header.resize(52, 0xEE);
  return header;
}

Bytes OldWashHeader(std::uint32_t width, std::uint32_t height, std::uint32_t channels) {
  Bytes header = {'w', 'a', 's', 'h'};
  for (const std::uint32_t word : {width, height, channels}) PutBig(header, word);
  return header;
}

Bytes Joined(Bytes a, const Bytes& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

Bytes Cut(Bytes bytes, std::size_t count) {
  bytes.resize(bytes.size() - count);
  return bytes;
}

Bytes GrayWash(int width, const Bytes& samples) {
  const auto height = static_cast<std::uint32_t>(static_cast<int>(samples.size()) / width);
  return Joined(WashHeader(static_cast<std::uint32_t>(width), height, 1), StoredStream(samples));
}

}  // namespace tarnwick::testing
