#include <zlib.h>

#include <cstdlib>
#include <stdexcept>

#include "resources/art_generator/picture.h"

namespace tarnwick {
namespace {

std::uint32_t BigEndian(const std::string& bytes, std::size_t at) {
  if (at + 4 > bytes.size()) throw std::runtime_error("a truncated PNG");
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<std::uint8_t>(bytes[at + i]);
  return value;
}

struct PngChunks {
  std::string head;    // the first chunk, 13 bytes
  std::string packed;  // all chunks of samples
};

PngChunks ReadChunks(const std::string& bytes) {
  if (bytes.compare(0, 8, "\x89PNG\r\n\x1A\n") != 0) throw std::runtime_error("no PNG");
  PngChunks chunks;
  for (std::size_t at = 8; at < bytes.size();) {
    const std::size_t length = BigEndian(bytes, at);
    if (at + 8 > bytes.size() || length > bytes.size() - at - 8) {
      throw std::runtime_error("a truncated PNG");
    }
    const std::string type = bytes.substr(at + 4, 4);
    if (type == "IHDR") chunks.head = bytes.substr(at + 8, length);
    if (type == "IDAT") chunks.packed += bytes.substr(at + 8, length);
    at += length + 12;
  }
  if (chunks.head.size() != 13) throw std::runtime_error("a PNG without a head");
  return chunks;
}

// The neighbour that is nearest to left + up - corner.
int Paeth(int left, int up, int corner) {
  const int estimate = left + up - corner;
  const int toLeft = std::abs(estimate - left);
  const int toUp = std::abs(estimate - up);
  const int toCorner = std::abs(estimate - corner);
  if (toLeft <= toUp && toLeft <= toCorner) return left;
  return toUp <= toCorner ? up : corner;
}

// Undoes a row's filter in place. `above` is the row before, or zeros.
void Unfilter(int filter, std::uint8_t* row, const std::uint8_t* above, std::size_t stride,
              std::size_t step) {
  for (std::size_t i = 0; i < stride; ++i) {
    const int left = i < step ? 0 : row[i - step];
    const int up = above[i];
    const int corner = i < step ? 0 : above[i - step];
    int guess = 0;
    switch (filter) {
      case 0:
        break;
      case 1:
        guess = left;
        break;
      case 2:
        guess = up;
        break;
      case 3:
        guess = (left + up) / 2;
        break;
      case 4:
        guess = Paeth(left, up, corner);
        break;
      default:
        throw std::runtime_error("a PNG row of an unknown filter");
    }
    row[i] = static_cast<std::uint8_t>(row[i] + guess);
  }
}

}  // namespace

ArtPicture DecodePng(const std::string& bytes) {
  const PngChunks chunks = ReadChunks(bytes);
  ArtPicture picture;
  picture.width = static_cast<int>(BigEndian(chunks.head, 0));
  picture.height = static_cast<int>(BigEndian(chunks.head, 4));
  const char color = chunks.head[9];
  if (chunks.head[8] != 8 || (color != 2 && color != 6) || chunks.head[12] != 0 ||
      picture.width < 1 || picture.height < 1 || picture.width > 4096 || picture.height > 4096) {
    throw std::runtime_error("a PNG of another kind than expected");
  }
  const std::size_t step = color == 6 ? 4 : 3;
  const std::size_t stride = static_cast<std::size_t>(picture.width) * step;
  std::vector<std::uint8_t> rows((stride + 1) * static_cast<std::size_t>(picture.height));
  uLongf size = rows.size();
  if (uncompress(rows.data(), &size, reinterpret_cast<const Bytef*>(chunks.packed.data()),
                 chunks.packed.size()) != Z_OK ||
      size != rows.size()) {
    throw std::runtime_error("a damaged PNG");
  }
  std::vector<std::uint8_t> zeros(stride);
  const std::uint8_t* above = zeros.data();
  for (int y = 0; y < picture.height; ++y) {
    std::uint8_t* const row = rows.data() + static_cast<std::size_t>(y) * (stride + 1);
    Unfilter(row[0], row + 1, above, stride, step);
    above = row + 1;
    for (std::size_t i = 0; i < stride; i += step) {
      picture.samples.insert(picture.samples.end(), row + 1 + i, row + 1 + i + 3);
      picture.samples.push_back(step == 4 ? row[1 + i + 3] : 255);
    }
  }
  return picture;
}

}  // namespace tarnwick
