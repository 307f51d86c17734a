# Textures and presets as their authors see them: import, export, lists, checks.
. "$(dirname "$0")/lib.sh"
make_grey grey.png 61 47
make_rgb rgb 33 21

# The file as the format has it: little-endian header, one zlib stream.
run texture import grey.png -o Wall.twk --set-id 7 --effects 'metals, Stone/Minerals'
expect_silence
words() { od -An -v -tu4 -j "$2" -N $((4 * $3)) "$1" | tr -s ' \n' ' ' | sed 's/^ //; s/ $//'; }
expect_equal "$(head -c 4 Wall.twk)" 1kwt
# Width, height, channels; set; effects 12 and 15 are bits 12 and 15.
expect_equal "$(words Wall.twk 4 3)" "61 47 1"
expect_equal "$(words Wall.twk 20 1)" 7
expect_equal "$(words Wall.twk 28 1)" $((1 << 12 | 1 << 15))
vips rawsave grey.png grey.raw
tail -c +53 Wall.twk | python3 -c 'import sys, zlib; sys.stdout.buffer.write(zlib.decompress(sys.stdin.buffer.read()))' >payload
cmp -s payload grey.raw || fail "other samples in the texture"
run texture export Wall.twk -o back.png
expect_silence
same_pixels back.png grey.png
run texture export Wall.twk -o back.pgm
expect_silence
same_pixels back.pgm grey.png
run texture import grey.png -o Wall.twk
expect 1 "Wall.twk: is there already"
run texture export Wall.twk -o back.png
expect 1 "back.png: is there already"

# Other pictures: upright, lightness, transparency on white (no effect).
vips jpegsave grey.png turned.jpg --Q 100
exiftool -q -n -overwrite_original -Orientation=6 turned.jpg
run texture import turned.jpg -o Turned.twk
expect_equal "$(words Turned.twk 4 3)" "47 61 1"
vips bandjoin "grey.png grey.png grey.png" grey3.v
vips copy grey3.v grey3.png --interpretation srgb
run texture import grey3.png -o Three.twk
expect_silence
run texture export Three.twk -o three.png
same_pixels three.png grey.png
vips linear rgb.v zero.v 0 0
vips cast zero.v black.v uchar
vips extract_band black.v none.v 0
vips bandjoin "black.v none.v" clear.png
run texture import clear.png -o Clear.twk
expect 0 "put on white"
run texture export Clear.twk -o clear-back.png
expect_equal "$(pixel clear-back.png 3 3)" 255
run texture import nix.png -o Nix.twk
expect 1 "nix.png: no such file"
expect_no_file Nix.twk
run texture import grey.png -o A_name_of_more_than_31_letters_is.twk
expect 0 "is longer than 31 characters"

# info: whole, short, long, cut, damaged, none at all.
mkdir data
head -c 52 Wall.twk >header
# packed COUNT: a zlib stream of that many bytes.
packed() { head -c "$1" /dev/zero | python3 -c 'import sys, zlib; sys.stdout.buffer.write(zlib.compress(sys.stdin.buffer.read()))'; }
mv Wall.twk data/
{ cat header; packed 100; } >data/Short.twk
{ cat header; packed 2868; } >data/Long.twk
head -c 400 data/Wall.twk >data/Cut.twk
{ cat header; echo no zlib stream; } >data/Damaged.twk
cp header data/Empty.twk
state() { jq -r --arg name "$1.twk" '.[] | select(.name == $name).payload' stdout; }
run textures info --json data/*.twk
expect 1 "Cut.twk: its samples are cut off" "Damaged.twk: its samples are damaged" \
  "Empty.twk: its samples are cut off"
expect_equal "$(state Wall)" "whole"
expect_equal "$(state Short)" "ends before the picture is full"
expect_equal "$(state Long)" "longer than the picture"
expect_equal "$(state Cut)" "cut off"
expect_equal "$(state Damaged)" "damaged"
run textures info --data data wall
expect_silence
grep -q '61 x 47' stdout && grep -q 'Metals, Stone/Minerals' stdout || fail "info lacks something"
run textures info --data data wal
expect 1 "did you mean Wall.twk"
run texture export data/Cut.twk -o cut.png
expect 1 "data/Cut.twk: its samples are damaged"
expect_no_file cut.png

run textures list --data data --json --effect metals --set-id 7
expect_silence
expect_equal "$(jq -c '[.[].name]' stdout)" '["Cut.twk","Damaged.twk","Empty.twk","Long.twk","Short.twk","Wall.twk"]'
run textures list --data data --json --set-id 8
expect_equal "$(jq length stdout)" 0
echo none >data/None.twk
run textures list --data data
expect 1 "None.twk: is no texture file"
grep -q '^Wall.twk  *61 x 47  *7  *Metals, Stone/Minerals$' stdout || fail "list lacks Wall"

# Presets.
mkdir -p data/Presets/{Basic/Sub,Wash,Colors}
preset data/Presets/Basic/Sub/Barn.twkpst "1NFW Wall.twk ;" "1cSW 20 ;" "1tSW 255 ;" "1pAS 12.50 ;"
preset data/Presets/Wash/Thin.twkpst "1NFW Gone.twk ;" "abcd 1 ;" "1cSW 201 ;" "1voC x ;"
printf '1voC 5 ;' >>data/Presets/Wash/Thin.twkpst
preset data/Presets/Colors/Dusk.twkpst ";" "rgtC Brown Tones|Red Tones ;" "lCiH 255 ;" "lCdM 65280 ;" "lCdS 16711680 ;"
run presets list --data data --json
expect_silence
expect_equal "$(jq -c '[.[] | [.kind, .name]]' stdout)" \
  '[["basic","Sub/Barn"],["wash","Thin"],["surface-color","Dusk"]]'
run presets show --data data barn --json
expect_silence
expect_equal "$(jq -c .fields stdout)" \
  '{"WashFileName1":"Wall.twk","WashScale1":"20","WashStainColor1":"#ff0000","SurfaceLightAlpha":"12.5"}'
run presets show --data data Dusk --json
expect_equal "$(jq -c '[.category, .colors]' stdout)" \
  '["Brown Tones|Red Tones",{"highlight":"#ff0000","midtone":"#00ff00","shadow":"#0000ff"}]'
run presets check --data data Barn Dusk
expect_silence
run presets check --data data Thin
expect 1
for line in ':3: no texture "Gone.twk"' ':4: unknown key "abcd"' ':5: WashScale1: 201' \
  ':6: WashCoverage1: "x"' ':7: the last line'; do
  grep -qF -- "$line" stdout || fail "check lacks $line"
done
run presets check --data data --json Barn Thin
expect_equal "$(jq -c 'map(.good)' stdout)" '[true,false]'
run settings list --json
expect_equal "$(jq -r '.[] | select(.name == "WashStainColor2").default' stdout)" "#646400"
finish
