# The library as it is looked through, and the looks that dice throw from it.
. "$(dirname "$0")/lib.sh"
make_data
make_grey grain.png 61 47
run texture import grain.png -o data/Oak.twk --set-id 9 --effects Woods
run texture import grain.png -o data/No_Texture.twk
run texture import grain.png -o data/Iron.twk --set-id 4 --effects Metals
names() { jq -c 'map(.name)' stdout; }

# Without a table sets have numbers only.
run textures list --data data --set Forge
expect 2 "has no Texture Sets.txt" "--set-id N"
printf '; sets\n9\tTimber Yard\n4\tForge\n' >"data/Texture Sets.txt"
run textures list --data data --json --set 'timber yard'
expect_silence
expect_equal "$(names)" '["Oak.twk"]'
expect_equal "$(jq -c '.[0] | [.setId, .set, .effects]' stdout)" '[9,"Timber Yard",["Woods"]]'
run textures list --data data --json --set Forge --effect Metals
expect_equal "$(names)" '["Iron.twk"]'
run textures list --data data --json --set Forge --effect Woods
expect_equal "$(names)" '[]'
run textures list --data data --set-id 4
grep -q '^Iron.twk  *61 x 47  *Forge  *Metals$' stdout || fail "no name of the set"
run textures list --data data --json --set-id 0
expect_equal "$(jq -c '[.[] | .set] | unique' stdout)" '[""]'
run textures list --data data --set Forj
expect 2 "did you mean Forge?"
run textures list --data data --set Forge --set-id 4
expect 2 "excludes --set-id"
run textures info --data data oak
expect_silence
grep -q 'set  *9, Timber Yard$' stdout && grep -q 'thumbnail  *none yet$' stdout ||
  fail "info lacks set or thumbnail"

# A bad line is told; the others hold.
printf 'four\tFoundry\n' >>"data/Texture Sets.txt"
run textures list --data data --set Forge
expect 0 'data/Texture Sets.txt:4: "four" is no number of a set'
grep -q '^Iron.twk' stdout || fail "the good lines are lost"
sed -i '$d' "data/Texture Sets.txt"

# Presets by folder and category.
mkdir -p data/Presets/{Basic/Metal,Surface,Background,Colors}
preset data/Presets/Basic/Metal/Zinc.twkpst '1cSW 30 ;'
preset data/Presets/Surface/Hide.twkpst 'nOfS 1 ;' '1NFS Oak.twk ;'
preset data/Presets/Background/Pine.twkpst 'nOkB 1 ;' 'NFkB Oak.twk ;'
preset data/Presets/Colors/Dawn.twkpst ';' 'rgtC Red Tones|Rust Tones ;' 'lCiH 1 ;' 'lCdM 2 ;' 'lCdS 3 ;'
preset data/Presets/Colors/Dusk.twkpst ';' 'rgtC Blue Tones ;' 'lCiH 4 ;' 'lCdM 5 ;' 'lCdS 6 ;'
run presets list --data data --kind basic
expect_silence
grep -q '^basic  *Metal  *Zinc$' stdout || fail "no sub-folder"
run presets list --data data --json --category 'rust tones'
expect_equal "$(jq -c 'map([.kind, .folder, .name, .categories])' stdout)" \
  '[["surface-color","","Dawn",["Red Tones","Rust Tones"]]]'
run presets list --data data --category 'Rusty Tones'
expect 2 "did you mean Rust Tones"

# A throw is the same for the same seed, and what it tells is what it did.
make_rgb photo 20 10
vips copy photo.v photo.png
run auto --data data --print --json --seed 2
expect_silence
cp stdout first
# The model of the throw (see the tests of auto_randomize) with these files.
expect_equal "$(jq -c '[.seed, .presets]' stdout)" \
  '[2,["Basic/Metal/Zinc","Background/Pine","Surface/Hide"]]'
expect_equal "$(jq -r '.settings | .WashScale1 + " " + .WashType1 + " " + .WashStainColor1' stdout)" \
  '30 1 #328e4d'
expect_only . data first grain.png photo.png photo.v stdout stderr
run auto --data data --json --seed 2 photo.png --save-preset Lucky.twkpst
expect_silence
cmp -s first stdout || fail "another throw for the same seed"
expect_file photo-auto-2.png
run age --data data --preset ./Lucky.twkpst photo.png -o again.png
expect_silence
same_pixels photo-auto-2.png again.png
run auto --data data --seed 2 photo.png
expect 1 "photo-auto-2.png: is there already"
run auto --data data --seed 3 photo.png -o lucky.png -q
expect_silence
grep -q '^seed  *3$' stdout || fail "the seed is not told"
[ "$(difference lucky.png again.png)" != 0 ] || fail "two seeds, one look"

run auto --data data
expect 2 "takes one photograph"
run auto --data data --print -o out.png
expect 2 "excludes --print"
run auto --data data --print --seed 4294967296
expect 2 "is no whole number"
finish
