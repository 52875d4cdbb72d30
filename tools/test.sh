#!/bin/sh
# Every check, or those that are named: style header linux asan-ubsan tsan windows reproducible.
# Ends with one line that counts the tests of all of them.
set -u
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root" || exit 1
results=build/results
rm -rf "$results"
mkdir -p "$results"
jobs=$(nproc)
failed=

# A preset's tests, each in a process of its own; ctest leaves its count in a file.
suite() {
    cmake --preset "$1" >"$results/$1.log" 2>&1 && cmake --build --preset "$1" >>"$results/$1.log" 2>&1 || {
        tail -n 40 "$results/$1.log"
        return 1
    }
    ctest --preset "$1" -j "$jobs" --output-junit "$root/$results/$1.xml" --output-log "$results/$1.tests.log" \
        >/dev/null 2>&1 && return
    grep -v -e ' Start ' -e ' Passed ' "$results/$1.tests.log" | tail -n 100
    return 1
}

check() {
    case $1 in
    style) tools/check_style.sh ;;
    header) /usr/bin/python3 tools/check_header.py ;;
    reproducible) tools/check_reproducible.sh ;;
    *) suite "$1" ;;
    esac
}

for name in ${*:-style header linux asan-ubsan tsan windows reproducible}; do
    start=$(date +%s)
    if check "$name"; then verdict=ok; else verdict=FAILED failed="$failed $name"; fi
    echo "$name: $verdict ($(($(date +%s) - start)) s)"
done
/usr/bin/python3 tools/count_tests.py "$results" $failed
