#!/bin/sh
# Every single-precision voltage of every thermocouple type against a plain loop, on all cores; with a number, every
# so-manieth.
set -eu
cd "$(dirname "$0")/.."
cmake --preset linux >/dev/null
cmake --build --preset linux --target thermocouple_exhaustive
exec build/linux/bin/thermocouple_exhaustive "$@"
