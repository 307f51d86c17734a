#include "picture_load.h"

#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "cli_error.h"
#include "picture_color.h"
#include "picture_open.h"
#include "tiff_metadata.h"
#include "vips_library.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using vips::VImage;

[[noreturn]] void FailRead(const fs::path& path) {
  const std::string fault = VipsFault("its samples cannot be read");
  if (IsMemoryFault(fault)) throw std::bad_alloc();
  FailInput(path.string(), "is damaged: " + fault, "take a whole copy of it");
}

// In memory and upright. A turn needs the rows in another order than the file
// gives them, so it comes second and costs a copy for a moment.
VImage Upright(const VImage& image) {
  const VImage whole = IntoMemory(image);
  if (vips_image_get_orientation(whole.get_image()) == 1) return whole;
  return IntoMemory(whole.autorot());
}

bool Has(const VImage& image, const char* name) {
  return image.get_typeof(name) != 0;
}

// What would be false in the result: the small picture of before, the pages
// that are not taken, how long each of them shows.
void DropStaleFields(VImage& image) {
  for (const char* name : {"jpeg-thumbnail-data", "heif-thumbnail", VIPS_META_N_PAGES,
                           VIPS_META_PAGE_HEIGHT, VIPS_META_N_SUBIFDS, VIPS_META_ORIENTATION,
                           "delay", "loop", "gif-delay", "gif-loop", "gif-palette"}) {
    if (Has(image, name)) image.remove(name);
  }
}

// The library keeps EXIF as single fields, which it reads along with a picture
// only: so the block travels in a JPEG of one pixel.
void AttachExif(const std::vector<std::uint8_t>& block, VImage& image) {
  constexpr std::size_t kLongestSegment = 0xFFFF - 2;
  if (block.empty() || block.size() > kLongestSegment) return;
  VipsBlob* saved = VImage::black(1, 1).jpegsave_buffer(VImage::option()->set("strip", true));
  std::size_t length = 0;
  const auto* bytes = static_cast<const std::uint8_t*>(vips_blob_get(saved, &length));
  constexpr std::size_t kStartOfImage = 2;
  std::vector<std::uint8_t> carrier(bytes, bytes + kStartOfImage);
  const std::size_t segment = block.size() + 2;
  carrier.insert(carrier.end(), {0xFF, 0xE1, static_cast<std::uint8_t>(segment >> 8),
                                 static_cast<std::uint8_t>(segment & 0xFF)});
  carrier.insert(carrier.end(), block.begin(), block.end());
  carrier.insert(carrier.end(), bytes + kStartOfImage, bytes + length);
  vips_area_unref(reinterpret_cast<VipsArea*>(saved));
  const VImage loaded =
      VImage::new_from_buffer(carrier.data(), carrier.size(), "", VImage::option());
  CopyAttachments(loaded, image, "exif-");
}

bool IsTiff(const VImage& image) {
  return Has(image, VIPS_META_LOADER) &&
         std::string_view(image.get_string(VIPS_META_LOADER)).starts_with("tiffload");
}

}  // namespace

Picture LoadPicture(const fs::path& path, PictureNotes& notes) {
  const VImage file = OpenPictureFile(path, notes);
  try {
    Picture picture;
    ToPaintable(file, picture, notes);
    picture.image = Upright(picture.image);
    DropStaleFields(picture.image);
    if (IsTiff(picture.image) && !Has(picture.image, VIPS_META_EXIF_NAME)) {
      AttachExif(ExifOfTiff(path), picture.image);
    }
    return picture;
  } catch (const vips::VError&) {
    FailRead(path);
  }
}

VImage LoadGreyPicture(const fs::path& path, PictureNotes& notes) {
  const VImage file = OpenPictureFile(path, notes);
  try {
    return Upright(ToGrey(file, notes));
  } catch (const vips::VError&) {
    FailRead(path);
  }
}

VImage LoadSelection(const fs::path& path) {
  PictureNotes ignored;
  VImage image = OpenPictureFile(path, ignored);
  try {
    if (image.format() == VIPS_FORMAT_USHORT) image = image.msb();
    if (image.format() != VIPS_FORMAT_UCHAR || image.coding() != VIPS_CODING_NONE) {
      FailUse(path.string(), "is no grey picture of 8 or 16 bits", "convert the selection first");
    }
    image = Upright(image);
    if (image.bands() >= 3) {
      // Many programs save grey pictures with three equal planes.
      const VImage red = image.extract_band(0);
      const VImage others = image.extract_band(1, VImage::option()->set("n", 2));
      if (image.interpretation() == VIPS_INTERPRETATION_CMYK || (others - red).abs().max() > 0) {
        FailUse(path.string(), "has colours, but a selection is grey", "give a grey picture");
      }
    }
    return image.bands() == 1 ? image : IntoMemory(image.extract_band(0));
  } catch (const vips::VError&) {
    FailRead(path);
  }
}

}  // namespace tarnwick
