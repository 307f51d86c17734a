#include "textures/inflate_stream.h"

#include <zlib.h>

#include <algorithm>
#include <memory>
#include <new>

namespace tarnwick {
namespace {

constexpr std::size_t kReadSize = 0x40000;
constexpr std::size_t kMaxRoom = 0x40000000;  // zlib counts in 32 bits

class Inflater {
 public:
  Inflater() { ready_ = inflateInit(&stream_) == Z_OK; }
  ~Inflater() {
    if (ready_) inflateEnd(&stream_);
  }
  Inflater(const Inflater&) = delete;
  Inflater& operator=(const Inflater&) = delete;
  [[nodiscard]] bool Ready() const { return ready_; }
  [[nodiscard]] z_stream& Stream() { return stream_; }

 private:
  z_stream stream_{};
  bool ready_ = false;
};

// The rest of the destination. When it is full, one spare byte tells whether the
// stream has more to give.
class Destination {
 public:
  Destination(std::uint8_t* data, std::size_t size) : next_(data), left_(size) {}
  void OfferRoom(z_stream& stream) {
    room_ = left_ == 0 ? 1 : static_cast<uInt>(std::min(left_, kMaxRoom));
    stream.next_out = left_ == 0 ? &spare_ : next_;
    stream.avail_out = room_;
  }
  // False when the stream gave more than the destination holds.
  [[nodiscard]] bool TakeOutput(const z_stream& stream) {
    const std::size_t written = room_ - stream.avail_out;
    if (left_ == 0) return written == 0;
    next_ += written;
    left_ -= written;
    return true;
  }

 private:
  std::uint8_t* next_;
  std::size_t left_;
  uInt room_ = 0;
  std::uint8_t spare_ = 0;
};

}  // namespace

int InflateStream(std::FILE* file, std::uint8_t* destination, std::size_t size) {
  const std::unique_ptr<std::uint8_t[]> buffer(new (std::nothrow) std::uint8_t[kReadSize]);
  if (buffer == nullptr) return kInflateNoBuffer;
  Inflater inflater;
  if (!inflater.Ready()) return kInflateNoInit;
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
      if (!output.TakeOutput(stream)) return 0;
    } while (stream.avail_out == 0 && code != Z_STREAM_END);
  }
  return code == Z_STREAM_END ? 0 : kInflateTruncated;
}

}  // namespace tarnwick
