#!/bin/sh
# Runs the program as a user does: exit codes, messages, what is written and what is not left behind.
# Usage: end_to_end.sh PROGRAM LIBRARY BACKEND-FOLDER SOURCE-FOLDER [EMULATOR]
set -u
# The emulator takes arguments and file names in the encoding of the locale.
LC_ALL=C.UTF-8
export LC_ALL
program=$1 library=$2 backend=$3 source=$4 emulator=${5:-}
shaker=$source/examples/data/vibration_shaker_5khz.csv
furnace=$source/examples/data/thermocouple_k_250c.csv
bell=$source/examples/data/audio_bell_44k1.wav
ecg=$source/examples/data/ecg_360hz.csv

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/alone" "$work/alone/bin" "$work/alone/lib" "$work/out"
cd "$work/out" || exit 1
failures=0

if [ -n "$emulator" ]; then
    WINEPATH="Z:$(echo "$backend" | tr / '\\')"
    export WINEPATH
    cp "$program" "$library" "$work/alone/bin"
else
    LD_LIBRARY_PATH=$backend
    export LD_LIBRARY_PATH
    cp "$program" "$work/alone/bin"
    cp "$library" "$work/alone/lib"
fi
alone=$work/alone/bin/$(basename "$program")

fail() {
    failures=$((failures + 1))
    echo "FAILED: $1" >&2
    sed 's/^/  stdout: /' ../stdout >&2
    sed 's/^/  stderr: /' ../stderr >&2
}

# run CODE ARGUMENTS...: the program must end with that exit code.
run() {
    expected=$1
    shift
    what="quordsp $*"
    $emulator "$program" "$@" >../stdout 2>../stderr </dev/null
    code=$?
    [ "$code" -eq "$expected" ] || fail "$what: exit code $code instead of $expected"
}

says() { grep -qF -- "$1" ../stdout || fail "$what: the output does not say '$1'"; }
complains() { grep -qF -- "$1" ../stderr || fail "$what: the error does not say '$1'"; }
# The path of the backend that is in use has that folder and file name in it.
backend_is_in() {
    grep -qE "^backend  .*[/\\\\]$1[/\\\\](lib)?nianlys\.(so|dll)" ../stdout || fail "$what: the backend is not in $1"
}
is_there() { [ -s "$1" ] || fail "$what: $1 is missing or empty"; }
# Nothing but the named files is in the output folder, which is empty afterwards.
only_left() {
    left=$(ls -A | sort | tr '\n' ' ')
    [ "$left" = "${1:+$1 }" ] || fail "$what: left behind '$left' instead of '$1'"
    rm -rf "$work/out/"* "$work/out/".[!.]*
}

filter_x="filter $shaker --column x_g --rate 5000"
bandpass="--response bandpass --order 4 --cutoff 90 110"

# What the program tells about itself.
run 0 --version
says "quordsp "
run 0 --help
says "spectrum"
says "3  the analysis backend is missing"
for command in filter response spectrum peaks stats detrend vibration thermocouple wav info; do
    run 0 $command --help
    says "Exit codes"
done

# The backend, when it is there and when it is not.
run 0 info
backend_is_in "$(basename "$backend")"
says "filters  42 of 42"
says "spectra  3 of 3"
says "entries  124 of 124"
program_kept=$program program=$alone path_kept=${WINEPATH:-}
unset LD_LIBRARY_PATH WINEPATH
run 3 info
says "not found"
says "1. the system's search"
says "2. beside"
complains "status -5093"
run 3 $filter_x $bandpass -o f.csv --plot f.svg
complains "the analysis backend could not be found or loaded (status -5093)"
complains "quordsp info"
# The library's own work needs no backend.
run 0 vibration "$shaker" --column x_g --rate 5000 --from 3 --to 4 -o v.csv
complains "no strongest line: the analysis backend could not be found"
only_left "v.csv"
# Beside the library, which is the last place on Linux and part of the system's search on Windows.
cp "$backend"/*nianlys* "$(dirname "$alone")" 2>../stderr
[ -n "$emulator" ] || cp "$backend"/*nianlys* "$work/alone/lib"
run 0 info
backend_is_in "alone[/\\\\](bin|lib)"
program=$program_kept
if [ -n "$emulator" ]; then export WINEPATH="$path_kept"; else export LD_LIBRARY_PATH="$backend"; fi

# A band-pass and a spectrum of a recording. The sine fit of the recording's description: 100.0 Hz, 10.13 g.
run 0 $filter_x $bandpass -o f.csv --plot f.svg
says "40000 samples of x (g) at 5000 Hz: bandpass 90 to 110 Hz, butterworth of order 4"
is_there f.svg
[ "$(head -n 1 f.csv)" = "time_s,input_g,filtered_g" ] || fail "$what: the names of the columns"
[ "$(wc -l <f.csv)" -eq 40001 ] || fail "$what: the number of rows"
grep -q '^7.9998,' f.csv || fail "$what: the time of the last row"
run 0 spectrum f.csv --column filtered_g --from 3 --to 7 -o s.csv
says "20000 samples of filtered (g) at 5000 Hz"
says "10.13"
run 0 spectrum "$shaker" --column 1 --rate 5000 --from 3 --to 7 --amplitude peak -o s.csv --plot s.svg
grep -qE '^strongest line: (99\.99|100\.00)[0-9]* Hz, 10\.13[0-9]* g peak' ../stdout || fail "$what: the strongest line"
says "bin spacing:    0.25 Hz"
[ "$(head -n 1 s.csv)" = "frequency_Hz,amplitude_peak_g" ] || fail "$what: the names of the columns"
[ "$(wc -l <s.csv)" -eq 10001 ] || fail "$what: the number of rows"
grep -qE '^100,10\.1[0-9]+$' s.csv || fail "$what: the row of 100 Hz"
run 0 spectrum "$shaker" --rate 5000 --from 3 --to 7 --power -o p.csv
grep -qE '^100,51\.[0-9]+$' p.csv || fail "$what: half the square of the amplitude"
only_left "f.csv f.svg p.csv s.csv s.svg"

# Phase, and a complex signal: 2 V at -100 Hz with a phase of 30 degrees and 0.5 V at 50 Hz, over one second.
awk 'BEGIN { turn = 8 * atan2(1, 1); print "t_s,i_V,q_V"
    for (k = 0; k < 400; ++k) { a = turn * (1 / 12 - 100 * k / 400); b = turn * 50 * k / 400
        print k / 400 "," 2 * cos(a) + 0.5 * cos(b) "," 2 * sin(a) + 0.5 * sin(b) } }' >iq.csv
run 0 spectrum iq.csv --imaginary q_V --phase -o s.csv --plot s.svg
says "400 samples of i + j q (V) at 400 Hz"
says "highest bin:    -100 Hz, 2 V"
[ "$(head -n 1 s.csv)" = "frequency_Hz,amplitude_V,phase_deg" ] || fail "$what: the names of the columns"
[ "$(wc -l <s.csv)" -eq 401 ] || fail "$what: the number of rows"
grep -q '^-200,' s.csv || fail "$what: the lowest frequency"
grep -q '^199,' s.csv || fail "$what: the highest frequency"
# awk has written six digits.
near() {
    awk -F, -v row="$1" -v column="$2" -v wanted="$3" '$1 == row { found = 1; off = $column - wanted
        if (off * off > 1e-8) exit 1 } END { exit !found }' s.csv || fail "$what: column $2 of row $1 is not $3"
}
near -100 2 2
near -100 3 30
near 50 2 0.5
run 0 spectrum iq.csv --imaginary 3 --power -o s.csv
near -100 2 4
run 0 spectrum iq.csv --column i_V --amplitude peak --phase --unwrap -o s.csv
near 100 2 2
[ "$(wc -l <s.csv)" -eq 201 ] || fail "$what: the number of rows"
[ "$(head -n 1 s.csv)" = "frequency_Hz,amplitude_peak_V,phase_deg" ] || fail "$what: the names of the columns"
run 1 spectrum iq.csv --imaginary q_V --amplitude peak -o x.csv
run 1 spectrum iq.csv --unwrap -o x.csv
run 1 spectrum iq.csv --imaginary t_s -o x.csv
complains "the real part is 'i (V)', the imaginary part 't (s)'"
run 2 spectrum iq.csv --imaginary none -o x.csv
only_left "iq.csv s.csv s.svg"

# The beats of an electrocardiogram, counted by NumPy: 74 samples above 0.5 mV whose neighbours are lower; 73.87 per
# minute from the first to the last.
run 0 peaks "$ecg" --rate 360 --threshold 0.5 -o p.csv --plot p.svg
says "21600 samples of mlii (mV) at 360 Hz: 74 peaks by 3 samples a fit, from 0.5 mV"
grep -qE '^rate: +73\.8[67][0-9]* per minute' ../stdout || fail "$what: the rate"
[ "$(head -n 1 p.csv)" = "time_s,sample,amplitude_mV,second_derivative_mV/s^2" ] || fail "$what: the columns"
[ "$(wc -l <p.csv)" -eq 75 ] || fail "$what: the number of rows"
[ "$(grep -c '<circle' p.svg)" -eq 74 ] || fail "$what: the marks"
run 0 detrend "$ecg" --rate 360 --order 3 --breakpoints 10,20,30,40,50 -o d.csv
for width in 5 7; do
    run 0 peaks d.csv --column detrended_mV --threshold 0.5 --width $width -o p.csv
    says "74 peaks by $width samples a fit"
done
# A parabola with its bottom at 4.25 s, by hand, in the middle of a span.
awk 'BEGIN { print "t_s,x_V"; for (i = 0; i < 20; ++i) print i / 2 "," (i / 2 - 4.25) ^ 2 - 3 }' >bend.csv
run 0 peaks bend.csv --valleys --threshold 0 --from 2 --to 7 -o p.csv
says "10 samples of x (V) at 2 Hz: 1 valley by 3 samples a fit, up to 0 V"
[ "$(tail -n 1 p.csv)" = "4.25,8.5,-3,2" ] || fail "$what: the valley is $(tail -n 1 p.csv)"
run 0 peaks bend.csv --valleys --threshold -4 -o p.csv --plot p.svg
says "0 valleys"
[ "$(wc -l <p.csv)" -eq 1 ] || fail "$what: the number of rows"
run 1 peaks bend.csv --width 2 -o x.csv
run 1 peaks bend.csv --threshold x -o x.csv
run 1 peaks bend.csv
only_left "bend.csv d.csv p.csv p.svg"

# By NumPy: mean, std, percentile.
run 0 stats "$ecg" --rate 360 -o st.csv
says "mean:               -0.336348 mV"
says "rms:                0.379435 mV"
says "standard deviation: 0.175616 mV"
says "minimum:            -0.695 mV"
says "minimum time:       36.8139 s"
says "maximum time:       20.5361 s"
says "median:             -0.36 mV"
says "percentile 5:       -0.485 mV"
says "percentile 95:      -0.2 mV"
grep -q '^samples,mean_mV,rms_mV,standard_deviation_mV,minimum_mV,minimum_time_s,' st.csv || fail "$what: the columns"
grep -q '^21600,-0.3363479166666' st.csv || fail "$what: the row"
run 0 stats "$ecg" --rate 360 --percentiles 99.9
says "percentile 99.9:    0.97 mV"
run 1 stats "$ecg" --rate 360 --percentiles 101
complains "there are no 101 percent"
run 1 stats "$ecg"
run 5 stats "$ecg" --rate 360 -o none/s.csv
only_left "st.csv"

# Every response, on a WAV file.
for response in lowpass highpass; do
    run 0 filter "$bell" --response $response --order 2 --cutoff 3000 -o $response.csv
done
for response in bandpass bandstop; do
    run 0 filter "$bell" --response $response --order 2 --cutoff 3000,4000 -o $response.csv
done
run 0 spectrum "$bell" -o bell.csv
says "132300 samples of channel 1 (FS) at 44100 Hz"
only_left "bandpass.csv bandstop.csv bell.csv highpass.csv lowpass.csv"

# Every family in every response, and what each takes. The backend's answer is that of the library's header.
families=butterworth,bessel,chebyshev,inverse-chebyshev,elliptic,windowed,kaiser,equiripple,narrow-band
values="--order 5 --ripple 0.5 --attenuation 50 --taps 51 --window dolph-chebyshev --param 70 --beta 5"
for response in "lowpass --cutoff 300 --edges 300 500" "highpass --cutoff 300 --edges 300 500" \
    "bandpass --cutoff 300 900 --edges 300 500 900 1100" "bandstop --cutoff 300 900 --edges 300 500 900 1100"; do
    run 0 filter "$bell" --family $families $values --response $response -o f.csv
    run 0 response --rate 5000 --family $families $values --response $response -o r.csv
    [ ! -s ../stderr ] || fail "$what: a warning"
    ! grep -qF -- ' -0 dB' ../stdout || fail "$what: zero with a sign"
done
run 1 $filter_x --family elliptic --order 4 --ripple 1 --response lowpass --cutoff 300 -o g.csv
complains "elliptic needs --attenuation"
run 1 $filter_x --ripple 1 --order 4 --response lowpass --cutoff 300 -o g.csv
complains "--ripple is not for butterworth"
complains "it is for chebyshev, elliptic"
run 1 $filter_x --family windowed --taps 5 --window square --response lowpass --cutoff 300 -o g.csv
run 4 $filter_x --family chebyshev --order 4 --ripple -1 --response lowpass --cutoff 300 -o g.csv
complains "status -20024"
run 4 $filter_x --family windowed --taps 50 --window welch --response highpass --cutoff 300 -o g.csv
complains "status -20033"
run 4 response --rate 5000 --family kaiser --taps 0 --beta 1 --response lowpass --cutoff 300 -o g.csv
complains "status -20003"
run 4 response --rate 5000 --order 0 --response lowpass --cutoff 300 -o g.csv
complains "status -20021"
run 1 $filter_x --family kaiser --taps 2000000000 --beta 1 --response lowpass --cutoff 300 -o g.csv
complains "--taps must be at most 1048576"
only_left "f.csv r.csv"

# The families that no response selects, and those of bands by interpolation. SciPy 1.10 says: savgol_filter(x, 15, 3,
# 1, 1/5000) is -6178.895184 at 4 s; remez(51, [0, 100, 150, 500], [1, 0], weight=[1, 10], fs=1000) is within 0.01154
# of 1; savgol_coeffs(15, 3) reach half power at 71.675 Hz.
run 0 $filter_x --family savitzky-golay,differentiator,hilbert,multiband --order 3 --side 7 --derivative 1 --taps 30 \
    --bands 50:2000 -o f.csv --plot f.svg
[ "$(head -n 1 f.csv)" = "time_s,input_g,savitzky-golay_g/s,differentiator_g/s,hilbert_g,multiband_g" ] ||
    fail "$what: the names of the columns"
says "  derivative, savitzky-golay of order 3 over 15 samples"
says "delay of hilbert: 14.5 samples, 0.0029 s"
grep -qE '^4,[^,]*,-6178\.895184[0-9]*,' f.csv || fail "$what: the derivative at 4 s"
run 0 response --rate 1000 --family multiband,savitzky-golay --taps 51 --bands 0:100,150:500:0:10 --order 3 --side 7 \
    -o r.csv --plot r.svg
says "gain from 0 to 100 Hz: within 0.01154"
says "gain from 150 to 500 Hz: within 0.001154"
says "ripple reached, by the design: 0.01154"
says "-3.01 dB at: 71.67"
[ ! -s ../stderr ] || fail "$what: a warning"
run 0 response --rate 1000 --family wideband --response lowpass --edges 480 490 --ripple 0.1 --attenuation 60 -o r.csv
says "wideband, ripple 0.1 dB, attenuation 60 dB at 1000 Hz: model of "
says ", 0 to 480 Hz"
run 0 $filter_x --imaginary y_g $bandpass -o c.csv --plot c.svg
[ "$(head -n 1 c.csv)" = "time_s,input_real_g,input_imaginary_g,filtered_real_g,filtered_imaginary_g" ] ||
    fail "$what: the names of the columns"
run 1 $filter_x --family hilbert --taps 31 --bands 50 -o g.csv
complains "--bands: '50' is not a band"
run 1 $filter_x --family hilbert --taps 31 --bands 50:60,,70:80 -o g.csv
complains "--bands: an item of '50:60,,70:80' is empty"
run 1 $filter_x --family=butterworth, --response lowpass --order 2 --cutoff 9 -o g.csv
complains "--family: an item of 'butterworth,' is empty"
run 1 $filter_x --family savitzky-golay --order 3 --side 20000 -o g.csv
complains "less than the frame of 40001"
only_left "c.csv c.svg f.csv f.svg r.csv r.svg"

# Several families at once, a part of the plot, and no phase: the line at 100 Hz lies where it was.
run 0 $filter_x --family butterworth,elliptic,kaiser --order 4 --ripple 1 --attenuation 60 --taps 101 --beta 5 \
    --response lowpass --cutoff 250 --view 5 5.05 -o f.csv --plot f.svg
says "  lowpass 250 Hz, elliptic of order 4, ripple 1 dB, attenuation 60 dB"
says "delay of kaiser: 50 samples, 0.01 s"
[ "$(head -n 1 f.csv)" = "time_s,input_g,butterworth_g,elliptic_g,kaiser_g" ] || fail "$what: the names of the columns"
grep -qF '>filtered (g)<' f.svg || fail "$what: the axes"
run 0 $filter_x --response bandpass --order 2 --cutoff 90 110 --zero-phase -o z.csv
# From 3 to 7 s the two differ by less than 0.7 g, most of it the offset: a delay of one sample would make 1.3 g.
awk -F, 'NR > 15001 && NR < 35001 { d = $3 - $2; if (d * d > 0.49) ++far } END { exit far > 0 }' z.csv ||
    fail "$what: the filtered signal is not where the input is"
run 1 $filter_x --family kaiser --taps 101 --beta 5 --response lowpass --cutoff 250 --zero-phase -o g.csv
complains "--zero-phase is not for kaiser"
run 1 $filter_x --family savitzky-golay --order 3 --side 7 --zero-phase -o g.csv
complains "it has no delay"
only_left "f.csv f.svg z.csv"

# The response of a design. Bessel of order 4: 7.58 dB at the cut-off, as the header has it.
run 0 response --rate 1000 --order 4 --response bandpass --cutoff 100 200 -o r.csv --plot r.svg
says "bandpass 100 to 200 Hz, butterworth of order 4 at 1000 Hz: 2 sections"
says "gain at 200 Hz: -3.0103 dB"
says "-3.01 dB at: 100 Hz, 200 Hz"
says "greatest pole radius: 0.9"
[ "$(head -n 1 r.csv)" = "frequency_Hz,magnitude_dB,phase_deg,group_delay_samples" ] ||
    fail "$what: the names of the columns"
[ "$(wc -l <r.csv)" -eq 2002 ] || fail "$what: the number of rows"
grep -qE '^100,-3\.0102999[0-9]*,' r.csv || fail "$what: the row of 100 Hz"
grep -qF '>group delay (samples)<' r.svg || fail "$what: the axes"
run 0 response --rate 1000 --family bessel --order 4 --response lowpass --cutoff 100 -o r.csv
says "gain at 100 Hz: -7.57"
run 0 response --rate 1000 --family elliptic,chebyshev --order 4 --ripple 1 --attenuation 60 --response lowpass \
    --cutoff 100 --from 50 --to 150 --points 11 --delay ms -o r.csv
says "pass-band ripple: 1 dB, from -1 dB to 0 dB, 0 to 100 Hz"
says "stop-band attenuation: 60 dB, "
head -n 1 r.csv | grep -q '^frequency_Hz,elliptic_magnitude_dB,.*,elliptic_group_delay_ms,chebyshev_magnitude_dB,' ||
    fail "$what: the names of the columns"
[ "$(cut -d, -f1 r.csv | tr '\n' ' ')" = "frequency_Hz 50 60 70 80 90 100 110 120 130 140 150 " ] ||
    fail "$what: the frequencies"
run 0 response --rate 1000 --family windowed --window hanning --taps 2 --response lowpass --cutoff 100 -o r.csv
complains "all coefficients are 0"
! grep -qE 'nan|pass-band|stop-band' ../stdout || fail "$what: figures of bands that there are not"
run 0 response --rate 1000 --family windowed --window hanning --taps 51 --response lowpass --cutoff 1 -o r.csv
complains "the gain of the pass band is at most -26.02"
! grep -qF pass-band ../stdout || fail "$what: a ripple of a gain that falls from 0 Hz on"
# The ends of this window are its largest values.
run 0 response --rate 1000 --family windowed --window dolph-chebyshev --param 40 --taps 1001 --response lowpass \
    --cutoff 100 -o r.csv
complains "the gain of the pass band is at most -9."
run 0 response --rate 1000 --family hilbert --taps 31 --bands 50:450 -o r.csv
! grep -qF -- '-3.01 dB' ../stdout || fail "$what: half-power points of a band of the request"
run 0 response --rate 1000 --order 2 --response bandpass --cutoff 100 100.0001 -o r.csv
says "bandpass 100 to 100.0001 Hz"
says "gain at 100.0001 Hz: -3.0103 dB"
run 1 response --rate 1000 --family kaiser --beta 5 --taps 31 --response lowpass --cutoff 100 --form direct -o g.csv
complains "--form direct is not for kaiser"
# Direct coefficients cannot hold a narrow band of high order; the sections do.
run 0 response --rate 5000 --order 8 --response bandpass --cutoff 90 110 -o r.csv
[ ! -s ../stderr ] || fail "$what: a warning"
run 0 response --rate 5000 --order 8 --response bandpass --cutoff 90 110 --form direct -o r.csv
says "direct form of degree 16"
complains "warning: butterworth of order 8: "
# A band too sharp for the backend's sections: SciPy's butter(8, [99.999, 100.001], fs=5000) has its poles at 2.45e-7.
run 0 response --rate 5000 --order 8 --response bandpass --cutoff 99.999 100.001 -o r.csv
says "no sections, the design by its low-pass"
says "-3.01 dB at: 99.999 Hz, 100.001 Hz"
says "2.45e-07 from the unit circle"
complains "warning: the backend gives no sections of butterworth: "
complains "(status -20031)"
run 0 response --rate 1000 --order 8 --response lowpass --cutoff 1e-8 -o r.csv
says "-3.01 dB at: 1e-08 Hz"
run 0 response --rate 1000 --family elliptic --order 7 --ripple 1 --attenuation 60 --response lowpass --cutoff 1e-8 \
    -o r.csv
says "pass-band ripple: 1 dB, from -1 dB to 0 dB, 0 to 1e-08 Hz"
says "stop-band attenuation: 60 dB, "
run 1 response --rate 5000 --order 8 --response lowpass --cutoff 90 --from 100 --to 90 -o g.csv
complains "half the rate is 2500 Hz"
run 1 response --order 8 --response lowpass --cutoff 90 -o g.csv
complains "--rate"
run 1 response --rate 5000 --order 8 --response lowpass --cutoff 90 -o g.csv --plot g.csv
complains "different files"
run 5 response --rate 5000 --order 8 --response lowpass --cutoff 90 -o none/g.csv
only_left "r.csv r.svg"

# Velocity and displacement of the same sine: 10.13 g of 9.78 m/s2 are 157.7 mm/s and 0.251 mm at 100 Hz. The
# trapezoidal rule takes 0.13 % and 0.26 % of these.
run 0 vibration "$shaker" --column x_g --rate 5000 --from 3 --to 7 -o v.csv --plot v.svg --view 5 5.1
says "20000 samples of x (g) at 5000 Hz, integrated in blocks of 1 s that overlap by half"
grep -qE '^acceleration at (99\.99|100\.00)[0-9]* Hz: 99\.[01][0-9]* m/s2 peak, 10\.13 g' ../stdout ||
    fail "$what: the acceleration"
grep -qE '^velocity at .* Hz: 157\.[4-8] mm/s peak' ../stdout || fail "$what: the velocity"
grep -qE '^displacement at .* Hz: 0\.2(49|50|51)[0-9]? mm peak' ../stdout || fail "$what: the displacement"
[ "$(head -n 1 v.csv)" = "time_s,acceleration_m/s2,velocity_mm/s,displacement_mm" ] || fail "$what: the columns"
[ "$(wc -l <v.csv)" -eq 20001 ] || fail "$what: the number of rows"
grep -qF '>displacement (mm)<' v.svg || fail "$what: the axes"
run 1 vibration "$shaker" --column x_g --rate 5000 --sensitivity 50 -o w.csv
complains "column 'x' is in g, no unit of voltage"
run 1 vibration "$bell" -o w.csv
complains "column 'channel 1' is in FS, no unit of acceleration"
run 1 vibration "$shaker" --column x_g --rate 5000 --block 0.001 -o w.csv
complains "a --block needs 32 samples, that is 0.0064 s"
run 1 vibration "$shaker" --column x_g --rate 5000 --view 9 10 -o w.csv --plot w.svg
complains "the two times of --view"
run 1 vibration "$shaker" --column x_g --rate 5000 --velocity-bounds 5 -5 -o w.csv
complains "--velocity-bounds must ascend"
printf 'x_g\n1\n2\n' >few.csv
run 2 vibration few.csv --rate 5000 -o w.csv
complains "the signal has 2 samples, too few to integrate"
run 5 vibration "$shaker" --column x_g --rate 5000 -o none/v.csv
run 1 vibration "$shaker" --column x_g --rate 5000 --view 5 5.1 -o w.csv
complains "--plot"
run 0 vibration "$shaker" --column x_g --rate 5000 --from 3 --to 7 --block 0.1 -o v.csv
complains "much of its velocity and displacement is lost"
only_left "few.csv v.csv v.svg"

# The furnace of the recording's description: 248.70 to 252.54 degC, mean 250.18 degC.
run 0 thermocouple "$furnace" --type K --cold-junction-column cold_junction_degC -o t.csv --plot t.svg
says "116 rows of emf, type K, cold junction at 22.2 to 22.22 degC"
says "minimum: 248.70"
grep -qE '^mean: +250\.1[78]' ../stdout || fail "$what: the mean"
says "maximum: 252.54"
[ "$(head -n 1 t.csv)" = "timestamp,time_s,emf_mV,cold_junction_degC,temperature_degC" ] || fail "$what: the columns"
grep -q '^2026-05-26 09:04:28.398,1.031,9.2841395764367,22.202365185358303,250.4' t.csv || fail "$what: the second row"
grep -qF '>time after 2026-05-26 09:04:27.367 (s)<' t.svg || fail "$what: the axis"
run 0 thermocouple "$furnace" --type K --cold-junction 22.2 --unit F --rate 1 -o t.csv
grep -qE '^mean: +482\.[23][0-9]* degF' ../stdout || fail "$what: the mean in degF"
[ "$(head -n 1 t.csv)" = "time_s,emf_mV,cold_junction_degC,temperature_degF" ] || fail "$what: the columns"
run 0 thermocouple "$furnace" --type S --cold-junction 22.2 -o t.csv
complains "the cold junction adds the voltage of type K, not that of type S"
run 1 thermocouple "$furnace" --type K -o u.csv
complains "the temperature of the cold junction is missing"
run 1 thermocouple "$furnace" --type Q --cold-junction 22 -o u.csv
run 1 thermocouple "$furnace" --type K --cold-junction 2000 -o u.csv
complains "a cold junction at 2000 degC cannot be compensated"
run 2 thermocouple "$furnace" --type K --cold-junction-column none -o u.csv
complains "'timestamp', 'cold_junction_degC', 'emf_mV'"
printf 'emf_mV\n9\n70\n-7\n9\n' >range.csv
run 2 thermocouple range.csv --type K --cold-junction 0 -o u.csv --plot u.svg
complains "range.csv: data row 2: 70 mV with the cold junction at 0 degC is out of the range of type K"
complains "it is the first of 2 (status -20322)"
only_left "range.csv t.csv t.svg"
printf 'emf_mV\n9\n70\n-7\n9\n' >range.csv
run 0 thermocouple range.csv --type K --cold-junction 0 --gaps -o u.csv --plot u.svg
says "out of range: 2 rows, the first is data row 2: 70 mV"
grep -q '^2,70,0,nan$' u.csv || fail "$what: the row out of range"
printf 'emf_mV\n70\n' >range.csv
run 2 thermocouple range.csv --type K --cold-junction 0 --gaps -o w.csv
run 1 thermocouple range.csv --type J --cold-junction 0 --gaps -o w.csv
complains "--gaps is for type K"
only_left "range.csv u.csv u.svg"

# What the library converts without a word: 0 mV by type B, and voltages that no thermocouple gives.
printf 'emf_mV\n0\n0.02\n1\n' >b.csv
run 0 thermocouple b.csv --type B --cold-junction 0 -o u.csv
complains "2 rows outside the published range of type B, 0.291 to 13.82 mV; the first is data row 1: 0 mV"
printf 'emf_mV\n1\n-5\n25\n' >b.csv
outside() {
    run 0 thermocouple b.csv --type "$1" --cold-junction 0 -o u.csv
    complains "$2 outside the published range of type $1, "
    complains "the first is data row $3 with the cold junction at 0 degC"
}
outside S "2 rows" "2: -5 mV"
outside R "2 rows" "2: -5 mV"
outside N "1 row" "2: -5 mV"
outside T "1 row" "3: 25 mV"
printf 'emf_mV\n10\n-3\n' >b.csv
run 0 thermocouple b.csv --type K --cold-junction 0 -o u.csv
says "2 rows of emf"
complains "1 row where the library departs from the published function of type K, from -5.891 to 0 mV"
complains "the first is data row 2: -3 mV"
# A cold junction at 100 degC lifts the voltage to 1.1 mV.
run 0 thermocouple b.csv --type K --cold-junction 100 -o u.csv
[ ! -s ../stderr ] || fail "$what: a warning"
printf 'emf_V\n1\n1e306\n' >b.csv
run 2 thermocouple b.csv --type S --cold-junction 0 -o v.csv
complains "b.csv:3: column 'emf_V' is too large a number"
printf 'emf_mV\n1\n1e300\n' >b.csv
run 2 thermocouple b.csv --type S --cold-junction 0 -o v.csv
complains "b.csv: data row 2: 1e+300 mV with the cold junction at 0 degC is out of the range of type S"
printf 'time_s,emf_mV\n1716714267,1\n1716714268,2\n' >b.csv
run 0 thermocouple b.csv --type K --cold-junction 0 -o u.csv --plot u.svg
grep -qF '>time after 1716714267 s (s)<' u.svg || fail "$what: the axis"
grep -q '^1716714268,2,' u.csv || fail "$what: the times of the table"
only_left "b.csv u.csv u.svg"

# A parabola with a bend, known by hand: order 2 leaves nothing of it, order 1 the parabola.
awk 'BEGIN { print "t_s,x_V"; for (i = 0; i < 101; ++i) { b = i > 50 ? (i - 50) / 10 : 0
    print i / 10 "," 3 + i / 10 + 2 * b * b } }' >bend.csv
run 0 detrend bend.csv --order 2 --breakpoints 5 -o d.csv --plot d.svg
says "101 samples of x (V) at 10 Hz: trend of order 2 with 1 breakpoint removed"
grep -qE '^after:  mean \S+ V, rms [0-9.]+e-1[3-9] V' ../stdout || fail "$what: something is left"
[ "$(head -n 1 d.csv)" = "time_s,input_V,trend_V,detrended_V" ] || fail "$what: the columns"
run 0 detrend bend.csv --order 2 --breakpoint-samples 51 -o d.csv
grep -qE '^after:  mean \S+ V, rms [0-9.]+e-1[3-9] V' ../stdout || fail "$what: something is left"
run 0 detrend bend.csv --order 0 -o d.csv
says "trend:  16.5 V to 16.5 V"
run 1 detrend bend.csv --breakpoints 5,11 -o e.csv
complains "a breakpoint does not lie inside the signal"
complains "between 0 s and 10 s, samples 1 and 101"
run 1 detrend bend.csv --breakpoints 5,5 -o e.csv
complains "two breakpoints are the same"
run 1 detrend bend.csv --order 60 --breakpoints 5 -o e.csv
complains "a trend with 121 coefficients needs as many samples, not 101"
run 1 detrend bend.csv --order -1 -o e.csv
run 1 detrend bend.csv --order 1.5 -o e.csv
complains "'1.5' is not a whole number"
# Fits with next to equal columns, whose rounding errors are no result.
awk 'BEGIN { print "x_V"; for (s = 1; i++ < 101; s = s * 16807 % 2147483647) print s / 1e9 }' >noise.csv
for trend in "--order 100" "--order 40" "--breakpoint-samples 50.2,50.4,50.6" "--breakpoint-samples 100.2,100.4" \
    "--order 3 --breakpoint-samples 50,51,52,53,54,55"; do
    run 1 detrend noise.csv --rate 10 $trend -o e.csv
    complains "there is no single trend that fits best"
done
run 1 detrend bend.csv --breakpoints 5 --breakpoint-samples 51 -o e.csv
run 5 detrend bend.csv -o none/e.csv
run 0 detrend noise.csv --rate 10 --order 3 --breakpoint-samples 20,40,60,80 -o d.csv
only_left "bend.csv d.csv d.svg noise.csv"

# WAV in, WAV out, and what does not fit into a WAV file.
run 0 wav "$bell" -o b.wav --bits 24 --channels 2
says "132300 samples of channel 1 (FS) at 44100 Hz: 24 bits, 2 channels, 793844 bytes"
[ "$(wc -c <b.wav)" -eq 793844 ] || fail "$what: the size"
run 0 spectrum b.wav --column 2 --amplitude peak -o b.csv
cp ../stdout ../first
run 0 spectrum "$bell" --amplitude peak -o b.csv
[ "$(grep '^strongest line' ../first)" = "$(grep '^strongest line' ../stdout)" ] ||
    fail "$what: another line than that of b.wav"
run 0 wav "$shaker" --column x_g --rate 5000 --format stereo16 --normalize -o s.wav
says "clipped:    0 samples"
[ "$(wc -c <s.wav)" -eq 160056 ] || fail "$what: the size"
run 0 wav "$shaker" --column x_g --rate 5000 --full-scale 10 -o s.wav
complains "samples lie beyond full scale (10 g), the farthest at 10."
complains "they are clipped"
echo older >x.wav
run 1 wav "$shaker" --column x_g --rate 5000 --format stereo16 --full-scale 10 -o x.wav
complains "stereo16 would wrap them"
[ "$(cat x.wav)" = older ] || fail "$what: the older file is lost"
run 1 wav "$shaker" --column x_g --rate 5000 --format stereo16 --bits 24 -o y.wav
complains "stereo16 has 16 bits and 2 channels"
run 1 wav "$shaker" --column x_g --rate 0.3 -o y.wav
complains "a WAV file cannot have a rate of 0.3 Hz"
run 0 wav "$shaker" --column x_g --rate 4999.9 --normalize -o s.wav
complains "the rate of 4999.9 Hz is written as 5000 Hz"
run 1 wav "$shaker" --column x_g --rate 5000 --normalize --channels 60000 -o y.wav
complains "is too large"
run 1 wav "$shaker" --column x_g --rate 5000 --bits 12 -o y.wav
run 1 wav "$shaker" --column x_g --rate 5000 --normalize --full-scale 2 -o y.wav
run 5 wav "$bell" --full-scale 0.01 -o none/y.wav
[ "$(wc -l <../stderr)" -eq 2 ] || fail "$what: it says more than the error"
run 1 wav "$bell" --from 1 --to 1.001 --channels 40000 -o y.wav
complains "a WAV file cannot hold 16 bits, 40000 channels"
run 1 wav "$shaker" --column x_g --rate 4e9 -o y.wav
complains "another --rate plays the signal slower"
only_left "b.csv b.wav s.wav x.wav"
folder=$(printf '\344\270\255 \303\244')
mkdir "$folder"
run 0 wav "$bell" -o "$folder/$folder.wav"
is_there "$folder/$folder.wav"
[ "$(ls -A "$folder" | wc -l)" -eq 1 ] || fail "$what: something is left behind"
only_left "$folder"

# A file name outside ASCII, with blanks.
name=$(printf 'm\303\244\303\237 und \344\270\255.csv')
printf 't_s,x_V\n0,1\n0.1,2\n0.2,1\n0.3,2\n' >"$name"
run 0 spectrum "$name" -o "out_$name"
says "out_$name"
run 2 spectrum "no_$name" -o x.csv
complains "no_$name"
only_left "$name out_$name"

# Usage.
run 1
complains "--help"
complains "a command is missing"
complains "the commands are filter, response, spectrum, peaks, stats, detrend, vibration, thermocouple, wav, info"
run 1 nonsense
complains "there is no command 'nonsense'"
complains "the commands are filter, response, spectrum, peaks, stats, detrend, vibration, thermocouple, wav, info"
run 0 --help
says "[OPTIONS] COMMAND"
run 1 filter "$shaker" --rate 5000 -o f.csv
complains "--response"
run 1 $filter_x --response bandpass --order 2 --cutoff 90 -o f.csv
complains "takes 2 --cutoff frequencies, not 1"
run 1 $filter_x --response bandpass --order 2 --cutoff x -o f.csv
run 1 $filter_x --response lowpass --order 1.5 --cutoff 9 -o f.csv
complains "'1.5' is not a whole number"
run 1 $filter_x --response roundpass --order 2 --cutoff 9 -o f.csv
run 1 spectrum "$shaker" -o s.csv
complains "--rate"
run 1 spectrum "$shaker" --rate -5 -o s.csv
run 1 spectrum "$shaker" --rate 5000 -o ""
complains "the file name is empty"
run 1 spectrum "$shaker" --rate 5000 --power --amplitude peak -o s.csv
run 1 spectrum "$shaker" --rate 5000 --from 100 -o s.csv
complains "from 0 s to 7.9998 s"
run 1 spectrum "$bell" --rate 5000 -o s.csv
only_left ""
printf 'x\n1\n2\n' >same.csv
run 1 spectrum same.csv --rate 1 -o same.csv
complains "different files"
run 1 spectrum same.csv --rate 1 -o new.csv --plot ../out/new.csv
complains "different files"
only_left "same.csv"

# Input.
run 2 spectrum none.csv --rate 1 -o s.csv
complains "none.csv"
run 2 spectrum "$shaker" --rate 1 --column w -o s.csv
complains "'x_g', 'y_g', 'z_g'"
only_left ""
printf 'x\n1\nabc\n' >bad.csv
run 2 spectrum bad.csv --rate 1 -o s.csv
complains "bad.csv:3: column 'x': 'abc' is not a number"
printf 'x\n1\n\033[2J\n' >bad.csv
run 2 spectrum bad.csv --rate 1 -o s.csv
complains "bad.csv:3: column 'x': '?[2J' is not a number"
printf 'x_m/s2\n0.1\n' >short.csv
run 0 spectrum short.csv --rate 1 -o s.csv
says "1 sample of x (m/s2)"
says "strongest line: none, the signal is too short"
awk 'BEGIN { print "x_m/s2"; for (i = 0; i < 100; ++i) print 0.1 }' >constant.csv
run 0 spectrum constant.csv --rate 1 --power -o p.csv --plot p.svg
says "strongest line: none, the signal is constant"
[ "$(head -n 1 p.csv)" = "frequency_Hz,power_(m/s2)^2" ] || fail "$what: the names of the columns"
grep -qF '>power ((m/s2)^2)<' p.svg || fail "$what: the unit of the axis"
# A plot at the ends of the range of numbers.
printf 'x\n1.7e308\n-1.7e308\n1e308\n' >wide.csv
run 0 filter wide.csv --rate 1 --family savitzky-golay --order 0 --side 1 -o w.csv --plot w.svg
run 4 filter wide.csv --rate 1 --response lowpass --order 2 --cutoff 0.2 -o g.csv
complains "the result at 1 s, sample 2, is not finite"
printf 'x\n5e-324\n5e-324\n' >tiny.csv
run 0 filter tiny.csv --rate 1 --response lowpass --order 2 --cutoff 0.2 -o w.csv --plot w.svg
run 0 filter constant.csv --rate 1e-308 --response lowpass --order 2 --cutoff 2e-309 -o w.csv --plot w.svg
only_left "bad.csv constant.csv p.csv p.svg s.csv short.csv tiny.csv w.csv w.svg wide.csv"
head -c 1000 "$bell" >cut.wav
run 2 spectrum cut.wav -o s.csv
complains "announces 264600 bytes, but 956 are there"
only_left "cut.wav"

# The backend's own errors; an older result survives them.
echo older >f.csv
run 4 $filter_x --response lowpass --order 2 --cutoff 3000 -o f.csv --plot f.svg
complains "status -20020"
run 4 $filter_x --response lowpass --order 0 --cutoff 300 -o f.csv
complains "status -20021"
run 4 $filter_x --response bandpass --order 2 --cutoff 110 90 -o f.csv
complains "status -20023"
[ "$(cat f.csv)" = older ] || fail "$what: the older result is lost"
only_left "f.csv"

# Output.
run 5 $filter_x $bandpass -o none/f.csv
complains "none"
run 5 $filter_x $bandpass -o f.csv --plot none/f.svg
only_left ""
mkdir folder
run 5 $filter_x $bandpass -o folder
only_left "folder"
if [ -z "$emulator" ]; then
    # No more than 64 blocks of a file can be written.
    what="filter with a full disk"
    (trap '' XFSZ && ulimit -f 64 && "$program" $filter_x $bandpass -o f.csv) >../stdout 2>../stderr
    [ $? -eq 5 ] || fail "$what: the exit code"
    complains "cannot write f.csv"
    what="wav with a full disk"
    (trap '' XFSZ && ulimit -f 64 && "$program" wav "$bell" -o y.wav) >../stdout 2>../stderr
    [ $? -eq 5 ] || fail "$what: the exit code"
    complains "cannot write y.wav"
    only_left ""
    # Interrupted as soon as there is a file to write to.
    what="response, interrupted"
    "$program" response --rate 1000 --order 1 --response lowpass --cutoff 9 --points 1000000 -o i.csv \
        >../stdout 2>../stderr &
    waits=0
    while [ -z "$(ls -A)" ] && [ $waits -lt 400 ]; do
        sleep 0.05
        waits=$((waits + 1))
    done
    kill -TERM $!
    { wait $!; } 2>../stdout
    [ $? -eq 143 ] || fail "$what: the exit code"
    complains "interrupted, nothing is written"
    only_left ""
fi

[ "$failures" -eq 0 ] || { echo "$failures failures" >&2; exit 1; }
echo "all as expected"
