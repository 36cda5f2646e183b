#!/usr/bin/env bash
# tools/sanitize.sh PRESET [NAME...]: runs the tests under the sanitizers of PRESET, asan or tsan;
# with names only those test programs: "tools/sanitize.sh tsan platform" runs platform_test.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=set_up.sh
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/set_up.sh"

preset=${1:-}
[[ $preset == asan || $preset == tsan ]] || fail "the first argument is asan or tsan"
shift
if (($# == 0)); then
  test_preset "$preset"
  exit
fi
prepare "$preset" "${@/%/_test}"
for name; do
  quietly "$root/build/$preset-$name.log" "$root/build/$preset/tests/${name}_test" ||
    fail "${name}_test failed, see above"
  say "$name passes"
done
