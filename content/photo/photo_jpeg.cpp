#include <cstdio>
#include <vips/vips8>

// Turns the rendered photograph into the JPEG that a camera might have left:
// sRGB profile, some EXIF, 300 dots an inch.
int main(int count, char** words) {
  if (count != 3) {
    std::fputs("usage: tarnwick-photo-jpeg IN.ppm OUT.jpg\n", stderr);
    return 2;
  }
  if (VIPS_INIT(words[0]) != 0) return 1;
  try {
    vips::VImage photo = vips::VImage::new_from_file(words[1]).copy(
        vips::VImage::option()->set("xres", 300 / 25.4)->set("yres", 300 / 25.4));
    photo.set("orientation", 1);
    photo.set("exif-ifd0-Orientation", "1");
    photo.set("exif-ifd0-ImageDescription", "The dairy barn in late sun");
    photo.set("exif-ifd0-Artist", "Tarnwick Studio");
    photo.set("exif-ifd0-DateTime", "2024:09:14 17:42:08");
    photo.set("exif-ifd2-ColorSpace", "1");
    photo.set("exif-ifd2-DateTimeOriginal", "2024:09:14 17:42:08");
    photo.jpegsave(words[2], vips::VImage::option()->set("Q", 92)->set("profile", "srgb"));
  } catch (const vips::VError& error) {
    std::fprintf(stderr, "tarnwick-photo-jpeg: %s: %s\n", words[1], error.what());
    return 1;
  }
  vips_shutdown();
  return 0;
}
