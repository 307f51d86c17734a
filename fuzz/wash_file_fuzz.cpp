// Any bytes as a texture file: reading ends, what was read can be loaded into a
// layer that covers a small document, and a written file reads back.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "textures/texture_load.h"
#include "textures/wash_file.h"
#include "textures/wash_file_writer.h"

namespace {

using namespace tarnwick;

std::string OwnPath(const char* name) {
  const char* const folder = std::getenv("TMPDIR");
  return std::string(folder != nullptr ? folder : "/tmp") + "/wash_file_fuzz-" +
         std::to_string(getpid()) + name;
}

void WriteBytes(const std::string& path, const std::uint8_t* data, std::size_t size) {
  std::FILE* const file = std::fopen(path.c_str(), "wb");
  if (file == nullptr || std::fwrite(data, 1, size, file) != size) std::abort();
  std::fclose(file);
}

// A damaged header may ask for gigabytes: that is no fault, and no use here.
bool IsSmall(const AWashFile& file) {
  return file.GetWidth() * std::uint64_t{file.GetHeight()} <= 1 << 20;
}

bool SamePixels(const RasterImage& a, const RasterImage& b) {
  return a.store.bytes == b.store.bytes &&
         (a.store.bytes == 0 || std::memcmp(a.PeekPixels(), b.PeekPixels(), a.store.bytes) == 0);
}

void Rewrite(const RasterImage& image) {
  static const std::string path = OwnPath("-again.twk");
  if (image.PeekPixels() == nullptr) return;
  const WashFileHeader header{image.Width(), image.Height(), image.planeCount};
  if (WriteWashFile(path, header, {image.PeekPixels(), image.store.bytes}) !=
      WashWriteOutcome::kDone) {
    std::abort();
  }
  AWashFile file;
  ImagePtr again;
  if (!file.Open(path) || !file.ReadImage(again) || !SamePixels(image, *again)) std::abort();
}

// `bits` picks the document and how the texture lies on it.
void Load(const std::string& path, unsigned bits) {
  RenderState state;
  state.previewMode = (bits & 1) != 0;
  state.viewScale = state.previewMode ? 2.0F : 1.0F;
  state.documentWidth = state.renderWidth = 1 + static_cast<int>(bits >> 1 & 31);
  state.documentHeight = state.renderHeight = 1 + static_cast<int>(bits >> 6 & 31);
  EffectLayer layer;
  layer.kind = (bits & 2) != 0 ? LayerKind::kSurface : LayerKind::kWash;
  layer.scaleSetting = static_cast<double>(bits & 200);
  layer.angle = static_cast<int>(bits % 400);
  layer.invert = layer.flipVertical = (bits & 4) != 0;
  layer.flipHorizontal = (bits & 8) != 0;
  layer.offsetX = static_cast<int>(bits & 63) - 16;
  if (!LoadTexture(layer, state, path)) std::abort();
  if (layer.texture == nullptr || layer.texture->PeekPixels() == nullptr) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string path = OwnPath(".twk");
  WriteBytes(path, data, size);
  AWashFile file;
  ImagePtr image;
  if (file.Open(path)) {
    if (!IsSmall(file)) return 0;
    static_cast<void>(file.ReadImage(image));
    if (image == nullptr) std::abort();
    Rewrite(*image);
  }
  unsigned bits = 0;
  for (std::size_t i = 0; i < size; ++i) bits = bits * 31 + data[i];
  // Without a good header every load gives the same large stand-in.
  if (image != nullptr || bits % 64 == 0) Load(path, bits);

  // The same bytes in the old form.
  AWashFile old;
  if (old.InitWithFile(std::fopen(path.c_str(), "rb")) && IsSmall(old)) {
    static_cast<void>(old.ReadImage(image));
  }
  return 0;
}
