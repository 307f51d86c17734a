# The gallery's page in a real browser: see gallery_browser.py. Without Chromium
# it is skipped, but not where tools/test has installed it.
. "$(dirname "$0")/lib.sh"
if ! command -v chromium chromium-browser google-chrome >stdout; then
  echo "no Chromium here, so the page is not tried in a browser (tools/setup dev installs it)" >&2
  [ -n "${TARNWICK_NO_SKIP:-}" ] && exit 1
  exit 77
fi
. "$here/gallery_data.sh"
run gallery --data data photo.jpg -o site --size 400 --kind basic --kind user --kind wash \
  --kind surface
expect_silence
PYTHONDONTWRITEBYTECODE=1 python3 "$here/gallery_browser.py" site || fail "the page does not work as it should"
finish
