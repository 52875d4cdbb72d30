#!/bin/sh
# Builds release versions of everything a user gets, and stages them in dist/windows and dist/linux.
set -eu
cd "$(dirname "$0")/.."
for system in windows linux; do
    cmake --preset "$system" >/dev/null
    cmake --build --preset "$system" --target dist
    rm -rf "dist/$system"
    cmake --install "build/$system" --prefix "dist/$system" --strip >/dev/null
done
echo "staged in dist/:"
find dist -type f | sort | sed 's/^/  /'
