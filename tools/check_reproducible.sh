#!/bin/sh
# Builds the Windows library from two folders of different names: both must be the same bytes.
set -eu
cd "$(dirname "$0")/.."
work=$PWD/build/reproducible
rm -rf "$work"
for folder in "$work/a" "$work/a-longer-name/b"; do
    mkdir -p "$folder"
    git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$folder"
    (cd "$folder" && cmake --preset windows -DQUORDSP_BUILD_TESTS=OFF && cmake --build --preset windows \
        --target QuorDSP_DAQ) >"$work/log" 2>&1 || { tail -n 20 "$work/log"; exit 1; }
done
for file in bin/QuorDSP_DAQ.dll bin/QuorDSP_DAQ.pdb; do
    cmp "$work/a/build/windows/$file" "$work/a-longer-name/b/build/windows/$file"
done
