#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// The bytes of one raw resource, in the words of the resource compiler: little
// endian, nothing aligned. It counts its bytes, for resources that state lengths.
class ResourceBlock {
 public:
  // A remark; ends the line.
  void Remark(std::string_view text);

  void Byte(std::uint8_t value);
  void Word(std::uint16_t value);
  void Long(std::uint32_t value);

  // A four-character code: a number, so its characters lie in memory backwards.
  void Code(std::uint32_t code);

  // The characters alone, with an end of zero, or after their count (below 256).
  void Text(std::string_view text);
  void ZeroText(std::string_view text);
  void CountedText(std::string_view text);

  // Zeros up to a multiple of `multiple` bytes.
  void PadTo(std::size_t multiple);

  void Append(const ResourceBlock& other);
  void EndLine();

  [[nodiscard]] std::size_t Size() const { return size_; }

  // "16000 PiPL" and what lies between BEGIN and END.
  [[nodiscard]] std::string Script(std::string_view name) const;

 private:
  struct Line {
    std::string values;  // parted by commas
    std::string remark;
  };
  void Add(std::string_view value, std::size_t bytes);

  std::vector<Line> lines_{1};
  std::size_t size_ = 0;
};

}  // namespace tarnwick
