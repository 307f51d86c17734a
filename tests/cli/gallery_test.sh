# The gallery: a page whose pictures are what its command lines make, safe in
# the folder it is put into.
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/gallery_data.sh"
all=(--kind basic --kind user --kind wash --kind surface --kind background --kind surface-color)
run gallery --data data photo.jpg -o site --size 320 --title 'Tom & "Jerry"' "${all[@]}"
expect_silence
expect_no_file hacked
expect_only site index.html large small
expect_equal "$(ls site/small)" "$(ls site/large)"

# The page: well formed, each card with its name and pictures, data that agrees,
# nothing from elsewhere.
python3 "$here/gallery_page.py" site >page.json 2>stderr || fail "the page is not as it should be"
expect_equal "$(jq -r .title page.json)" 'Tom & "Jerry"'
expect_equal "$(jq -r '.looks[].name' page.json | sort)" \
  "$(find data/Presets -name '*.twkpst' -printf '%f\n' | sed 's/\.twkpst$//' | sort)"
expect_equal "$(jq -c '.looks[] | select(.kind == "wash") | [.textures[0].set, .effects]' page.json)" \
  '["Forge & <Sons>",["Industrial","Metals"]]'
expect_equal "$(jq -c '.looks[] | select(.kind == "surface-color") | .categories' page.json)" \
  '["Red Tones","Rust Tones"]'

# Each command line, typed into a shell, makes its look. 960 pixels come nearest
# to 480 at scale 2, to 320 at 3.
tarnwick() { "$TARNWICK" "$@"; }
count=0
while read -r look; do
  id=$(jq -r .id <<<"$look")
  output="photo - $(jq -r .name <<<"$look").jpg"
  for size in 'large 3 90' 'small 2 86'; do
    read -r folder scale quality <<<"$size"
    rm -f "$output"
    eval "$(jq -r .command <<<"$look") --scale $scale --quality $quality" 2>stderr ||
      fail "the command of $id fails"
    expect_file "$output"
    mv -- "$output" made.jpg && same_pixels made.jpg "site/$folder/$id.jpg"
    cp made.jpg "made-$id.jpg"
  done
  count=$((count + 1))
done < <(jq -c '.looks[]' page.json)
expect_equal "$count" "$(ls site/large | grep -vc '^original')"
expect_no_file hacked
run age --data data --view original --scale 3 --quality 90 photo.jpg -o original.jpg
same_pixels original.jpg site/large/original.jpg
# A part of a look is shown by itself: no two of these are alike.
for id in original wash-thin surface-hide background-pine surface-color-dawn; do
  md5sum <"site/large/$id.jpg"
done | sort | uniq -d | grep -q . && fail "two looks are alike"

# Colours are as in the photograph, but nobody learns where it was taken.
expect_equal "$(exiftool -s3 -Artist -GPSLatitude -ProfileDescription site/large/original.jpg)" \
  "$(exiftool -s3 -ProfileDescription photo.jpg)"

# Once more: refused, then renewed; what is not its own stays.
sum=$(cat site/index.html site/*/* | md5sum)
run gallery --data data photo.jpg -o site --size 320
expect 1 "site/index.html: is there already (give --force"
expect_equal "$(cat site/index.html site/*/* | md5sum)" "$sum"
echo mine >site/large/mine.jpg
run gallery --data data photo.jpg -o site --kind wash --force
expect_silence
expect_equal "$(cat site/large/mine.jpg)" mine
expect_file site/large/basic-a-b.jpg
python3 "$here/gallery_page.py" site >page.json 2>stderr || fail "the page is not as it should be"
expect_equal "$(jq -c '[.looks[].id]' page.json)" '["wash-thin"]'
mkdir other
echo '<html>a page of my own</html>' >other/index.html
run gallery --data data photo.jpg -o other --force
expect 1 "other/index.html: is no page of a gallery and stays"
expect_only other index.html
mkdir -p own/large && cp photo.jpg own/large/original.jpg
run gallery --data data own/large/original.jpg -o own --force
expect 2 "is the photograph itself"
cmp -s photo.jpg own/large/original.jpg || fail "the photograph was changed"

# Faults: nothing is made of a bad photograph; a bad preset is told and left out,
# a missing texture told once.
head -c 3000 photo.jpg >cut.jpg
run gallery --data data cut.jpg -o no
expect 1 "cut.jpg: is damaged"
expect_no_file no
echo nonsense >data/Presets/Wash/Bad.twkpst
preset data/Presets/Wash/Gone.twkpst '1NFW Gone.twk ;'
run gallery --data data photo.jpg -o some --kind wash
expect 1 "Wash/Bad.twkpst" "warning: The file data/Gone.twk is not presented"
expect_equal "$(grep -c Gone.twk stderr)" 1
expect_equal "$(ls some/large | tr '\n' ' ')" 'original.jpg wash-gone.jpg wash-thin.jpg '

# Wrong use.
run gallery --data data photo.jpg
expect 2 "give -o DIR"
run gallery --data data -o no
expect 2 "takes one photograph"
run gallery --data data photo.jpg photo.jpg -o no
expect 2 "takes one photograph"
run gallery --data data photo.jpg -o no --kind sepia
expect 2 "no kind is called \"sepia\""
run gallery --data data photo.jpg -o no --kind back-palette
expect 2 "there is no preset to show"
run gallery --data data photo.jpg -o no --size 10
expect 2 "is no whole number"
run gallery --data data photo.jpg -o photo.v
expect 2 "cannot be made a folder"
expect_no_file no
finish
