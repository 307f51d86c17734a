#include "textures/wash_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/images.h"
#include "support/temp_folder.h"
#include "support/wash_bytes.h"
#include "textures/wash_file_writer.h"

namespace tarnwick::testing {
namespace {

const Bytes kSix = {1, 2, 3, 4, 5, 6};
const Bytes kStream = StoredStream(kSix);
constexpr char kNoHeader[] =
    "AWashFile::InitWithFile - Header check failed, file does not appear to be a wash file";
constexpr char kError3[] = "InflateStream failed with error -3.\n";

struct FileCase {
  const char* name;
  Bytes bytes;
  bool opens;
  bool reads;
  Bytes samples;               // of all planes
  const char* complaint = "";  // how it begins
};

const FileCase kFiles[] = {
    {"grey", Joined(WashHeader(3, 2, 1), kStream), true, true, kSix},
    {"two channels are three planes", Joined(WashHeader(1, 2, 2), kStream), true, true, kSix},
    {"four channels are three planes", Joined(WashHeader(2, 1, 4), kStream), true, true, kSix},
    {"bytes after the stream", Joined(WashHeader(3, 2, 1), Joined(kStream, kSix)), true, true,
     kSix},
    {"too long a payload is cut", Joined(WashHeader(2, 2, 1), kStream), true, true, {1, 2, 3, 4}},
    {"a short payload that ends",
     Joined(WashHeader(4, 2, 1), kStream),
     true,
     true,
     {1, 2, 3, 4, 5, 6, 0, 0}},
    // The check sum, two samples and the rest of a block are missing.
    {"a cut payload",
     Joined(WashHeader(3, 2, 1), Cut(kStream, 6)),
     true,
     false,
     {1, 2, 3, 4, 0, 0},
     kError3},
    {"only the check sum is cut", Joined(WashHeader(3, 2, 1), Cut(kStream, 1)), true, false, kSix,
     kError3},
    {"no payload", WashHeader(3, 2, 1), true, false, {0, 0, 0, 0, 0, 0}, kError3},
    {"no zlib stream", Joined(WashHeader(3, 2, 1), kSix), true, false, {0, 0, 0, 0, 0, 0}, kError3},
    // Bit 5 of the second byte asks for a dictionary; 0x20 makes 0x7820 a multiple of 31.
    {"a preset dictionary",
     Joined(WashHeader(3, 2, 1), {0x78, 0x20, 0, 0, 0, 1}),
     true,
     false,
     {0, 0, 0, 0, 0, 0},
     kError3},
    {"no width", Joined(WashHeader(0, 2, 1), kStream), true, true, {}},
    {"no height", Joined(WashHeader(3, 0, 3), kStream), true, true, {}},
    {"the widest", Joined(WashHeader(30000, 0, 1), kStream), true, true, {}},
    {"too wide", Joined(WashHeader(30001, 1, 1), kStream), false, false, {}, kNoHeader},
    {"too high", Joined(WashHeader(1, 0x80000001, 1), kStream), false, false, {}, kNoHeader},
    {"a cut header", Cut(WashHeader(3, 2, 1), 1), false, false, {}, kNoHeader},
    {"an empty file", {}, false, false, {}, kNoHeader},
    {"another magic", Joined({'1', 'k', 'w', 'u'}, Bytes(60, 0)), false, false, {}, kNoHeader},
    {"the old form", Joined(OldWashHeader(3, 2, 1), kStream), false, false, {}, kNoHeader},
};

TEST(WashFile, HandMadeFiles) {
  const TempFolder folder;
  for (const FileCase& c : kFiles) {
    std::string complaint;
    AWashFile file([&](const std::string& text) { complaint += text; });
    ASSERT_EQ(file.Open(folder.Put("a.twk", c.bytes)), c.opens) << c.name;
    ImagePtr image;
    EXPECT_EQ(file.ReadImage(image), c.reads) << c.name;
    if (c.opens) {
      ASSERT_NE(image, nullptr) << c.name;
      EXPECT_EQ(StorageOf(*image), c.samples) << c.name;
      EXPECT_EQ(image->planeCount, file.GetChannels() == 1 ? 1 : 3) << c.name;
      EXPECT_EQ(static_cast<std::uint32_t>(image->Width()), file.GetWidth()) << c.name;
      EXPECT_EQ(static_cast<std::uint32_t>(image->Height()), file.GetHeight()) << c.name;
    } else {
      EXPECT_EQ(file.GetWidth() + file.GetHeight() + file.GetChannels(), 0U) << c.name;
      EXPECT_EQ(file.file, nullptr) << c.name;
    }
    EXPECT_THAT(complaint, ::testing::StartsWith(c.complaint)) << c.name;
    EXPECT_EQ(complaint.empty(), *c.complaint == 0) << c.name << ": " << complaint;
  }
}

TEST(WashFile, OldForm) {
  const TempFolder folder;
  const std::string path = folder.Put("old", Joined(OldWashHeader(2, 3, 1), kStream));
  AWashFile file;
  ASSERT_TRUE(file.isOldFormat) << "until a path has a dot";
  ASSERT_TRUE(file.InitWithFile(std::fopen(path.c_str(), "rb")));
  EXPECT_EQ(file.GetWidth(), 2U);
  EXPECT_EQ(file.GetHeight(), 3U);
  ImagePtr image;
  ASSERT_TRUE(file.ReadImage(image));
  EXPECT_EQ(StorageOf(*image), kSix);
  EXPECT_EQ(file.HeaderWord(20), 0U);
  EXPECT_FALSE(file.InitWithFile(
      std::fopen(folder.Put("new", Joined(WashHeader(2, 3, 1), kStream)).c_str(), "rb")));
}

TEST(WashFile, MissingFileTellsWhy) {
  const TempFolder folder;
  std::string complaint;
  AWashFile file([&](const std::string& text) { complaint += text; });
  EXPECT_FALSE(file.Open(folder.Path() + "/none.twk"));
  EXPECT_THAT(complaint, ::testing::StartsWith("AWashFile::InitOpen() failed.: "));
  ImagePtr image;
  EXPECT_FALSE(file.ReadImage(image));
}

// Several read buffers of 256 KiB and blocks that cross their ends.
TEST(WashFile, LargePayload) {
  const TempFolder folder;
  TestRandom random(9);
  Bytes samples(900 * 400 * 3);
  for (std::uint8_t& sample : samples) sample = random.Byte();
  const Bytes whole = Joined(WashHeader(900, 400, 3), StoredStream(samples));
  AWashFile file;
  ImagePtr image;
  ASSERT_TRUE(file.Open(folder.Put("a.twk", whole)));
  ASSERT_TRUE(file.ReadImage(image));
  EXPECT_EQ(StorageOf(*image), samples);
  ASSERT_TRUE(file.Open(folder.Put("a.twk", Cut(whole, 300000))));
  EXPECT_FALSE(file.ReadImage(image));
}

TEST(WashFile, ReadsWhatTheWriterWrote) {
  const TempFolder folder;
  const std::string path = folder.Path() + "/a.twk";
  WashFileHeader header{3, 2, 1, 0x01020304, 5, 0x80000006};
  ASSERT_EQ(WriteWashFile(path, header, kSix), WashWriteOutcome::kDone);
  AWashFile file;
  ASSERT_TRUE(file.Open(path));
  EXPECT_EQ(file.HeaderWord(20), 0x01020304U);
  EXPECT_EQ(file.HeaderWord(24), 5U);
  EXPECT_EQ(file.HeaderWord(28), 0x80000006U);
  ImagePtr image;
  ASSERT_TRUE(file.ReadImage(image));
  EXPECT_EQ(StorageOf(*image), kSix);
  file.Close();

  // Refused, and the file that was there stays.
  const WashFileHeader bad[] = {{2, 2, 1}, {0, 6, 1}, {1, 6, 2}, {30001, 1, 1}, {-3, -2, 1}};
  for (const WashFileHeader& b : bad) {
    EXPECT_EQ(WriteWashFile(path, b, kSix), WashWriteOutcome::kBadPicture) << b.width;
  }
  EXPECT_EQ(WriteWashFile(folder.Path() + "/no/a.twk", header, kSix),
            WashWriteOutcome::kCannotWrite);
  EXPECT_TRUE(file.Open(path));
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
    files += entry.path().empty() ? 0 : 1;
  }
  EXPECT_EQ(files, 1);
}

}  // namespace
}  // namespace tarnwick::testing
