"""Makes src/numeric/thermocouple_tables.cpp from the published functions in tools/its90 and the departures below.

    tools/make_thermocouple_tables.py                 writes the file
    tools/make_thermocouple_tables.py --check         says whether the file is what would be written
"""
import csv
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
TARGET = ROOT / "src/numeric/thermocouple_tables.cpp"


def rows(name):
    with open(ROOT / "tools/its90" / name, newline="", encoding="ascii") as file:
        return list(csv.DictReader(file))


def read_inverse():
    """(type, lowest temperature) -> digits of d0, d1, ... without the zeros that fill the column."""
    polynomials = {}
    for row in rows("inverse.csv"):
        polynomial = polynomials.setdefault((row["type"], row["t_low_degC"]), [])
        if row["fill"] == "0":
            assert int(row["index"]) == len(polynomial), row
            polynomial.append(row["value"])
    return polynomials


INVERSE = read_inverse()
NONE = ["0.0"]


def published(letter, low):
    return INVERSE[letter, low]


def changed(polynomial, **digits):
    """The polynomial with other digits in some places: d2="0.0786016"."""
    return [digits.get(f"d{i}", value) for i, value in enumerate(polynomial)]


# Departures from the published coefficients. Clients rely on each of them.
E_POSITIVE = published("E", "0")[:8] + [published("E", "0")[9]]  # the published degree 9 at degree 8, which is left out
K_POSITIVE = changed(published("K", "0"), d2="0.0786016")
J_POSITIVE = K_POSITIVE[:7] + [published("J", "0")[7]]  # type K but for the last
K_NEGATIVE = ["0.0"] * 8 + [published("K", "-200")[8]]
N_POSITIVE = published("N", "0")[:3] + ["0.04701838"] + published("N", "0")[5:]  # d3 + d4, then one degree lower

HALF_OPEN, CLOSED = "halfOpen", "closed"

# letter: (note, [(ends, low, high, coefficients)], coefficients elsewhere, limited). Rules are tried in this order.
TYPES = {
    "B": (["Above 1.978 mV and below 0.033 mV alike, with no limit: the polynomial from 700 degC."],
          [(HALF_OPEN, "0.033", "1.978", published("B", "250"))],
          published("B", "700"), False),
    "E": (["From 0 mV the coefficient of degree 8 is the published one of degree 9."],
          [(HALF_OPEN, "-9.8294", "0.0", published("E", "-200")),
           (HALF_OPEN, "0.0", "76.3279", E_POSITIVE)],
          NONE, False),
    "J": (["From 0 to 42.919 mV the coefficients are those of type K up to degree 6."],
          [(HALF_OPEN, "-8.105", "0.0", published("J", "-210")),
           (HALF_OPEN, "0.0", "42.919", J_POSITIVE),
           (CLOSED, "42.919", "69.563", published("J", "760"))],
          NONE, False),
    "K": (["Below 0 mV only the term of degree 8 is carried; from 0 mV the coefficient of degree 2 is 0.0786016.",
           "A voltage of 20.646 mV rounds to a single just below the boundary and takes the lower range; -6.478 mV",
           "and 54.9 mV round to singles just outside."],
          [(HALF_OPEN, "-6.478", "0.0", K_NEGATIVE),
           (HALF_OPEN, "0.0", "20.646", K_POSITIVE),
           (CLOSED, "20.646", "54.9", published("K", "500"))],
          NONE, True),
    "R": (["Outside -0.24 to 13.228 mV a flag takes the place of the voltage: the polynomial from 1064 degC at 1 below",
           "19.739 mV, the one from 1664.5 degC at 0 otherwise. Both are constants, the former 65.47417449951172; the",
           "published coefficients in single precision would give 65.47418975830078."],
          [(HALF_OPEN, "-0.24", "1.923", published("R", "-50")),
           (HALF_OPEN, "1.923", "13.228", published("R", "250")),
           (HALF_OPEN, "-kInfinity", "19.739", ["65.47417449951172"])],
          published("R", "1664.5")[:1], False),
    "S": (["Above 17.536 mV and below -0.245 mV alike, with no limit: the polynomial from 1664.5 degC."],
          [(HALF_OPEN, "-0.245", "1.874", published("S", "-50")),
           (HALF_OPEN, "1.874", "11.95", published("S", "250")),
           (HALF_OPEN, "11.95", "17.536", published("S", "1064"))],
          published("S", "1664.5"), False),
    "T": ([],
          [(HALF_OPEN, "-6.268", "0.0", published("T", "-200")),
           (CLOSED, "0.0", "20.882", published("T", "0"))],
          NONE, False),
    "N": (["From 0 to 20.613 mV the coefficients of degree 3 and 4 are added up, and the others sit one degree lower."],
          [(HALF_OPEN, "-4.365", "0.0", published("N", "-200")),
           (HALF_OPEN, "0.0", "20.613", N_POSITIVE),
           (CLOSED, "20.613", "47.533", published("N", "600"))],
          NONE, False),
}

HEAD = """\
// Thermocouple polynomials, written by tools/make_thermocouple_tables.py; the published functions and their source
// stand in tools/its90. Each coefficient has its published digits and is held as the nearest single.
// clang-format off
// NOLINTBEGIN(modernize-use-std-numbers): a coefficient may be near a known constant
#include "numeric/thermocouple_tables.h"

namespace quordsp {
"""


def polynomial(digits):
    return "{%d, {%s}}" % (len(digits) - 1, ", ".join(f"{value}f" for value in digits))


def wrapped(text, indent):
    """Lines of at most 120 columns, broken after commas."""
    lines = [" " * indent]
    for part in text.replace(", ", ",\n").split("\n"):
        if len(lines[-1]) + 1 + len(part) > 119:
            lines[-1] = lines[-1].rstrip()
            lines.append(" " * (indent + 4))
        lines[-1] += part + (" " if part.endswith(",") else "")
    return [line.rstrip() for line in lines]


def function(letter):
    note, rules, elsewhere, limited = TYPES[letter]
    yield f"    // {letter}"
    yield from (f"    // {line}" for line in note)
    yield "    {"
    yield "        .rules = {"
    for ends, low, high, digits in rules:
        yield from wrapped(f"{{{ends}({low}, {high}), {polynomial(digits)}}},", 12)
    yield "        },"
    yield from wrapped(f".elsewhere = {polynomial(elsewhere)},", 8)
    if limited:
        yield "        .limited = true,"
    yield "    },"


def reference():
    parts = {}
    for row in rows("reference_k.csv"):
        parts.setdefault((row["t_low_degC"], row["name"][0]), []).append(row["value"])
    a0, a1, a2 = parts["0.000", "a"]
    yield "const ReferenceFunction kTypeK = {"
    yield from wrapped(f".negative = {polynomial(parts['-270.000', 'c'])},", 4)
    yield from wrapped(f".positive = {polynomial(parts['0.000', 'c'])},", 4)
    yield f"    .a0 = {a0}f,"
    yield f"    .a1 = {a1}f,"
    yield f"    .a2 = {a2},"
    yield "};"


def text():
    lines = [HEAD]
    lines.append("const InverseFunction kInverseFunctions[kThermocoupleTypes] = {")
    for letter in TYPES:
        lines += function(letter)
    lines += ["};", "", *reference(), "", "} // namespace quordsp", "// NOLINTEND(modernize-use-std-numbers)", ""]
    return "\n".join(lines)


if sys.argv[1:] == ["--check"]:
    if TARGET.read_text(encoding="ascii") != text():
        sys.exit(f"{TARGET} is not what {sys.argv[0]} writes")
else:
    TARGET.write_text(text(), encoding="ascii", newline="\n")
