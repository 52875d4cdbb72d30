"""Makes thermocouple.csv: thermocouple voltages and temperatures as NumPy's singles give them, one operation after the
other, from the published coefficients in tools/its90. Columns: type, unit, cold junction (degC), voltage (mV),
temperature; exact hexadecimal doubles. Needs NumPy.
"""
import csv
import math
import pathlib
import sys

import numpy as np

ITS90 = pathlib.Path(__file__).resolve().parents[3] / "tools/its90"
single = np.float32


def read(name):
    with open(ITS90 / name, newline="", encoding="ascii") as file:
        return list(csv.DictReader(file))


def inverse(letter, low):
    return [row["value"] for row in read("inverse.csv") if row["type"] == letter and row["t_low_degC"] == str(low)]


def horner(coefficients, x):
    y = single(coefficients[-1])
    for c in reversed(coefficients[:-1]):
        y = single(single(y * x) + single(c))
    return y


REFERENCE = {side: [r["value"] for r in read("reference_k.csv") if r["name"][0] == "c" and r["t_low_degC"] == side]
             for side in ("-270.000", "0.000")}
A0, A1 = (float(single(r["value"])) for r in read("reference_k.csv") if r["name"] in ("a0", "a1"))


def cold_junction_voltage(temperature):
    t = single(temperature)
    if t > 1370 or t < -270:
        return 0.0
    p = horner(REFERENCE["-270.000" if t < 0 else "0.000"], t)
    d = float(t) - 126.9686
    return float(single(math.exp(d * A1 * d) * A0 + float(p)))


def type_n_middle():
    d = inverse("N", 0)
    return d[:3] + ["0.04701838"] + d[5:8] + ["0"]


def type_j_middle():
    return inverse("K", 0)[:2] + ["0.0786016"] + inverse("K", 0)[3:7] + [inverse("J", 0)[7]]


def type_k_middle():
    return inverse("K", 0)[:2] + ["0.0786016"] + inverse("K", 0)[3:]


# Each polynomial holds from its end up to the next one's; an end in brackets belongs to the polynomial before.
NOTHING = ["0"]
LOWEST = -1e300
TYPES = [
    [(LOWEST, inverse("B", 700)), (0.033, inverse("B", 250)), (1.978, inverse("B", 700))],
    [(LOWEST, NOTHING), (-9.8294, inverse("E", -200)), (0, inverse("E", 0)[:8] + [inverse("E", 0)[9]]),
     (76.3279, NOTHING)],
    [(LOWEST, NOTHING), (-8.105, inverse("J", -210)), (0, type_j_middle()), (42.919, inverse("J", 760)),
     ([69.563], NOTHING)],
    [(-6.478, ["0"] * 8 + [inverse("K", -200)[8]]), (0, type_k_middle()), (20.646, inverse("K", 500))],
    [(LOWEST, ["65.47417449951172"]), (-0.24, inverse("R", -50)), (1.923, inverse("R", 250)),
     (13.228, ["65.47417449951172"]), (19.739, ["34061.77734375"])],
    [(LOWEST, inverse("S", 1664.5)), (-0.245, inverse("S", -50)), (1.874, inverse("S", 250)),
     (11.95, inverse("S", 1064)), (17.536, inverse("S", 1664.5))],
    [(LOWEST, NOTHING), (-6.268, inverse("T", -200)), (0, inverse("T", 0)), ([20.882], NOTHING)],
    [(LOWEST, NOTHING), (-4.365, inverse("N", -200)), (0, type_n_middle()), (20.613, inverse("N", 600)),
     ([47.533], NOTHING)],
]
RANGES = [(-1, 14), (-10, 77), (-8.5, 70), (-6.47, 54.89), (-0.5, 21), (-0.3, 18.7), (-6.3, 21), (-4.4, 48)]


def reached(end, e):
    return e > end[0] if isinstance(end, list) else e >= end


def temperature(kind, unit, cold_junction, emf):
    e = single(cold_junction_voltage(cold_junction) + emf)
    t = float(horner([c for end, c in TYPES[kind] if reached(end, float(e))][-1], e))
    scaled = {1: t * 1.8 + 32.0, 2: t + 273.15, 3: (t + 273.15) * 1.8}.get(unit, t)
    return float(single(scaled))


def ends_of(kind):
    return [end[0] if isinstance(end, list) else end for end, _ in TYPES[kind] if end != LOWEST]


def voltages(kind):
    low, high = RANGES[kind]
    yield from (low + (high - low) * i / 40 for i in range(41))
    for end in ends_of(kind):
        yield from (float(np.nextafter(single(end), single(d))) for d in (-1e30, 1e30))
        yield float(single(end))


def accepted(kind, e):
    return kind != 3 or -6.478 <= float(single(e)) <= 54.9


writer = csv.writer(sys.stdout, lineterminator="\n")
for kind in range(8):
    for unit in (0, 1, 2, 3):
        for cold_junction in (1500.0, 25.0, -20.0):
            for i, emf in enumerate(voltages(kind)):
                if i % 4 in (unit, 3) and accepted(kind, cold_junction_voltage(cold_junction) + emf):
                    result = temperature(kind, unit, cold_junction, emf)
                    writer.writerow([kind, unit, cold_junction, float(emf).hex(), result.hex()])
