# Presets, --set and the rest apply in the order given. What they add up to is
# read from the preset that --save-preset writes.
. "$(dirname "$0")/lib.sh"
make_rgb photo 40 30
vips copy photo.v photo.png
make_data

# value KEY FILE: of a preset's line.
value() { sed -n "s/^$1 \([^ ]*\) .*/\1/p" "$2"; }

# adds_up KEY VALUE OPTION...
adds_up() {
  local key=$1 want=$2
  shift 2
  run age --data data "$@" --save-preset sum.twkpst --force
  expect 0
  expect_equal "$(value "$key" sum.twkpst)" "$want"
}
preset data/Presets/User/Deep.twkpst "1voC 30 ;" "1dnR 9 ;" "1hDS 90 ;"
preset data/Presets/Wash/Thin.twkpst "1voC 10 ;"

adds_up 1voC 0
adds_up 1voC 30 --preset Deep
adds_up 1hDS 50 --preset Thin
adds_up 1hDS 90 --preset Deep --preset Thin
adds_up 1voC 10 --preset Deep --preset Thin
adds_up 1voC 30 --preset Thin --preset Deep
adds_up 1voC 77 --preset Deep --set WashCoverage1=77
adds_up 1voC 30 --set WashCoverage1=77 --preset Deep
adds_up 1voC 5 --set washcoverage1=77 --set=WASHCOVERAGE1=5
# A seed holds against presets before and after it, not against a later --set.
adds_up 1dnR 4 --seed 4 --preset Deep
adds_up 1dnR 8 --seed 4 --set WashRandomize1=8
adds_up 1dnR -3 --set WashRandomize1=8 --seed -3
# Colours: #rrggbb is red first, the word has red in its low byte.
adds_up 1tSW $((0x10 + 0x20 * 256 + 0x30 * 65536)) --set WashStainColor1=#102030
adds_up 1tSW 51455 --set WashStainColor1=51455
adds_up 1pTS 4 --set SurfaceType1=vivid
adds_up 1NFW Rusted.twk --set WashFileName1=Rusted
adds_up 1NFW Rusted.twk --set WashFileName1=Rusted.twk
# A group is switched off by losing its textures, and on by getting one.
adds_up nOSW 0 --set WashUse=0
adds_up 1NFW Rusted.twk --set WashUse=0 --set WashFileName1=Rusted
adds_up nOfS 0 --set SurfaceFileName1=No_Texture
adds_up nOkB 0 --set BackgroundFileName=no_texture.twk

# Colour presets, for surface and background.
preset data/Presets/Colors/Dusk.twkpst ";" "rgtC Brown Tones ;" "lCiH 1 ;" "lCdM 2 ;" "lCdS 3 ;"
adds_up 1CMS 2 --surface-colors Dusk
adds_up lCMB 3289755 --surface-colors Dusk
adds_up lCSB 3 --background-colors dusk.twkpst
adds_up 1CHS 7 --surface-colors Dusk --set SurfaceHighlightColor=7

# A share only.
run age --preset data/Presets/User/Deep.twkpst --save-preset wash.twkpst --kind wash
expect_silence
expect_equal "$(value 1voC wash.twkpst)" 30
expect_equal "$(grep -c '^1hDS' wash.twkpst)" 0
run age --save-preset wash.twkpst
expect 1 "wash.twkpst: is there already"

# Names: the first folder wins, then the exact case; sub-folders count.
preset data/Presets/Basic/Deep.twkpst "1voC 61 ;"
adds_up 1voC 61 --preset Deep
adds_up 1voC 30 --preset User/Deep
adds_up 1voC 10 --preset tHiN.twkpst
mkdir -p data/Presets/User/{A,B}
preset data/Presets/User/A/Twin.twkpst "1voC 1 ;"
preset data/Presets/User/B/Twin.twkpst "1voC 2 ;"
adds_up 1voC 2 --preset B/Twin
run age --data data --preset Twin --save-preset no.twkpst
expect 2 "fits more than one preset" '"A/Twin" or "B/Twin"'
# A path is taken as it is, also over a preset of the same name.
preset Deep.twkpst "1voC 44 ;"
adds_up 1voC 44 --preset Deep.twkpst
adds_up 1voC 44 --preset ./Deep.twkpst

# A file that is none: named, and nothing done.
echo nonsense >bad.twkpst
run age --data data --preset bad.twkpst photo.png -o out.png
expect 1 "bad.twkpst: is not a preset"
expect_no_file out.png
preset odd.twkpst "1cSW 900 ;" "1voC abc ;"
run age "${off[@]}" --preset odd.twkpst photo.png -o out.png --data data
expect 0 "odd.twkpst:3: WashScale1: 900 is outside" "odd.twkpst:4: WashCoverage1"
rm out.png
run age "${off[@]}" --strict --preset odd.twkpst photo.png -o out.png --data data
expect 2 "odd.twkpst:3: WashScale1" "odd.twkpst:4: WashCoverage1"
expect_no_file out.png

# Where the data folder is looked for.
mkdir -p place/bin place/share
cp "$TARNWICK" place/bin/tarnwick
TARNWICK=$work/place/bin/tarnwick
run age --preset ./none.twkpst --save-preset no.twkpst
expect 2 "--preset ./none.twkpst: no such file"
run presets list
expect 2 "place/bin/Tarnwick Studio" "place/share/tarnwick" "TARNWICK_DATA"
for folder in "place/Tarnwick Studio" place/share/tarnwick "place/bin/Tarnwick Studio"; do
  cp -r data "$folder"
  preset "$folder/Presets/User/Here.twkpst" "nOSW 0 ;"
  run presets list --json --kind user
  expect_silence
  jq -er '.[] | select(.name == "Here").path' stdout | grep -qF "$folder" || fail "not $folder"
done
export TARNWICK_DATA=$work/data
run presets list --json
[ "$(jq -r '.[0].path' stdout)" = "$work/data/Presets/Basic/Deep.twkpst" ] || fail "not the variable"
TARNWICK_DATA=$work/nowhere run presets list
expect 2 "TARNWICK_DATA"
finish
