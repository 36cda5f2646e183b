#!/usr/bin/env bash
# tools/check.sh: what takes too long for every change: the lints, the reference of the headers, and
# the tests again under the sanitizers. Cheap before dear.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=set_up.sh
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/set_up.sh"

install_alone "${check_packages[@]}"
(cd "$root" && shellcheck --external-sources zyndle.sh test.sh tools/*.sh tests/*/*.sh \
  zyndle/completions/*.bash .ci/run)
"$root/tools/docs.sh"
"$root/tools/tidy.sh"
"$root/tools/sanitize.sh" asan
"$root/tools/sanitize.sh" tsan
