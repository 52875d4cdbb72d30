#!/bin/sh
# Installs the Debian packages that building, testing and the demo need, and those that are named; only missing ones.
set -eu
packages="
    cmake ninja-build make python3
    clang-19 lld-19 llvm-19 clang-format-19 clang-tidy-19 libclang-rt-19-dev g++
    g++-mingw-w64-x86-64-posix wine64 wine
    libsndfile1-dev sndfile-programs sox
    googletest libbenchmark-dev libcli11-dev libopenblas-serial-dev libgsl-dev libhwy-dev libfftw3-dev
    $*
"
missing=
for package in $packages; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing="$missing $package"
done
[ -n "$missing" ] || exit 0
if [ "$(id -u)" -ne 0 ]; then
    echo "setup: these packages are missing; install them as root: apt-get install$missing" >&2
    exit 1
fi
echo "setup: installing$missing"
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
# shellcheck disable=SC2086  # one word a package
apt-get install -y -qq --no-install-recommends $missing >/dev/null
