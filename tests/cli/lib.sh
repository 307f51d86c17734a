# Sourced by the end-to-end scripts. TARNWICK is the program; the script's own
# folder is made anew and is the current one.
set -u
export LC_ALL=C
unset TARNWICK_DATA
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 99
failures=0
code=0

fail() {
  echo "FAIL line ${BASH_LINENO[1]}: $*" >&2
  sed 's/^/    stderr: /' stderr >&2
  failures=$((failures + 1))
}

finish() {
  [ "$failures" -eq 0 ] || { echo "$failures failed" >&2; exit 1; }
  exit 0
}

# Runs the program; `code`, the files stdout and stderr tell of it.
run() {
  "$TARNWICK" "$@" >stdout 2>stderr
  code=$?
}

# expect CODE [TEXT-OF-STDERR...]
expect() {
  local want=$1 text
  shift
  [ "$code" -eq "$want" ] || fail "exit $code, not $want"
  for text in "$@"; do
    grep -qF -- "$text" stderr || fail "stderr lacks: $text"
  done
}

# No message of any kind: the run went through in silence.
expect_silence() {
  expect 0
  [ ! -s stderr ] || fail "not silent"
}

expect_file() { [ -f "$1" ] || fail "no file $1"; }
expect_no_file() { [ ! -e "$1" ] || fail "there is $1"; }
expect_equal() { [ "$1" = "$2" ] || fail "\"$1\" is not \"$2\""; }

# Nothing but what is named lies in the folder.
expect_only() {
  local folder=$1 found want
  shift
  found=$(ls -A "$folder" | sort | tr '\n' ' ')
  want=$([ $# -eq 0 ] || printf '%s\n' "$@" | sort | tr '\n' ' ')
  [ "$found" = "$want" ] || fail "in $folder: $found"
}

# The largest difference of any sample of two pictures of one shape.
difference() {
  [ "$(vipsheader -f bands "$1")" = "$(vipsheader -f bands "$2")" ] || { echo shape; return; }
  [ "$(vipsheader -f width "$1")" = "$(vipsheader -f width "$2")" ] || { echo shape; return; }
  vips subtract "$1" "$2" difference.v && vips abs difference.v absolute.v && vips max absolute.v |
    sed 's/\..*//'
}

# expect_near A B TOLERANCE
expect_near() {
  local far
  far=$(difference "$1" "$2")
  [ "$far" != shape ] && [ "$far" -le "$3" ] || fail "$1 and $2 differ by $far"
}

same_pixels() { expect_near "$1" "$2" 0; }

# pixels FILE X Y: the samples of one pixel.
pixel() { vips getpoint "$1" "$2" "$3" | sed 's/  *$//'; }

# A small picture of gradients, no two rows or columns alike: NAME.v, RGB.
make_rgb() {
  local name=$1 width=$2 height=$3
  awk -v w="$width" -v h="$height" 'BEGIN {
    printf "P3\n%d %d\n255\n", w, h
    for (y = 0; y < h; y++) for (x = 0; x < w; x++)
      printf "%d %d %d\n", (x * 7 + y) % 256, (y * 11 + x * 3) % 256, (x * y + 40) % 256
  }' >"$name.ppm"
  vips copy "$name.ppm" "$name.v"
  rm "$name.ppm"
}

# A grey gradient picture NAME, any format.
make_grey() {
  awk -v w="$2" -v h="$3" 'BEGIN {
    printf "P2\n%d %d\n255\n", w, h
    for (y = 0; y < h; y++) for (x = 0; x < w; x++) printf "%d\n", (x * 5 + y * 9) % 256
  }' >grey-source.pgm
  vips copy grey-source.pgm "$1"
  rm grey-source.pgm
}

# A data folder with small textures of the default names, and presets.
make_data() {
  mkdir -p data/Presets/{Basic,User,Wash,Surface,Background,Colors}
  make_grey grain.png 61 47
  local name
  for name in Scratched General_Store Rusted Battleship Fiberglass; do
    "$TARNWICK" texture import grain.png -o "data/$name.twk" || fail "cannot make $name"
  done
  rm grain.png
}

# preset FILE LINE...: header, version and the lines.
preset() {
  local file=$1
  shift
  { printf 'TarnwickStudi Press Preset;\nVersion 2;\n'; printf '%s\n' "$@"; } >"$file"
}

# Settings that leave every pixel alone.
off=(--set WashUse=0 --set SurfaceUse=0 --set BackgroundUse=0)
