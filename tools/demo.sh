#!/bin/sh
# Shows the staged Windows build at work through Wine on the five recordings: which backend it finds; a shaker's line
# behind a band-pass, five filter families side by side, spectra, velocity and displacement; the knocks of a shock; the
# beats of an electrocardiogram; the partials of a bell; the temperature of a furnace. Tables, plots and one page with
# all of it go to out/demo. Fails when a file is missing or a number is off.
# Usage: demo.sh, after dist/windows has been staged.
set -eu
cd "$(dirname "$0")/.."
program=dist/windows/bin/quordsp.exe
data=examples/data
out=out/demo

for file in "$program" dist/windows/backend/nianlys.dll $data/vibration_shaker_5khz.csv \
    $data/vibration_shock_20khz.csv $data/ecg_360hz.csv $data/audio_bell_44k1.wav $data/thermocouple_k_250c.csv; do
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

# tell NAME ARGUMENTS...: the same for a command that writes NAME.csv alone.
tell() {
    show "$@" -o "$out/$1.csv"
}

shaker="$data/vibration_shaker_5khz.csv --column x_g --rate 5000"
show info info
draw shaker_bandpass filter $shaker --response bandpass --order 4 --cutoff 90 110
draw shaker_spectrum spectrum $shaker --from 3 --to 7 --amplitude peak
draw filtered_spectrum spectrum $out/shaker_bandpass.csv --column filtered_g --from 3 --to 7 --amplitude peak
families="--family butterworth,bessel,chebyshev,inverse-chebyshev,elliptic --order 4 --ripple 1 --attenuation 60"
draw families_response response --rate 5000 $families --response lowpass --cutoff 500 --to 1500 --delay ms
draw families_shaker filter $shaker $families --response lowpass --cutoff 500 --view 5 5.02
draw shaker_vibration vibration $shaker --from 3 --to 7 --view 5 5.1
draw shaker_plane spectrum $shaker --imaginary y_g --from 3 --to 7
shock="$data/vibration_shock_20khz.csv --column y_g --rate 20000"
tell shock_stats stats $shock
draw shock_peaks peaks $shock --threshold 20 --width 21
draw shock_vibration vibration $shock --from 0.5 --to 0.7
draw ecg_baseline detrend $data/ecg_360hz.csv --rate 360 --order 3 --breakpoints 10,20,30,40,50
draw ecg_beats peaks $out/ecg_baseline.csv --column detrended_mV --threshold 0.5
draw bell_spectrum spectrum $data/audio_bell_44k1.wav --from 0.5 --to 1.5 --amplitude peak
draw bell_partial filter $data/audio_bell_44k1.wav --response bandpass --order 4 --cutoff 3500 3750
draw furnace_temperature thermocouple $data/thermocouple_k_250c.csv --type K --cold-junction-column cold_junction_degC

echo
/usr/bin/python3 tools/demo_page.py "$out"
