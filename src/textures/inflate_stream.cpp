#include "textures/inflate_stream.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <memory>
#include <new>

namespace tarnwick {
namespace {

constexpr std::size_t kReadSize = 0x40000;
constexpr std::size_t kMaxRoom = 0x40000000;  // zlib counts in 32 bits
constexpr std::size_t kSpareSize = 0x4000;

class Inflater {
 public:
  Inflater() : code_(inflateInit(&stream_)) {}
  ~Inflater() {
    if (code_ == Z_OK) inflateEnd(&stream_);
  }
  Inflater(const Inflater&) = delete;
  Inflater& operator=(const Inflater&) = delete;
  [[nodiscard]] int InitCode() const { return code_; }
  [[nodiscard]] z_stream& Stream() { return stream_; }

 private:
  z_stream stream_{};
  int code_;
};

// The rest of the destination, and a place for what does not fit it: the stream
// is read to its end, since only there it tells whether it is whole.
class Destination {
 public:
  Destination(std::uint8_t* data, std::size_t size) : next_(data), left_(size) {}
  void OfferRoom(z_stream& stream) {
    room_ = static_cast<uInt>(left_ == 0 ? kSpareSize : std::min(left_, kMaxRoom));
    stream.next_out = left_ == 0 ? spare_.data() : next_;
    stream.avail_out = room_;
  }
  void TakeOutput(const z_stream& stream) {
    if (left_ == 0) return;
    const std::size_t written = room_ - stream.avail_out;
    next_ += written;
    left_ -= written;
  }

 private:
  std::uint8_t* next_;
  std::size_t left_;
  uInt room_ = 0;
  std::array<std::uint8_t, kSpareSize> spare_;
};

}  // namespace

int InflateStream(std::FILE* file, std::uint8_t* destination, std::size_t size,
                  const char*& complaint) {
  complaint = nullptr;
  const std::unique_ptr<std::uint8_t[]> buffer(new (std::nothrow) std::uint8_t[kReadSize]);
  if (buffer == nullptr) {
    complaint = "InflateStream(): Failed to allocate read buffer.";
    return kInflateNoBuffer;
  }
  Inflater inflater;
  if (inflater.InitCode() != Z_OK) {
    complaint = "InflateStream(): inflateInit(&zStream) failed.";
    return inflater.InitCode();
  }
  z_stream& stream = inflater.Stream();
  Destination output(destination, size);

  int code = Z_OK;
  while (code != Z_STREAM_END) {
    const std::size_t got = std::fread(buffer.get(), 1, kReadSize, file);
    if (std::ferror(file) != 0) return kInflateReadError;
    if (got == 0) break;
    stream.next_in = buffer.get();
    stream.avail_in = static_cast<uInt>(got);
    do {
      output.OfferRoom(stream);
      code = inflate(&stream, Z_NO_FLUSH);
      if (code == Z_NEED_DICT) return kInflateTruncated;
      if (code == Z_DATA_ERROR || code == Z_MEM_ERROR) return code;
      output.TakeOutput(stream);
    } while (stream.avail_out == 0 && code != Z_STREAM_END);
  }
  return code == Z_STREAM_END ? 0 : kInflateTruncated;
}

}  // namespace tarnwick
