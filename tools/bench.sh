#!/bin/sh
# Builds the benchmarks and runs them, each beside its peers.
set -eu
cd "$(dirname "$0")/.."
cmake --preset linux >/dev/null
cmake --build --preset linux --target bench
for program in build/linux/bench/bench_*; do
    "$program" --benchmark_repetitions=5 --benchmark_report_aggregates_only=true "$@"
done
