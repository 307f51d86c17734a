# The render cases of the engine's tests, through the command line: settings by
# --set, pictures as files, windows and views as options.
. "$(dirname "$0")/lib.sh"
golden=$here/../data/golden

# with_alpha FOLDER NAME FILE: colour planes and alpha as one picture.
with_alpha() {
  vips bandjoin "$1/$2.ppm $1/$2-alpha.pgm" joined.v
  vips copy joined.v "$3" --interpretation srgb
}

# The samples of a PPM, without the header that each program writes in its way.
samples() { tail -c $(($(head -c 20 "$1" | awk 'NR == 2 { print 3 * $1 * $2 }'))) "$2"; }

for folder in "$golden"/render/* "$golden"/preview/*; do
  name=${folder#"$golden"/}
  options=()
  while IFS= read -r assignment; do
    options+=(--set "$assignment")
  done < <(jq -r 'to_entries[] | "\(.key)=\(.value)"' "$folder/settings.json")
  [ -f "$folder/selection.pgm" ] && options+=(--selection "$folder/selection.pgm")
  if [ -f "$folder/preview.json" ]; then
    options+=(--scale "$(jq .scale "$folder/preview.json")"
      --view "$(jq -r .view "$folder/preview.json")")
    window=$(jq -r 'if .window then .window | map(tostring) | join(",") else "" end' \
      "$folder/preview.json")
    [ -n "$window" ] && options+=(--window "$window")
  fi
  run_case() { run age --textures "$golden/textures" --force "${options[@]}" "$@"; }
  if [ -f "$folder/in-alpha.pgm" ]; then
    with_alpha "$folder" in in.png
    with_alpha "$folder" out want.png
    run_case in.png -o out.png
    [ "$(difference out.png want.png)" = 0 ] || fail "$name is another picture"
  else
    run_case "$folder/in.ppm" -o out.ppm
    samples "$folder/out.ppm" out.ppm >got
    samples "$folder/out.ppm" "$folder/out.ppm" | cmp -s - got || fail "$name is another picture"
  fi
  expect 0
done
finish
