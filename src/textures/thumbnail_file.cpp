#include "textures/thumbnail_file.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "base/native_path.h"
#include "base/unused_name.h"

namespace tarnwick {
namespace {

constexpr std::size_t kFileHeaderBytes = 14;
constexpr std::size_t kHeaderBytes = kFileHeaderBytes + 40;
constexpr std::uint32_t kLongestSide = 4096;
constexpr std::size_t kMostFileBytes = std::size_t{kLongestSide} * kLongestSide * 3 + 4096;

std::size_t RowBytes(std::size_t width) {
  return (width * 3 + 3) / 4 * 4;
}

void Put(std::string& bytes, std::size_t offset, std::size_t count, std::size_t value) {
  for (std::size_t i = 0; i < count; ++i) bytes[offset + i] = static_cast<char>(value >> (8 * i));
}

std::uint32_t Get(std::string_view bytes, std::size_t offset, std::size_t count) {
  std::uint32_t value = 0;
  for (std::size_t i = count; i-- > 0;) {
    value = value << 8 | static_cast<unsigned char>(bytes[offset + i]);
  }
  return value;
}

std::string BitmapBytes(const ThumbnailPicture& picture) {
  const auto width = static_cast<std::size_t>(picture.width);
  const auto height = static_cast<std::size_t>(picture.height);
  const std::size_t rowBytes = RowBytes(width);
  std::string bytes(kHeaderBytes + rowBytes * height, '\0');
  bytes[0] = 'B';
  bytes[1] = 'M';
  Put(bytes, 2, 4, bytes.size());
  Put(bytes, 10, 4, kHeaderBytes);
  Put(bytes, 14, 4, kHeaderBytes - kFileHeaderBytes);
  Put(bytes, 18, 4, width);
  Put(bytes, 22, 4, height);
  Put(bytes, 26, 2, 1);
  Put(bytes, 28, 2, 24);
  Put(bytes, 34, 4, rowBytes * height);
  for (std::size_t y = 0; y < height; ++y) {
    const std::uint8_t* from = picture.samples.data() + (height - 1 - y) * width * 3;
    char* to = bytes.data() + kHeaderBytes + y * rowBytes;
    for (std::size_t x = 0; x < width; ++x, from += 3, to += 3) {
      for (std::size_t c = 0; c < 3; ++c) to[c] = static_cast<char>(from[2 - c]);
    }
  }
  return bytes;
}

// Empty if the file cannot be read or is no thumbnail by its length.
std::string ReadBytes(const std::string& path) {
  std::error_code error;
  const std::uintmax_t length = std::filesystem::file_size(PathOfName(path), error);
  if (error || length < kHeaderBytes || length > kMostFileBytes) return {};
  std::ifstream file(path, std::ios::binary);
  std::string bytes(static_cast<std::size_t>(length), '\0');
  if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return {};
  return bytes;
}

bool WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return !file.fail();
}

}  // namespace

std::string ThumbnailPath(const std::string& folder, const std::string& textureName) {
  return folder + "/" + textureName + ".bmp";
}

std::optional<ThumbnailPicture> ReadThumbnail(const std::string& path) {
  const std::string bytes = ReadBytes(path);
  if (bytes.empty() || !bytes.starts_with("BM") || Get(bytes, 28, 2) != 24) return std::nullopt;
  const std::uint32_t start = Get(bytes, 10, 4);
  const std::uint32_t width = Get(bytes, 18, 4);
  const std::uint32_t height = Get(bytes, 22, 4);
  const bool isPacked = Get(bytes, 30, 4) != 0;
  if (isPacked || width - 1 >= kLongestSide || height - 1 >= kLongestSide) return std::nullopt;
  const std::size_t rowBytes = RowBytes(width);
  if (start < kHeaderBytes || start > bytes.size() || bytes.size() - start < rowBytes * height)
    return std::nullopt;
  ThumbnailPicture picture(static_cast<int>(width), static_cast<int>(height));
  for (std::size_t y = 0; y < height; ++y) {
    const char* from = bytes.data() + start + (height - 1 - y) * rowBytes;
    std::uint8_t* to = picture.samples.data() + y * width * 3;
    for (std::size_t x = 0; x < width; ++x, from += 3, to += 3) {
      for (std::size_t c = 0; c < 3; ++c) to[c] = static_cast<std::uint8_t>(from[2 - c]);
    }
  }
  return picture;
}

std::optional<ThumbnailPicture> ReadThumbnail(const std::string& path, ThumbnailSize size) {
  std::optional<ThumbnailPicture> picture = ReadThumbnail(path);
  if (picture && (picture->width != size.width || picture->height != size.height)) picture.reset();
  return picture;
}

bool WriteThumbnail(const std::string& path, const ThumbnailPicture& picture) {
  const std::filesystem::path target = PathOfName(path);
  const std::filesystem::path part = UnusedNameBeside(target);
  std::error_code error;
  if (WriteBytes(part, BitmapBytes(picture))) {
    std::filesystem::rename(part, target, error);
    if (!error) return true;
  }
  std::filesystem::remove(part, error);
  return false;
}

}  // namespace tarnwick
