#include "textures/wash_file_writer.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using Bytes = std::vector<std::uint8_t>;

class WashFileWriter : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::path(::testing::TempDir()) /
              (std::string("wash_file_writer_") +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  [[nodiscard]] std::string Path(const char* name) const { return (folder_ / name).string(); }
  [[nodiscard]] static Bytes ReadAll(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  [[nodiscard]] std::size_t FileCount() const {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(folder_), {}));
  }

  std::filesystem::path folder_;
};

Bytes Inflated(const Bytes& file, std::size_t roomFor) {
  Bytes samples(roomFor);
  uLongf length = static_cast<uLongf>(roomFor);
  EXPECT_EQ(
      uncompress(samples.data(), &length, file.data() + 52, static_cast<uLong>(file.size() - 52)),
      Z_OK);
  samples.resize(length);
  return samples;
}

TEST_F(WashFileWriter, GreyFileByteForByte) {
  const WashFileHeader header{3, 2, 1, 0x01020304, 0xA0B0C0D0, (1U << 14) | (1U << 2)};
  const Bytes samples = {0, 1, 2, 253, 254, 255};
  ASSERT_EQ(WriteWashFile(Path("a.twk"), header, samples), WashWriteOutcome::kDone);

  const Bytes file = ReadAll(Path("a.twk"));
  const Bytes wantHeader = {'1',  'k',  'w',  't',   // magic
                            3,    0,    0,    0,     // width
                            2,    0,    0,    0,     // height
                            1,    0,    0,    0,     // channels
                            0,    0,    0,    0,     //
                            0x04, 0x03, 0x02, 0x01,  // at 20: set
                            0xD0, 0xC0, 0xB0, 0xA0,  // at 24: kept word
                            0x04, 0x40, 0x00, 0x00,  // at 28: bits 2 and 14
                            0,    0,    0,    0,    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
  ASSERT_EQ(wantHeader.size(), 52U);
  ASSERT_GT(file.size(), 52U);
  EXPECT_EQ(Bytes(file.begin(), file.begin() + 52), wantHeader);
  // Deflate with a 32 KiB window, at the highest level, without a dictionary.
  EXPECT_EQ(file[52], 0x78);
  EXPECT_EQ(file[53], 0xDA);
  EXPECT_EQ(Inflated(file, 100), samples);
}

TEST_F(WashFileWriter, ThreePlanesFollowEachOther) {
  const Bytes samples = {1, 2, 3, 4, 5, 6};
  ASSERT_EQ(WriteWashFile(Path("a.twk"), {2, 1, 3}, samples), WashWriteOutcome::kDone);
  const Bytes file = ReadAll(Path("a.twk"));
  EXPECT_EQ(file[12], 3);
  EXPECT_EQ(Inflated(file, 100), samples);
}

TEST_F(WashFileWriter, ReplacesAnOldFileAndLeavesNothingBeside) {
  std::ofstream(Path("a.twk")) << std::string(5000, 'x');
  ASSERT_EQ(WriteWashFile(Path("a.twk"), {1, 1, 1}, Bytes{7}), WashWriteOutcome::kDone);
  EXPECT_LT(std::filesystem::file_size(Path("a.twk")), 100U);
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(WashFileWriter, RefusesWhatCannotBe) {
  const struct {
    const char* name;
    WashFileHeader header;
    std::size_t samples;
  } kCases[] = {{"no width", {0, 4, 1}, 0},          {"negative height", {4, -4, 1}, 16},
                {"too wide", {30001, 1, 1}, 30001},  {"two planes", {2, 2, 2}, 8},
                {"one sample short", {2, 2, 1}, 3},  {"one sample over", {2, 2, 1}, 5},
                {"one plane of three", {2, 2, 3}, 4}};
  for (const auto& c : kCases) {
    EXPECT_EQ(WriteWashFile(Path("a.twk"), c.header, Bytes(c.samples)),
              WashWriteOutcome::kBadPicture)
        << c.name;
    EXPECT_EQ(FileCount(), 0U) << c.name;
  }
}

TEST_F(WashFileWriter, FailureLeavesNoHalfFile) {
  EXPECT_EQ(WriteWashFile(Path("missing/a.twk"), {1, 1, 1}, Bytes{7}),
            WashWriteOutcome::kCannotWrite);
  // A folder in the way cannot be renamed over.
  std::filesystem::create_directories(folder_ / "b.twk" / "inside");
  EXPECT_EQ(WriteWashFile(Path("b.twk"), {1, 1, 1}, Bytes{7}), WashWriteOutcome::kCannotWrite);
  EXPECT_EQ(FileCount(), 1U);
}

}  // namespace
}  // namespace tarnwick
