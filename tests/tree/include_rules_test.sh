# Who may include what. The link graph keeps the programs apart; inside the core
# only this does.
set -u
cd "$(dirname "$0")/../.." || exit 99
failures=0
fail() {
  echo "$1"
  failures=$((failures + 1))
}

# may FOLDER PREFIX...: what its quoted includes may start with.
may() {
  local folder=$1 pattern line
  shift
  pattern=$(printf '|%s' "$@")
  while IFS= read -r line; do
    fail "$line   ($folder may not)"
  done < <(grep -rn '#include "' "src/$folder" | grep -vE "#include \"(${pattern#|})")
}
may base base/
may settings base/ settings/
may imaging base/ settings/ imaging/
# Loading fills the engine's records.
may textures base/ settings/ imaging/ textures/ \
  engine/{effect_layer,render_state,texture_offset,working_texture}.h
may engine base/ settings/ imaging/ textures/ engine/
may presets base/ settings/ presets/
# Text that came from somewhere, and nothing else.
may news settings/ news/
may host_interface host_interface/
may environment base/ settings/ presets/ environment/
may filter base/ settings/ imaging/ textures/ engine/ presets/ host_interface/ environment/ filter/

may controls environment/ controls/
may dialog base/ settings/ imaging/ textures/ engine/ presets/ host_interface/ environment/ filter/ \
  news/ resources/ controls/ dialog/

# nowhere WHAT PATTERN PLACE...: the pattern stands in no source but in those
# whose path fits EXCEPT.
nowhere() {
  local what=$1 pattern=$2 line
  shift 2
  while IFS= read -r line; do
    fail "$line   ($what)"
  done < <(grep -rnE --include='*.cpp' --include='*.h' "$pattern" "$@" | grep -vE "^${EXCEPT:-$}")
}
EXCEPT='src/base/[a-z_]*_win\.cpp:' nowhere "Windows stays in the _win halves" \
  '#include <(windows|winsock2|shlobj)\.h>' src/{base,settings,imaging,textures,engine,presets,news} cli content
EXCEPT='[^:]*_(sse2|avx2)\.cpp:' nowhere "intrinsics live in files named for their instruction set" \
  '#include <[a-z]*intrin\.h>' src cli content
# Their last bit, or their order of draws, differs from platform to platform.
# Tests compare with them.
EXCEPT='[^:]*_test\.cpp:' nowhere "not the same bytes everywhere" \
  'std::(sin|cos|tan|asin|acos|atan2?|sinh|cosh|tanh|pow|exp2?|log(2|10|1p)?|cbrt|hypot|fma|lerp)f?\(' \
  src/{base,imaging,textures,engine,dialog/cells} content
nowhere "not the same bytes everywhere" 'std::[a-z_]+_distribution|std::shuffle' src content
exit $((failures > 0))
