#!/bin/sh
# Fuzzes each target, or those that are named, for FUZZ_SECONDS (60) from its corpus on. One line per target; a failing
# input is left in build/fuzz/found/. New inputs are not kept in the corpus. A target without a corpus fails.
set -u
cd "$(dirname "$0")/.." || exit 1
root=$PWD
build=$root/build/fuzz
cmake --preset fuzz >/dev/null && cmake --build --preset fuzz || exit 1
export LD_LIBRARY_PATH="$build/backend"
status=0
for target in ${*:-$(ls "$build/fuzz" | sed -n 's/^fuzz_//p')}; do
    folder=$build/found/$target
    scratch=$(mktemp -d)
    mkdir -p "$folder" "$scratch/new"
    # In a folder of its own, since targets write files; their messages are those of refused calls.
    (cd "$scratch" && "$build/fuzz/fuzz_$target" -max_total_time="${FUZZ_SECONDS:-60}" -max_len=1024 \
        -print_final_stats=1 -close_fd_mask=1 -artifact_prefix="$folder/" \
        new "$root/fuzz/corpus/$target" 2>"$folder/log")
    verdict=$?
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$folder/log")
    speed=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$folder/log")
    if [ "$verdict" -eq 0 ]; then verdict=ok; else verdict="FAILED, see $folder" status=1; fi
    echo "$target: $runs runs, $speed exec/s: $verdict"
    rm -rf "$scratch"
done
exit $status
