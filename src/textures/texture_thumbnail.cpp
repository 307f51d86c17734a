#include "textures/texture_thumbnail.h"

#include <algorithm>

#include "base/truncate.h"
#include "textures/texture_path.h"
#include "textures/thumbnail_file.h"
#include "textures/wash_file.h"

namespace tarnwick {
namespace {

// The places along one side at which samples are taken.
struct SamplePlaces {
  float step;
  float offset;
  int last;

  [[nodiscard]] int At(int i) const {
    return std::min(TruncateToInt(static_cast<float>(i) * step + offset), last);
  }
};

SamplePlaces PlacesAlong(int side, int points, float scale, bool& smallSource) {
  int sampled = TruncateToInt(static_cast<float>(points) * scale);
  if (sampled > side) {
    sampled = side;
    smallSource = true;
  }
  sampled = std::max(sampled, points);
  // In a texture smaller than the thumbnail the middle would lie before its start.
  const int offset = std::max((side - sampled) / 2, 0);
  return {static_cast<float>(sampled) / static_cast<float>(points), static_cast<float>(offset),
          side - 1};
}

}  // namespace

std::optional<ThumbnailPicture> SampleThumbnail(const RasterImage& texture, ThumbnailSize size,
                                                float scale, bool& smallSource) {
  const std::uint8_t* const plane = texture.PeekInterior();
  if (plane == nullptr || texture.Width() < 1 || texture.Height() < 1) return std::nullopt;
  const SamplePlaces across = PlacesAlong(texture.Width(), size.width, scale, smallSource);
  const SamplePlaces down = PlacesAlong(texture.Height(), size.height, scale, smallSource);
  ThumbnailPicture picture(size.width, size.height);
  auto sample = picture.samples.begin();
  for (int y = 0; y < size.height; ++y) {
    const std::uint8_t* const row = plane + down.At(y) * texture.RowBytes();
    for (int x = 0; x < size.width; ++x) sample = std::fill_n(sample, 3, row[across.At(x)]);
  }
  return picture;
}

std::optional<ThumbnailPicture> MakeThumbnail(const std::string& folder, const std::string& name,
                                              ThumbnailSize size, float scale, bool& smallSource) {
  AWashFile file;
  ImagePtr texture;
  if (!file.Open(TexturePath(folder, name)) || !file.ReadImage(texture)) return std::nullopt;
  return SampleThumbnail(*texture, size, scale, smallSource);
}

std::optional<ThumbnailPicture> LoadOrMakeThumbnail(const std::string& folder,
                                                    TextureRecord& record, ThumbnailSize size,
                                                    bool sizeCounts) {
  const std::string cache = ThumbnailPath(folder, record.fileName);
  std::optional<ThumbnailPicture> picture =
      sizeCounts ? ReadThumbnail(cache, size) : ReadThumbnail(cache);
  if (picture) return picture;
  picture = MakeThumbnail(folder, record.fileName, size, record.scale, record.smallSource);
  // Without the file the thumbnail is made again next time; that is all.
  if (picture) (void)WriteThumbnail(cache, *picture);
  return picture;
}

}  // namespace tarnwick
