#!/bin/sh
# What can be said about the sources without compiling them. Prints every line that breaks a rule.
set -u
cd "$(dirname "$0")/.." || exit 1
status=0
files() { git ls-files --cached --others --exclude-standard -- "$@"; }

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
    files '*.cpp' '*.h' '*.def' | grep -v -e '/os_' -e '^include/QuorDSP_DAQ\.h$' -e '^backend/include/nianlys\.h$' \
        -e '^tests/' | xargs grep -nE '_WIN32|windows\.h'
}
backend_and_library_meet() {
    files 'backend/*' | xargs grep -nE '#include.*(QuorDSP_DAQ|frame/|src/)'
    files 'src/*' | xargs grep -nE '#include.*(nianlys|backend/)'
}
not_ascii() { files '*.cpp' '*.h' '*.def' '*.txt' '*.cmake' '*.sh' '*.py' | xargs grep -nP '[^\x00-\x7F]'; }
blank_at_line_end() { files '*.cpp' '*.h' '*.def' '*.txt' '*.cmake' '*.sh' '*.py' '*.md' | xargs grep -nE '[[:blank:]]+$'; }
unformatted() {
    files '*.cpp' '*.h' | grep -v '^include/' | xargs clang-format-19 --dry-run 2>&1 | grep 'warning:'
}
long_files() { files '*.cpp' '*.h' | grep -v '^include/' | xargs wc -l | awk '$2 != "total" && $1 > 450'; }

rule "the system shows only behind its fence (os_*)" outside_the_fence
rule "the library and the default backend share no code" backend_and_library_meet
rule "sources are ASCII" not_ascii
rule "no blanks at line ends" blank_at_line_end
rule "sources are formatted (make format)" unformatted
rule "a file of more than 450 lines holds a second concept" long_files
exit $status
