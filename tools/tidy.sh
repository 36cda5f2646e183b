#!/usr/bin/env bash
# tools/tidy.sh [PATTERN]: runs clang-tidy over every source file whose path contains PATTERN, as
# compiled by the asan preset: clang-tidy reads what clang precompiled, and the fuzzers are in it.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=set_up.sh
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/set_up.sh"

install_alone "${check_packages[@]}"
prepare asan
# Generated sources lie in build/ and are not ours to tidy. The largest files come first, so that
# no processor is left alone with one at the end.
files=$(sed -n 's/^ *"file": "\(.*\)",*$/\1/p' "$root/build/asan/compile_commands.json" |
  sort --unique | grep --invert-match --fixed-strings "$root/build/" |
  { grep --fixed-strings -- "${1:-}" || fail "no source file has '$1' in its path"; })
log=$root/build/tidy.log
# The analyzer follows a function's own paths and few of those that it calls: paths through the
# headers of others would take four fifths of the time.
options=(--quiet -p "$root/build/asan")
for option in -Xclang -analyzer-config -Xclang mode=shallow; do
  options+=("--extra-arg=$option")
done
if ! xargs --delimiter '\n' ls -S <<<"$files" |
  xargs --delimiter '\n' --max-procs "$(nproc)" --max-args 1 \
    clang-tidy "${options[@]}" 2>"$log"; then
  # What it suppressed in headers of others is counted for each file, and interests nobody.
  grep --invert-match 'warnings\? generated' "$log" >&2 || true
  fail "clang-tidy has complaints, see above"
fi
