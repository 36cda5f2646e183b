#!/usr/bin/env bash
# ./zyndle.sh ARGUMENT...: runs zyndle from this folder, after installing and building what that
# takes. Standard output and the exit status are the command's own.
set -euo pipefail
# shellcheck source=tools/set_up.sh
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/tools/set_up.sh"

program=$root/build/release/zyndle/zyndle
stamp=$root/build/release/up-to-date
libraries=$root/build/release/shared-libraries

# What the program is made of. Folders count too: their time changes when a file is added or
# removed.
sources=(CMakeLists.txt CMakePresets.json cmake tools/set_up.sh
  Tonelake TodayChordExtension Desktop zyndle)

# One pass over the tree instead of dpkg, cmake and ninja: most calls find nothing to do, and they
# should cost nothing. A built tree can outlive the machine it was built on, hence the look at the
# libraries.
is_up_to_date() {
  local library
  [[ -x $program && -f $stamp && -f $libraries ]] || return 1
  while read -r library; do
    [[ -e $library ]] || return 1
  done <"$libraries"
  [[ -z $(find "${sources[@]/#/$root/}" -newer "$stamp" -print -quit) ]]
}

bring_up_to_date() (
  lock_build_folder
  ! is_up_to_date || return 0
  install_packages "${zyndle_packages[@]}"
  # The stamp bears the time before the build, so that a file saved meanwhile counts as newer.
  touch "$root/build/started"
  [[ -x $program ]] || say "building zyndle, which takes a few minutes the first time"
  build release zyndle
  # The companions of the program lie beside it.
  find "${program%/*}" -maxdepth 1 -type f -executable -exec ldd {} + | sed -n 's|.* => \(/[^ ]*\).*|\1|p' >"$libraries"
  mv "$root/build/started" "$stamp"
)

is_up_to_date || bring_up_to_date
exec "$program" "$@"
