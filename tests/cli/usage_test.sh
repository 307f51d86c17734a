# Wrong use is told apart from failed input, before any work is done.
. "$(dirname "$0")/lib.sh"
make_rgb photo 20 10
vips copy photo.v photo.png
make_data

# Exit 2, the text in the message, and no result.
wrong() {
  local text=$1
  shift
  run "$@"
  expect 2 "tarnwick: " "$text"
  expect_no_file out.png
  expect_no_file out.twk
}
wrong "needs a command"
wrong "did you mean presets" preset
wrong "did you mean --preset" age --prest x photo.png -o out.png
wrong "needs a value" age photo.png -o
wrong "takes no value" age --quiet=yes photo.png -o out.png
wrong "given twice" age -o out.png -o out.png photo.png
wrong "has no input" age -o out.png
wrong "has no output" age photo.png
wrong "takes one input" age photo.png photo.png -o out.png
wrong "excludes --output-dir" age photo.png -o out.png --output-dir .
wrong "goes with --output-dir" age photo.png -o out.png --suffix x
wrong "goes with --output-dir" age photo.png -o out.png --format jpg
wrong "cannot hold" age photo.png --output-dir . --suffix a/b
wrong "cannot be written as \"xyz\"" age photo.png --output-dir . --format xyz
wrong "no extension" age "${off[@]}" photo.png -o out
wrong "holds grey pictures only" age "${off[@]}" photo.png -o out.pgm
wrong "is a folder" age "${off[@]}" photo.png -o data
wrong "its folder does not exist" age "${off[@]}" photo.png -o nowhere/out.png
wrong "\"0\" is no whole number" age photo.png -o out.png --quality 0
wrong "\"101\" is no whole number" age photo.png -o out.png --quality 101
wrong "\"1x\" is no whole number" age photo.png -o out.png --scale 1x
wrong "\"99999999999\" is no whole number" age photo.png -o out.png --seed 99999999999
wrong "use composite, wash1" age photo.png -o out.png --view nix
for window in 1,2,3 -1,0,5,5 0,0,0,5 0,0,5,5,5 0,0,5, 0,0,5,99999; do
  wrong "\"$window\" is no window" age photo.png -o out.png --window "$window"
done
wrong "has no value" age photo.png -o out.png --set WashUse
wrong "goes with --save-preset" age photo.png -o out.png --kind wash
wrong "use wash, surface" age --save-preset a.twkpst --kind nix
wrong "ends in .twkpst" age --save-preset a.txt
wrong "no such folder" age --data nowhere photo.png -o out.png
wrong "excludes --textures" age --data data --textures data photo.png -o out.png
wrong "no such command of tarnwick textures" textures lst
wrong "did you mean Metals" textures list --textures data --effect Metalls
wrong "did you mean Metals" texture import photo.png -o out.twk --effects Metalls
wrong "ends in .twk" texture import photo.png -o out.png
wrong "did you mean WashScale1" settings describe WashScal1

# Settings: what cannot be is refused, with what can.
wrong "did you mean WashCoverage1" age "${off[@]}" --set WashCoverag1=4 photo.png -o out.png
wrong "give 0 to 200" age "${off[@]}" --set WashScale1=big photo.png -o out.png
wrong "is not a colour" age "${off[@]}" --set WashStainColor1=#12 photo.png -o out.png
wrong "too large a number" age "${off[@]}" --set WashType1=256 photo.png -o out.png
wrong "no such field" age "${off[@]}" --set SavedWashMask1=7 photo.png -o out.png
preset "data/Presets/User/Rusty.twkpst" "nOSW 0 ;"
wrong "no such preset (did you mean Rusty" age --data data --preset Rusti photo.png -o out.png

# Out of range is taken with a warning; --strict refuses.
run age "${off[@]}" --set WashScale1=201 --set SurfaceAngle1=45 photo.png -o out.png
expect 0 "warning: --set WashScale1: 201 is outside its values, 0 to 200" "0, 90, 180, 270"
rm -f out.png
wrong "WashScale1: 201 is outside" age --strict "${off[@]}" --set WashScale1=201 photo.png -o out.png
run age "${off[@]}" --set WashScale1=200 --set WashCoverage1=-100 photo.png -o out.png
expect_silence

# Help and version go to standard output, in silence.
for command in "" age presets "presets list" "presets show" "presets check" textures \
  "textures list" "textures info" auto texture "texture import" "texture export" settings \
  "settings list" "settings describe"; do
  # shellcheck disable=SC2086
  run $command --help
  expect_silence
  grep -q "usage: tarnwick" stdout || fail "no usage in the help of $command"
done
run --version
expect_silence
grep -Eqx 'tarnwick [0-9]+\.[0-9]+\.[0-9]+' stdout || fail "odd version"

# What cannot be written to standard output is a failure.
"$TARNWICK" settings list >/dev/full 2>stderr
code=$?
expect 1 "standard output: cannot be written"
finish
