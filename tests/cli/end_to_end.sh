#!/bin/sh
# Runs the program as a user does: exit codes, messages, what is written and what is not left behind.
# Usage: end_to_end.sh PROGRAM LIBRARY BACKEND-FOLDER SOURCE-FOLDER [EMULATOR]
set -u
# The emulator takes arguments and file names in the encoding of the locale.
LC_ALL=C.UTF-8
export LC_ALL
program=$1 library=$2 backend=$3 source=$4 emulator=${5:-}
shaker=$source/examples/data/vibration_shaker_5khz.csv
bell=$source/tests/data/cli/audio_bell_44k1.wav

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
for command in filter spectrum info; do
    run 0 $command --help
    says "Exit codes"
done

# The backend, when it is there and when it is not.
run 0 info
backend_is_in "$(basename "$backend")"
says "filters  4 of 4"
says "spectra  3 of 3"
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
only_left ""
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
complains "the commands are filter, spectrum, info"
run 1 nonsense
complains "there is no command 'nonsense'"
complains "the commands are filter, spectrum, info"
run 0 --help
says "[OPTIONS] COMMAND"
run 1 filter "$shaker" --rate 5000 -o f.csv
complains "--response"
run 1 $filter_x --response bandpass --order 2 --cutoff 90 -o f.csv
complains "takes 2 --cutoff frequencies, not 1"
run 1 $filter_x --response bandpass --order 2 --cutoff x -o f.csv
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
says "strongest line: none, the signal is too short"
awk 'BEGIN { print "x_m/s2"; for (i = 0; i < 100; ++i) print 0.1 }' >constant.csv
run 0 spectrum constant.csv --rate 1 --power -o p.csv --plot p.svg
says "strongest line: none, the signal is constant"
[ "$(head -n 1 p.csv)" = "frequency_Hz,power_(m/s2)^2" ] || fail "$what: the names of the columns"
grep -qF '>power ((m/s2)^2)<' p.svg || fail "$what: the unit of the axis"
# A plot at the ends of the range of numbers.
printf 'x\n1.7e308\n-1.7e308\n1e308\n' >wide.csv
run 0 filter wide.csv --rate 1 --response lowpass --order 2 --cutoff 0.2 -o w.csv --plot w.svg
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
    only_left ""
fi

[ "$failures" -eq 0 ] || { echo "$failures failures" >&2; exit 1; }
echo "all as expected"
