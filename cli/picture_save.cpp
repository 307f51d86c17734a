#include "picture_save.h"

#include <new>
#include <span>
#include <string_view>
#include <vector>

#include "cli_error.h"
#include "iptc_block.h"
#include "picture_color.h"
#include "tiff_metadata.h"
#include "vips_library.h"

namespace tarnwick {
namespace {

using vips::VImage;

constexpr int kFullColorQuality = 90;

bool IsJpeg(const PictureFormat& format) {
  return format.extension == "jpg" || format.extension == "jpeg" || format.extension == "jpe";
}

bool IsTiff(const PictureFormat& format) {
  return format.extension == "tif" || format.extension == "tiff";
}

vips::VOption* WritingOptions(const PictureFormat& format, const VImage& image, int quality) {
  vips::VOption* options = VImage::option();
  if (format.lossy) options->set("Q", quality);
  const std::string_view name = format.extension;
  if (IsJpeg(format)) {
    options->set("optimize_coding", true)
        ->set("subsample_mode", quality >= kFullColorQuality ? VIPS_FOREIGN_SUBSAMPLE_OFF
                                                             : VIPS_FOREIGN_SUBSAMPLE_ON);
  } else if (name == "png") {
    // For photographs this is both smaller and faster than no filter at level 6.
    options->set("compression", 3)->set("filter", VIPS_FOREIGN_PNG_FILTER_PAETH);
  } else if (name == "ppm" || name == "pnm" || name == "pgm") {
    // Else the library writes a comment with the time of day.
    options->set("strip", true);
  } else if (name == "webp") {
    options->set("smart_subsample", quality >= kFullColorQuality);
  } else if (IsTiff(format)) {
    constexpr double kClassicLimit = 3.9e9;
    const double bytes = 1.0 * image.width() * image.height() * image.bands();
    options->set("compression", VIPS_FOREIGN_TIFF_COMPRESSION_LZW)
        ->set("predictor", VIPS_FOREIGN_TIFF_PREDICTOR_HORIZONTAL)
        ->set("bigtiff", bytes > kClassicLimit);
  }
  return options;
}

VImage Planes(const VImage& image, int count) {
  return image.extract_band(0, VImage::option()->set("n", count));
}

// Drops what the format has no place for.
VImage Adapt(const VImage& picture, const PictureFormat& format, PictureNotes& notes) {
  constexpr int kAlphaPlane = 3;
  VImage image = picture;
  if (image.bands() > kAlphaPlane + 1 && !format.manyPlanes) {
    notes.push_back("planes beyond alpha are left out, as " + std::string(format.extension) +
                    " has no place for them");
    image = Planes(image, kAlphaPlane + 1);
  }
  if (image.bands() == kAlphaPlane + 1 && !format.alpha) {
    if (image.extract_band(kAlphaPlane).min() < 255) {
      notes.push_back("transparent parts are put on white, as " + std::string(format.extension) +
                      " has no transparency");
      image = image.flatten(VImage::option()->set("background", std::vector<double>{255.0}));
    } else {
      image = Planes(image, kAlphaPlane);
    }
  }
  return image;
}

// The library gives a picture without EXIF a block of its own that calls the
// colours uncalibrated; what has no profile is sRGB.
VImage WithColorSpaceTag(const VImage& image) {
  if (image.get_typeof(VIPS_META_EXIF_NAME) != 0 || image.get_typeof(VIPS_META_ICC_NAME) != 0 ||
      image.interpretation() == VIPS_INTERPRETATION_CMYK) {
    return image;
  }
  VImage tagged = image.copy();
  tagged.set("exif-ifd2-ColorSpace", "1");
  return tagged;
}

std::span<const std::uint8_t> Attached(const VImage& image, const char* name) {
  if (image.get_typeof(name) == 0) return {};
  std::size_t length = 0;
  const void* data = image.get_blob(name, &length);
  return {static_cast<const std::uint8_t*>(data), length};
}

VImage Without(const VImage& image, const char* name) {
  if (image.get_typeof(name) == 0) return image;
  VImage changed = image.copy();
  changed.remove(name);
  return changed;
}

VImage WithWrappedIptc(const VImage& image) {
  const std::vector<std::uint8_t> block = WrappedIptc(Attached(image, VIPS_META_IPTC_NAME));
  VImage changed = Without(image, VIPS_META_IPTC_NAME);
  vips_image_set_blob_copy(changed.get_image(), VIPS_META_IPTC_NAME, block.data(), block.size());
  return changed;
}

void SaveTiff(const VImage& image, const std::string& path, const std::string& shown,
              const PictureFormat& format, PictureNotes& notes) {
  constexpr int kNoQuality = 0;
  SaveImage(Without(image, VIPS_META_IPTC_NAME), path, shown, format, kNoQuality);
  if (!AddMetadataToTiff(path, Attached(image, VIPS_META_EXIF_NAME),
                         BareIptc(Attached(image, VIPS_META_IPTC_NAME)), image.width(),
                         image.height())) {
    notes.push_back("its EXIF and IPTC data could not be taken over");
  }
}

}  // namespace

void SaveImage(const VImage& image, const std::string& path, const std::string& shown,
               const PictureFormat& format, int quality) {
  try {
    image.write_to_file(path.c_str(), WritingOptions(format, image, quality));
  } catch (const vips::VError&) {
    const std::string fault = VipsFault("unknown fault");
    if (IsMemoryFault(fault)) throw std::bad_alloc();
    FailInput(shown, "cannot be written: " + fault, "check disk space and format");
  }
}

void SavePicture(const Picture& picture, const std::string& path, const std::string& shown,
                 const PictureFormat& format, int quality, PictureNotes& notes) {
  VImage image;
  try {
    image = Adapt(picture.image, format, notes);
    if (picture.fromCmyk && format.cmyk) {
      image = BackToCmyk(image, picture.cmykProfile);
    } else if (!format.profile) {
      image = ToUntaggedRgb(image);
    }
    image = WithColorSpaceTag(image);
    if (IsJpeg(format) && image.get_typeof(VIPS_META_IPTC_NAME) != 0) {
      image = WithWrappedIptc(image);
    }
  } catch (const vips::VError&) {
    FailInput(shown, "colours cannot be converted: " + VipsFault("unknown fault"));
  }
  if (IsTiff(format)) {
    SaveTiff(image, path, shown, format, notes);
  } else {
    SaveImage(image, path, shown, format, quality);
  }
}

}  // namespace tarnwick
