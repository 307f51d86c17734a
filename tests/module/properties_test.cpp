#include <gtest/gtest.h>

#include "built_module.h"
#include "byte_reader.h"

namespace tarnwick {
namespace {

using namespace std::string_literals;

struct Property {
  std::string key;
  std::string value;  // padded to a multiple of four, as hosts expect it
};

std::vector<Property> WantedProperties() {
  return {
      {"kind", "MFB8"s},
      {"name", "\x12Tarnwick Studio...\0"s},
      {"catg", "\x0CQuayside Ink\0\0\0"s},
      {"vers", "\0\0\4\0"s},
      {"cmpt", "\0\0\0\0Tarnwick Studio\0"s},
      {MeantFor64Bits() ? "8664" : "wx86", "PluginMain\0\0"s},
      // Bits from the left: RGB is mode 3, CMYK 4, Lab 9.
      {"mode", "\x18\x40\0\0"s},
      // Version, class, event, number 16000 of the terminology, identifier.
      {"hstm",
       "\0\0\0\0KWNTKWNT\x80\x3E"
       "d9543b0c-3c91-11d4-98bc-00b008042009\0\0"s},
      {"enbl", "in (PSHOP_ImageMode, RGBMode,CMYKMode ) ||PSHOP_ImageDepth == 8 \0\0\0\0"s},
      {"ms32", "\x80\x84\x1E\0\x80\x84\x1E\0"s},
      {"flly", "\x80\0\0\0"s},
      {"fici", "\1\1\x06\0\1\1\x0E\0\1\1\x0E\0\1\1\x06\0\1\1\x0E\0\1\1\x06\0\1\1\x0E\0"s},
  };
}

TEST(ModuleProperties, AreThoseThatHostsLookFor) {
  const std::string bytes = DescriptionBytes("PIPL");
  EXPECT_EQ(bytes.size(), 442U);
  ByteReader in(bytes);
  EXPECT_EQ(in.U16(), 1) << "signature";
  EXPECT_EQ(in.U32(), 0U) << "version";
  const std::vector<Property> wanted = WantedProperties();
  ASSERT_EQ(in.U32(), wanted.size());
  for (const Property& property : wanted) {
    EXPECT_EQ(in.Code(), "8BIM") << property.key;
    EXPECT_EQ(in.Code(), property.key);
    EXPECT_EQ(in.U32(), 0U) << property.key;
    const std::uint32_t length = in.U32();
    EXPECT_EQ(in.Take(length), property.value) << property.key;
  }
  EXPECT_TRUE(in.AtEnd());
}

}  // namespace
}  // namespace tarnwick
