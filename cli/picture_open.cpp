#include "picture_open.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "base/checked_size.h"
#include "cli_error.h"
#include "vips_library.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using vips::VImage;

void RequireReadableFile(const fs::path& path) {
  std::error_code fault;
  const fs::file_status status = fs::status(path, fault);
  if (status.type() == fs::file_type::not_found) {
    FailInput(path.string(), "no such file", "check the name");
  }
  if (fs::is_directory(status)) FailInput(path.string(), "is a folder", "name the pictures in it");
  if (access(path.c_str(), R_OK) != 0) {
    FailInput(path.string(), "cannot be read: " + std::generic_category().message(errno),
              "check its permissions");
  }
}

vips::VOption* ReadingOptions() {
  // A picture that breaks off is a fault: half of it aged would pass unseen.
  return VImage::option()
      ->set("access", VIPS_ACCESS_SEQUENTIAL)
      ->set("fail_on", VIPS_FAIL_ON_ERROR);
}

VImage Open(const fs::path& path) {
  // By stream, since in a file name brackets at the end would count as options.
  // A few formats can be read by name only.
  try {
    const vips::VSource source = vips::VSource::new_from_file(path.c_str());
    if (vips_foreign_find_load_source(source.get_source()) != nullptr) {
      return VImage::new_from_source(source, "", ReadingOptions());
    }
    vips_error_clear();
    return VImage::new_from_file(path.c_str(), ReadingOptions());
  } catch (const vips::VError&) {
    FailInput(path.string(), "is no picture that can be read: " + VipsFault("unknown format"),
              "convert it to a common format first");
  }
}

}  // namespace

VImage OpenPictureFile(const fs::path& path, PictureNotes& notes) {
  RequireReadableFile(path);
  VImage image = Open(path);
  if (!IsPictureSize(image.width(), image.height())) {
    FailInput(path.string(),
              "is " + std::to_string(image.width()) + " x " + std::to_string(image.height()) +
                  " pixels, more than " + std::to_string(kMaxPictureSide) + " in a direction",
              "make it smaller first");
  }
  if (const int pages = vips_image_get_n_pages(image.get_image()); pages > 1) {
    notes.push_back("holds " + std::to_string(pages) + " pages; only the first is taken");
  }
  return image;
}

PictureSize ReadPictureSize(const fs::path& path) {
  PictureNotes ignored;
  const VImage image = OpenPictureFile(path, ignored);
  constexpr int kFirstTurnedOnItsSide = 5;
  if (vips_image_get_orientation(image.get_image()) >= kFirstTurnedOnItsSide) {
    return {image.height(), image.width()};
  }
  return {image.width(), image.height()};
}

}  // namespace tarnwick
