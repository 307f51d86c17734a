#include "built_picture.h"

#include <gtest/gtest.h>
#include <algorithm>
#include <stdexcept>

#include "built_module.h"
#include "byte_reader.h"

namespace tarnwick {

std::vector<int> ResourceNumbers(const std::string& type) {
  std::vector<int> numbers;
  for (const PeResource& resource : BuiltModule().resources) {
    if (resource.type == type) numbers.push_back(std::stoi(resource.name.substr(1)));
  }
  std::ranges::sort(numbers);
  return numbers;
}

const std::string& ResourceBytes(const std::string& type, int number) {
  const std::string name = "#" + std::to_string(number);
  const PeResource* found = nullptr;
  for (const PeResource& resource : BuiltModule().resources) {
    if (resource.type != type || resource.name != name) continue;
    if (found != nullptr) throw std::runtime_error(name + " is there twice");
    found = &resource;
  }
  if (found == nullptr) throw std::runtime_error(name + " is missing");
  EXPECT_EQ(found->language, 1049U) << type << ' ' << name;
  return found->bytes;
}

BuiltPicture BuiltBitmap(int number) {
  const std::string& bytes = ResourceBytes("#2", number);
  ByteReader in(bytes);
  const std::uint32_t head = in.U32();
  BuiltPicture picture;
  picture.width = static_cast<int>(in.U32());
  picture.height = static_cast<int>(in.U32());
  const int planes = in.U16();
  const int bits = in.U16();
  const std::uint32_t packing = in.U32();
  if (head != 40 || planes != 1 || bits != 24 || packing != 0) {
    throw std::runtime_error("no plain bitmap of 24 bits");
  }
  // Rows from the bottom, blue first, padded to four bytes.
  const auto stride = static_cast<std::size_t>((picture.width * 3 + 3) / 4 * 4);
  if (bytes.size() != 40 + stride * static_cast<std::size_t>(picture.height)) {
    throw std::runtime_error("a bitmap of another length than its size says");
  }
  for (int y = 0; y < picture.height; ++y) {
    const std::size_t row = 40 + stride * static_cast<std::size_t>(picture.height - 1 - y);
    for (int x = 0; x < picture.width; ++x) {
      const std::size_t at = row + 3 * static_cast<std::size_t>(x);
      const auto sample = [&](std::size_t i) { return static_cast<unsigned char>(bytes[at + i]); };
      picture.pixels.push_back({sample(2), sample(1), sample(0)});
    }
  }
  return picture;
}

}  // namespace tarnwick
