#include "textures/wash_file.h"

#include <cerrno>
#include <cstring>

#include "base/checked_size.h"
#include "textures/inflate_stream.h"

namespace tarnwick {
namespace {

constexpr std::uint32_t kOldMagic = 0x77617368;  // "wash"
constexpr char kWrongHeader[] =
    "AWashFile::InitWithFile - Header check failed, file does not appear to be a wash file";

std::uint32_t LittleWord(const std::uint8_t* b) {
  return b[0] | std::uint32_t{b[1]} << 8 | std::uint32_t{b[2]} << 16 | std::uint32_t{b[3]} << 24;
}

std::uint32_t BigWord(const std::uint8_t* b) {
  return b[3] | std::uint32_t{b[2]} << 8 | std::uint32_t{b[1]} << 16 | std::uint32_t{b[0]} << 24;
}

}  // namespace

bool AWashFile::Open(const std::string& path) {
  if (path.find('.') != std::string::npos) isOldFormat = false;
  errno = 0;
  return InitWithFile(std::fopen(path.c_str(), "rb"));
}

bool AWashFile::InitWithFile(std::FILE* stream) {
  const int reason = errno;
  Close();
  file = stream;
  width = height = channels = 0;
  if (file == nullptr) {
    errno = reason;
    ComplainWithReason("AWashFile::InitOpen() failed.");
    return false;
  }
  errno = 0;
  if (ReadHeader()) return true;
  ComplainWithReason(kWrongHeader);
  Close();
  oldMagic = width = height = channels = 0;
  return false;
}

bool AWashFile::ReadHeader() {
  header.fill(0);
  oldMagic = 0;
  if (std::fseek(file, 0, SEEK_SET) != 0) return false;
  const std::size_t bytes = isOldFormat ? kOldHeaderBytes : kHeaderBytes;
  if (std::fread(header.data(), 1, bytes, file) != bytes) return false;
  const auto word = isOldFormat ? BigWord : LittleWord;
  if (isOldFormat) oldMagic = word(header.data());
  if (!MagicHolds()) return false;
  width = word(header.data() + 4);
  height = word(header.data() + 8);
  channels = word(header.data() + 12);
  return width <= kMaxPictureSide && height <= kMaxPictureSide;
}

bool AWashFile::MagicHolds() const {
  return isOldFormat ? oldMagic == kOldMagic : LittleWord(header.data()) == kMagic;
}

std::uint32_t AWashFile::HeaderWord(std::size_t offset) const {
  if (isOldFormat || offset + 4 > kHeaderBytes) return 0;
  return LittleWord(header.data() + offset);
}

bool AWashFile::ReadImage(ImagePtr& image) {
  if (file == nullptr || !MagicHolds()) return false;
  const bool gray = channels == 1;
  const Rect bounds{0, 0, static_cast<std::int32_t>(height), static_cast<std::int32_t>(width)};
  image =
      std::make_shared<RasterImage>(gray ? kGrayMode : kRgbMode, bounds,
                                    static_cast<std::int8_t>(gray ? 1 : 3), 8, 0, std::uint8_t{0});
  const auto start = static_cast<long>(isOldFormat ? kOldHeaderBytes : kHeaderBytes);
  if (std::fseek(file, start, SEEK_SET) != 0) return false;
  std::uint8_t* const pixels = image->Pixels();
  // An empty picture has nothing to inflate; one without memory has no place.
  if (pixels == nullptr) return width == 0 || height == 0;
  errno = 0;
  const char* complaint = nullptr;
  const int code = InflateStream(file, pixels, image->store.bytes, complaint);
  if (code == 0) return true;
  if (complaint != nullptr) ComplainWithReason(complaint);
  if (complain_) {
    complain_("InflateStream failed with error " + std::to_string(code) + ".\n");
  }
  return false;
}

void AWashFile::Close() {
  if (file != nullptr) std::fclose(file);
  file = nullptr;
}

void AWashFile::ComplainWithReason(const char* text) const {
  if (complain_) complain_(std::string(text) + ": " + std::strerror(errno) + "\n");
}

}  // namespace tarnwick
