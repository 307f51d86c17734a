#include "picture_color.h"

#include <algorithm>
#include <string_view>

namespace tarnwick {
namespace {

using vips::VImage;

// What the profile says it describes: "RGB ", "GRAY", "CMYK"; empty without one.
std::string_view ProfileSpace(const VImage& image) {
  constexpr std::size_t kSpaceOffset = 16;
  constexpr std::size_t kSpaceLength = 4;
  if (image.get_typeof(VIPS_META_ICC_NAME) == 0) return {};
  std::size_t length = 0;
  const auto* bytes = static_cast<const char*>(image.get_blob(VIPS_META_ICC_NAME, &length));
  if (length < kSpaceOffset + kSpaceLength) return {};
  return {bytes + kSpaceOffset, kSpaceLength};
}

vips::VOption* As(VipsInterpretation interpretation) {
  return VImage::option()->set("interpretation", interpretation);
}

VImage WithoutProfile(const VImage& image) {
  VImage bare = image.copy();
  bare.remove(VIPS_META_ICC_NAME);
  return bare;
}

VImage ThroughProfileToRgb(const VImage& image, const char* fallbackProfile) {
  vips::VOption* options = VImage::option()
                               ->set("embedded", true)
                               ->set("intent", VIPS_INTENT_RELATIVE)
                               ->set("black_point_compensation", true)
                               ->set("depth", 8);
  if (fallbackProfile != nullptr) options->set("input_profile", fallbackProfile);
  return image.icc_transform("srgb", options);
}

VImage GreyToRgb(const VImage& grey) {
  const VImage value = grey.extract_band(0);
  std::vector<VImage> planes = {value, value, value};
  if (grey.bands() > 1) {
    planes.push_back(
        grey.extract_band(1, VImage::option()->set("n", std::min(grey.bands() - 1, 1))));
  }
  return VImage::bandjoin(planes).copy(As(VIPS_INTERPRETATION_sRGB));
}

// 16 bits to 8 where only the number of bits is in the way.
VImage UpperBits(const VImage& image, VipsInterpretation kind, PictureNotes& notes) {
  notes.push_back("16 bits a sample become 8");
  return image.msb().copy(As(kind));
}

// Fractions of white in a file without a better description.
VImage FromFractions(const VImage& image) {
  const VImage whole = IntoMemory(image);
  return whole.max() <= 1.0 ? whole.linear(255, 0) : whole;
}

// Everything that is neither 8-bit nor plainly 16-bit.
VImage FromUnusual(const VImage& image, VipsInterpretation kind, PictureNotes& notes) {
  notes.push_back("its samples become 8-bit sRGB");
  const bool plain = kind == VIPS_INTERPRETATION_B_W || kind == VIPS_INTERPRETATION_sRGB ||
                     kind == VIPS_INTERPRETATION_MULTIBAND;
  if (plain) {
    const VipsInterpretation to =
        image.bands() < 3 ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB;
    return FromFractions(image).cast(VIPS_FORMAT_UCHAR).copy(As(to));
  }
  return WithoutProfile(image.colourspace(VIPS_INTERPRETATION_sRGB).cast(VIPS_FORMAT_UCHAR));
}

VImage ToEightBits(const VImage& coded, PictureNotes& notes) {
  VImage image = coded;
  if (coded.coding() != VIPS_CODING_NONE) {
    VipsImage* decoded = nullptr;
    if (vips_image_decode(coded.get_image(), &decoded) != 0) throw vips::VError();
    image = VImage(decoded);
  }
  const VipsInterpretation kind = image.guess_interpretation();
  const bool bytes = image.format() == VIPS_FORMAT_UCHAR;
  const bool words = image.format() == VIPS_FORMAT_USHORT;
  switch (kind) {
    case VIPS_INTERPRETATION_sRGB:
    case VIPS_INTERPRETATION_RGB:
    case VIPS_INTERPRETATION_RGB16:
      if (bytes) return image.copy(As(VIPS_INTERPRETATION_sRGB));
      if (words) return UpperBits(image, VIPS_INTERPRETATION_sRGB, notes);
      break;
    case VIPS_INTERPRETATION_B_W:
    case VIPS_INTERPRETATION_GREY16:
      if (bytes) return image.copy(As(VIPS_INTERPRETATION_B_W));
      if (words) return UpperBits(image, VIPS_INTERPRETATION_B_W, notes);
      break;
    case VIPS_INTERPRETATION_CMYK:
      if (bytes) return image;
      if (words) return UpperBits(image, VIPS_INTERPRETATION_CMYK, notes);
      break;
    default:
      break;
  }
  return FromUnusual(image, kind, notes);
}

std::vector<std::uint8_t> TakeProfile(const VImage& image) {
  if (ProfileSpace(image) != "CMYK") return {};
  std::size_t length = 0;
  const auto* bytes = static_cast<const std::uint8_t*>(image.get_blob(VIPS_META_ICC_NAME, &length));
  return {bytes, bytes + length};
}

}  // namespace

int ColorPlanes(const VImage& image) {
  if (image.interpretation() == VIPS_INTERPRETATION_CMYK) return 4;
  return image.bands() < 3 ? 1 : 3;
}

void ToPaintable(const VImage& file, Picture& picture, PictureNotes& notes) {
  VImage image = ToEightBits(file, notes);
  const std::string_view space = ProfileSpace(image);
  if (image.interpretation() == VIPS_INTERPRETATION_CMYK) {
    picture.fromCmyk = true;
    picture.cmykProfile = TakeProfile(image);
    if (picture.cmykProfile.empty()) image = WithoutProfile(image);
    image = ThroughProfileToRgb(image, "cmyk");
  } else if (ColorPlanes(image) == 1) {
    if (space == "GRAY") {
      image = ThroughProfileToRgb(image, nullptr);
    } else {
      image = GreyToRgb(image);
    }
  }
  picture.image = image;
}

VImage BackToCmyk(const VImage& image, const std::vector<std::uint8_t>& profile) {
  VImage lab = image.icc_import(VImage::option()
                                    ->set("input_profile", "srgb")
                                    ->set("intent", VIPS_INTENT_RELATIVE)
                                    ->set("black_point_compensation", true));
  vips::VOption* options = VImage::option()
                               ->set("intent", VIPS_INTENT_RELATIVE)
                               ->set("black_point_compensation", true)
                               ->set("depth", 8);
  if (profile.empty()) {
    VImage inks = lab.icc_export(options->set("output_profile", "cmyk"));
    // The file named no profile, so the result names none either.
    return WithoutProfile(inks);
  }
  lab = lab.copy();
  VipsImage* target = lab.get_image();
  vips_image_set_blob_copy(target, VIPS_META_ICC_NAME, profile.data(), profile.size());
  return lab.icc_export(options);
}

VImage ToUntaggedRgb(const VImage& image) {
  if (ProfileSpace(image) != "RGB ") return WithoutProfile(image);
  return WithoutProfile(ThroughProfileToRgb(image, nullptr));
}

VImage ToGrey(const VImage& file, PictureNotes& notes) {
  VImage image = ToEightBits(file, notes);
  const int colors = ColorPlanes(image);
  if (colors == 4) {
    image =
        ThroughProfileToRgb(ProfileSpace(image) == "CMYK" ? image : WithoutProfile(image), "cmyk");
  } else if (const std::string_view space = ProfileSpace(image);
             (space == "RGB " && colors == 3) || (space == "GRAY" && colors == 1)) {
    image = ThroughProfileToRgb(image, nullptr);
  }
  const int alphaAt = ColorPlanes(image);
  if (image.bands() > alphaAt) {
    notes.push_back("its transparent parts are put on white");
    image = image.extract_band(0, VImage::option()->set("n", alphaAt + 1))
                .flatten(VImage::option()->set("background", std::vector<double>{255.0}));
  }
  if (alphaAt != 1) image = image.colourspace(VIPS_INTERPRETATION_B_W);
  return image.cast(VIPS_FORMAT_UCHAR);
}

}  // namespace tarnwick
