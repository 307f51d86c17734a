#include "tiff_metadata.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "iptc_block.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

// Big-endian: one directory at 8 with Make "Zed" (in the entry), an exposure
// time of 1/80 and ISO 400 in the EXIF directory at 50, and an orientation.
const Bytes kCamera = {
    'M',  'M',  0, 42, 0, 0, 0, 8,                        //
    0,    3,                                              // three entries
    0x01, 0x0F, 0, 2,  0, 0, 0, 4,  'Z',  'e',  'd', 0,   //
    0x01, 0x12, 0, 3,  0, 0, 0, 1,  0,    6,    0,   0,   //
    0x87, 0x69, 0, 4,  0, 0, 0, 1,  0,    0,    0,   50,  //
    0,    0,    0, 0,                                     // no more
    0,    2,                                              // at 50
    0x82, 0x9A, 0, 5,  0, 0, 0, 1,  0,    0,    0,   80,  //
    0x88, 0x27, 0, 3,  0, 0, 0, 1,  0x01, 0x90, 0,   0,   //
    0,    0,    0, 0,                                     //
    0,    0,    0, 1,  0, 0, 0, 80,                       // at 80: 1/80
};

// The same for other formats: little-endian, EXIF directory first, without the
// orientation. Values move behind their directory.
const Bytes kBlock = {
    'E',  'x',  'i', 'f', 0,  0,                            //
    'I',  'I',  42,  0,   46, 0, 0, 0,                      // first directory at 46
    2,    0,                                                // at 8
    0x9A, 0x82, 5,   0,   1,  0, 0, 0, 38,   0,    0,   0,  //
    0x27, 0x88, 3,   0,   1,  0, 0, 0, 0x90, 0x01, 0,   0,  //
    0,    0,    0,   0,                                     //
    1,    0,    0,   0,   80, 0, 0, 0,                      // at 38
    2,    0,                                                // at 46
    0x0F, 0x01, 2,   0,   4,  0, 0, 0, 'Z',  'e',  'd', 0,  //
    0x69, 0x87, 4,   0,   1,  0, 0, 0, 8,    0,    0,   0,  //
    0,    0,    0,   0,
};

class TiffExif : public testing::Test {
 protected:
  void SetUp() override {
    path = fs::temp_directory_path() / ("tarnwick-exif-" + std::to_string(getpid()) + ".tif");
  }
  void TearDown() override { fs::remove(path); }

  void Write(const Bytes& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  }
  Bytes Read() {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  fs::path path;
};

TEST_F(TiffExif, BecomesABlock) {
  Write(kCamera);
  EXPECT_EQ(ExifOfTiff(path), kBlock);
}

TEST_F(TiffExif, BrokenFilesGiveLessAndNothingWorse) {
  for (std::size_t length = 0; length < kCamera.size(); ++length) {
    Write({kCamera.begin(), kCamera.begin() + static_cast<std::ptrdiff_t>(length)});
    EXPECT_LE(ExifOfTiff(path).size(), kBlock.size()) << length;
  }
  // Every byte in turn at its largest: counts and offsets that lead nowhere, to
  // themselves, or beyond what a number holds.
  for (std::size_t at = 0; at < kCamera.size(); ++at) {
    Bytes bytes = kCamera;
    bytes[at] = 0xFF;
    Write(bytes);
    EXPECT_LT(ExifOfTiff(path).size(), 1000u) << at;
  }
}

TEST_F(TiffExif, IsAddedWithoutMovingThePicture) {
  // Little-endian, width 3, one strip that is held at 26.
  const Bytes plain = {'I',  'I',  42, 0, 8,  0,  0, 0, 1, 0,        //
                       0x00, 0x01, 3,  0, 1,  0,  0, 0, 3, 0, 0, 0,  //
                       0,    0,    0,  0, 77, 78, 79};
  Write(plain);
  ASSERT_TRUE(AddMetadataToTiff(path, kBlock, {}, 3, 1));
  const Bytes joined = Read();
  ASSERT_GT(joined.size(), plain.size());
  // All but the pointer to the first directory stands as it was.
  for (std::size_t i = 0; i < plain.size(); ++i) {
    const bool pointer = i >= 4 && i <= 7;
    EXPECT_TRUE(pointer || joined[i] == plain[i]) << i;
  }
  EXPECT_EQ(ExifOfTiff(path).size(), kBlock.size());

  // A form that is not understood stays untouched: another byte order, an entry
  // of an unknown type, a second page.
  Bytes page = plain;
  page[22] = 8;
  Bytes unknown = plain;
  unknown[12] = 99;
  for (const Bytes& other : {kCamera, page, unknown}) {
    Write(other);
    EXPECT_FALSE(AddMetadataToTiff(path, kBlock, {}, 3, 1));
    EXPECT_EQ(Read(), other);
  }
}

TEST(Iptc, WrapsAndUnwraps) {
  const Bytes bare = {0x1C, 2, 25, 0, 1, 'x', 9};  // odd length: padded
  const std::string head("Photoshop 3.0\0", 14);
  Bytes wrapped(head.begin(), head.end());
  wrapped.insert(wrapped.end(), {'8', 'B', 'I', 'M', 4, 4, 0, 0, 0, 0, 0, 7});
  Bytes other(wrapped.begin(), wrapped.begin() + 14);
  // Another resource before it, with a name of 3 letters and 1 byte of data.
  other.insert(other.end(), {'8', 'B', 'I', 'M', 4, 5, 3, 'a', 'b', 'c', 0, 0, 0, 1, 5, 0});
  const Bytes none = other;
  other.insert(other.end(), wrapped.begin() + 14, wrapped.end());
  for (Bytes* block : {&wrapped, &other}) {
    block->insert(block->end(), bare.begin(), bare.end());
    block->push_back(0);
  }
  EXPECT_EQ(WrappedIptc(bare), wrapped);
  EXPECT_EQ(WrappedIptc(wrapped), wrapped);
  EXPECT_EQ(BareIptc(wrapped), bare);
  EXPECT_EQ(BareIptc(other), bare);
  EXPECT_EQ(BareIptc(bare), bare);
  EXPECT_EQ(BareIptc(none), Bytes());
  for (std::size_t length = 14; length < other.size() - 1; ++length) {
    EXPECT_EQ(BareIptc(std::span(other).first(length)), Bytes()) << length;
  }
}

}  // namespace
}  // namespace tarnwick
