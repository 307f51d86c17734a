# The archive holds what it should, and comes out the same from another place, by
# another user's habits, at another time. TARNWICK_MODULE is the module.
set -u
tools=$(cd "$(dirname "$0")/../../tools" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 99
failures=0
fail() {
  echo "$1"
  failures=$((failures + 1))
}

mkdir -p "one/Tarnwick Studio/Presets/Basic" two three
echo second >"one/Tarnwick Studio/Rusted.twk"
echo first >"one/Tarnwick Studio/Battleship.twk"
echo preset >"one/Tarnwick Studio/Presets/Basic/Tin & Paper (old).twkpst"
cp "$TARNWICK_MODULE" one/TarnikStudi.8bf
# Written in another order, hours later.
mkdir -p "two/data/Presets/Basic"
cp "one/Tarnwick Studio/Presets/Basic/"* two/data/Presets/Basic
cp "one/Tarnwick Studio/Battleship.twk" "one/Tarnwick Studio/Rusted.twk" two/data
cp one/TarnikStudi.8bf two/renamed.dll
chmod -R go-rwx two
find two -exec touch -d '2001-02-03 04:05:06' {} +

"$tools/package" --module one/TarnikStudi.8bf --data "one/Tarnwick Studio" -o one/out >/dev/null ||
  fail "tools/package failed"
(umask 077 && export TZ=Asia/Tokyo LC_ALL=C ZIPOPT=-1 &&
  "$tools/package" --module two/renamed.dll --data two/data -o two/out >/dev/null) ||
  fail "tools/package failed the second time"
archive=$(cd one/out && echo TarnwickStudio-*-win32.zip)
[[ $archive =~ ^TarnwickStudio-[0-9]+\.[0-9]+\.[0-9]+-win32\.zip$ ]] || fail "named $archive"
cmp "one/out/$archive" "two/out/$archive" || fail "the bytes differ from time to time"

diff - <(unzip -Z1 "one/out/$archive") <<'END' || fail "another list of files"
INSTALL.txt
LICENSE.txt
TarnikStudi.8bf
Tarnwick Studio/Battleship.twk
Tarnwick Studio/Presets/Basic/Tin & Paper (old).twkpst
Tarnwick Studio/Rusted.twk
END
(cd three && unzip -q "../one/out/$archive") || fail "it does not unpack"
cmp three/TarnikStudi.8bf "$TARNWICK_MODULE" || fail "another module"
diff -r "three/Tarnwick Studio" "one/Tarnwick Studio" || fail "other data"
version=${archive#TarnwickStudio-}
head -n 1 three/INSTALL.txt | grep -q "^Tarnwick Studio ${version%-win32.zip}"$'\r$' ||
  fail "INSTALL.txt does not begin with the version, or has no Windows lines"
grep -q 'MIT License' three/LICENSE.txt || fail "no licence"

"$tools/package" --module no/such.8bf --data "one/Tarnwick Studio" -o four >out 2>&1 &&
  fail "it takes a module that is not there"
grep -q 'no/such.8bf: no such file' out || fail "it does not name what is missing"
[ ! -e four ] || fail "it leaves something in spite of its failure"
exit $((failures > 0))
