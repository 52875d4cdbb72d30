#!/bin/sh
# clang-tidy over our own code, as the Linux build compiles it.
set -eu
cd "$(dirname "$0")/.."
cmake --preset linux >/dev/null
git ls-files 'src/*.cpp' 'backend/*.cpp' 'cli/*.cpp' | grep -v windows |
    xargs -P "$(nproc)" -n 4 clang-tidy-19 -p build/linux --quiet --warnings-as-errors='*'
