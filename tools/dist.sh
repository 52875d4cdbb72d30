#!/bin/sh
# Builds release versions of everything a user gets, and stages them in dist/windows and dist/linux.
set -eu
cd "$(dirname "$0")/.."
# On Windows the symbols stand apart, in the .pdb; on Linux they go.
stage() {
    system=$1
    shift
    cmake --preset "$system" >/dev/null
    cmake --build --preset "$system" --target dist
    rm -rf "dist/$system"
    cmake --install "build/$system" --prefix "dist/$system" "$@" >/dev/null
}
stage windows
stage linux --strip
echo "staged in dist/:"
find dist -type f | sort | sed 's/^/  /'
