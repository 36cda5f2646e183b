#!/usr/bin/env bash
# embedding_test.sh BUILD: installs what was built in BUILD and uses it as strangers would: with
# CMake, with pkg-config, from C and from Python.
set -euo pipefail
build=$1
project=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/../..")
examples=$project/docs/examples/embedding
world=$(mktemp --directory)
trap 'rm -rf "$world"' EXIT
prefix=$world/prefix
failures=0

# expect NAME PATTERN COMMAND...: what the command prints must match.
expect() {
  local name=$1 pattern=$2 output
  shift 2
  output=$("$@" 2>&1) || true
  # shellcheck disable=SC2053  # a pattern on purpose
  [[ $output == $pattern ]] && return
  printf 'FAILED: %s\n%s\n' "$name" "$output"
  failures=$((failures + 1))
}

cmake --install "$build" --prefix "$prefix" >"$world/log"
# Moved after it was installed: no file may remember where it was.
mv "$prefix" "$world/moved"
prefix=$world/moved
libraries=$(dirname "$(find "$prefix" -name libtonelake.a)")
export PKG_CONFIG_PATH=$libraries/pkgconfig LD_LIBRARY_PATH=$libraries

foreign_includes() {
  grep --recursive --extended-regexp '#include (<.*[./].*>|"([^T]|T[^o]))' "$prefix/include"
}
expect 'headers include ours and the standard library only' '' foreign_includes
compile() { c++ -std=c++20 -Wall -Wextra -Wpedantic -Werror -fsyntax-only -I "$prefix/include" "$@"; }
# The others are the first that a source file of their name includes, so they are known to.
headers_without_source_compile_alone() {
  local header
  for header in $(cd "$prefix/include" && find . -name '*.h'); do
    [[ -e $project/${header%.h}.cpp ]] || compile -include "$header" "$world/empty.cpp"
  done
}
: >"$world/empty.cpp"
(cd "$prefix/include" && find . -name '*.h' -printf '#include "%P"\n') >"$world/all.cpp"
expect 'headers compile alone' '' headers_without_source_compile_alone
expect 'everything that a header includes is installed' '' compile "$world/all.cpp"

hidden_symbols() { nm --dynamic --defined-only --demangle "$libraries/$1" | grep -E "$2"; }
expect 'internal functions are hidden' '' hidden_symbols libtonelake.so 'searchFingers|embeddedRes'
expect 'the interface for C shows three functions' '???????????????? T tonelake_call
???????????????? T tonelake_free
???????????????? T tonelake_version' hidden_symbols libtonelake_call.so ' [TDBR] '

cmake -G Ninja -S "$examples" -B "$world/cmake" -DCMAKE_PREFIX_PATH="$prefix" >"$world/log"
cmake --build "$world/cmake" --parallel >"$world/log" || cat "$world/log"
expect 'find_package, shared' 'F♯ A C E 2 * ' "$world/cmake/chord" F#m7b5
expect 'find_package, static' 'Use a barre *135 x 138 points, *' "$world/cmake/diagram"
read -ra flags <<<"$(pkg-config --cflags --libs tonelake)"
c++ -std=c++20 "$examples/chord.cpp" "${flags[@]}" -o "$world/chord"
expect 'pkg-config' 'E♭ G B♭ *' "$world/chord" Eb
read -ra flags <<<"$(pkg-config --cflags --libs tonelake_call)"
cc -std=c99 -Wall -Wextra -Wpedantic -Werror "$examples/chord.c" "${flags[@]}" -o "$world/c"
expect 'C' '{"jsonrpc":"2.0","id":7,"result":{"note":"A","octave":4}}' \
  "$world/c" '{"jsonrpc":"2.0","id":7,"method":"getNote","params":{"from":69}}'
expect 'C, no JSON' '{"jsonrpc":"2.0",*"code":-32700*' "$world/c" '{'
expect 'Python' 'F♯ A C E' python3 "$examples/chord.py" F#m7b5
expect 'Python, no chord' 'no such chord' python3 "$examples/chord.py" H
((failures == 0))
