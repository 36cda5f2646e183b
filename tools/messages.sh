#!/usr/bin/env bash
# tools/messages.sh: lists every text that has translations in the template tonelake.pot, and
# brings the catalogues beside it to the same list; new texts are left untranslated there.
# tools/messages.sh --check LIBRARY-MESSAGES: only tells whether the template is up to date, with
# the texts of the library from a program built before.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=set_up.sh
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/set_up.sh"

template=Tonelake/resources/locale/tonelake.pot

# print_template LIBRARY-MESSAGES: the texts of the library, then those marked in the sources. No
# dates and no line numbers, so that the template changes only when a text does.
print_template() {
  local scratch
  scratch=$(mktemp -d)
  "$1" >"$scratch/library.pot"
  find Desktop TodayChordExtension zyndle -name '*.h' -o -name '*.cpp' | LC_ALL=C sort |
    xgettext --language=C++ --from-code=UTF-8 --files-from=- --output="$scratch/sources.pot" \
      --keyword --keyword=message --keyword=translated --keyword=localized \
      --add-comments=TRANSLATORS: --add-location=file --package-name=tonelake
  sed -i 's/charset=CHARSET/charset=UTF-8/; /^"POT-Creation-Date/d; s/^#\. TRANSLATORS: /#. /' \
    "$scratch/sources.pot"
  sed -i '/^# SOME DESCRIPTIVE TITLE/,/^#$/d; /^#, fuzzy$/d' "$scratch/sources.pot"
  msgcat --use-first --add-location=file "$scratch/sources.pot" "$scratch/library.pot"
  rm -r "$scratch"
}

cd "$root"
if [[ ${1:-} == --check ]]; then
  print_template "$2" | diff --unified "$template" - >&2 ||
    fail "$template is not up to date; run tools/messages.sh"
  exit
fi

prepare dev library_messages
print_template build/dev/tools/messages/library_messages >"$root/build/tonelake.pot"
mv "$root/build/tonelake.pot" "$template"
for catalogue in Tonelake/resources/locale/*.po; do
  msgmerge --quiet --update --backup=none --no-fuzzy-matching --add-location=file \
    "$catalogue" "$template"
done
