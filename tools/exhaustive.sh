#!/bin/sh
# Every single-precision voltage of every thermocouple type against a plain loop, on all cores; with a number, every
# so-manieth. Before them, transforms of every size up to 4096 and of some up to 2^24 against their bounds, and
# equiripple designs of up to 1001 taps on fine grids.
set -eu
cd "$(dirname "$0")/.."
cmake --preset linux >/dev/null
cmake --build --preset linux --target thermocouple_exhaustive fft_accuracy_table backend_exchange_test
build/linux/bin/fft_accuracy_table
QUORDSP_ALL_ROWS=1 build/linux/bin/backend_exchange_test
exec build/linux/bin/thermocouple_exhaustive "$@"
