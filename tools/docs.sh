#!/usr/bin/env bash
# tools/docs.sh: makes the reference of the public headers, build/docs/html/index.html. Fails where
# something is undocumented, or documented as what it is not.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=set_up.sh
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/set_up.sh"

install_alone "${docs_packages[@]}"
cd "$root"
rm -rf build/docs
mkdir -p build/docs/html/docs
# Where the pages look for them.
cp -r docs/pictures build/docs/html
cp -r docs/pictures build/docs/html/docs

# Those that are installed, as the build lists them.
public_headers() {
  local folder
  for folder in Tonelake TodayChordExtension; do
    sed --quiet "/^install_library(/,/)/s|^  \(.*\.h\).*|$folder/\1|p" "$folder/CMakeLists.txt"
  done
}

{ cat docs/Doxyfile && public_headers | sed 's/^/INPUT += /'; } | doxygen - ||
  fail "the reference is incomplete, see above"
say "made $root/build/docs/html/index.html"
