#!/usr/bin/env python3
"""Checks what the commands of the demo have written and said, and puts it on one page, index.html.

Usage: demo_page.py FOLDER, with NAME.txt (the command and its output), NAME.csv and, of a command with --plot, NAME.svg
for each command.
"""
import html
import re
import sys
from pathlib import Path

# Per chapter: heading, what is known beforehand, and its results: name, heading, numbers to find in the output. Each
# number has its words around it, and the range in which it must lie.
SHAKER = ("From the description of the recording: 100.0 Hz with 10.13 g. With the library's g of 9.78 m/s2 such a sine"
          " has a velocity of 157.7 mm/s and a displacement of 0.251 mm.")
FAMILIES = ("Low-pass filters of order 4 with the cut-off at 500 Hz, which means half power for butterworth, the end of"
            " the ripple for chebyshev and elliptic, and the start of the stop band for inverse-chebyshev.")
SHOCK = ("From the description of the recording: knocks with peaks up to 144 g on Y. The samples of the knock at 0.57 s"
         " add up to a change of velocity of 350 mm/s within 1 ms.")
ECG = "From the description of the recording: 74 beats in 60 s, on a baseline that wanders."
BELL = "From the description of the recording: the strongest partials are near 1309 Hz and 3620 Hz."
FURNACE = "From the description of the recording: the furnace was set to 250 degC."


def of_family(family, figure):
    return rf"lowpass 500 Hz, {family} of order 4.*\n(?:.+\n)*?{figure}: (\S+) dB"


CHAPTERS = [
    ("Shaker, 100 Hz", SHAKER, [
        ("shaker_spectrum", "Amplitude spectrum of the acceleration", [
            ("Frequency", r"strongest line: (\S+) Hz", 99.9, 100.1, "Hz"),
            ("Amplitude", r"strongest line: \S+ Hz, (\S+) g peak", 10.0, 10.3, "g peak")]),
        ("shaker_bandpass", "Band-pass, 90 to 110 Hz", []),
        ("filtered_spectrum", "Amplitude spectrum behind the band-pass", [
            ("Frequency", r"strongest line: (\S+) Hz", 99.9, 100.1, "Hz"),
            ("Amplitude", r"strongest line: \S+ Hz, (\S+) g peak", 10.0, 10.3, "g peak")]),
        ("shaker_vibration", "Acceleration, velocity and displacement", [
            ("Acceleration", r"acceleration at \S+ Hz: (\S+) m/s2 peak", 97.8, 100.8, "m/s2 peak"),
            ("Velocity", r"velocity at \S+ Hz: (\S+) mm/s peak", 150, 165, "mm/s peak"),
            ("Displacement", r"displacement at \S+ Hz: (\S+) mm peak", 0.245, 0.257, "mm peak")]),
        ("shaker_plane", "Spectrum of x + j y: a motion along x is two exponentials of half its amplitude", [
            ("Frequency", r"highest bin: +-?(\S+) Hz", 99.9, 100.1, "Hz, in both directions"),
            ("Amplitude", r"highest bin: +\S+ Hz, (\S+) g", 5.0, 5.15, "g")])]),
    ("Five filter families", FAMILIES, [
        ("families_response", "Magnitude, phase and group delay", [
            ("Butterworth, at 500 Hz", of_family("butterworth", "gain at 500 Hz"), -3.0104, -3.0102, "dB"),
            ("Bessel, at 500 Hz", of_family("bessel", "gain at 500 Hz"), -7.58, -7.57, "dB"),
            ("Chebyshev, ripple", of_family("chebyshev", "pass-band ripple"), 0.9999, 1.0001, "dB"),
            ("Inverse Chebyshev, attenuation", of_family("inverse-chebyshev", "stop-band attenuation"), 59.99, 60.01,
             "dB"),
            ("Elliptic, ripple", of_family("elliptic", "pass-band ripple"), 0.9999, 1.0001, "dB"),
            ("Elliptic, attenuation", of_family("elliptic", "stop-band attenuation"), 59.99, 60.01, "dB")]),
        ("families_shaker", "The shaker through each of them", [])]),
    ("Knocks", SHOCK, [
        ("shock_stats", "The signal in numbers", [
            ("Maximum", r"maximum: +(\S+) g", 143.8, 143.9, "g")]),
        ("shock_peaks", "Knocks, by parabolas over 1 ms", [
            ("Knocks", r"Hz: (\d+) peaks", 4, 4, "")]),
        ("shock_vibration", "Acceleration, velocity and displacement of one knock", [])]),
    ("Electrocardiogram", ECG, [
        ("ecg_baseline", "Without the trend of the baseline", [
            ("Mean", r"after:  mean (\S+) mV", -1e-9, 1e-9, "mV")]),
        ("ecg_beats", "Beats", [
            ("Beats", r"Hz: (\d+) peaks", 74, 74, ""),
            ("Rate", r"rate: +(\S+) per minute", 73.8, 73.95, "per minute")])]),
    ("Bell", BELL, [
        ("bell_spectrum", "Amplitude spectrum of the sound behind the stroke", [
            ("Frequency", r"strongest line: (\S+) Hz", 3615, 3625, "Hz")]),
        ("bell_partial", "The strongest partial by itself", [])]),
    ("Furnace, 250 degC", FURNACE, [
        ("furnace_temperature", "Temperature by a thermocouple of type K", [
            ("Minimum", r"minimum: (\S+) degC", 248, 250, "degC"),
            ("Mean", r"mean: +(\S+) degC", 249, 252, "degC"),
            ("Maximum", r"maximum: (\S+) degC", 250, 254, "degC")])]),
]

STYLE = """
:root { color-scheme: light dark; --back: #f5f7f9; --sheet: #ffffff; --text: #1c242c; --muted: #5a6672; --line: #d5dce3;
        --code: #eef2f5; --accent: #1a5fa8; }
@media (prefers-color-scheme: dark) {
  :root { --back: #14191e; --sheet: #1d242b; --text: #e4e9ee; --muted: #9eaab6; --line: #36414c; --code: #262f38;
          --accent: #7db4ec; }
}
* { box-sizing: border-box; }
body { margin: 0; background: var(--back); color: var(--text); line-height: 1.5;
       font-family: 'Segoe UI', 'Helvetica Neue', Arial, 'Liberation Sans', sans-serif; }
main { max-width: 1040px; margin: 0 auto; padding: 24px 20px 64px; }
h1 { font-size: 1.8rem; margin: 0 0 4px; }
h2 { font-size: 1.35rem; margin: 48px 0 4px; padding-top: 16px; border-top: 1px solid var(--line); }
h3 { font-size: 1.05rem; margin: 0 0 10px; }
p { margin: 4px 0 14px; }
.lead, figcaption, dt { color: var(--muted); }
section.plot { background: var(--sheet); border: 1px solid var(--line); border-radius: 8px; padding: 18px;
               margin: 18px 0; }
figure { margin: 12px 0; }
figure svg { display: block; width: 100%; height: auto; border-radius: 4px; }
pre { background: var(--code); border-radius: 6px; padding: 10px 12px; margin: 8px 0; overflow-x: auto;
      font-size: 0.82rem;
      white-space: pre-wrap; overflow-wrap: anywhere; font-family: Consolas, 'DejaVu Sans Mono', monospace; }
pre b { color: var(--accent); }
dl { display: flex; flex-wrap: wrap; gap: 8px 36px; margin: 10px 0; }
dd { margin: 0; font-size: 1.3rem; font-weight: 600; }
dd small { font-size: 0.85rem; font-weight: 400; color: var(--muted); }
a { color: var(--accent); }
@media (prefers-color-scheme: dark) { figure svg { filter: invert(0.89) hue-rotate(180deg); } }
"""


def fail(what):
    sys.exit(f"demo: {what}")


def read(path):
    if not path.is_file() or path.stat().st_size == 0:
        fail(f"{path} was not written")
    return path.read_text(encoding="utf-8")


def number(name, output, wanted):
    label, pattern, low, high, unit = wanted
    found = re.search(pattern, output)
    if not found:
        fail(f"{name} does not tell: {label.lower()}")
    text = found.group(1).rstrip(",")
    if not low <= float(text) <= high:
        fail(f"{name}: {label.lower()} {text} {unit} is not between {low} and {high}")
    return f"<div><dt>{label}</dt><dd>{text} <small>{unit}</small></dd></div>"


def said(output):
    command, _, rest = output.partition("\n")
    return f"<pre><b>{html.escape(command)}</b>\n{html.escape(rest.rstrip())}</pre>"


def figure(folder, name, heading, output):
    rows = len(read(folder / f"{name}.csv").splitlines()) - 1
    caption = f'<a href="{name}.csv">{name}.csv</a>, {rows} row{"s"[:rows != 1]}'
    svg = ""
    if " --plot " in output.partition("\n")[0]:
        svg = read(folder / f"{name}.svg").replace(' role="img"', f' role="img" aria-label="{html.escape(heading)}"', 1)
        caption += f'; <a href="{name}.svg">{name}.svg</a>'
    return f"<figure>\n{svg.strip()}\n<figcaption>{caption}</figcaption>\n</figure>"


def result(folder, name, heading, numbers):
    output = read(folder / f"{name}.txt")
    values = "".join(number(name, output, wanted) for wanted in numbers)
    return f"""<section class="plot">
<h3>{heading}</h3>
{f"<dl>{values}</dl>" if values else ""}
{figure(folder, name, heading, output)}
{said(output)}
</section>
"""


def page(folder):
    parts = [f"<h2>{title}</h2>\n<p class=\"lead\">{known}</p>\n"
             + "".join(result(folder, *row) for row in results) for title, known, results in CHAPTERS]
    return f"""<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>QuorDSP_DAQ: five recordings</title>
<style>{STYLE}</style>
</head>
<body>
<main>
<h1>QuorDSP_DAQ</h1>
<p class="lead">The Windows tool at work on measured data. Every plot comes with the command that drew it.</p>
{said(read(folder / "info.txt"))}
{"".join(parts)}</main>
</body>
</html>
"""


def main():
    folder = Path(sys.argv[1])
    (folder / "index.html").write_text(page(folder), encoding="utf-8")
    print(f"All numbers are as they should be. Open {folder}/index.html with a browser.")


main()
