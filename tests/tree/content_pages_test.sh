# The tables in docs/textures.md and docs/toolbox.md are those of the program, the
# pictures that they show are there and light enough for a page, and no texture or
# building block is missing. PAGES is tarnwick-pages.
set -u
cd "$(dirname "$0")/../.." || exit 99
failures=0
fail() {
  echo "$1"
  failures=$((failures + 1))
}

# up_to_date PAGE TARGET WORDS...: what the program prints for WORDS ends the page.
up_to_date() {
  local page=$1 target=$2
  shift 2
  diff <(sed -n '/^## /,$p' "docs/$page.md") <("$PAGES" "$@") ||
    fail "docs/$page.md is behind; make it anew: cmake --build --preset dev -t $target"
}
up_to_date textures texture-page textures content/textures
up_to_date toolbox toolbox-page toolbox

# A change to how sheets are dealt out leaves old ones behind.
for folder in textures toolbox; do
  diff <(grep -o "($folder/[^)]*)" "docs/$folder.md" | tr -d '()' | sort) \
    <(cd docs && ls "$folder"/* | sort) || fail "docs/$folder holds other pictures than the page shows"
done
while IFS= read -r picture; do
  fail "$picture is too heavy for a page"
done < <(find docs/textures docs/toolbox -size +450k)

# Asked of the folders, not of the program's own lists.
while IFS= read -r recipe; do
  count=$(grep -ic "^| \`$recipe\` | " docs/textures.md)
  [ "$count" = 1 ] || fail "docs/textures.md has $count rows for $recipe"
done < <(cd content/textures && ls ./*.cpp | sed 's,^\./,,; s/\.cpp$//')
rows=$(grep -c '^| `' docs/textures.md)
[ "$rows" = "$(ls content/textures/*.cpp | wc -l)" ] || fail "docs/textures.md has rows without a recipe"
diff <(grep -o '^| `[a-z_]*\.h`' docs/toolbox.md | tr -d '|` ' | sort) \
  <(cd content/toolbox && ls ./*.h | sed 's,^\./,,' | sort) ||
  fail "docs/toolbox.md shows other blocks than content/toolbox has"
exit $((failures > 0))
