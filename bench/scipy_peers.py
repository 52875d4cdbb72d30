"""Times the default backend beside SciPy and NumPy on the same jobs: both called from here, in one thread.

Every round times both; the table has the best round of either. The two results are held against each other first: a
peer that does another job is none. The times of the backend contain the call through ctypes, a microsecond or less.

usage: scipy_peers.py BACKEND [part of the names of jobs]
"""
import os

os.environ.update(OMP_NUM_THREADS="1", OPENBLAS_NUM_THREADS="1")
import ctypes
import sys
from ctypes import c_double as real, c_int32 as integer, c_int64 as size, c_void_p as array
from time import thread_time

import numpy as np
import scipy
from scipy import signal

ROUNDS, ROUND_SECONDS = 9, 0.01
LOW_PASS, HAMMING = integer(0), integer(2)
SAMPLES = 100_000
backend = ctypes.CDLL(os.path.abspath(sys.argv[1]))
random = np.random.default_rng(1)


def entry(number, *arguments):
    """AALFunc<number> with its arguments, of which NumPy arrays are passed as addresses."""
    function = getattr(backend, f"AALFunc{number}")
    passed = [array(a.ctypes.data) if isinstance(a, np.ndarray) else a for a in arguments]

    def call():
        if function(*passed):
            raise RuntimeError(f"AALFunc{number} failed")
    call.arguments = arguments  # keeps the arrays
    return call


def noise(n, margin=0):
    x = random.uniform(-1, 1, n)
    x[:margin] = x[n - margin:] = 0
    return x


# Jobs: name, the backend's call, the array that it fills, the peer's call, which returns the same; how near, relative
# to the largest value.
def recursive_filters(order=8, n=SAMPLES):
    # Zeros at both ends: the states that the peers assume before the first sample are zeros then, too.
    x, y = noise(n, margin=2000), np.empty(n)
    b, a = signal.butter(order, 0.4)
    sos = signal.butter(order, 0.4, output="sos")
    count = integer(order + 1)
    direct = entry(92, x, size(n), a, None, count, b, None, count, y)
    one_call = entry(21, x, size(n), real(1), real(0.2), integer(order), y)
    zero_phase = entry(385, x, size(n), a, count, b, count, y)
    yield f"lfilter, order {order}", direct, y, lambda: signal.lfilter(b, a, x), 1e-9
    yield f"sosfilt, order {order} (backend: and design)", one_call, y, lambda: signal.sosfilt(sos, x), 1e-9
    yield f"filtfilt, order {order}", zero_phase, y, lambda: signal.filtfilt(b, a, x, padtype=None), 1e-9
    yield f"sosfiltfilt, order {order}", zero_phase, y, lambda: signal.sosfiltfilt(sos, x, padtype=None), 1e-9


def fir_designs():
    for taps in 101, 1001:
        h = np.empty(taps)
        window = entry(335, LOW_PASS, real(1), real(0.1), real(0), integer(taps), HAMMING, real(0), h)
        yield f"firwin, {taps} taps", window, h, lambda: signal.firwin(taps, 0.1, scale=False, fs=1), 1e-9
    for taps in 101, 1001:
        h, stop = np.empty(taps), 0.2 + 3 / taps
        equiripple = entry(69, real(1), real(0.2), real(stop), integer(taps), h, np.empty(1))
        bands = [0, 0.2, stop, 0.5]
        yield f"remez, {taps} taps", equiripple, h, lambda: signal.remez(taps, bands, [1, 0], fs=1, maxiter=100), 1e-2


def fir_filters():
    h, x, y = noise(64), noise(SAMPLES), np.empty(SAMPLES)
    direct = entry(352, x, size(len(x)), h, None, integer(64), y)
    yield "lfilter, 64 taps", direct, y, lambda: signal.lfilter(h, 1, x), 1e-9
    for n, taps in (SAMPLES, 64), (SAMPLES, 1024), (1_000_000, 1024):
        x, y = noise(n), np.empty(n)
        windowed = entry(481, x, size(n), integer(taps), real(1), real(0.1), HAMMING, real(0), y)
        yield (f"firwin and oaconvolve, {taps} taps, {n}", windowed, y,
               lambda: signal.oaconvolve(x, signal.firwin(taps, 0.1, scale=False, fs=1))[:n], 1e-9)


def smoothers(n=SAMPLES):
    x, y = noise(n), np.empty(n)
    for order, frame in (2, 11), (4, 101):
        fits = entry(356, x, size(n), integer(order), integer(frame // 2), None, y)
        yield f"savgol_filter, order {order}, {frame}", fits, y, lambda: signal.savgol_filter(x, frame, order), 1e-9
    for window in 3, 11, 101:
        median = entry(407, x, size(n), size(window // 2), size(-1), y)
        yield f"medfilt, {window}", median, y, lambda: signal.medfilt(x, window), 0


def transforms():
    for n in 16, 64, 256, 1000, 1009, 1024, 2187, 4096, 10_000, 16_384, 65_536, 100_000, 100_003, 1 << 20:
        x, z, y = noise(n), noise(2 * n).view(complex), np.empty(n, complex)
        of_complex = entry(263, z, size(n), size(0), None, integer(0), y)
        of_real = entry(262, x, size(n), size(0), None, integer(0), y)
        yield f"fft, {n}", of_complex, y, lambda: np.fft.fft(z), 1e-12
        yield f"rfft, {n} (backend: both halves)", of_real, y[:n // 2 + 1], lambda: np.fft.rfft(x), 1e-12


def statistics():
    for n in 1000, 100_000, 1_000_000:
        x, y, extremes, places = noise(n), np.empty(n), np.empty(2), np.empty(2, np.int64)
        max_min = entry(120, x, size(n), extremes, places, extremes[1:], places[1:])
        yield f"sort, {n}", entry(160, x, size(n), integer(0), y), y, lambda: np.sort(x), 0
        yield f"max and min, {n} (backend: and places)", max_min, extremes, lambda: (x.max(), x.min()), 0


def seconds(call, repeats):
    start = thread_time()
    for _ in range(repeats):
        call()
    return (thread_time() - start) / repeats


def check(name, result, expected, tolerance):
    distance = np.abs(result - expected).max() / np.abs(expected).max()
    if not distance <= tolerance:
        raise RuntimeError(f"{name}: the results differ by {distance:.1e}")


def best_times(*calls):
    repeats = [1 + int(ROUND_SECONDS / (seconds(call, 1) + 1e-9)) for call in calls]
    return [min(times) for times in zip(*([seconds(*both) for both in zip(calls, repeats)] for _ in range(ROUNDS)))]


def main(part=""):
    print(f"{SAMPLES} samples unless stated; microseconds; SciPy {scipy.__version__}, NumPy {np.__version__}")
    print(f"{'job':44}{'backend':>12}{'peer':>12}{'peer / backend':>16}")
    for jobs in recursive_filters, fir_designs, fir_filters, smoothers, transforms, statistics:
        for name, ours, result, peer, tolerance in jobs():
            if part in name:
                ours()
                check(name, result, np.asarray(peer()), tolerance)
                backends, peers = best_times(ours, peer)
                print(f"{name:44}{backends * 1e6:12.1f}{peers * 1e6:12.1f}{peers / backends:16.2f}", flush=True)


main(*sys.argv[2:])
