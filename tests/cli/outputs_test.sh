# Nothing is lost: not the input, not a file that is there, not the other inputs
# of a run; and nothing half done is left behind.
. "$(dirname "$0")/lib.sh"
make_rgb rgb 60 40
make_data
mkdir in
vips copy rgb.v in/a.png
vips copy rgb.v in/b.png
vips jpegsave rgb.v in/c.jpg
sum=$(cat in/* | md5sum)

# The input is safe by any of its names.
ln in/a.png in/hard.png
ln -s a.png in/soft.png
for name in in/a.png in/../in/a.png in/hard.png in/soft.png; do
  run age "${off[@]}" in/a.png -o $name
  expect 2 "is the input itself"
done
rm in/hard.png in/soft.png
run age "${off[@]}" in/a.png in/b.png --output-dir in
expect 2 "is the input itself"
run age "${off[@]}" --selection in/b.png in/a.png -o in/b.png --force
expect 2 "is the selection"
# Not even --force makes one input out of another.
cp in/a.png in/a-x.png
run age "${off[@]}" --force in/a.png in/a-x.png --output-dir in --suffix -x
expect 2 "in/a-x.png: is an input itself"
rm in/a-x.png
# Two inputs, one result: told before anything is done.
mkdir other
cp in/a.png other/
run age "${off[@]}" in/a.png in/b.png other/a.png --output-dir out
expect 2 "would be the result of both"
expect_no_file out
expect_equal "$(cat in/* | md5sum)" "$sum"

# A run over several: folder made, names put together, format changed.
run age "${off[@]}" in/a.png in/c.jpg --output-dir deep/out --suffix -old
expect_silence
expect_only deep/out a-old.png c-old.jpg
run age "${off[@]}" in/a.png in/c.jpg --output-dir deep/webp --format WebP
expect_only deep/webp a.webp c.webp
cp in/a.png in/a.xyz
run age "${off[@]}" in/a.xyz --output-dir deep/xyz
expect 2 "give --format jpg"
rm in/a.xyz

# What is there stays without --force, and the rest is done.
echo precious >deep/out/b-old.png
run age "${off[@]}" in/b.png in/c.jpg --output-dir deep/out --suffix -old
expect 1 "deep/out/b-old.png: is there already"
expect_equal "$(cat deep/out/b-old.png)" precious
chmod 600 deep/out/b-old.png
ln -s b-old.png deep/out/link.png
run age "${off[@]}" --force in/a.png -o deep/out/link.png
expect_silence
[ -L deep/out/link.png ] || fail "the link was replaced"
same_pixels deep/out/b-old.png in/a.png
expect_equal "$(stat -c %a deep/out/b-old.png)" 600
cp in/a.png own.png
run age "${off[@]}" --force own.png -o own.png
expect_silence
same_pixels own.png in/a.png

# Broken inputs are named with their fault; the others are still done.
# half FILE: its first half.
half() { head -c $(($(stat -c %s "$1") / 2)) "$1"; }
half in/a.png >cut.png
half in/c.jpg >cut.jpg
echo text >text.png
: >empty.jpg
mkdir folder.png
run age "${off[@]}" cut.png cut.jpg text.png empty.jpg folder.png missing.png in/b.png \
  --output-dir mixed
expect 1 "cut.png: is damaged" "cut.jpg: is damaged" "text.png: is no picture" \
  "empty.jpg: is no picture" "folder.png: is a folder" "missing.png: no such file"
expect_only mixed b.png
run age "${off[@]}" cut.jpg -o mixed/cut.jpg
expect_only mixed b.png

# A selection has to be grey and of the picture's size.
make_grey mask.png 60 40
make_grey small.png 59 40
run age "${off[@]}" --selection mask.png in/a.png -o sel.png
expect_silence
for mask in small.png in/a.png text.png missing.png; do
  run age "${off[@]}" --selection $mask in/a.png -o no.png
  expect 2 "--selection"
  expect_no_file no.png
done

# Textures: a missing one is a warning and white, or refused.
rm data/Rusted.twk
half data/Fiberglass.twk >data/Scratched.twk
run age --data data in/a.png -o white.png
expect 0 "warning: in/a.png: The file data/Rusted.twk is not presented or wrong" \
  "Scratched.twk cannot to be rasterized"
expect_file white.png
run age --data data --strict in/a.png -o strict.png
expect 1 "Rusted.twk is not presented or wrong" "Scratched.twk cannot to be rasterized"
expect_no_file strict.png
# Another case of letters is no other texture.
run age --data data "${off[@]}" --set SurfaceFileName1=fiberGLASS in/a.png -o case.png
expect_silence
run age --data data "${off[@]}" --set SurfaceFileName1=Fibreglass in/a.png -o near.png
expect 0 "did you mean Fiberglass.twk"

# A disk that is full is a failure like any other, and leaves nothing.
mkdir full
(ulimit -f 1; "$TARNWICK" age "${off[@]}" in/a.png -o full/a.ppm >stdout 2>stderr)
code=$?
expect 1 "full/a.ppm: cannot be written"
expect_only full
mkdir closed
chmod 555 closed
if ! [ -w closed ]; then
  run age "${off[@]}" in/a.png -o closed/a.png
  expect 1 "closed/a.png: cannot be written"
fi

# A signal during the write: the unfinished file goes, and the program ends by it.
vips resize rgb.v big.v 40
vips copy big.v big.ppm
mkdir stop
for signal in INT TERM HUP; do
  # Background jobs of a script ignore INT unless told otherwise.
  (trap - INT; exec "$TARNWICK" age "${off[@]}" big.ppm -o stop/big.avif) >stdout 2>stderr &
  job=$!
  for _ in $(seq 600); do
    [ -n "$(ls -A stop)" ] && break
    sleep 0.02
  done
  [ -n "$(ls -A stop)" ] || fail "no unfinished file was seen"
  kill -s $signal $job
  wait $job 2>wait-output
  [ $? -gt 128 ] || fail "$signal did not end it"
  expect_only stop
done
finish
