# Each header of the core compiles by itself, whatever was included before, and
# without Windows. CXX is the compiler.
set -u
cd "$(dirname "$0")/../.." || exit 99
trap=$(mktemp -d)
trap 'rm -rf "$trap"' EXIT
echo '#error "the core includes no windows.h"' >"$trap/windows.h"

compile() {
  echo "#include \"${1#src/}\"" |
    "$CXX" -std=c++20 -Wall -Wextra -Werror -fsyntax-only -I"$trap" -Isrc -x c++ - || {
    echo "FAIL $1"
    return 1
  }
}
export -f compile
export CXX trap
find src/{base,settings,imaging,textures,engine,presets} -name '*.h' -print0 | sort -z |
  xargs -0 -n 1 -P 2 bash -c 'compile "$1"' --
