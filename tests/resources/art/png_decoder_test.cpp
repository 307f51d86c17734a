#include <gtest/gtest.h>
#include <zlib.h>

#include <stdexcept>

#include "resources/art_generator/picture.h"

namespace tarnwick {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::string BigEndian(std::uint32_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
  return bytes;
}

std::string Chunk(const std::string& type, const std::string& data) {
  const std::string summed = type + data;
  const uLong sum =
      crc32(0, reinterpret_cast<const Bytef*>(summed.data()), static_cast<uInt>(summed.size()));
  return BigEndian(static_cast<std::uint32_t>(data.size())) + summed +
         BigEndian(static_cast<std::uint32_t>(sum));
}

// What a file says of its picture; a byte each, besides the sides.
struct PngHead {
  std::uint32_t width = 0, height = 0;
  char bits = 8, color = 2, interlace = 0;
};

const std::string kSignature = "\x89PNG\r\n\x1A\n";

std::string HeadChunk(const PngHead& head) {
  return Chunk("IHDR", BigEndian(head.width) + BigEndian(head.height) + head.bits + head.color +
                           std::string(2, '\0') + head.interlace);
}

// `rows` each begin with the number of their filter.
std::string Packed(const Bytes& rows) {
  std::string packed(compressBound(rows.size()), '\0');
  uLongf size = packed.size();
  compress(reinterpret_cast<Bytef*>(packed.data()), &size, rows.data(), rows.size());
  packed.resize(size);
  return packed;
}

std::string PngOf(const PngHead& head, const Bytes& rows) {
  return kSignature + HeadChunk(head) + Chunk("IDAT", Packed(rows)) + Chunk("IEND", "");
}

// Two pixels a row; every filter stands once, and the third row wraps at 256.
const Bytes kFiltered = {
    0, 10, 20, 30, 40,  50,  60,   // as it is
    1, 5,  6,  7,  250, 1,   2,    // less the pixel to the left
    2, 1,  1,  1,  1,   250, 247,  // less the pixel above
    3, 10, 10, 10, 1,   1,   1,    // less their mean, rounded down
    4, 1,  11, 5,  0,   1,   3,    // less the nearest to left + above - corner
};
// In the last row's second pixel that is above (14 + 7 - 13 is 8), left (24 + 8 - 13 is
// 19), corner (19 + 8 - 14 is 13).
const Bytes kUnfiltered = {
    10, 20, 30, 255, 40,  50, 60, 255,  //
    5,  6,  7,  255, 255, 7,  9,  255,  //
    6,  7,  8,  255, 0,   1,  0,  255,  //
    13, 13, 14, 255, 7,   8,  8,  255,  //
    14, 24, 19, 255, 7,   25, 17, 255,
};

TEST(PngDecoder, UndoesEveryFilter) {
  const ArtPicture picture = DecodePng(PngOf({2, 5}, kFiltered));
  EXPECT_EQ(picture.width, 2);
  EXPECT_EQ(picture.height, 5);
  EXPECT_EQ(picture.samples, kUnfiltered);
}

TEST(PngDecoder, KeepsAlphaAndPrefersLeftThenAboveWhenEquallyNear) {
  // Left 1, above 4, corner 2: above and corner are as near to 3. Left 4, above 1,
  // corner 2: left and corner are.
  const Bytes rows = {
      0, 2,   2, 0, 0,   4, 1, 0, 255,  //
      4, 255, 2, 9, 128, 0, 1, 1, 1,
  };
  const ArtPicture picture = DecodePng(PngOf({2, 2, 8, 6}, rows));
  EXPECT_EQ(picture.samples, (Bytes{2, 2, 0, 0, 4, 1, 0, 255,  //
                                    1, 4, 9, 128, 4, 5, 10, 0}));
}

TEST(PngDecoder, JoinsSamplesInSeveralChunksAndPassesOverOthers) {
  const std::string packed = Packed(kFiltered);
  const std::string png = kSignature + HeadChunk({2, 5}) + Chunk("tEXt", "IDAT") +
                          Chunk("IDAT", packed.substr(0, 9)) + Chunk("IDAT", "") +
                          Chunk("IDAT", packed.substr(9)) + Chunk("IEND", "");
  EXPECT_EQ(DecodePng(png).samples, kUnfiltered);
}

// What the decoder has against a file.
std::string Complaint(const std::string& bytes) {
  try {
    (void)DecodePng(bytes);
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "none";
}

TEST(PngDecoder, SaysWhatItCannotRead) {
  const Bytes onePixel = {0, 1, 2, 3};
  const std::string otherKind = "a PNG of another kind than expected";
  const struct {
    const char* name;
    std::string bytes, complaint;
  } kFiles[] = {
      {"empty", "", "no PNG"},
      {"another format", "GIF89a and so on", "no PNG"},
      {"no head", kSignature + Chunk("IEND", ""), "a PNG without a head"},
      {"a short head", kSignature + Chunk("IHDR", "1234"), "a PNG without a head"},
      {"palette", PngOf({1, 1, 8, 3}, {0, 0}), otherKind},
      {"grey", PngOf({1, 1, 8, 0}, {0, 0}), otherKind},
      {"grey and alpha", PngOf({1, 1, 8, 4}, {0, 0, 0}), otherKind},
      {"16 bits", PngOf({1, 1, 16}, {0, 1, 2, 3, 4, 5, 6}), otherKind},
      {"interlaced", PngOf({1, 1, 8, 2, 1}, onePixel), otherKind},
      {"no columns", PngOf({0, 1}, {0}), otherKind},
      {"no rows", PngOf({1, 0}, {}), otherKind},
      {"a negative side", PngOf({1, 0x80000001}, onePixel), otherKind},
      {"too wide", PngOf({4097, 1}, onePixel), otherKind},
      {"a row too few", PngOf({1, 2}, onePixel), "a damaged PNG"},
      {"a row too many", PngOf({2, 4}, kFiltered), "a damaged PNG"},
      {"no samples", kSignature + HeadChunk({1, 1}), "a damaged PNG"},
      {"filter 5", PngOf({1, 1}, {5, 1, 2, 3}), "a PNG row of an unknown filter"},
  };
  for (const auto& c : kFiles) EXPECT_EQ(Complaint(c.bytes), c.complaint) << c.name;
}

TEST(PngDecoder, RefusesAFileThatIsCutAnywhereInItsSamples) {
  const std::string png = PngOf({2, 5}, kFiltered);
  const std::size_t endOfSamples = png.size() - 12 - 4;  // the last chunk, a check sum
  for (std::size_t size = 0; size < endOfSamples; ++size) {
    EXPECT_NE(Complaint(png.substr(0, size)), "none") << size;
  }
}

}  // namespace
}  // namespace tarnwick
