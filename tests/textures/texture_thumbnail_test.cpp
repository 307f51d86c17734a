#include "textures/texture_thumbnail.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/images.h"
#include "support/pnm.h"
#include "support/temp_folder.h"
#include "support/wash_bytes.h"
#include "textures/thumbnail_file.h"

namespace tarnwick::testing {
namespace {

// No two neighbours alike, in either direction.
std::uint8_t SampleAt(int x, int y) {
  return static_cast<std::uint8_t>(x * 7 + y * 31);
}

Bytes Samples(int width, int height) {
  Bytes samples;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) samples.push_back(SampleAt(x, y));
  }
  return samples;
}

// Which column, or row, of the texture a point of the thumbnail shows.
struct Point {
  int thumbnail, texture;
};

const struct {
  const char* name;
  int width, height;
  ThumbnailSize size;
  float scale;
  std::vector<Point> columns, rows;
  bool small;
} kThumbnails[] = {
    // 448 x 336 are wanted; what is over is parted in whole numbers.
    {"every fourth from the middle",
     460,
     341,
     {112, 84},
     4,
     {{0, 6}, {1, 10}, {111, 450}},
     {{0, 2}, {83, 334}},
     false},
    {"just large enough", 448, 336, {112, 84}, 4, {{0, 0}, {111, 444}}, {{0, 0}, {83, 332}}, false},
    // 447 / 112 = 3.991..., 300 / 84 = 3.571...
    {"smaller steps",
     447,
     300,
     {112, 84},
     4,
     {{1, 3}, {2, 7}, {111, 443}},
     {{1, 3}, {83, 296}},
     true},
    {"one side alone is short", 480, 300, {112, 84}, 4, {{0, 16}, {1, 20}}, {{0, 0}, {2, 7}}, true},
    // Smaller than the thumbnail: steps of 1 from the first sample, the last repeated.
    {"smaller than the thumbnail",
     50,
     90,
     {112, 84},
     4,
     {{0, 0}, {49, 49}, {50, 49}, {111, 49}},
     {{0, 0}, {83, 88}},
     true},
    {"one sample", 1, 1, {3, 2}, 4, {{0, 0}, {2, 0}}, {{1, 0}}, true},
    {"scale 2", 460, 341, {112, 84}, 2, {{0, 118}, {111, 340}}, {{0, 86}, {83, 252}}, false},
    // 30 x 1.25 = 37.5, of which 37 count: 37 / 30 = 1.233...
    {"a broken scale",
     47,
     57,
     {30, 40},
     1.25F,
     {{0, 5}, {1, 6}, {29, 40}},
     {{0, 3}, {39, 51}},
     false},
    {"a square", 300, 250, {61, 61}, 4, {{0, 28}, {60, 268}}, {{0, 3}, {60, 243}}, false},
};

TEST(TextureThumbnail, TakesTheSamplesTold) {
  for (const auto& c : kThumbnails) {
    SCOPED_TRACE(c.name);
    bool small = false;
    const auto picture =
        SampleThumbnail(*GrayOf(c.width, Samples(c.width, c.height)), c.size, c.scale, small);
    ASSERT_TRUE(picture.has_value());
    EXPECT_EQ(small, c.small);
    ASSERT_EQ(picture->width, c.size.width);
    ASSERT_EQ(picture->height, c.size.height);
    for (const Point& column : c.columns) {
      for (const Point& row : c.rows) {
        const int at = (row.thumbnail * c.size.width + column.thumbnail) * 3;
        for (int i = 0; i < 3; ++i) {
          EXPECT_EQ(picture->samples[static_cast<std::size_t>(at + i)],
                    SampleAt(column.texture, row.texture))
              << column.thumbnail << ' ' << row.thumbnail;
        }
      }
    }
  }
}

TEST(TextureThumbnail, UnreadableTextures) {
  const TempFolder folder;
  folder.Put("Empty.twk", Joined(WashHeader(0, 4, 1), StoredStream({})));
  folder.Put("Cut.twk", Cut(GrayWash(4, Samples(4, 4)), 6));
  bool small = false;
  for (const char* name : {"Empty.twk", "Cut.twk", "Gone.twk"}) {
    EXPECT_FALSE(MakeThumbnail(folder.Path(), name, kDrawerThumbnail, 4, small)) << name;
  }
}

// A bitmap of 3 x 2 pixels, byte by byte: rows of 9 bytes padded to 12.
const Bytes kBitmap = {'B', 'M', 78, 0,  0,  0,  0,  0,  0,  0, 54, 0, 0, 0,         // file header
                       40,  0,   0,  0,  3,  0,  0,  0,  2,  0, 0,  0, 1, 0, 24, 0,  //
                       0,   0,   0,  0,  24, 0,  0,  0,  0,  0, 0,  0, 0, 0, 0,  0,  //
                       0,   0,   0,  0,  0,  0,  0,  0,                              //
                       12,  11,  10, 15, 14, 13, 18, 17, 16, 0, 0,  0,               // bottom row
                       3,   2,   1,  6,  5,  4,  9,  8,  7,  0, 0,  0};              // top row
const Bytes kBitmapSamples = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18};

Bytes BytesOf(const std::string& path) {
  const std::string text = ReadText(path);
  return {text.begin(), text.end()};
}

TEST(ThumbnailFile, BytesBothWays) {
  const TempFolder folder;
  ThumbnailPicture picture(3, 2);
  picture.samples = kBitmapSamples;
  const std::string path = ThumbnailPath(folder.Path(), "Rusted.twk");
  EXPECT_EQ(path, folder.Path() + "/Rusted.twk.bmp");
  ASSERT_TRUE(WriteThumbnail(path, picture));
  EXPECT_EQ(BytesOf(path), kBitmap);
  EXPECT_FALSE(FileExists(path + ".part"));
  const auto read = ReadThumbnail(path, {3, 2});
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->samples, kBitmapSamples);
  EXPECT_FALSE(ReadThumbnail(path, {2, 3}));
  EXPECT_FALSE(WriteThumbnail(folder.Path() + "/none/x.bmp", picture));
  // A folder in the way: nothing is left behind.
  std::filesystem::create_directories(folder.Path() + "/taken.bmp/full");
  EXPECT_FALSE(WriteThumbnail(folder.Path() + "/taken.bmp", picture));
  EXPECT_FALSE(FileExists(folder.Path() + "/taken.bmp.part"));
}

TEST(ThumbnailFile, OtherFilesAreNone) {
  const struct {
    const char* name;
    std::size_t at;  // this byte is changed
    std::uint8_t to;
    std::size_t cut = 0;
    bool reads = false;
  } kFiles[] = {
      {"as it is", 0, 'B', 0, true},
      {"another beginning", 1, 'A'},
      {"8 bits", 28, 8},
      {"32 bits", 28, 32},
      {"packed", 30, 1},
      {"no width", 18, 0},
      {"wider than its bytes", 18, 200},
      {"a width past 4096", 19, 0x80},
      {"top-down: a negative height", 25, 0xFF},
      {"pixels from beyond its end", 12, 1},
      {"the last byte is missing", 0, 'B', 1},
      {"nothing but headers", 0, 'B', 24},
      {"half a header", 0, 'B', 50},
      {"empty", 0, 'B', 78},
  };
  const TempFolder folder;
  for (const auto& c : kFiles) {
    Bytes bytes = kBitmap;
    bytes[c.at] = c.to;
    EXPECT_EQ(ReadThumbnail(folder.Put("x.bmp", Cut(bytes, c.cut))).has_value(), c.reads) << c.name;
  }
  EXPECT_FALSE(ReadThumbnail(folder.Path()));
  EXPECT_FALSE(ReadThumbnail(folder.Path() + "/none.bmp"));
}

TEST(ThumbnailFile, CacheIsMadeAndTrusted) {
  const TempFolder folder;
  folder.Put("A.twk", GrayWash(4, Bytes(16, 50)));
  TextureRecord record;
  record.fileName = "A.twk";
  const std::string cache = folder.Path() + "/A.twk.bmp";
  const auto load = [&](ThumbnailSize size, bool sizeCounts) {
    const auto picture = LoadOrMakeThumbnail(folder.Path(), record, size, sizeCounts);
    return picture ? picture->samples : Bytes{};
  };
  EXPECT_EQ(load({1, 1}, true), (Bytes{50, 50, 50}));
  EXPECT_FALSE(record.smallSource);  // four samples each way are just there
  EXPECT_EQ(BytesOf(cache).size(), 58U);
  folder.Put("A.twk.bmp", kBitmap);
  EXPECT_EQ(load({3, 2}, true), kBitmapSamples);
  EXPECT_EQ(load({2, 2}, false), kBitmapSamples);
  // Another size, where that counts, is made anew and takes its place.
  EXPECT_EQ(load({2, 2}, true), Bytes(12, 50));
  EXPECT_TRUE(record.smallSource);
  EXPECT_EQ(BytesOf(cache).size(), 54U + 16U);
  folder.Put("A.twk.bmp", {'B', 'M'});
  EXPECT_EQ(load({2, 2}, false), Bytes(12, 50));
  record.fileName = "Gone.twk";
  EXPECT_EQ(load({2, 2}, true), Bytes{});
  EXPECT_FALSE(FileExists(folder.Path() + "/Gone.twk.bmp"));
}

}  // namespace
}  // namespace tarnwick::testing
