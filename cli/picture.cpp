#include "picture.h"

#include <string_view>

namespace tarnwick {
namespace {

// Fields of the picture itself, which a picture of another size keeps as its own.
bool IsShapeField(const char* name) {
  for (const char* own : {"width", "height", "bands", "format", "coding", "interpretation",
                          "xoffset", "yoffset", "xres", "yres", "filename", "vips-sequential"}) {
    if (std::string_view(name) == own) return true;
  }
  return false;
}

struct CopyJob {
  VipsImage* to;
  std::string_view prefix;
};

void* CopyField(VipsImage*, const char* name, GValue* value, void* data) {
  const auto* job = static_cast<const CopyJob*>(data);
  if (!IsShapeField(name) && std::string_view(name).starts_with(job->prefix)) {
    vips_image_set(job->to, name, value);
  }
  return nullptr;
}

}  // namespace

std::uint8_t* Picture::Pixels() const {
  return static_cast<std::uint8_t*>(const_cast<void*>(image.data()));
}

vips::VImage IntoMemory(const vips::VImage& image) {
  // Not copy_memory: that one hands out a mapped input file as it is.
  return image.write(vips::VImage::new_memory());
}

Picture PictureLike(const Picture& from, int width, int height) {
  Picture like = from;
  like.image = IntoMemory(
      vips::VImage::black(width, height, vips::VImage::option()->set("bands", from.Planes()))
          .copy(vips::VImage::option()
                    ->set("interpretation", from.image.interpretation())
                    ->set("xres", from.image.xres())
                    ->set("yres", from.image.yres())));
  CopyAttachments(from.image, like.image);
  return like;
}

void CopyAttachments(const vips::VImage& from, const vips::VImage& to, std::string_view prefix) {
  CopyJob job{to.get_image(), prefix};
  vips_image_map(from.get_image(), CopyField, &job);
}

}  // namespace tarnwick
