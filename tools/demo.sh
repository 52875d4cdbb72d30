#!/bin/sh
# Shows the staged Windows build at work through Wine: which backend it finds, a band-pass around the line of a shaker
# recording, and the spectra before and after. Results go to out/demo.
# Usage: demo.sh, after dist/windows has been staged.
set -eu
cd "$(dirname "$0")/.."
program=dist/windows/bin/quordsp.exe
recording=examples/data/vibration_shaker_5khz.csv
out=out/demo

for file in "$program" "$recording" dist/windows/backend/nianlys.dll; do
    [ -s "$file" ] || { echo "demo: $file is missing" >&2; exit 1; }
done
mkdir -p "$out"
rm -f "$out"/*.csv "$out"/*.svg
WINEPATH="Z:$(pwd | tr / '\\')\\dist\\windows\\backend"
export WINEPATH

quordsp() {
    echo
    echo "> quordsp $*"
    tools/wine.sh "$program" "$@"
}

quordsp info
quordsp filter "$recording" --column x_g --rate 5000 --response bandpass --order 4 --cutoff 90 110 \
    -o "$out/shaker_bandpass.csv" --plot "$out/shaker_bandpass.svg"
quordsp spectrum "$recording" --column x_g --rate 5000 --from 3 --to 7 --amplitude peak \
    -o "$out/shaker_spectrum.csv" --plot "$out/shaker_spectrum.svg"
quordsp spectrum "$out/shaker_bandpass.csv" --column filtered_g --from 3 --to 7 --amplitude peak \
    -o "$out/filtered_spectrum.csv" --plot "$out/filtered_spectrum.svg"

for file in shaker_bandpass shaker_spectrum filtered_spectrum; do
    for ending in csv svg; do
        [ -s "$out/$file.$ending" ] || { echo "demo: $out/$file.$ending was not written" >&2; exit 1; }
    done
done
echo
echo "The shaker ran at about 100.0 Hz with 10.1 g; the strongest lines above should say so."
echo "Tables and plots are in $out; open the .svg files with a browser."
