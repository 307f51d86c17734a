# The program that makes what the library is looked through by. FILING and
# TARNWICK are the programs.
. "$(dirname "$0")/../cli/lib.sh"
make_data
make_grey grain.png 61 47
vips linear grain.png zero.v 0 0
vips cast zero.v black.png uchar
"$TARNWICK" texture import black.png -o data/Black.twk || fail "cannot make a texture"

"$FILING" sets new/folder/sets.txt || fail "no table"
cp new/folder/sets.txt "data/Texture Sets.txt"
run textures list --data data --set Essentials
expect_silence

# Black shows the shadow, which is (1, 2, 3): blue comes first in a bitmap.
preset Dark.twkpst 'nOkB 1 ;' 'NFkB Black.twk ;' 'lCSB 197121 ;'
"$FILING" palette Dark.twkpst data Dark.bmp || fail "no picture"
expect_equal "$(od -An -tu1 -N2 Dark.bmp | tr -s ' ')" " 66 77"
# 61 pixels of 3 bytes are padded from 183 to 184.
expect_equal "$(stat -c %s Dark.bmp)" $((54 + 61 * 184))
expect_equal "$(od -An -tu1 -j54 -N6 Dark.bmp | tr -s ' ')" " 3 2 1 3 2 1"

preset Lost.twkpst 'nOkB 1 ;' 'NFkB Nowhere.twk ;'
"$FILING" palette Lost.twkpst data Lost.bmp 2>stderr && fail "made a picture of nothing"
grep -q 'its texture Nowhere.twk cannot be read' stderr || fail "the texture is not named"
expect_no_file Lost.bmp
"$FILING" palette grain.png data Lost.bmp 2>stderr && fail "took a picture for a preset"
"$FILING" 2>stderr
expect_equal $? 2
finish
