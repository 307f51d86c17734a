#pragma once
#include <array>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>

#include "imaging/raster_image.h"

namespace tarnwick {

// Reads one texture file (".twk"): a header and one zlib stream with the planes
// one after the other, rows from the top, one byte a sample.
//
// Current form  52 bytes, little-endian words: "1kwt", width, height, channels
//               (1: grey; anything else: three planes), then 36 bytes that this
//               reader only keeps.
// Old form      16 bytes, big-endian: "wash", width, height, channels. It is
//               expected where the path has no "." in it.
// Sizes         A side over kMaxPictureSide counts as no texture file.
// Order of use  Open, GetWidth and GetHeight, ReadImage, Close. The destructor
//               closes too.
// Complaints    are handed to the function given, with the system's reason.
class AWashFile {
 public:
  using Complain = std::function<void(const std::string& text)>;
  static constexpr std::uint32_t kMagic = 0x74776B31;  // "1kwt" in the file
  static constexpr std::size_t kHeaderBytes = 52;
  static constexpr std::size_t kOldHeaderBytes = 16;
  // Words of the current form's header that the catalogue reads.
  static constexpr std::size_t kSetIdOffset = 20;
  static constexpr std::size_t kHeaderWordOffset = 24;
  static constexpr std::size_t kEffectMaskOffset = 28;

  explicit AWashFile(Complain complain = {}) : complain_(std::move(complain)) {}
  ~AWashFile() { Close(); }
  AWashFile(const AWashFile&) = delete;
  AWashFile& operator=(const AWashFile&) = delete;

  // True for a file with a good header.
  [[nodiscard]] bool Open(const std::string& path);
  // Takes the stream over, whatever the result; it is read from its start.
  [[nodiscard]] bool InitWithFile(std::FILE* stream);

  // From the header, after a true Open; else 0.
  [[nodiscard]] std::uint32_t GetWidth() const { return width; }
  [[nodiscard]] std::uint32_t GetHeight() const { return height; }
  [[nodiscard]] std::uint32_t GetChannels() const { return channels; }
  // A 32-bit word of the current form's header, by its byte offset.
  [[nodiscard]] std::uint32_t HeaderWord(std::size_t offset) const;

  // Hands out a new image of the file's size, also when it returns false: then
  // with whatever could be read. Grey, or RGB with three planes. A payload that
  // is too long is cut; one that ends properly but early leaves the rest 0. A
  // width or height of 0 gives an image without pixels, and true.
  [[nodiscard]] bool ReadImage(ImagePtr& image);

  void Close();

  bool isOldFormat = true;
  std::uint32_t oldMagic = 0;
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  std::uint32_t channels = 0;
  std::array<std::uint8_t, kHeaderBytes> header{};
  std::FILE* file = nullptr;

 private:
  [[nodiscard]] bool ReadHeader();
  [[nodiscard]] bool MagicHolds() const;
  void ComplainWithReason(const char* text) const;

  Complain complain_;
};

}  // namespace tarnwick
