# Pictures of all kinds go in and out with nothing lost that the format can hold.
# The settings change no pixel, so the result is known.
. "$(dirname "$0")/lib.sh"
make_rgb rgb 61 47
make_grey grey.v 61 47

# keeps INPUT OUTPUT: in silence, the same pixels.
keeps() {
  run age "${off[@]}" "$1" -o "$2"
  expect_silence
  same_pixels "$1" "$2"
}
vips copy rgb.v rgb.png
vips bandjoin "rgb.v grey.v" rgba.png
vips bandjoin "rgb.v grey.v rgb.v" planes.tif
keeps rgb.png out.png
keeps rgba.png out-alpha.png
keeps rgba.png out-alpha.tif
vips copy rgb.v rgb.ppm
keeps rgb.ppm out.ppm
keeps rgb.ppm out.tif
keeps planes.tif out-planes.tif
cp rgb.png "odd name [1].png"
keeps "odd name [1].png" "out [x].png"
cp rgb.png "rgb[page=0]"
run age "${off[@]}" "rgb[page=0]" -o bracket.png
expect_silence
same_pixels bracket.png rgb.png

# Grey becomes three equal planes; 16 bits their upper half.
vips copy grey.v grey.png
vips bandjoin "grey.v grey.v grey.v" grey3.v
run age "${off[@]}" grey.png -o grey-out.png
expect_silence
same_pixels grey-out.png grey3.v
vips linear rgb.v wide.v 256 200
vips cast wide.v wide-cast.v ushort
vips copy wide-cast.v wide16.png --interpretation rgb16
run age "${off[@]}" wide16.png -o wide-out.png
expect 0 "wide16.png: 16 bits a sample become 8"
same_pixels wide-out.png rgb.v

# Formats without transparency get white: 0 opacity is white, 255 the colour.
vips linear grey.v clear.v 0 0
vips cast clear.v none.v uchar
vips bandjoin "rgb.v none.v" clear.png
run age "${off[@]}" clear.png -o clear.ppm
expect 0 "warning: clear.ppm: transparent parts are put on white"
expect_equal "$(pixel clear.ppm 5 5)" "255 255 255"
vips invert none.v full.v
vips bandjoin "rgb.v full.v" opaque.png
run age "${off[@]}" opaque.png -o opaque.ppm
expect_silence
same_pixels opaque.ppm rgb.v

# All eight orientations: the pixels turn, the tag goes.
vips jpegsave rgb.v upright.jpg --Q 100 --subsample-mode off
for turn in 1 2 3 4 5 6 7 8; do
  cp upright.jpg turned.jpg
  exiftool -q -n -overwrite_original -Orientation=$turn turned.jpg
  vips autorot turned.jpg want.v
  run age "${off[@]}" turned.jpg -o turned-$turn.png
  expect_silence
  same_pixels turned-$turn.png want.v
  run age "${off[@]}" turned.jpg -o turned-$turn.jpg
  expect_equal "$(exiftool -n -s3 -Orientation turned-$turn.jpg)" 1
done
# The first row of orientation 6 is the first column from below.
vips copy upright.jpg upright.v
expect_equal "$(pixel turned-6.png 0 0)" "$(pixel upright.v 0 46)"

# Metadata and profile come through; the small picture of before does not.
vips icc_transform rgb.v p3.v p3 --input-profile srgb
vips jpegsave p3.v full.jpg --Q 95
vips thumbnail rgb.v small.jpg 30
vips jpegsave small.jpg thumb.jpg --strip
exiftool -q -overwrite_original -Artist=Ann -Make=Cam -LensModel='Lens 1' -GPSLatitude=47.5 \
  -GPSLatitudeRef=N -DateTimeOriginal='2020:01:02 03:04:05' -XMP-dc:Title=Barn \
  -IPTC:Keywords=rust '-ThumbnailImage<=thumb.jpg' full.jpg
tags() {
  exiftool -s -s -Artist -Make -LensModel -GPSLatitude -DateTimeOriginal -XMP-dc:Title \
    -IPTC:Keywords -ProfileDescription "$1"
}
vips tiffsave p3.v full.tif
exiftool -q -overwrite_original -TagsFromFile full.jpg -all:all -ExifByteOrder=MM full.tif
expect_equal "$(tags full.tif)" "$(tags full.jpg)"
keeps_tags() {
  run age "${off[@]}" "$1" -o "$2"
  expect_silence
  local want
  want=$(tags "$1")
  # Only JPEG and TIFF have a place for IPTC.
  [[ $2 == *.jpg || $2 == *.tif ]] || want=$(grep -v Keywords <<<"$want")
  expect_equal "$(tags "$2")" "$want"
}
for out in full-out.jpg full-out.webp full-out.png full-out.tif; do
  keeps_tags full.tif tif-$out
  keeps_tags full.jpg $out
  vipsheader -f icc-profile-data full.jpg >profile-in
  vipsheader -f icc-profile-data $out >profile-out
  cmp -s profile-in profile-out || fail "another profile in $out"
done
expect_equal "$(exiftool -ThumbnailImage full-out.jpg)" ""
same_pixels tif-full-out.tif full.tif
# A format without a place for the profile gets sRGB.
vips copy p3.v p3.png
run age "${off[@]}" p3.png -o p3.ppm
expect_silence
vips icc_transform p3.png srgb.v srgb --embedded --black-point-compensation --intent relative
expect_near p3.ppm srgb.v 1

# CMYK goes through its profile and comes back as CMYK under it.
vips icc_transform rgb.v inks.v cmyk --input-profile srgb --black-point-compensation
vips tiffsave inks.v inks.tif
vips jpegsave inks.v inks.jpg --Q 100
vips icc_transform inks.tif seen.v srgb --embedded --black-point-compensation --intent relative
for name in inks.tif inks.jpg; do
  run age "${off[@]}" --quality 100 $name -o out-$name
  expect_silence
  vipsheader out-$name | grep -q "4 bands, cmyk" || fail "$name came back otherwise"
  vipsheader -f icc-profile-data $name >profile-in
  vipsheader -f icc-profile-data out-$name >profile-out
  cmp -s profile-in profile-out || fail "another profile in $name"
  # Inks may mix otherwise for one colour; what counts is how it looks.
  vips icc_transform out-$name again.v srgb --embedded --black-point-compensation --intent relative
  vips dE76 again.v seen.v apart.v
  [ "$(vips avg apart.v | sed 's/\..*//')" -lt 2 ] || fail "colours of $name have moved"
done
run age "${off[@]}" inks.tif -o inks.png
expect_silence
expect_near inks.png seen.v 1
vips bandjoin "inks.v grey.v" inks-alpha.v
vips tiffsave inks-alpha.v inks-alpha.tif
run age "${off[@]}" inks-alpha.tif -o out-inks-alpha.tif
expect_silence
vips extract_band out-inks-alpha.tif alpha.v 4
same_pixels alpha.v grey.v

# Quality: colours at full resolution from 90 on.
run age "${off[@]}" rgb.png -o q92.jpg
expect_equal "$(vipsheader -f jpeg-chroma-subsample q92.jpg)" 4:4:4
run age "${off[@]}" --quality 60 rgb.png -o q60.jpg
expect_equal "$(vipsheader -f jpeg-chroma-subsample q60.jpg)" 4:2:0
[ "$(stat -c %s q60.jpg)" -lt "$(stat -c %s q92.jpg)" ] || fail "quality has no effect"

# Several pages: the first one, with a warning.
vips invert rgb.v second.v
vips join rgb.v second.v pages.v vertical
vips tiffsave pages.v pages.tif --page-height 47
run age "${off[@]}" pages.tif -o first.tif
expect 0 "pages.tif: holds 2 pages; only the first is taken"
same_pixels first.tif rgb.v

# Too large is refused by the header: the file has no samples at all.
printf 'P6\n30001 2\n255\n' >large.ppm
run age "${off[@]}" large.ppm -o large.png
expect 1 "large.ppm: is 30001 x 2 pixels, more than 30000"
finish
