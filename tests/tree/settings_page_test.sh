# The table in docs/settings.md is that of the program. TARNWICK is the program.
set -u
cd "$(dirname "$0")/../.." || exit 99
diff <(grep '^|' docs/settings.md) <("$TARNWICK" settings list --markdown) || {
  echo "docs/settings.md is behind; make it anew: cmake --build --preset dev -t settings-page"
  exit 1
}
