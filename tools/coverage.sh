#!/usr/bin/env bash
# tools/coverage.sh: which lines of Tonelake and TodayChordExtension the tests reach, file by file.
# Fails below 95 of 100.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=set_up.sh
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/set_up.sh"

find "$root/build/coverage" -name '*.gcda' -delete 2>/dev/null || true
# Libraries that count cannot be linked by the builds of others that one test makes.
test_preset coverage --exclude-regex '^embedding$'
gcovr --root "$root" --object-directory "$root/build/coverage" \
  --filter "$root/Tonelake/" --filter "$root/TodayChordExtension/" \
  --exclude-throw-branches --sort-uncovered --fail-under-line 95
