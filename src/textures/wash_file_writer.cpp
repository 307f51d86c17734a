#include "textures/wash_file_writer.h"

#include <zlib.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <new>
#include <system_error>
#include <vector>

#include "base/checked_size.h"
#include "base/native_path.h"
#include "textures/wash_file.h"

namespace tarnwick {
namespace {

using EncodedHeader = std::array<std::uint8_t, AWashFile::kHeaderBytes>;

void PutWord(EncodedHeader& bytes, std::size_t offset, std::uint32_t word) {
  for (std::size_t i = 0; i < 4; ++i) {
    bytes[offset + i] = static_cast<std::uint8_t>(word >> (8 * i));
  }
}

EncodedHeader EncodeHeader(const WashFileHeader& header) {
  EncodedHeader bytes{};
  PutWord(bytes, 0, AWashFile::kMagic);
  PutWord(bytes, 4, static_cast<std::uint32_t>(header.width));
  PutWord(bytes, 8, static_cast<std::uint32_t>(header.height));
  PutWord(bytes, 12, static_cast<std::uint32_t>(header.channels));
  PutWord(bytes, AWashFile::kSetIdOffset, header.setId);
  PutWord(bytes, AWashFile::kHeaderWordOffset, header.headerWord);
  PutWord(bytes, AWashFile::kEffectMaskOffset, header.effectMask);
  return bytes;
}

bool SizesAgree(const WashFileHeader& header, std::size_t sampleCount) {
  if (!IsPictureSize(header.width, header.height)) return false;
  if (header.channels != 1 && header.channels != 3) return false;
  std::size_t plane = 0;
  std::size_t all = 0;
  return CheckedProduct(static_cast<std::size_t>(header.width),
                        static_cast<std::size_t>(header.height), plane) &&
         CheckedProduct(plane, static_cast<std::size_t>(header.channels), all) &&
         all == sampleCount;
}

bool WriteAll(const std::filesystem::path& path, const EncodedHeader& header,
              std::span<const std::uint8_t> payload) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(header.data()),
             static_cast<std::streamsize>(header.size()));
  file.write(reinterpret_cast<const char*>(payload.data()),
             static_cast<std::streamsize>(payload.size()));
  file.close();
  return !file.fail();
}

}  // namespace

WashWriteOutcome WriteWashFile(const std::string& path, const WashFileHeader& header,
                               std::span<const std::uint8_t> samples) {
  if (!SizesAgree(header, samples.size())) return WashWriteOutcome::kBadPicture;
  const uLong sourceLength = static_cast<uLong>(samples.size());
  std::vector<std::uint8_t> packed;
  try {
    packed.resize(compressBound(sourceLength));
  } catch (const std::bad_alloc&) {
    return WashWriteOutcome::kOutOfMemory;
  }
  uLongf packedLength = static_cast<uLongf>(packed.size());
  if (compress2(packed.data(), &packedLength, samples.data(), sourceLength, Z_BEST_COMPRESSION) !=
      Z_OK) {
    return WashWriteOutcome::kOutOfMemory;
  }
  packed.resize(packedLength);

  const std::filesystem::path target = PathOfName(path);
  const std::filesystem::path part = PathOfName(path + ".part");
  std::error_code error;
  if (!WriteAll(part, EncodeHeader(header), packed)) {
    std::filesystem::remove(part, error);
    return WashWriteOutcome::kCannotWrite;
  }
  std::filesystem::rename(part, target, error);
  if (error) {
    std::error_code ignored;
    std::filesystem::remove(part, ignored);
    return WashWriteOutcome::kCannotWrite;
  }
  return WashWriteOutcome::kDone;
}

}  // namespace tarnwick
