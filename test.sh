#!/usr/bin/env bash
# ./test.sh [CTEST-ARGUMENT...]: installs and builds what the tests take, runs them, and checks the
# formatting. "./test.sh -R note" runs only the tests with "note" in their names.
set -euo pipefail
# shellcheck source=tools/set_up.sh
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/tools/set_up.sh"

# Looks at the folder and not at git, for an exported tree has none.
is_formatted() {
  find "$root" -mindepth 1 \( -path "$root/build" -o -name '.?*' \) -prune \
    -o \( -name '*.h' -o -name '*.cpp' \) -print0 |
    xargs -0 clang-format --dry-run -Werror
}

test_preset dev "$@"
is_formatted || fail "the tests pass, but the files above differ from what clang-format -i makes"
