#!/bin/sh
# Builds the benchmarks and runs them, each beside its peers. Arguments are passed on to the programs.
set -eu
cd "$(dirname "$0")/.."
tools/setup.sh python3-numpy python3-scipy
cmake --preset linux >/dev/null
cmake --build --preset linux --target bench
for program in build/linux/bench/bench_*; do
    "$program" --benchmark_repetitions=5 --benchmark_report_aggregates_only=true "$@"
done
/usr/bin/python3 bench/scipy_peers.py build/linux/backend/libnianlys.so
