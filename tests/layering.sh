#!/usr/bin/env bash
# Fails if an include below src/ points to a higher floor, if files include each other in a round,
# if formats/ needs more than the standard library, or if picture/ needs Qt.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../src"

floors=(formats platform/system platform/forms picture dialogs conversion palette mainwindow)

# includes FOLDER... prints "FILE INCLUDED" for every include.
includes() {
  grep -ro --include='*.h' --include='*.cpp' '^#include ["<][^">]*' "$@" |
    sed -E 's/:#include ["<]/ /'
}

faults=$(
  for ((i = 0; i < ${#floors[@]} - 1; ++i)); do
    higher=$(IFS='|' && echo "${floors[*]:i+1}")
    includes "${floors[i]}" | grep -E " ($higher)/"
  done
  includes formats | grep -vE ' (formats/)?[a-z_]+(\.h)?$'
  includes picture | grep -E ' Q[A-Z]'
  includes . | sed 's,^\./,,' | grep -E ' [a-z_/]+/[a-z_]+\.h$' | tsort 2>&1 >/dev/null
) || true
[[ $(includes . | wc -l) -gt 200 ]] || faults+="hardly any includes found"
[[ -z $faults ]] || {
  echo "$faults"
  exit 1
}
