#include <gtest/gtest.h>

#include "built_picture.h"
#include "byte_reader.h"

namespace tarnwick {
namespace {

// The numbers of a group's images, which stand last in its entries.
std::vector<int> ImagesOfGroup(const std::string& type, int number) {
  const std::string& group = ResourceBytes(type, number);
  ByteReader in(group);
  EXPECT_EQ(in.U16(), 0);
  EXPECT_EQ(in.U16(), type == "#14" ? 1 : 2) << "icons or cursors";
  std::vector<int> images;
  for (int left = in.U16(); left > 0; --left) {
    (void)in.Take(12);
    images.push_back(in.U16());
  }
  EXPECT_TRUE(in.AtEnd());
  return images;
}

struct IconHead {
  int side, bits;
};

// Of a bitmap whose rows are doubled by its mask.
IconHead HeadOf(const std::string& image) {
  ByteReader in(image);
  EXPECT_EQ(in.U32(), 40U);
  IconHead head{};
  head.side = static_cast<int>(in.U32());
  EXPECT_EQ(in.U32(), static_cast<std::uint32_t>(2 * head.side));
  (void)in.U16();
  head.bits = in.U16();
  return head;
}

TEST(ModuleIcons, HaveAnImageForEverySize) {
  EXPECT_EQ(ResourceNumbers("#14"), (std::vector<int>{100, 230}));
  for (const int number : {100, 230}) {
    std::vector<int> sides;
    for (const int image : ImagesOfGroup("#14", number)) {
      const std::string& bytes = ResourceBytes("#3", image);
      if (bytes.compare(1, 3, "PNG") == 0) {
        // Width and height, highest byte first.
        EXPECT_EQ(bytes.substr(16, 8), std::string("\0\0\1\0\0\0\1\0", 8));
        sides.push_back(256);
        continue;
      }
      const IconHead head = HeadOf(bytes);
      EXPECT_EQ(head.bits, 32) << number;
      sides.push_back(head.side);
    }
    EXPECT_EQ(sides, (std::vector<int>{16, 20, 24, 32, 40, 48, 64, 256})) << number;
  }
}

TEST(ModuleCursors, PointWithTheMiddleOfTheHand) {
  EXPECT_EQ(ResourceNumbers("#12"), (std::vector<int>{144, 145}));
  for (const int number : {144, 145}) {
    std::vector<int> sides;
    for (const int image : ImagesOfGroup("#12", number)) {
      const std::string& bytes = ResourceBytes("#1", image);
      ByteReader in(bytes);
      const int hotX = in.U16();
      const int hotY = in.U16();
      const IconHead head = HeadOf(bytes.substr(4));
      ASSERT_EQ(head.bits, 32) << number;
      sides.push_back(head.side);
      // White and opaque below the point: rows from the bottom.
      ASSERT_LT(hotY, head.side);
      const auto at = static_cast<std::size_t>((head.side - 1 - hotY) * head.side + hotX);
      EXPECT_EQ(bytes.substr(44 + 4 * at, 4), "\xFF\xFF\xFF\xFF") << number << ' ' << head.side;
      // Both hands point at the same place, so the picture does not jump at a press.
      EXPECT_EQ(hotX * 2, head.side) << number;
    }
    EXPECT_EQ(sides, (std::vector<int>{32, 48, 64})) << number;
  }
}

}  // namespace
}  // namespace tarnwick
