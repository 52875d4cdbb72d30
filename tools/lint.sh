#!/bin/sh
# clang-tidy over our own code: what the Linux build compiles, and the fences to Windows as the Windows build does.
set -eu
cd "$(dirname "$0")/.."
tidy() {
    xargs -P "$(nproc)" -n 4 clang-tidy-19 -p "build/$1" --quiet --warnings-as-errors='*'
}
for preset in linux windows; do
    cmake --preset "$preset" >/dev/null
done
git ls-files 'src/*.cpp' 'backend/*.cpp' 'cli/*.cpp' | grep -v _windows | tidy linux
git ls-files 'src/*_windows.cpp' 'cli/*_windows.cpp' | tidy windows
