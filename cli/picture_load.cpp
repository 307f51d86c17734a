#include "picture_load.h"

#include <new>
#include <string>

#include "cli_error.h"
#include "picture_color.h"
#include "picture_open.h"
#include "vips_library.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using vips::VImage;

[[noreturn]] void FailRead(const fs::path& path) {
  const std::string fault = VipsFault("its samples cannot be read");
  if (fault.find("out of memory") != std::string::npos) throw std::bad_alloc();
  FailInput(path.string(), "is damaged: " + fault, "take a whole copy of it");
}

// In memory and upright. A turn needs the rows in another order than the file
// gives them, so it comes second and costs a copy for a moment.
VImage Upright(const VImage& image) {
  const VImage whole = IntoMemory(image);
  if (vips_image_get_orientation(whole.get_image()) == 1) return whole;
  return IntoMemory(whole.autorot());
}

// What would be false in the result: the small picture of before, the pages
// that are not taken, how long each of them shows.
void DropStaleFields(VImage& image) {
  for (const char* name : {"jpeg-thumbnail-data", "heif-thumbnail", VIPS_META_N_PAGES,
                           VIPS_META_PAGE_HEIGHT, VIPS_META_N_SUBIFDS, VIPS_META_ORIENTATION,
                           "delay", "loop", "gif-delay", "gif-loop", "gif-palette"}) {
    if (image.get_typeof(name) != 0) image.remove(name);
  }
}

}  // namespace

Picture LoadPicture(const fs::path& path, PictureNotes& notes) {
  const VImage file = OpenPictureFile(path, notes);
  try {
    Picture picture;
    ToPaintable(file, picture, notes);
    picture.image = Upright(picture.image);
    DropStaleFields(picture.image);
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
