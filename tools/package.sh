#!/usr/bin/env bash
# tools/package.sh: builds the Debian packages in build/release and asks lintian about them.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=set_up.sh
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/set_up.sh"

(
  lock_build_folder
  install_packages "${zyndle_packages[@]}" "${package_packages[@]}"
  build release
  cd "$root/build/release"
  rm -f ./*.deb
  quietly "$root/build/package.log" cpack || fail "packaging failed, see above"
  lintian --fail-on error --tag-display-limit 0 ./*.deb
  say "made" ./*.deb
)
