#!/bin/sh
# What can be said about the sources without compiling them. Prints every line that breaks a rule.
set -u
cd "$(dirname "$0")/.." || exit 1
status=0
files() { git ls-files --cached --others --exclude-standard -- "$@"; }
code() { files '*.c' '*.cpp' '*.h' '*.def' '*.inc' '*.in' '*.rc' '*.manifest'; }
scripts() { files '*.txt' '*.cmake' '*.sh' '*.py' Makefile; }
# But for tables of numbers that a script has written.
ours() { { code; scripts; } | grep -v -e '^tests/data/' -e '^examples/data/'; }
command -v clang-format-19 >/dev/null || { echo "style: clang-format-19 is missing" && exit 1; }

# rule "what it says" COMMAND...: the command prints the offenders.
rule() {
    what=$1
    shift
    found=$("$@")
    [ -z "$found" ] && return
    printf 'style: %s\n' "$what"
    printf '%s\n' "$found" | head -n 20
    status=1
}

outside_the_fence() {
    code | grep -v -e '/os_' -e '^include/QuorDSP_DAQ\.h$' -e '^backend/include/nianlys\.h$' -e '^tests/' |
        xargs grep -nE '_WIN32|windows\.h'
}
backend_and_library_meet() {
    files 'backend/*' | xargs grep -nE '#include.*(QuorDSP_DAQ|frame/|src/)'
    files 'src/*' | xargs grep -nE '#include.*(nianlys|backend/)'
}
# But for the one message that the library prints in Chinese.
not_ascii() {
    { ours; files '*.md'; } | xargs grep -nP '[^\x00-\x7F]' | grep -v '^src/audio/stereo_wav\.cpp:[0-9]*: *std::fputs('
}
blank_at_line_end() { { ours; files '*.md'; } | xargs grep -nE '[[:blank:]]+$'; }
long_lines() { ours | xargs grep -nE '^.{121,}' | grep -v -e 'entries\.def' -e '__asm__\|alternatename' | cut -c1-80; }
unformatted() {
    files '*.c' '*.cpp' '*.h' | xargs clang-format-19 --dry-run 2>&1 | grep 'warning:'
}
long_files() {
    files '*.cpp' '*.h' | grep -vE '^(backend/)?include/|^tests/data/' | xargs wc -l |
        awk '$2 != "total" && $1 > 450'
}

rule "the system shows only behind its fence (os_*)" outside_the_fence
rule "the library and the default backend share nothing but cpu/" backend_and_library_meet
rule "sources are ASCII" not_ascii
rule "no blanks at line ends" blank_at_line_end
rule "lines of at most 120 columns" long_lines
rule "sources are formatted (make format)" unformatted
rule "a file of more than 450 lines holds a second concept" long_files
exit $status
