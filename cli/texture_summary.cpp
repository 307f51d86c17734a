#include "texture_summary.h"

#include <zlib.h>

#include <algorithm>
#include <cstdio>
#include <memory>

#include "textures/texture_effects.h"
#include "textures/wash_file.h"

namespace tarnwick {
namespace {

constexpr std::size_t kChunk = 1u << 18;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

// A stream that is torn down whatever happens.
class Unpacker {
 public:
  Unpacker() : ready_(inflateInit(&stream_) == Z_OK) {}
  ~Unpacker() {
    if (ready_) inflateEnd(&stream_);
  }
  Unpacker(const Unpacker&) = delete;
  Unpacker& operator=(const Unpacker&) = delete;

  // Adds what `input` unpacks to, to `count`; zlib's code of the last step.
  int Count(std::vector<Bytef>& input, std::size_t length, std::uint64_t& count) {
    if (!ready_) return Z_MEM_ERROR;
    stream_.next_in = input.data();
    stream_.avail_in = static_cast<uInt>(length);
    int code = Z_OK;
    do {
      stream_.next_out = output_.data();
      stream_.avail_out = static_cast<uInt>(output_.size());
      code = inflate(&stream_, Z_NO_FLUSH);
      count += output_.size() - stream_.avail_out;
    } while (code == Z_OK && stream_.avail_out == 0);
    // No progress only means that more input is wanted.
    return code == Z_BUF_ERROR ? Z_OK : code;
  }

 private:
  z_stream stream_{};
  std::vector<Bytef> output_ = std::vector<Bytef>(kChunk);
  bool ready_;
};

}  // namespace

std::optional<TextureSummary> ReadTextureSummary(const std::filesystem::path& path) {
  AWashFile file;
  if (!file.Open(path.string())) return std::nullopt;
  TextureSummary summary;
  summary.width = static_cast<int>(file.GetWidth());
  summary.height = static_cast<int>(file.GetHeight());
  summary.planes = file.GetChannels() == 1 ? 1 : 3;
  summary.setId = file.HeaderWord(AWashFile::kSetIdOffset);
  summary.effectMask = file.HeaderWord(AWashFile::kEffectMaskOffset);
  return summary;
}

std::vector<std::string> EffectNames(std::uint32_t mask) {
  std::vector<std::string> names;
  for (int bit = 1; bit <= static_cast<int>(kTextureEffects.size()); ++bit) {
    if ((mask >> bit & 1u) != 0) names.emplace_back(TextureEffectName(bit));
  }
  return names;
}

PayloadState CheckPayload(const std::filesystem::path& path, const TextureSummary& summary) {
  const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rb"));
  if (!file || std::fseek(file.get(), AWashFile::kHeaderBytes, SEEK_SET) != 0) {
    return PayloadState::kDamaged;
  }
  Unpacker unpacker;
  std::vector<Bytef> input(kChunk);
  std::uint64_t count = 0;
  int code = Z_OK;
  while (code == Z_OK) {
    const std::size_t length = std::fread(input.data(), 1, input.size(), file.get());
    if (length == 0) return PayloadState::kCut;
    code = unpacker.Count(input, length, count);
  }
  if (code != Z_STREAM_END) return PayloadState::kDamaged;
  const std::uint64_t wanted = std::uint64_t{1} * static_cast<unsigned>(summary.width) *
                               static_cast<unsigned>(summary.height) *
                               static_cast<unsigned>(summary.planes);
  if (count == wanted) return PayloadState::kWhole;
  return count < wanted ? PayloadState::kShort : PayloadState::kLong;
}

std::string DescribePayload(PayloadState state) {
  switch (state) {
    case PayloadState::kWhole:
      return "whole";
    case PayloadState::kShort:
      return "ends before the picture is full";
    case PayloadState::kLong:
      return "longer than the picture";
    case PayloadState::kCut:
      return "cut off";
    case PayloadState::kDamaged:
      break;
  }
  return "damaged";
}

bool IsUsable(PayloadState state) {
  return state != PayloadState::kCut && state != PayloadState::kDamaged;
}

}  // namespace tarnwick
