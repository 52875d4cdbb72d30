#!/bin/sh
# Shows the staged Windows build at work through Wine on two recordings: which backend it finds; a band-pass around the
# line of a shaker, with the spectra before and after; the shaker's velocity and displacement; the temperature of a
# furnace. Tables, plots and one page with all of it go to out/demo. Fails when a file is missing or a number is off.
# Usage: demo.sh, after dist/windows has been staged.
set -eu
cd "$(dirname "$0")/.."
program=dist/windows/bin/quordsp.exe
data=examples/data
out=out/demo

for file in "$program" dist/windows/backend/nianlys.dll $data/vibration_shaker_5khz.csv \
    $data/thermocouple_k_250c.csv; do
    [ -s "$file" ] || { echo "demo: $file is missing" >&2; exit 1; }
done
mkdir -p "$out"
rm -f "$out"/*.csv "$out"/*.svg "$out"/*.txt "$out"/*.html
WINEPATH="Z:$(pwd | tr / '\\')\\dist\\windows\\backend"
export WINEPATH

# show NAME ARGUMENTS...: the command and what it says, on the terminal and in NAME.txt, for the page.
show() {
    name=$1
    shift
    echo
    echo "> quordsp $*" | tee "$out/$name.txt"
    status=0
    tools/wine.sh "$program" "$@" >"$out/$name.output" 2>&1 || status=$?
    tr -d '\r' <"$out/$name.output" | tee -a "$out/$name.txt"
    rm "$out/$name.output"
    [ "$status" -eq 0 ] || { echo "demo: exit code $status" >&2; exit 1; }
}

# draw NAME ARGUMENTS...: the same for a command that writes NAME.csv and NAME.svg.
draw() {
    show "$@" -o "$out/$1.csv" --plot "$out/$1.svg"
}

shaker="$data/vibration_shaker_5khz.csv --column x_g --rate 5000"
show info info
draw shaker_bandpass filter $shaker --response bandpass --order 4 --cutoff 90 110
draw shaker_spectrum spectrum $shaker --from 3 --to 7 --amplitude peak
draw filtered_spectrum spectrum $out/shaker_bandpass.csv --column filtered_g --from 3 --to 7 --amplitude peak
draw shaker_vibration vibration $shaker --from 3 --to 7 --view 5 5.1
draw furnace_temperature thermocouple $data/thermocouple_k_250c.csv --type K --cold-junction-column cold_junction_degC

echo
/usr/bin/python3 tools/demo_page.py "$out"
