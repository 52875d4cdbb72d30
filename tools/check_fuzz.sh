#!/bin/sh
# Each function that the default backend or the library exports is named in a fuzz target: an entry of the backend also
# by the library's export on top of it. Prints those that are not. The sound level, which ignores what it gets, is free.
set -u
cd "$(dirname "$0")/.." || exit 1

# The words of the targets without their comments.
words=$(sed 's,//.*,,' fuzz/*.cpp fuzz/*.h | grep -oE '[A-Za-z_][A-Za-z_0-9]*' | sort -u)
isNamed() { printf '%s\n' "$words" | grep -qx "$1"; }
exportOf() { sed -nE "s/^ENTRY\(([A-Za-z_0-9]+), *$1,.*/QuorDSP_\1/p" src/frame/entries.def; }

status=0
for list in tests/abi/backend_exports.txt tests/abi/library_exports.txt src/frame/entries.def; do
    [ -s "$list" ] || { echo "fuzz: $list is missing or empty" && status=1; }
done
for name in $(cat tests/abi/backend_exports.txt); do
    isNamed "$name" || isNamed "$(exportOf "$name")" || { echo "fuzz: nothing calls $name" && status=1; }
done
# A name with decoration stands with its parameters' types behind it, and as other systems decorate it in a second line.
for name in $(sed -nE '/^QuorDSP_Calc_SPL_A$/d; s/^[?]?([A-Za-z_0-9]+).*/\1/p' tests/abi/library_exports.txt); do
    isNamed "$name" || { echo "fuzz: nothing calls $name" && status=1; }
done
exit $status
