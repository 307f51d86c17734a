#include "textures/texture_record.h"

#include <array>
#include <fstream>
#include <string_view>

#include "settings/ascii_text.h"
#include "textures/texture_path.h"
#include "textures/wash_file.h"

namespace tarnwick {
namespace {

constexpr std::string_view kExtension = ".twk";

using HeaderBytes = std::array<char, AWashFile::kHeaderBytes>;

std::uint32_t WordAt(const HeaderBytes& bytes, std::size_t offset) {
  std::uint32_t word = 0;
  for (std::size_t i = 4; i-- > 0;)
    word = word << 8 | static_cast<unsigned char>(bytes[offset + i]);
  return word;
}

bool HasExtension(std::string_view name) {
  return name.size() >= kExtension.size() &&
         EqualIgnoringCase(name.substr(name.size() - kExtension.size()), kExtension);
}

}  // namespace

std::string TextureDisplayName(const std::string& fileName) {
  const bool strips = fileName.size() > kExtension.size() && fileName.ends_with(kExtension);
  return strips ? fileName.substr(0, fileName.size() - kExtension.size()) : fileName;
}

// Not through AWashFile: a picture too large to be read is still a texture that
// has its place in a set.
void ReadRecordHeader(const std::string& folder, TextureRecord& record) {
  std::string name = record.fileName;
  if (!HasExtension(name)) name += kExtension;
  std::ifstream file(TexturePath(folder, name), std::ios::binary);
  HeaderBytes bytes{};
  if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return;
  if (WordAt(bytes, 0) != AWashFile::kMagic) return;
  record.headerWord = WordAt(bytes, AWashFile::kHeaderWordOffset);
  record.effectMask = WordAt(bytes, AWashFile::kEffectMaskOffset);
  record.setId = WordAt(bytes, AWashFile::kSetIdOffset);
}

}  // namespace tarnwick
