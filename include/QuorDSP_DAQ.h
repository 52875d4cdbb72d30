/*
 * Public interface of QuorDSP_DAQ, the signal-processing library of a data-acquisition system: the status type, the
 * filter records and all 132 exports. It needs <stdint.h> only and compiles alone as C11 and as C++17.
 *
 * The library designs and applies IIR and FIR filters, transforms, sorts and searches blocks of real or complex
 * samples; it removes trends, integrates vibration, converts thermocouple voltages and writes WAV files. Exports
 * with an @entry line are carried out by a backend module that is loaded on first use; the others are computed in
 * this library alone.
 *
 *
 * HOW TO READ THE DESCRIPTIONS
 *
 * Each parameter line gives the shape of an array in brackets ([n] is exactly n elements), the unit, the accepted
 * range and, where one is fixed, the status for a breach. "Like X, but" takes over everything that is not said
 * anew. What a description says of values and statuses of an @entry export holds for the default backend, the one
 * that comes with this library. Another module with the same entries may be in its place: its results and statuses
 * come back unchanged.
 *
 *
 * CALLING
 *
 * There is nothing to initialise, to open or to shut down. All arrays belong to the caller, who gives every output
 * array its full length; lengths cannot be checked. The library keeps no pointer after a call. Nothing is thrown
 * across the interface, and nothing is printed save by the two WAV exports. Calling convention: the platform's own
 * for 64-bit C.
 *
 * From other languages: the status and every "int" are 32-bit, int64_t is 64-bit, a handle is a pointer. All names
 * are undecorated but two, which C# and Python import under their full spelling:
 *     Windows  ?QuorDSP_Parks_McClellanCoef@@YA?AW4AnalysisLibErrType@@HNQEAN000HH0PEAN@Z
 *              ?QuorDSP_Vibration_Acceleration_Euler@@YA?AW4AnalysisLibErrType@@QEANHNNNNNNNNN0000H@Z
 *     others   _Z27QuorDSP_Parks_McClellanCoefidPdS_S_S_iiS_S_
 *              _Z36QuorDSP_Vibration_Acceleration_EulerPdidddddddddS_S_S_S_i
 * C and C++ programs that include this file call both by their plain names.
 *
 *
 * COUNTS AND ARRAYS
 *
 * Counts are 32-bit; only QuorDSP_MaxMin1D and the results of QuorDSP_PeakDetector are 64-bit. Numbers of samples,
 * rows, columns, ranks and widths reach the backend sign-extended to 64 bits, so a negative one stays negative
 * there and is answered with -20003 where it counts samples.
 *
 * Two-dimensional arrays are row-major and contiguous. "In place" means that the output array may be the input
 * array; arrays must not overlap in any other way. NaN and infinity among the samples flow through as IEEE
 * arithmetic has them; a NaN among scalar parameters is out of range unless it is given a meaning.
 *
 * A null array is answered with -20008 where the backend reads or writes it directly. Exports that touch the array
 * themselves, namely all with split complex arrays and those without @entry, need valid arrays unless they say
 * otherwise.
 *
 *
 * STATUS
 *
 * 0 is success. Negative values are errors; so are the positive values 20032, 20033 and 2147483647 of this library,
 * except that QuorDSP_Parks_McClellanCoef returns 20032 in every case. An export with @entry returns
 *     -5093 when the backend could not be found or loaded,
 *     -5094 when it lacks the entry (either is tried anew at the next call),
 *     and otherwise the backend's status as it stands.
 * After -5093, -5094 and every negative status of the default backend the output arrays are untouched; only split
 * complex outputs are not, see COMPLEX SIGNALS. Of several bad parameters the default backend reports the first in
 * this order: number of samples, null array, order or taps, frequencies, ripple, attenuation, attenuation against
 * ripple, selector codes, lengths of coefficient arrays. -20001 (out of memory) can come from any of these exports.
 *
 *
 * THREADS
 *
 * Exports may be called from any thread, at the same time, on different output arrays. A filter record, an FFT
 * table that is being destroyed, a state array and the block sequence of QuorDSP_PeakDetector belong to one thread
 * at a time. QuorDSP_Vibration_Acceleration and QuorDSP_Acceleration are the only two exports that are not
 * reentrant: each keeps one process-wide stream state.
 *
 *
 * THE BACKEND MODULE
 *
 * On Windows nianlys.dll is looked for, in this order,
 *     1. by its bare name, in the system's own search order;
 *     2. in the folder of the first of cvirte.dll, instrsup.dll and cvi_lvrt.dll that the process has loaded;
 *     3. in the sub-folder Analysis of the shared folder that the registry value NISHAREDDIR64 names.
 * On other systems libnianlys.so is looked for
 *     1. by its bare name, in the dynamic loader's own order;
 *     2. in the folder of this library.
 * The first module found stays loaded for the life of the process; a failed search is repeated at the next call.
 * FFT tables, FIR filter records and the arrays of QuorDSP_PeakDetector belong to the backend, which also frees
 * them.
 *
 *
 * FILTER TYPES
 *
 *     0 low-pass    1 high-pass    2 band-pass    3 band-stop
 *     4 wideband low-pass    5 wideband high-pass (narrow-band filters only)
 * Any other value: -20061. Types 0 and 1 take their cut-off from fl and ignore fh.
 *
 *
 * CUT-OFF FREQUENCIES
 *
 * Frequencies are in Hz when fs is; only their ratio to fs counts. One cut-off: 0 < fc < fs/2, else -20020. Two
 * cut-offs: 0 < fl < fh < fs/2, else -20023. An fs that is not above 0 is reported by the same code. At the cut-off
 * an IIR filter has
 *     Butterworth        half power, -3.01 dB
 *     Bessel             the gain of the phase normalisation, see below
 *     Chebyshev          the edge of the pass band: the attenuation equals the ripple and grows beyond
 *     inverse Chebyshev  the edge of the stop band: the attenuation is first reached here
 *     elliptic           the edge of the pass band; the stop band begins where the order permits
 * at both cut-offs of a band-pass or band-stop alike. Windowed and Kaiser FIR filters have about half amplitude,
 * -6 dB, there when taps suffice. Equiripple designs take band edges instead of cut-offs.
 *
 * Bessel phase normalisation: the prototype is theta(0)/theta(s*S) with the reverse Bessel polynomial theta of
 * degree n and S = theta(0)^(1/n), so it has the high-frequency asymptote of the Butterworth filter of equal order.
 * Its attenuation at the cut-off grows with the order: 3.01 dB (n = 1), 4.77 dB (2), 6.24 dB (3), 7.58 dB (4),
 * 12.59 dB (8). The default backend designs Bessel filters up to order 300, which takes a third of a second; orders
 * above, and ripples or attenuations of any family above 3080 dB, are answered by -20031.
 *
 * IIR filters are designed as analogue prototypes with pre-warped cut-offs and mapped by the bilinear transform.
 * "order" is that of the low-pass prototype: a band-pass or band-stop has 2*order poles. The greatest gain in the
 * pass band is 1; at 0 Hz a Chebyshev or elliptic low-pass of even order is at the bottom of its ripple.
 *
 *
 * WINDOWS
 *
 * Symmetric windows of T taps, k = 0..T-1, u = 2*pi*k/(T-1), M = (T-1)/2, v = |k-M|/M; for T = 1 the window is 1.
 * The two tables number the windows differently. Another code: -20061.
 *
 * Table W1, parameter "windType" of QuorDSP_Wind_LPF, _HPF, _BPF and _BSF:
 *     1 rectangle    2 triangle    3 Hanning    4 Hamming    5 Blackman      (formulas in table W2)
 *
 * Table W2, parameter "window" of QuorDSP_WindFIR_Filter and of all windowed filtering exports. windowParameter is
 * read by the last three only, which want it finite, beta >= 0, s > 0, sigma > 0, else -20061; NaN selects the default:
 *      0  rectangle            1
 *      1  Hanning              0.5 - 0.5 cos u
 *      2  Hamming              0.54 - 0.46 cos u
 *      3  Blackman-Harris      0.42323 - 0.49755 cos u + 0.07922 cos 2u
 *      4  exact Blackman       (7938 - 9240 cos u + 1430 cos 2u) / 18608
 *      5  Blackman             0.42 - 0.5 cos u + 0.08 cos 2u
 *      6  flat top             0.21557895 - 0.41663158 cos u + 0.277263158 cos 2u - 0.083578947 cos 3u
 *                              + 0.006947368 cos 4u
 *      7  4-term B.-Harris     0.35875 - 0.48829 cos u + 0.14128 cos 2u - 0.01168 cos 3u
 *      8  7-term B.-Harris     0.27105140069342415 - 0.43329793923448606 cos u + 0.21812299954311062 cos 2u
 *                              - 0.065925446388030898 cos 3u + 0.010811742098372268 cos 4u
 *                              - 7.7658482522509342e-4 cos 5u + 1.3887217350903198e-5 cos 6u
 *      9  low side-lobe        0.323215218 - 0.471492057 cos u + 0.17553428 cos 2u - 0.028497078 cos 3u
 *                              + 0.001261367 cos 4u
 *     11  Blackman-Nuttall     0.3635819 - 0.4891775 cos u + 0.1365995 cos 2u - 0.0106411 cos 3u
 *     30  triangle             1 - v
 *     31  Bartlett-Hanning     0.62 - 0.48 |k/(T-1) - 0.5| + 0.38 cos(2 pi (k/(T-1) - 0.5))
 *     32  Bohman               (1 - v) cos(pi v) + sin(pi v)/pi
 *     33  Parzen               1 - 6 v^2 + 6 v^3 for v <= 1/2, 2 (1 - v)^3 above
 *     34  Welch                1 - v^2
 *     60  Kaiser               I0(beta sqrt(1 - v^2)) / I0(beta); windowParameter = beta, default 0
 *     61  Dolph-Chebyshev      r + 2 sum over m = 1..floor((T-1)/2) of C(z cos(m pi/T)) cos(2 m pi (k-M)/T), over its
 *                              greatest value; C is the Chebyshev polynomial of degree T-1, r = 10^(s/20) and
 *                              z = cosh(acosh(r)/(T-1)); windowParameter = s, main lobe over side lobes, dB, default 60
 *     62  Gaussian             exp(-(k-M)^2 / (2 (sigma T)^2)); windowParameter = sigma, default 0.2
 *
 *
 * SPECTRA
 *
 * Forward transforms carry no factor, Y[k] = sum over i of x[i] exp(-j 2 pi k i / n); inverse ones carry 1/n, 2-D
 * ones 1/(rows*columns). Any size of 1 or more is accepted; powers of two are fastest. Bins run from 0 Hz upwards,
 * the Nyquist bin n/2 of an even n next, then the negative frequencies. "Shifted" puts 0 Hz at index floor(n/2) (of
 * each axis): the shifted element i is Y[(i + ceil(n/2)) mod n].
 *
 * Power and amplitude, for a signal in V; Y is the transform of the n samples (it is formed before it is scaled, so
 * that sums beyond 1.8e308 become infinite):
 *     QuorDSP_Spectrum, QuorDSP_CxSpectrum   two-sided power, V^2: |Y[k]|^2/n^2; the sum is the mean square
 *     QuorDSP_AutoPowerSpectrum              one-sided power, V^2 rms: a sine of peak A on a bin reads A^2/2
 *     QuorDSP_AmpPhaseSpectrum               one-sided amplitude, V rms: the same sine reads A/sqrt(2); the phase
 *                                            is that of a cosine, in radians
 *
 *
 * COMPLEX SIGNALS
 *
 * A complex signal is two arrays, real and imaginary parts, on both sides of a call. (The 2-D complex transforms
 * are the exception: they take interleaved pairs.) Filters are real: real and imaginary part are filtered alike,
 * each from zero state unless states are passed. All arrays of a signal have n elements, and so have the state
 * arrays, however many coefficients there are: states are packed to the length of the signal, never written, and
 * counted as 0 where they are shorter than the filter. An output array may be either of the input arrays; outRe and
 * outIm must differ. Every such export packs the signal into scratch memory, makes one backend call and unpacks n
 * elements whatever the status, so for n > 0 the outputs are overwritten also when the call failed:
 *     - by the one-call IIR filters QuorDSP_Cx{Bw,Bssl,Ch,InvCh,Elp}_{LPF,HPF,BPF,BSF}, except QuorDSP_CxCh_BSF, with a
 *       copy of the input (after -5093, -5094 and the statuses of the default backend);
 *     - by all others that have outRe and outIm, with unspecified values.
 * For n = 0 and n < 0 nothing is read or written; the backend is given the count (for n < 0 with null blocks) and
 * its status is returned; where n = 0 still needs memory, for states or bins, and there is none, that is -5093. Scratch
 * memory is one block of 16 bytes a sample for the one-call IIR filters but QuorDSP_CxCh_BSF, for QuorDSP_FFTEx,
 * QuorDSP_InvFFTEx and QuorDSP_CxSpectrum; two blocks for the others, and another for each state; one that the backend
 * uses beyond n samples, for states or bins, is longer. When such memory cannot be had, -5093 is returned without a
 * backend call and the outputs are untouched.
 *
 *
 * SOURCES
 *
 *     O&S                         Discrete-Time Signal Processing, Oppenheim & Schafer, 3rd ed., 2010
 *     Harris                      On the use of windows for harmonic analysis with the DFT, Proc. IEEE 66, 1978
 *     Parks & McClellan           Chebyshev approximation for nonrecursive digital filters with linear phase,
 *                                 IEEE Trans. Circuit Theory 19, 1972
 *     Neuvo, Cheng-Yu & Mitra     Interpolated finite impulse response filters, IEEE Trans. ASSP 32, 1984
 *     Savitzky & Golay            Smoothing and differentiation of data by simplified least squares procedures,
 *                                 Anal. Chem. 36, 1964
 *     Cooley & Tukey              An algorithm for the machine calculation of complex Fourier series,
 *                                 Math. Comp. 19, 1965
 *     Golub & Van Loan            Matrix Computations, 4th ed., 2013
 *     Davis & Rabinowitz          Methods of Numerical Integration, 2nd ed., 1984
 *     Monograph 175               Temperature-electromotive force reference functions and tables based on the
 *                                 ITS-90, Burns et al., NIST, 1993
 */
#ifndef QUORDSP_DAQ_H
#define QUORDSP_DAQ_H

#include <stdint.h>

/*
 * QUORDSP_API heads every export. QUORDSP_BUILDING_LIBRARY is defined by the library's own build and by nothing
 * else. A Windows program that loads the library at run time (LoadLibrary, GetProcAddress) defines
 * QUORDSP_NO_IMPORT before it includes this file: the declarations then give types, for instance for decltype or
 * __typeof, and import nothing.
 */
#if defined(_WIN32)
#if defined(QUORDSP_BUILDING_LIBRARY)
#define QUORDSP_API __declspec(dllexport) __declspec(nothrow)
#elif defined(QUORDSP_NO_IMPORT)
#define QUORDSP_API __declspec(nothrow)
#else
#define QUORDSP_API __declspec(dllimport) __declspec(nothrow)
#endif
#else
#define QUORDSP_API __attribute__((visibility("default"), nothrow))
#endif

/*
 * Status of nearly every export. An application that has a 32-bit enumeration AnalysisLibErrType from another
 * header defines QUORDSP_NO_ANALYSIS_LIB_ERR_TYPE before it includes this file and uses the numbers. The value
 * 2147483647 sees to it that the type holds every 32-bit status that a backend may return, also those without a
 * name here.
 */
#ifndef QUORDSP_NO_ANALYSIS_LIB_ERR_TYPE
typedef enum AnalysisLibErrType {
    QUORDSP_SUCCESS = 0,

    /* of this library */
    QUORDSP_BACKEND_NOT_FOUND = -5093,              /* no backend module, or no scratch memory for a complex export */
    QUORDSP_ENTRY_NOT_FOUND = -5094,                /* the backend module lacks the entry */
    QUORDSP_THERMOCOUPLE_OUT_OF_RANGE = -20322,     /* type K voltage out of range */
    QUORDSP_BAD_ARGUMENT = 20032,                   /* stateful vibration exports; always QuorDSP_Parks_McClellanCoef */
    QUORDSP_FILE_NOT_CREATED = 20033,               /* QuorDSP_WriteWAV */
    QUORDSP_INVALID_THERMOCOUPLE_TYPE = 2147483647, /* thermocouple type outside 0..7 */

    /* of the default backend */
    QUORDSP_ERR_OUT_OF_MEMORY = -20001,
    QUORDSP_ERR_COUNT_NOT_POSITIVE = -20003,       /* number of samples, or taps of a window design, below 1 */
    QUORDSP_ERR_COUNT_NEGATIVE = -20004,           /* sidePoints below 0 */
    QUORDSP_ERR_TOO_FEW_TAPS = -20007,             /* fewer than 3 taps for an equiripple design */
    QUORDSP_ERR_ARRAY_SIZE = -20008,               /* null array, or array length that does not fit */
    QUORDSP_ERR_INTERVAL_NOT_POSITIVE = -20016,    /* dt not above 0 */
    QUORDSP_ERR_CUTOFF = -20020,                   /* cut-off outside 0..fs/2, or fs not above 0 */
    QUORDSP_ERR_ORDER_NOT_POSITIVE = -20021,       /* IIR order below 1 */
    QUORDSP_ERR_BAND = -20023,                     /* band edges outside 0..fs/2 or not ascending */
    QUORDSP_ERR_RIPPLE_NOT_POSITIVE = -20024,      /* ripple not above 0 */
    QUORDSP_ERR_ATTENUATION_NOT_POSITIVE = -20025, /* attenuation not above 0 */
    QUORDSP_ERR_ATTENUATION_BELOW_RIPPLE = -20028, /* elliptic: attenuation not above the ripple */
    QUORDSP_ERR_DESIGN_FAILED = -20031,            /* no filter can be designed with these values */
    QUORDSP_ERR_RANK = -20032,                     /* ranks of the median filter */
    QUORDSP_ERR_EVEN_SIZE = -20033,                /* the number of taps must be odd */
    QUORDSP_ERR_ODD_SIZE = -20034,                 /* the number of taps must be even */
    QUORDSP_ERR_TOO_FEW_POINTS = -20037,           /* Savitzky-Golay frame not longer than the order */
    QUORDSP_ERR_SINGULAR = -20041,                 /* system of equations is singular */
    QUORDSP_ERR_DIVISION_BY_ZERO = -20060,         /* coefsA[0] is 0 */
    QUORDSP_ERR_INVALID_SELECTION = -20061,        /* unknown filter, window or design type */
    QUORDSP_ERR_STATE_NOT_INITIALIZED = -20064,    /* peak detector changed in the middle of a sequence */
    QUORDSP_ERR_IIR_FILTER = -20066,               /* IIR filter record null or inconsistent */
    QUORDSP_ERR_ORDER_NEGATIVE = -20103            /* polynomial order below 0 */
} AnalysisLibErrType;
#endif

/**
 * IIR cascade filter, 56 bytes: the design and the running state of one filter. The backend makes, resets and frees
 * it; clients get it from AllocIIRFilterPtr, see below, and may read it.
 *
 * Types 0 and 1 are a cascade of second-order sections, types 2 and 3 of fourth-order ones; there are
 * s = floor((order+1)/2) sections. Section after section the arrays hold
 *     reverse  a1, a2 (a1..a4); the leading 1 is not stored     reverseCount = 2*s (4*s)
 *     forward  b0, b1, b2 (b0..b4)                              forwardCount = 3*s (5*s)
 *     state    newest delay first                               stateCount   = 2*s (4*s)
 * An odd order leaves one section of half the order, padded with zeros. Each section computes, from its input x,
 *     w[i] = x[i] - a1 w[i-1] - a2 w[i-2] ...     y[i] = b0 w[i] + b1 w[i-1] + b2 w[i-2] ...
 */
typedef struct QuorDSP_IIRFilter {
    int type;         /* filter type 0..3 */
    int order;        /* order of the low-pass prototype */
    int reset;        /* nonzero: the next filtering starts from zero state and sets this to 0 */
    int reverseCount; /* number of reverse (denominator) coefficients */
    double* reverse;
    int forwardCount; /* number of forward (numerator) coefficients */
    double* forward;
    int stateCount; /* number of state values */
    double* state;
} QuorDSP_IIRFilter;

/**
 * Narrow-band (interpolated) FIR filter, 40 bytes: a model filter whose taps are spread "interpolation" samples
 * apart, followed by an image suppressor. The backend allocates and frees record and arrays, see
 * QuorDSP_AllocFIRFilterPtr.
 *     u[i] = sum over m of model[m] x[i - m*interpolation]     y[i] = sum over q of image[q] u[i-q]
 * Types 4 and 5 hold the complementary filter: their output is x[i-c] - y[i], with the delay
 * c = ((modelCount-1)*interpolation + imageCount - 1)/2.
 */
typedef struct QuorDSP_FIRFilter {
    int type;          /* filter type 0..5 */
    int interpolation; /* 1 or more */
    int64_t modelCount;
    double* model; /* [modelCount] */
    int64_t imageCount;
    double* image; /* [imageCount] */
} QuorDSP_FIRFilter;

/** Table of factors for transforms of one size; see QuorDSP_CreateFFTTable. */
typedef struct QuorDSP_FFTTable QuorDSP_FFTTable;

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Backend functions that this library does not export. The default backend module exports them under their plain
 * names AllocIIRFilterPtr, ResetIIRFilter, FreeIIRFilterPtr, CascadeToDirectCoef and FreeAnalysisMem; clients fetch
 * them from the module that is already loaded, after a first call that needs the backend. On Windows:
 *     QuorDSP_AllocIIRFilterPtrFunction alloc =
 *         (QuorDSP_AllocIIRFilterPtrFunction)GetProcAddress(GetModuleHandleA("nianlys.dll"), "AllocIIRFilterPtr");
 */

/** AllocIIRFilterPtr: a filter record for type 0..3 and order 1 to 2^20, without a design yet; null on failure. */
typedef QuorDSP_IIRFilter* (*QuorDSP_AllocIIRFilterPtrFunction)(int type, int order);

/** ResetIIRFilter: the next filtering with this record starts from zero state. */
typedef AnalysisLibErrType (*QuorDSP_ResetIIRFilterFunction)(QuorDSP_IIRFilter* filter);

/** FreeIIRFilterPtr: frees the record and its arrays; null is accepted. */
typedef AnalysisLibErrType (*QuorDSP_FreeIIRFilterPtrFunction)(QuorDSP_IIRFilter* filter);

/** CascadeToDirectCoef: multiplies the sections out; arrays and lengths as for QuorDSP_Bw_Coef. */
typedef AnalysisLibErrType (*QuorDSP_CascadeToDirectCoefFunction)(const QuorDSP_IIRFilter* filter, double* coefsA,
                                                                  int countA, double* coefsB, int countB);

/** FreeAnalysisMem, in every backend also AALFunc238: frees an array of QuorDSP_PeakDetector; null is accepted. */
typedef AnalysisLibErrType (*QuorDSP_FreeAnalysisMemFunction)(void* memory);

/*
 * IIR filters in one call: design and filtering from zero state. The signal is real. No transient is removed: the
 * output is causal, begins with the response to the first sample and has the length of the input. The default backend
 * runs these filters on sections of their own, which stay accurate at cut-offs where the coefficients of
 * QuorDSP_..._CascadeCoef lose digits; how accurate, by family and cut-off, is tabulated in docs/accuracy.md.
 */

/**
 * Butterworth low-pass filter of a real signal.
 * @param in     [n]  samples; only read; may be the same array as out
 * @param n           number of samples, 1 or more
 * @param fs     Hz   sampling frequency, > 0
 * @param fc     Hz   cut-off, 0 < fc < fs/2
 * @param order       1 or more; above 2^20: -20001; very high orders lose accuracy
 * @param out    [n]  filtered samples, in the unit of in
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null array; -20021 order; -20020 fs or fc;
 *         -20031 a coefficient of the design is not finite, or the filter cannot be represented in double precision:
 *         unstable or gain off by more than 1e-3; -20001 memory. On failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc21    @source O&S, ch. 7 and app. B
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bw_LPF(const double* in, int n, double fs, double fc, int order, double* out);

/**
 * Like QuorDSP_Bw_LPF, but high-pass.
 * @entry AALFunc20
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bw_HPF(const double* in, int n, double fs, double fc, int order, double* out);

/**
 * Like QuorDSP_Bw_LPF, but band-pass. Bad frequencies, fs included, are reported as -20023.
 * @param fl     Hz   lower cut-off, 0 < fl < fh
 * @param fh     Hz   upper cut-off, fl < fh < fs/2
 * @param order       1 or more; the filter has 2*order poles
 * @entry AALFunc16
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bw_BPF(const double* in, int n, double fs, double fl, double fh, int order,
                                              double* out);

/**
 * Like QuorDSP_Bw_BPF, but band-stop.
 * @entry AALFunc17
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bw_BSF(const double* in, int n, double fs, double fl, double fh, int order,
                                              double* out);

/**
 * Like QuorDSP_Bw_LPF, but Bessel: nearly constant delay in the pass band; fc is that of the phase normalisation.
 * @param order       1 to 300; above: -20031, above 2^20: -20001
 * @entry AALFunc399
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bssl_LPF(const double* in, int n, double fs, double fc, int order, double* out);

/**
 * Like QuorDSP_Bssl_LPF, but high-pass.
 * @entry AALFunc400
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bssl_HPF(const double* in, int n, double fs, double fc, int order, double* out);

/**
 * Like QuorDSP_Bw_BPF, but Bessel.
 * @entry AALFunc401
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bssl_BPF(const double* in, int n, double fs, double fl, double fh, int order,
                                                double* out);

/**
 * Like QuorDSP_Bw_BSF, but Bessel.
 * @entry AALFunc402
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bssl_BSF(const double* in, int n, double fs, double fl, double fh, int order,
                                                double* out);

/**
 * Like QuorDSP_Bw_LPF, but Chebyshev: equal ripple in the pass band, which ends at fc.
 * @param ripple dB   pass-band ripple, > 0, else -20024
 * @entry AALFunc27
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Ch_LPF(const double* in, int n, double fs, double fc, double ripple, int order,
                                              double* out);

/**
 * Like QuorDSP_Ch_LPF, but high-pass.
 * @entry AALFunc26
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Ch_HPF(const double* in, int n, double fs, double fc, double ripple, int order,
                                              double* out);

/**
 * Like QuorDSP_Bw_BPF, but Chebyshev: equal ripple in the pass band, which reaches from fl to fh.
 * @param ripple dB   pass-band ripple, > 0, else -20024
 * @entry AALFunc22
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Ch_BPF(const double* in, int n, double fs, double fl, double fh, double ripple,
                                              int order, double* out);

/**
 * Like QuorDSP_Ch_BPF, but band-stop: the pass bands end at fl and begin at fh.
 * @entry AALFunc23
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Ch_BSF(const double* in, int n, double fs, double fl, double fh, double ripple,
                                              int order, double* out);

/**
 * Like QuorDSP_Bw_LPF, but inverse Chebyshev: equal ripple in the stop band, which begins at fc.
 * @param attenuation dB   stop-band attenuation, > 0, else -20025
 * @entry AALFunc101
 */
QUORDSP_API AnalysisLibErrType QuorDSP_InvCh_LPF(const double* in, int n, double fs, double fc, double attenuation,
                                                 int order, double* out);

/**
 * Like QuorDSP_InvCh_LPF, but high-pass: the stop band ends at fc.
 * @entry AALFunc100
 */
QUORDSP_API AnalysisLibErrType QuorDSP_InvCh_HPF(const double* in, int n, double fs, double fc, double attenuation,
                                                 int order, double* out);

/**
 * Like QuorDSP_Bw_BPF, but inverse Chebyshev: equal ripple in the stop bands, which end at fl and begin at fh.
 * @param attenuation dB   stop-band attenuation, > 0, else -20025
 * @entry AALFunc96
 */
QUORDSP_API AnalysisLibErrType QuorDSP_InvCh_BPF(const double* in, int n, double fs, double fl, double fh,
                                                 double attenuation, int order, double* out);

/**
 * Like QuorDSP_InvCh_BPF, but band-stop: the stop band reaches from fl to fh.
 * @entry AALFunc97
 */
QUORDSP_API AnalysisLibErrType QuorDSP_InvCh_BSF(const double* in, int n, double fs, double fl, double fh,
                                                 double attenuation, int order, double* out);

/**
 * Like QuorDSP_Bw_LPF, but elliptic: equal ripple in pass and stop band; the pass band ends at fc.
 * @param ripple      dB   pass-band ripple, > 0, else -20024
 * @param attenuation dB   stop-band attenuation, > 0, else -20025, and > ripple, else -20028
 * @entry AALFunc64
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Elp_LPF(const double* in, int n, double fs, double fc, double ripple,
                                               double attenuation, int order, double* out);

/**
 * Like QuorDSP_Elp_LPF, but high-pass.
 * @entry AALFunc63
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Elp_HPF(const double* in, int n, double fs, double fc, double ripple,
                                               double attenuation, int order, double* out);

/**
 * Like QuorDSP_Bw_BPF, but elliptic: equal ripple in pass and stop bands; the pass band reaches from fl to fh.
 * @param ripple      dB   pass-band ripple, > 0, else -20024
 * @param attenuation dB   stop-band attenuation, > 0, else -20025, and > ripple, else -20028
 * @entry AALFunc59
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Elp_BPF(const double* in, int n, double fs, double fl, double fh, double ripple,
                                               double attenuation, int order, double* out);

/**
 * Like QuorDSP_Elp_BPF, but band-stop: the pass bands end at fl and begin at fh.
 * @entry AALFunc60
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Elp_BSF(const double* in, int n, double fs, double fl, double fh, double ripple,
                                               double attenuation, int order, double* out);

/*
 * IIR filters in one call, complex signal. See COMPLEX SIGNALS above for what holds of them all.
 */

/**
 * Like QuorDSP_Bw_LPF, but for a complex signal.
 * @param inRe   [n]  real parts; only read; may be the same array as outRe or outIm
 * @param inIm   [n]  imaginary parts, likewise
 * @param n           number of samples; for n < 1 no array is touched
 * @param outRe  [n]  filtered real parts, in the unit of inRe
 * @param outIm  [n]  filtered imaginary parts
 * @return The statuses of the real filter. For n > 0 the outputs hold a copy of the input after a failure, except
 *         after -5093 for lack of scratch memory, which leaves them untouched.
 * @threads any, on different arrays    @entry AALFunc450
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxBw_LPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                                int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBw_LPF, but high-pass.
 * @entry AALFunc451
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxBw_HPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                                int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBw_LPF, but band-pass, with the frequencies and codes of QuorDSP_Bw_BPF.
 * @param fl     Hz   lower cut-off, 0 < fl < fh
 * @param fh     Hz   upper cut-off, fl < fh < fs/2
 * @param order       1 or more; the filter has 2*order poles
 * @entry AALFunc452
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxBw_BPF(const double* inRe, const double* inIm, int n, double fs, double fl,
                                                double fh, int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBw_BPF, but band-stop.
 * @entry AALFunc453
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxBw_BSF(const double* inRe, const double* inIm, int n, double fs, double fl,
                                                double fh, int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBw_LPF, but Bessel.
 * @entry AALFunc403
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxBssl_LPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                                  int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBssl_LPF, but high-pass.
 * @entry AALFunc404
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxBssl_HPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                                  int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBw_BPF, but Bessel.
 * @entry AALFunc405
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxBssl_BPF(const double* inRe, const double* inIm, int n, double fs, double fl,
                                                  double fh, int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBw_BSF, but Bessel.
 * @entry AALFunc406
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxBssl_BSF(const double* inRe, const double* inIm, int n, double fs, double fl,
                                                  double fh, int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBw_LPF, but Chebyshev, with the ripple of QuorDSP_Ch_LPF.
 * @param ripple dB   pass-band ripple, > 0, else -20024
 * @entry AALFunc454
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxCh_LPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                                double ripple, int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxCh_LPF, but high-pass.
 * @entry AALFunc455
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxCh_HPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                                double ripple, int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBw_BPF, but Chebyshev, with the ripple of QuorDSP_Ch_BPF.
 * @param ripple dB   pass-band ripple, > 0, else -20024
 * @entry AALFunc456
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxCh_BPF(const double* inRe, const double* inIm, int n, double fs, double fl,
                                                double fh, double ripple, int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxCh_BPF, but band-stop, and the only filter of this group that works through a second scratch
 * block.
 * @return The statuses of the real filter. For n > 0 the outputs are overwritten with unspecified values after a
 *         failure, except after -5093 for lack of scratch memory, which leaves them untouched.
 * @entry AALFunc457
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxCh_BSF(const double* inRe, const double* inIm, int n, double fs, double fl,
                                                double fh, double ripple, int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBw_LPF, but inverse Chebyshev: fc is the edge of the stop band.
 * @param attenuation dB   stop-band attenuation, > 0, else -20025
 * @entry AALFunc458
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxInvCh_LPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                                   double attenuation, int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxInvCh_LPF, but high-pass.
 * @entry AALFunc459
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxInvCh_HPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                                   double attenuation, int order, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxBw_BPF, but inverse Chebyshev: fl and fh are the edges of the stop bands.
 * @param attenuation dB   stop-band attenuation, > 0, else -20025
 * @entry AALFunc460
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxInvCh_BPF(const double* inRe, const double* inIm, int n, double fs, double fl,
                                                   double fh, double attenuation, int order, double* outRe,
                                                   double* outIm);

/**
 * Like QuorDSP_CxInvCh_BPF, but band-stop.
 * @entry AALFunc461
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxInvCh_BSF(const double* inRe, const double* inIm, int n, double fs, double fl,
                                                   double fh, double attenuation, int order, double* outRe,
                                                   double* outIm);

/**
 * Like QuorDSP_CxBw_LPF, but elliptic, as QuorDSP_Elp_LPF.
 * @param ripple      dB   pass-band ripple, > 0, else -20024
 * @param attenuation dB   stop-band attenuation, > 0, else -20025, and > ripple, else -20028
 * @entry AALFunc462
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxElp_LPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                                 double ripple, double attenuation, int order, double* outRe,
                                                 double* outIm);

/**
 * Like QuorDSP_CxElp_LPF, but high-pass.
 * @entry AALFunc463
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxElp_HPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                                 double ripple, double attenuation, int order, double* outRe,
                                                 double* outIm);

/**
 * Like QuorDSP_CxBw_BPF, but elliptic, as QuorDSP_Elp_BPF.
 * @param ripple      dB   pass-band ripple, > 0, else -20024
 * @param attenuation dB   stop-band attenuation, > 0, else -20025, and > ripple, else -20028
 * @entry AALFunc464
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxElp_BPF(const double* inRe, const double* inIm, int n, double fs, double fl,
                                                 double fh, double ripple, double attenuation, int order, double* outRe,
                                                 double* outIm);

/**
 * Like QuorDSP_CxElp_BPF, but band-stop.
 * @entry AALFunc465
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxElp_BSF(const double* inRe, const double* inIm, int n, double fs, double fl,
                                                 double fh, double ripple, double attenuation, int order, double* outRe,
                                                 double* outIm);

/*
 * IIR design. QuorDSP_..._Coef gives the direct form for QuorDSP_IIRFiltering and QuorDSP_ZeroPhaseFiltering;
 * QuorDSP_..._CascadeCoef fills an IIR filter record for QuorDSP_IIRCascadeFiltering, which is the more accurate
 * form from about order 6 on and for narrow bands, and less accurate than the filters in one call. How far the default
 * backend's sections are from the ideal response, by family and cut-off, is tabulated in docs/accuracy.md.
 */

/**
 * Butterworth coefficients in direct form.
 * @param type              filter type 0..3, else -20061
 * @param order             1 or more
 * @param fs      Hz        sampling frequency, > 0
 * @param fl      Hz        cut-off of types 0 and 1, 0 < fl < fs/2; lower cut-off of types 2 and 3, 0 < fl < fh
 * @param fh      Hz        upper cut-off of types 2 and 3, fl < fh < fs/2; ignored for types 0 and 1
 * @param coefsA  [countA]  receives the reverse (denominator) coefficients, coefsA[0] = 1
 * @param countA            order + 1 for types 0 and 1, 2*order + 1 for types 2 and 3, else -20008
 * @param coefsB  [countB]  receives the forward (numerator) coefficients
 * @param countB            as countA
 * @return 0; -5093 no backend; -5094 entry missing; -20008 null array or wrong length; -20021 order; -20020
 *         frequencies of types 0 and 1; -20023 frequencies of types 2 and 3; -20061 type; -20031 a coefficient is
 *         not finite, or the degree is above 2^14; -20001 memory. On failure the arrays are untouched.
 * @threads any, on different arrays    @entry AALFunc19    @source O&S, ch. 7 and app. B
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bw_Coef(int type, int order, double fs, double fl, double fh, double* coefsA,
                                               int countA, double* coefsB, int countB);

/**
 * Like QuorDSP_Bw_Coef, but Bessel.
 * @entry AALFunc13
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bessel_Coef(int type, int order, double fs, double fl, double fh, double* coefsA,
                                                   int countA, double* coefsB, int countB);

/**
 * Like QuorDSP_Bw_Coef, but Chebyshev.
 * @param ripple dB   pass-band ripple, > 0, else -20024
 * @entry AALFunc25
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Ch_Coef(int type, int order, double fs, double fl, double fh, double ripple,
                                               double* coefsA, int countA, double* coefsB, int countB);

/**
 * Like QuorDSP_Bw_Coef, but inverse Chebyshev.
 * @param attenuation dB   stop-band attenuation, > 0, else -20025
 * @entry AALFunc99
 */
QUORDSP_API AnalysisLibErrType QuorDSP_InvCh_Coef(int type, int order, double fs, double fl, double fh,
                                                  double attenuation, double* coefsA, int countA, double* coefsB,
                                                  int countB);

/**
 * Like QuorDSP_Bw_Coef, but elliptic.
 * @param ripple      dB   pass-band ripple, > 0, else -20024
 * @param attenuation dB   stop-band attenuation, > 0, else -20025, and > ripple, else -20028
 * @entry AALFunc62
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Elp_Coef(int type, int order, double fs, double fl, double fh, double ripple,
                                                double attenuation, double* coefsA, int countA, double* coefsB,
                                                int countB);

/**
 * Butterworth coefficients in cascade form. Type and order are those of the record; its reset flag is set, so that
 * the next filtering starts from zero state.
 * @param fs     Hz   sampling frequency, > 0
 * @param fl     Hz   cut-off of types 0 and 1, 0 < fl < fs/2; lower cut-off of types 2 and 3, 0 < fl < fh
 * @param fh     Hz   upper cut-off of types 2 and 3, fl < fh < fs/2; ignored for types 0 and 1
 * @param filter      record from AllocIIRFilterPtr that receives the design
 * @return 0; -5093 no backend; -5094 entry missing; -20066 record null or inconsistent; -20020 frequencies of types
 *         0 and 1; -20023 frequencies of types 2 and 3; -20031 a coefficient is not finite, or the filter cannot be
 *         represented in double precision: unstable or gain off by more than 1e-3; -20001 memory. On failure the
 *         record is untouched.
 * @threads any, on different records    @entry AALFunc18    @source O&S, ch. 6 and 7, app. B
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bw_CascadeCoef(double fs, double fl, double fh, QuorDSP_IIRFilter* filter);

/**
 * Like QuorDSP_Bw_CascadeCoef, but Bessel.
 * @entry AALFunc12
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bessel_CascadeCoef(double fs, double fl, double fh, QuorDSP_IIRFilter* filter);

/**
 * Like QuorDSP_Bessel_CascadeCoef, but a backend entry of its own; the default backend gives the same design.
 * @entry AALFunc471
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Bessel_CascadeCoefEx(double fs, double fl, double fh, QuorDSP_IIRFilter* filter);

/**
 * Like QuorDSP_Bw_CascadeCoef, but Chebyshev.
 * @param ripple dB   pass-band ripple, > 0, else -20024
 * @entry AALFunc24
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Ch_CascadeCoef(double fs, double fl, double fh, double ripple,
                                                      QuorDSP_IIRFilter* filter);

/**
 * Like QuorDSP_Bw_CascadeCoef, but inverse Chebyshev.
 * @param attenuation dB   stop-band attenuation, > 0, else -20025
 * @entry AALFunc98
 */
QUORDSP_API AnalysisLibErrType QuorDSP_InvCh_CascadeCoef(double fs, double fl, double fh, double attenuation,
                                                         QuorDSP_IIRFilter* filter);

/**
 * Like QuorDSP_Bw_CascadeCoef, but elliptic.
 * @param ripple      dB   pass-band ripple, > 0, else -20024
 * @param attenuation dB   stop-band attenuation, > 0, else -20025, and > ripple, else -20028
 * @entry AALFunc61
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Elp_CascadeCoef(double fs, double fl, double fh, double ripple,
                                                       double attenuation, QuorDSP_IIRFilter* filter);

/*
 * IIR filtering with a design.
 */

/**
 * IIR filter in direct form, with the state in the caller's hands: consecutive blocks filter like one long block.
 *     y[i] = (sum over j of coefsB[j] x[i-j] - sum over k >= 1 of coefsA[k] y[i-k]) / coefsA[0]
 * countA <= 1 gives a FIR filter; with both counts 0 or less out is a copy of in.
 * @param in      [n]         samples; only read; may be the same array as out
 * @param n                   number of samples, 1 or more
 * @param coefsA  [countA]    reverse (denominator) coefficients; coefsA[0] must not be 0
 * @param stateA  [countA-1]  past outputs in order of time, newest last; rewritten for the next block; null: zeros,
 *                            and nothing is written back
 * @param countA              number of reverse coefficients
 * @param coefsB  [countB]    forward (numerator) coefficients
 * @param stateB  [countB-1]  past inputs, likewise
 * @param countB              number of forward coefficients
 * @param out     [n]         filtered samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null in, out or coefficients; -20060 coefsA[0]
 *         is 0; -20001 memory. On failure out and the states are untouched.
 * @threads any, on different out and state arrays    @entry AALFunc92    @source O&S, ch. 6
 */
QUORDSP_API AnalysisLibErrType QuorDSP_IIRFiltering(const double* in, int n, const double* coefsA, double* stateA,
                                                    int countA, const double* coefsB, double* stateB, int countB,
                                                    double* out);

/**
 * Like QuorDSP_IIRFiltering, but for a complex signal, and with states that are only read: past outputs count as 0
 * whatever stateARe and stateAIm hold, and no final state is given back. This is intended; blocks of one stream
 * cannot be joined by this export unless the filter is of FIR kind.
 * @param inRe       [n]  real parts; only read; may be the same array as outRe or outIm
 * @param inIm       [n]  imaginary parts, likewise
 * @param n               number of samples; for n < 1 no array is touched
 * @param stateARe   [n]  read, whatever countA is, without effect
 * @param stateAIm   [n]  likewise
 * @param stateBRe   [n]  real parts of the past inputs in order of time; n elements are read, the first countB-1 are
 *                        used, the newest at index countB-2; where n is smaller the rest counts as 0
 * @param stateBIm   [n]  imaginary parts of the past inputs, likewise
 * @param outRe      [n]  filtered real parts
 * @param outIm      [n]  filtered imaginary parts
 * @return The statuses of QuorDSP_IIRFiltering. For n > 0 the outputs hold unspecified values after a failure,
 *         except after -5093 for lack of scratch memory, which leaves them untouched.
 * @threads any, on different outputs    @entry AALFunc354
 */
QUORDSP_API AnalysisLibErrType QuorDSP_IIRFiltering_CxInput(const double* inRe, const double* inIm, int n,
                                                            const double* coefsA, const double* stateARe,
                                                            const double* stateAIm, int countA, const double* coefsB,
                                                            const double* stateBRe, const double* stateBIm, int countB,
                                                            double* outRe, double* outIm);

/**
 * IIR filter in cascade form; the state stays in the record, so consecutive blocks filter like one long block.
 * @param in     [n]  samples; only read; may be the same array as out
 * @param n           number of samples, 1 or more
 * @param filter      record with a design; its state is updated; a set reset flag clears the state first
 * @param out    [n]  filtered samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null array; -20066 record null or
 *         inconsistent. On failure out and the record are untouched.
 * @threads any; one record in one call at a time    @entry AALFunc91    @source O&S, ch. 6
 */
QUORDSP_API AnalysisLibErrType QuorDSP_IIRCascadeFiltering(const double* in, int n, QuorDSP_IIRFilter* filter,
                                                           double* out);

/**
 * Like QuorDSP_IIRCascadeFiltering, but for a complex signal, and with a state of its own instead of the record's,
 * which is neither read nor written; nor is its reset flag. No final state is given back.
 * @param inRe       [n]  real parts; only read; may be the same array as outRe or outIm
 * @param inIm       [n]  imaginary parts, likewise
 * @param n               number of samples; for n < 1 no array is touched
 * @param filter          record with a design
 * @param stateCount      number of state values; any other value than reverseCount of the record means zero state.
 *                        Scratch memory of 16 bytes each is needed, -5093 when it cannot be had
 * @param stateRe    [n]  real parts of the initial state, laid out like state in the record; n elements are read, the
 *                        first stateCount are used; where n is smaller the rest counts as 0
 * @param stateIm    [n]  imaginary parts of the initial state, likewise
 * @param outRe      [n]  filtered real parts
 * @param outIm      [n]  filtered imaginary parts
 * @return The statuses of QuorDSP_IIRCascadeFiltering. For n > 0 the outputs hold unspecified values after a
 *         failure, except after -5093 for lack of scratch memory, which leaves them untouched.
 * @threads any; one record in one call at a time    @entry AALFunc466
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxIIRCascadeFiltering(const double* inRe, const double* inIm, int n,
                                                             QuorDSP_IIRFilter* filter, int stateCount,
                                                             const double* stateRe, const double* stateIm,
                                                             double* outRe, double* outIm);

/**
 * IIR filter in direct form run forwards and then backwards: zero phase, gain |H|^2. Each run starts from zero
 * state; the signal is not extended at its ends, so these carry transients.
 * @param in      [n]       samples; only read; may be the same array as out
 * @param n                 number of samples, 1 or more
 * @param coefsA  [countA]  reverse (denominator) coefficients; coefsA[0] must not be 0
 * @param countA            number of reverse coefficients
 * @param coefsB  [countB]  forward (numerator) coefficients
 * @param countB            number of forward coefficients
 * @param out     [n]       filtered samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null array; -20060 coefsA[0] is 0; -20001
 *         memory. On failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc385    @source O&S, ch. 5
 */
QUORDSP_API AnalysisLibErrType QuorDSP_ZeroPhaseFiltering(const double* in, int n, const double* coefsA, int countA,
                                                          const double* coefsB, int countB, double* out);

/*
 * FIR design. Coefficients are symmetric (linear phase) or, for differentiators and Hilbert transformers,
 * antisymmetric; the delay is (taps-1)/2 samples. They are applied with QuorDSP_FIRFiltering. Window designs are
 * the truncated ideal response times a symmetric window; they are not rescaled to unit gain. With
 * t = k - (taps-1)/2, g(f,t) = sin(2 pi f t/fs)/(pi t), g(f,0) = 2 f/fs, d(0) = 1, d(t) = 0 elsewhere, and the
 * window w, the coefficients are
 *     low-pass w g(fc,t)    high-pass w (d - g(fc,t))    band-pass w (g(fh,t) - g(fl,t))
 *     band-stop w (d - g(fh,t) + g(fl,t))
 * The default backend computes each of them within 1e-15 of the largest.
 */

/**
 * Windowed FIR low-pass coefficients.
 * @param fs        Hz       sampling frequency, > 0
 * @param fc        Hz       cut-off, 0 < fc < fs/2
 * @param taps               number of coefficients, 1 or more
 * @param coefs     [taps]   receives the coefficients
 * @param windType           window 1..5 of table W1
 * @return 0; -5093 no backend; -5094 entry missing; -20008 null array; -20003 taps; -20020 fs or fc; -20061
 *         windType; -20001 memory. On failure coefs is untouched.
 * @threads any, on different arrays    @entry AALFunc189    @source O&S, ch. 7; Harris
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Wind_LPF(double fs, double fc, int taps, double* coefs, int windType);

/**
 * Like QuorDSP_Wind_LPF, but high-pass.
 * @param taps   number of coefficients, odd, 1 or more; -20033 for an even number
 * @entry AALFunc188
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Wind_HPF(double fs, double fc, int taps, double* coefs, int windType);

/**
 * Like QuorDSP_Wind_LPF, but band-pass. Bad frequencies, fs included, are reported as -20023.
 * @param fl     Hz   lower cut-off, 0 < fl < fh
 * @param fh     Hz   upper cut-off, fl < fh < fs/2
 * @entry AALFunc186
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Wind_BPF(double fs, double fl, double fh, int taps, double* coefs, int windType);

/**
 * Like QuorDSP_Wind_BPF, but band-stop.
 * @param taps   number of coefficients, odd, 1 or more; -20033 for an even number
 * @entry AALFunc187
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Wind_BSF(double fs, double fl, double fh, int taps, double* coefs, int windType);

/**
 * Like QuorDSP_Wind_LPF, but with a Kaiser window.
 * @param beta   shape of the window, finite, 0 or more, else -20061: 0 is the rectangle, larger values lower the side
 *               lobes and widen the transition
 * @entry AALFunc112
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Ksr_LPF(double fs, double fc, int taps, double* coefs, double beta);

/**
 * Like QuorDSP_Ksr_LPF, but high-pass.
 * @param taps   number of coefficients, odd, 1 or more; -20033 for an even number
 * @entry AALFunc111
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Ksr_HPF(double fs, double fc, int taps, double* coefs, double beta);

/**
 * Like QuorDSP_Ksr_LPF, but band-pass. Bad frequencies, fs included, are reported as -20023.
 * @param fl     Hz   lower cut-off, 0 < fl < fh
 * @param fh     Hz   upper cut-off, fl < fh < fs/2
 * @entry AALFunc109
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Ksr_BPF(double fs, double fl, double fh, int taps, double* coefs, double beta);

/**
 * Like QuorDSP_Ksr_BPF, but band-stop.
 * @param taps   number of coefficients, odd, 1 or more; -20033 for an even number
 * @entry AALFunc110
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Ksr_BSF(double fs, double fl, double fh, int taps, double* coefs, double beta);

/**
 * FIR coefficients of the truncated ideal response, without a window; a window may be applied afterwards.
 * @param type            filter type 0..3
 * @param fs     Hz       sampling frequency, > 0
 * @param fl     Hz       cut-off of types 0 and 1, 0 < fl < fs/2; lower cut-off of types 2 and 3, 0 < fl < fh
 * @param fh     Hz       upper cut-off of types 2 and 3, fl < fh < fs/2; ignored for types 0 and 1
 * @param taps            number of coefficients, 1 or more; odd for types 1 and 3
 * @param coefs  [taps]   receives the coefficients
 * @return 0; -5093 no backend; -5094 entry missing; -20008 null array; -20003 taps; -20033 even taps for types 1
 *         and 3; -20020 frequencies of types 0 and 1; -20023 frequencies of types 2 and 3; -20061 type; -20001
 *         memory. On failure coefs is untouched.
 * @threads any, on different arrays    @entry AALFunc79    @source O&S, ch. 7
 */
QUORDSP_API AnalysisLibErrType QuorDSP_FIR_Coef(int type, double fs, double fl, double fh, int taps, double* coefs);

/**
 * Like QuorDSP_FIR_Coef, but with a window.
 * @param window            code of table W2; -20061 for another one or a bad windowParameter
 * @param windowParameter   parameter of windows 60 to 62; NaN: default
 * @entry AALFunc335    @source O&S, ch. 7; Harris
 */
QUORDSP_API AnalysisLibErrType QuorDSP_WindFIR_Filter(int type, double fs, double fl, double fh, int taps, int window,
                                                      double windowParameter, double* coefs);

/**
 * Equiripple FIR low-pass coefficients (Parks-McClellan), with equal weight in both bands: gain 1 from 0 to f1,
 * gain 0 from f2 to fs/2.
 * @param fs      Hz       sampling frequency, > 0
 * @param f1      Hz       end of the pass band, 0 < f1 < f2
 * @param f2      Hz       start of the stop band, f1 < f2 < fs/2
 * @param taps             number of coefficients, 3 or more
 * @param coefs   [taps]   receives the coefficients
 * @param ripple  [1]      receives the largest deviation from the ideal gain, linear (not dB), the same in all bands
 * @accuracy  Default backend: the deviation of the coefficients over the bands is *ripple within 1 %, and that the
 *            least possible one within 1 %. Where fewer taps already bring it down to what double can hold (about
 *            1e-13), these stand between zeros. docs/accuracy.md has measured figures.
 * @return 0; -5093 no backend; -5094 entry missing; -20008 null pointer; -20007 taps; -20023 fs or edges; -20031
 *         the design does not converge (default backend: also more than 4096 taps); -20001 memory. On failure coefs
 *         and ripple are untouched.
 * @threads any, on different arrays    @entry AALFunc69    @source Parks & McClellan; O&S, ch. 7
 */
QUORDSP_API AnalysisLibErrType QuorDSP_EquiRpl_LPF(double fs, double f1, double f2, int taps, double* coefs,
                                                   double* ripple);

/**
 * Like QuorDSP_EquiRpl_LPF, but high-pass: gain 0 from 0 to f1, gain 1 from f2 to fs/2.
 * @param f1     Hz   end of the stop band, 0 < f1 < f2
 * @param f2     Hz   start of the pass band, f1 < f2 < fs/2
 * @param taps        number of coefficients, odd, 3 or more; -20033 for an even number
 * @entry AALFunc68
 */
QUORDSP_API AnalysisLibErrType QuorDSP_EquiRpl_HPF(double fs, double f1, double f2, int taps, double* coefs,
                                                   double* ripple);

/**
 * Like QuorDSP_EquiRpl_LPF, but band-pass: gain 0 from 0 to f1, 1 from f2 to f3, 0 from f4 to fs/2.
 * @param f1     Hz   end of the lower stop band, 0 < f1 < f2
 * @param f2     Hz   start of the pass band, f1 < f2 < f3
 * @param f3     Hz   end of the pass band, f2 < f3 < f4
 * @param f4     Hz   start of the upper stop band, f3 < f4 < fs/2
 * @entry AALFunc66
 */
QUORDSP_API AnalysisLibErrType QuorDSP_EquiRpl_BPF(double fs, double f1, double f2, double f3, double f4, int taps,
                                                   double* coefs, double* ripple);

/**
 * Like QuorDSP_EquiRpl_BPF, but band-stop: gain 1 from 0 to f1, 0 from f2 to f3, 1 from f4 to fs/2.
 * @param f1     Hz   end of the lower pass band, 0 < f1 < f2
 * @param f2     Hz   start of the stop band, f1 < f2 < f3
 * @param f3     Hz   end of the stop band, f2 < f3 < f4
 * @param f4     Hz   start of the upper pass band, f3 < f4 < fs/2
 * @param taps        number of coefficients, odd, 3 or more; -20033 for an even number
 * @entry AALFunc67
 */
QUORDSP_API AnalysisLibErrType QuorDSP_EquiRpl_BSF(double fs, double f1, double f2, double f3, double f4, int taps,
                                                   double* coefs, double* ripple);

/**
 * Equiripple FIR coefficients for any bands (Parks-McClellan). QuorDSP_Parks_McClellanCoef, at the end of this
 * file, does the same with split band arrays. Check the result of demanding designs by their frequency response.
 * @param bandCount                   number of bands, 1 or more
 * @param amplitudes  [bandCount]     gain of each band; for a differentiator its slope A: gain A f/fs
 * @param weights     [bandCount]     weight of each band's error, > 0; larger means a smaller error there. For a
 *                                    differentiator the error is relative to the frequency
 * @param fs          Hz              sampling frequency, > 0
 * @param edges       [2*bandCount]   Hz, lower and upper edge of each band; ascending, not overlapping, up to fs/2
 * @param type                        1 multiband, 2 differentiator, 3 Hilbert transformer
 * @param taps                        number of coefficients, 3 or more
 * @param coefs       [taps]          receives the coefficients
 * @param ripple      [1]             receives the largest weighted deviation from the ideal gain, linear
 * @return 0; -5093 no backend; -5094 entry missing; -20008 null array; -20007 taps; -20023 fs, bands or edges;
 *         -20061 type; -20033 the taps must be odd (multiband with gain at fs/2); -20034 the taps must be even
 *         (differentiator or Hilbert transformer with last edge fs/2); -20023 Hilbert transformer with first edge 0;
 *         -20031 the design does not converge (default backend: also more than 4096 taps or 1024 bands); -20001
 *         memory. On failure coefs and ripple are untouched. Differentiator and Hilbert transformer are
 *         antisymmetric, in the default backend with the positive half first: their response is +j times the gain.
 * @threads any, on different arrays    @entry AALFunc65    @source Parks & McClellan; O&S, ch. 7
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Equi_Ripple(int bandCount, const double* amplitudes, const double* weights,
                                                   double fs, const double* edges, int type, int taps, double* coefs,
                                                   double* ripple);

/**
 * Coefficients of Savitzky-Golay smoothing: least-squares fit of a polynomial to a sliding frame of
 * F = 2*sidePoints + 1 samples.
 * @param order                             order of the polynomial, 0 <= order < F
 * @param sidePoints                        samples on either side of the middle one, 0 or more
 * @param weights             [F]           weights of the fit, finite and not negative; null: all 1
 * @param computeDiffFilters                nonzero: fill diffFilters also
 * @param filters             [F*F]         receives the smoothing rows: the first sidePoints rows for the start of a
 *                                          signal, the middle row for its interior, the last sidePoints for its end
 * @param diffFilters         [(order+1)*F] receives the derivative rows: row p times a frame, times p!, is the p-th
 *                                          derivative at the middle for unit spacing; may be null if not to be filled
 * @return 0; -5093 no backend; -5094 entry missing; -20008 null array; -20103 order < 0; -20004 sidePoints; -20037
 *         F <= order; -20041 a bad weight, too many zero weights, or weights so far apart (1e25 and more) that the
 *         small ones are lost beside the others; -20001 memory (default backend: also (order + 1)^2 F > 2^32, which
 *         would take minutes). On failure the outputs are untouched.
 * @accuracy filters within 1e-15
 * @threads any, on different arrays    @entry AALFunc355    @source Savitzky & Golay
 */
QUORDSP_API AnalysisLibErrType QuorDSP_SavitzkyGolayCoef(int order, int sidePoints, const double* weights,
                                                         int computeDiffFilters, double* filters, double* diffFilters);

/**
 * Narrow-band filter record without a design. Use: allocate, QuorDSP_FIRNarrowBandCoef, any number of
 * QuorDSP_FIRNarrowBandFilter with *filter, QuorDSP_FreeFIRFilterPtr. On Windows the record is announced to the
 * resource tracker of a run-time module (see THE BACKEND MODULE, 2.) that the process has loaded.
 * @return The record; null when there is no backend, no entry or no memory.
 * @threads any    @entry AALFunc491
 */
QUORDSP_API QuorDSP_FIRFilter* QuorDSP_AllocFIRFilterPtr(void);

/**
 * Frees a narrow-band filter record and its coefficients; without a backend it does nothing.
 * @param filter   record from QuorDSP_AllocFIRFilterPtr, not used by any other call; null is ignored
 * @threads any    @entry AALFunc492
 */
QUORDSP_API void QuorDSP_FreeFIRFilterPtr(QuorDSP_FIRFilter* filter);

/**
 * Narrow-band FIR design by interpolation: a sparse model filter and an image suppressor, with far fewer
 * multiplications than one filter of the same sharpness. P = passBand, S = stopBand, C = centerFrequency:
 *     type                    passes                        stops                        condition
 *     0  low-pass             0 .. P                        S .. fs/2                    0 < P < S < fs/2
 *     1  high-pass            fs/2 - P .. fs/2              0 .. fs/2 - S                0 < P < S < fs/2
 *     2  band-pass            C - P/2 .. C + P/2            beyond C - S/2 and C + S/2   0 < P < S, bands in 0..fs/2
 *     3  band-stop            beyond C - P/2 and C + P/2    C - S/2 .. C + S/2           0 < S < P, bands in 0..fs/2
 *     4  wideband low-pass    0 .. fs/2 - S                 fs/2 - P .. fs/2             0 < P < S < fs/2
 *     5  wideband high-pass   S .. fs/2                     0 .. P                       0 < P < S < fs/2
 * Types 2 and 3 are stored with interpolation 1 and one image tap.
 * @param fs               Hz   sampling frequency, > 0
 * @param passBand         Hz   P of the table, > 0
 * @param stopBand         Hz   S of the table, > 0
 * @param centerFrequency  Hz   C of the table, 0..fs/2; matters to types 2 and 3 only
 * @param ripple                largest deviation in the pass band, > 0, linear: 0.01 is 1 %
 * @param attenuation      dB   stop-band attenuation, > 0
 * @param type                  filter type 0..5
 * @param filter                record from QuorDSP_AllocFIRFilterPtr; an earlier design in it is replaced
 * @return 0; -5093 no backend; -5094 entry missing; -20008 null record; -20023 frequencies; -20024 ripple; -20025
 *         attenuation; -20061 type; -20031 no design meets the values; -20001 memory. On failure the record is
 *         untouched.
 * @threads any, on different records    @entry AALFunc409    @source Neuvo, Cheng-Yu & Mitra
 */
QUORDSP_API AnalysisLibErrType QuorDSP_FIRNarrowBandCoef(double fs, double passBand, double stopBand,
                                                         double centerFrequency, double ripple, double attenuation,
                                                         int type, QuorDSP_FIRFilter* filter);

/*
 * FIR filtering. Output sample i is causal; it is delayed by (taps-1)/2 samples, and there are as many outputs as
 * inputs.
 */

/**
 * FIR filter with the state in the caller's hands: consecutive blocks filter like one long block, bit for bit.
 *     y[i] = sum over j of coefs[j] x[i-j]
 * The default backend adds from the newest input to the oldest and takes subnormal numbers for 0.
 * @param in      [n]        samples; only read; may be the same array as out
 * @param n                  number of samples, 1 or more
 * @param coefs   [taps]     coefficients
 * @param state   [taps-1]   past inputs in order of time, newest last; rewritten for the next block; null: zeros, and
 *                           nothing is written back
 * @param taps               number of coefficients; 0 or less: out is a copy of in
 * @param out     [n]        filtered samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null in, out or coefs; -20001 memory. On
 *         failure out and state are untouched.
 * @threads any, on different out and state arrays    @entry AALFunc352    @source O&S, ch. 6
 */
QUORDSP_API AnalysisLibErrType QuorDSP_FIRFiltering(const double* in, int n, const double* coefs, double* state,
                                                    int taps, double* out);

/**
 * Like QuorDSP_FIRFiltering, but for a complex signal, and with a state that is only read: none is given back.
 * @param inRe     [n]       real parts; only read; may be the same array as outRe or outIm
 * @param inIm     [n]       imaginary parts, likewise
 * @param n                  number of samples; for n < 1 no array is touched
 * @param coefs    [count]   coefficients
 * @param stateRe  [n]       real parts of the past inputs in order of time; n elements are read, the first count-1
 *                           are used, the newest at index count-2; where n is smaller the rest counts as 0
 * @param stateIm  [n]       imaginary parts of the past inputs, likewise
 * @param count              number of coefficients
 * @param outRe    [n]       filtered real parts
 * @param outIm    [n]       filtered imaginary parts
 * @return The statuses of QuorDSP_FIRFiltering. For n > 0 the outputs hold unspecified values after a failure,
 *         except after -5093 for lack of scratch memory, which leaves them untouched.
 * @threads any, on different outputs    @entry AALFunc353
 */
QUORDSP_API AnalysisLibErrType QuorDSP_FIRFiltering_CxInput(const double* inRe, const double* inIm, int n,
                                                            const double* coefs, const double* stateRe,
                                                            const double* stateIm, int count, double* outRe,
                                                            double* outIm);

/**
 * Equiripple FIR low-pass filter in one call, from zero state: the design of QuorDSP_EquiRpl_LPF, applied.
 * @param in    [n]  samples; only read; may be the same array as out
 * @param n          number of samples, 1 or more
 * @param taps       number of coefficients, 3 or more
 * @param fs    Hz   sampling frequency, > 0
 * @param f1    Hz   end of the pass band, 0 < f1 < f2
 * @param f2    Hz   start of the stop band, f1 < f2 < fs/2
 * @param out   [n]  filtered samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null array; -20007 taps; -20023 fs or edges;
 *         -20031 the design does not converge; -20001 memory. On failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc472    @source Parks & McClellan; O&S, ch. 7
 */
QUORDSP_API AnalysisLibErrType QuorDSP_EquiRpl_LPFiltering(const double* in, int n, int taps, double fs, double f1,
                                                           double f2, double* out);

/**
 * Like QuorDSP_EquiRpl_LPFiltering, but high-pass.
 * @param taps       number of coefficients, 3 or more; an even number is raised to the next odd one
 * @param f1    Hz   end of the stop band, 0 < f1 < f2
 * @param f2    Hz   start of the pass band, f1 < f2 < fs/2
 * @entry AALFunc473
 */
QUORDSP_API AnalysisLibErrType QuorDSP_EquiRpl_HPFiltering(const double* in, int n, int taps, double fs, double f1,
                                                           double f2, double* out);

/**
 * Like QuorDSP_EquiRpl_LPFiltering, but band-pass.
 * @param f1    Hz   end of the lower stop band, 0 < f1 < f2
 * @param f2    Hz   start of the pass band, f1 < f2 < f3
 * @param f3    Hz   end of the pass band, f2 < f3 < f4
 * @param f4    Hz   start of the upper stop band, f3 < f4 < fs/2
 * @entry AALFunc474
 */
QUORDSP_API AnalysisLibErrType QuorDSP_EquiRpl_BPFiltering(const double* in, int n, int taps, double fs, double f1,
                                                           double f2, double f3, double f4, double* out);

/**
 * Like QuorDSP_EquiRpl_BPFiltering, but band-stop.
 * @param taps       number of coefficients, 3 or more; an even number is raised to the next odd one
 * @param f1    Hz   end of the lower pass band, 0 < f1 < f2
 * @param f2    Hz   start of the stop band, f1 < f2 < f3
 * @param f3    Hz   end of the stop band, f2 < f3 < f4
 * @param f4    Hz   start of the upper pass band, f3 < f4 < fs/2
 * @entry AALFunc475
 */
QUORDSP_API AnalysisLibErrType QuorDSP_EquiRpl_BSFiltering(const double* in, int n, int taps, double fs, double f1,
                                                           double f2, double f3, double f4, double* out);

/**
 * Like QuorDSP_EquiRpl_LPFiltering, but for a complex signal.
 * @param inRe   [n]  real parts; only read; may be the same array as outRe or outIm
 * @param inIm   [n]  imaginary parts, likewise
 * @param n           number of samples; for n < 1 no array is touched
 * @param outRe  [n]  filtered real parts
 * @param outIm  [n]  filtered imaginary parts
 * @return The statuses of the real filter. For n > 0 the outputs hold unspecified values after a failure, except
 *         after -5093 for lack of scratch memory, which leaves them untouched.
 * @entry AALFunc476
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxEquiRpl_LPFiltering(const double* inRe, const double* inIm, int n, int taps,
                                                             double fs, double f1, double f2, double* outRe,
                                                             double* outIm);

/**
 * Like QuorDSP_CxEquiRpl_LPFiltering, but high-pass.
 * @param taps       number of coefficients, 3 or more; an even number is raised to the next odd one
 * @param f1    Hz   end of the stop band, 0 < f1 < f2
 * @param f2    Hz   start of the pass band, f1 < f2 < fs/2
 * @entry AALFunc477
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxEquiRpl_HPFiltering(const double* inRe, const double* inIm, int n, int taps,
                                                             double fs, double f1, double f2, double* outRe,
                                                             double* outIm);

/**
 * Like QuorDSP_CxEquiRpl_LPFiltering, but band-pass.
 * @param f1    Hz   end of the lower stop band, 0 < f1 < f2
 * @param f2    Hz   start of the pass band, f1 < f2 < f3
 * @param f3    Hz   end of the pass band, f2 < f3 < f4
 * @param f4    Hz   start of the upper stop band, f3 < f4 < fs/2
 * @entry AALFunc478
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxEquiRpl_BPFiltering(const double* inRe, const double* inIm, int n, int taps,
                                                             double fs, double f1, double f2, double f3, double f4,
                                                             double* outRe, double* outIm);

/**
 * Like QuorDSP_CxEquiRpl_BPFiltering, but band-stop.
 * @param taps       number of coefficients, 3 or more; an even number is raised to the next odd one
 * @param f1    Hz   end of the lower pass band, 0 < f1 < f2
 * @param f2    Hz   start of the stop band, f1 < f2 < f3
 * @param f3    Hz   end of the stop band, f2 < f3 < f4
 * @param f4    Hz   start of the upper pass band, f3 < f4 < fs/2
 * @entry AALFunc479
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxEquiRpl_BSFiltering(const double* inRe, const double* inIm, int n, int taps,
                                                             double fs, double f1, double f2, double f3, double f4,
                                                             double* outRe, double* outIm);

/**
 * Windowed FIR low-pass filter in one call, from zero state. From 192 taps on, and when taps times samples are 3
 * million or more, the default backend works by Fourier transforms, within 1e-12 sum |coefs| max |in|, or 1e-298, of
 * QuorDSP_FIRFiltering.
 * @param in               [n]  samples; only read; may be the same array as out
 * @param n                     number of samples, 1 or more
 * @param taps                  number of coefficients, 1 or more
 * @param fs               Hz   sampling frequency, > 0
 * @param fc               Hz   cut-off, 0 < fc < fs/2
 * @param window                code of table W2
 * @param windowParameter       parameter of windows 60 to 62 (60: Kaiser beta); NaN: default
 * @param out              [n]  filtered samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n or taps; -20008 null array; -20020 fs or fc; -20061
 *         window or windowParameter; -20001 memory. On failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc481    @source O&S, ch. 7; Harris
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Wind_LPFiltering(const double* in, int n, int taps, double fs, double fc,
                                                        int window, double windowParameter, double* out);

/**
 * Like QuorDSP_Wind_LPFiltering, but high-pass.
 * @param taps   number of coefficients, odd, 1 or more; -20033 for an even number
 * @entry AALFunc482
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Wind_HPFiltering(const double* in, int n, int taps, double fs, double fc,
                                                        int window, double windowParameter, double* out);

/**
 * Like QuorDSP_Wind_LPFiltering, but band-pass. Bad frequencies, fs included, are reported as -20023.
 * @param fl     Hz   lower cut-off, 0 < fl < fh
 * @param fh     Hz   upper cut-off, fl < fh < fs/2
 * @entry AALFunc483
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Wind_BPFiltering(const double* in, int n, int taps, double fs, double fl,
                                                        double fh, int window, double windowParameter, double* out);

/**
 * Like QuorDSP_Wind_BPFiltering, but band-stop.
 * @param taps   number of coefficients, odd, 1 or more; -20033 for an even number
 * @entry AALFunc484
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Wind_BSFiltering(const double* in, int n, int taps, double fs, double fl,
                                                        double fh, int window, double windowParameter, double* out);

/**
 * Like QuorDSP_Wind_LPFiltering, but for a complex signal.
 * @param inRe   [n]  real parts; only read; may be the same array as outRe or outIm
 * @param inIm   [n]  imaginary parts, likewise
 * @param n           number of samples; for n < 1 no array is touched
 * @param outRe  [n]  filtered real parts
 * @param outIm  [n]  filtered imaginary parts
 * @return The statuses of the real filter. For n > 0 the outputs hold unspecified values after a failure, except
 *         after -5093 for lack of scratch memory, which leaves them untouched.
 * @entry AALFunc486
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxWind_LPFiltering(const double* inRe, const double* inIm, int n, int taps,
                                                          double fs, double fc, int window, double windowParameter,
                                                          double* outRe, double* outIm);

/**
 * Like QuorDSP_CxWind_LPFiltering, but high-pass.
 * @param taps   number of coefficients, odd, 1 or more; -20033 for an even number
 * @entry AALFunc487
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxWind_HPFiltering(const double* inRe, const double* inIm, int n, int taps,
                                                          double fs, double fc, int window, double windowParameter,
                                                          double* outRe, double* outIm);

/**
 * Like QuorDSP_CxWind_LPFiltering, but band-pass. Bad frequencies, fs included, are reported as -20023.
 * @param fl     Hz   lower cut-off, 0 < fl < fh
 * @param fh     Hz   upper cut-off, fl < fh < fs/2
 * @entry AALFunc488
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxWind_BPFiltering(const double* inRe, const double* inIm, int n, int taps,
                                                          double fs, double fl, double fh, int window,
                                                          double windowParameter, double* outRe, double* outIm);

/**
 * Like QuorDSP_CxWind_BPFiltering, but band-stop.
 * @param taps   number of coefficients, odd, 1 or more; -20033 for an even number
 * @entry AALFunc489
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxWind_BSFiltering(const double* inRe, const double* inIm, int n, int taps,
                                                          double fs, double fl, double fh, int window,
                                                          double windowParameter, double* outRe, double* outIm);

/**
 * Windowed FIR filter of any type in one call, from zero state: the design of QuorDSP_WindFIR_Filter, applied as by
 * QuorDSP_Wind_LPFiltering.
 * @param in               [n]  samples; only read; may be the same array as out
 * @param n                     number of samples, 1 or more
 * @param type                  filter type 0..3
 * @param taps                  number of coefficients, 1 or more; odd for types 1 and 3
 * @param fs               Hz   sampling frequency, > 0
 * @param fl               Hz   cut-off of types 0 and 1, 0 < fl < fs/2; lower cut-off of types 2 and 3, 0 < fl < fh
 * @param fh               Hz   upper cut-off of types 2 and 3, fl < fh < fs/2; ignored for types 0 and 1
 * @param window                code of table W2
 * @param windowParameter       parameter of windows 60 to 62 (60: Kaiser beta); NaN: default
 * @param out              [n]  filtered samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n or taps; -20008 null array; -20033 even taps for types
 *         1 and 3; -20020 frequencies of types 0 and 1; -20023 frequencies of types 2 and 3; -20061 type, window or
 *         windowParameter; -20001 memory. On failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc480    @source O&S, ch. 7; Harris
 */
QUORDSP_API AnalysisLibErrType QuorDSP_WindFIR_Filtering(const double* in, int n, int type, int taps, double fs,
                                                         double fl, double fh, int window, double windowParameter,
                                                         double* out);

/**
 * Like QuorDSP_WindFIR_Filtering, but for a complex signal.
 * @param inRe   [n]  real parts; only read; may be the same array as outRe or outIm
 * @param inIm   [n]  imaginary parts, likewise
 * @param n           number of samples; for n < 1 no array is touched
 * @param outRe  [n]  filtered real parts
 * @param outIm  [n]  filtered imaginary parts
 * @return The statuses of the real filter. For n > 0 the outputs hold unspecified values after a failure, except
 *         after -5093 for lack of scratch memory, which leaves them untouched.
 * @entry AALFunc485
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxWindFIR_Filtering(const double* inRe, const double* inIm, int n, int type,
                                                           int taps, double fs, double fl, double fh, int window,
                                                           double windowParameter, double* outRe, double* outIm);

/**
 * Narrow-band FIR filter from zero state. The delay is ((modelCount-1)*interpolation + imageCount - 1)/2 samples.
 * @param in      [n]  samples; only read; may be the same array as out
 * @param n            number of samples, 1 or more
 * @param filter       record by value, holding a design of QuorDSP_FIRNarrowBandCoef; neither it nor its arrays change
 * @param out     [n]  filtered samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null array; -20061 type of the record; -20001
 *         memory. On failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc410    @source Neuvo, Cheng-Yu & Mitra
 */
QUORDSP_API AnalysisLibErrType QuorDSP_FIRNarrowBandFilter(const double* in, int n, QuorDSP_FIRFilter filter,
                                                           double* out);

/**
 * Like QuorDSP_FIRNarrowBandFilter, but for a complex signal.
 * @param inRe   [n]  real parts; only read; may be the same array as outRe or outIm
 * @param inIm   [n]  imaginary parts, likewise
 * @param n           number of samples; for n < 1 no array is touched
 * @param outRe  [n]  filtered real parts
 * @param outIm  [n]  filtered imaginary parts
 * @return The statuses of the real filter. For n > 0 the outputs hold unspecified values after a failure, except
 *         after -5093 for lack of scratch memory, which leaves them untouched.
 * @entry AALFunc411
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxFIRNarrowBandFilter(const double* inRe, const double* inIm, int n,
                                                             QuorDSP_FIRFilter filter, double* outRe, double* outIm);

/**
 * Savitzky-Golay smoothing: each sample becomes the value of a polynomial fitted to the frame of
 * F = 2*sidePoints + 1 samples around it; the first and last sidePoints samples take their values from the first
 * and the last frame. No delay.
 * @param in          [n]  samples; only read; may be the same array as out
 * @param n                number of samples, F or more; less than F: -20008
 * @param order            order of the polynomial, 0 <= order < F
 * @param sidePoints       samples on either side of the middle one, 0 or more
 * @param weights     [F]  weights of the fit, finite and not negative; null: all 1
 * @param out         [n]  smoothed samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n < 1; -20008 null array or n < F; -20103 order < 0;
 *         -20004 sidePoints; -20037 F <= order; -20041 weights, see QuorDSP_SavitzkyGolayCoef; -20001 memory. On
 *         failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc356    @source Savitzky & Golay
 */
QUORDSP_API AnalysisLibErrType QuorDSP_SavitzkyGolayFiltering(const double* in, int n, int order, int sidePoints,
                                                              const double* weights, double* out);

/**
 * Like QuorDSP_SavitzkyGolayFiltering, but for a complex signal.
 * @param inRe   [n]  real parts; only read; may be the same array as outRe or outIm
 * @param inIm   [n]  imaginary parts, likewise
 * @param n           number of samples; for n < 1 no array is touched
 * @param outRe  [n]  smoothed real parts
 * @param outIm  [n]  smoothed imaginary parts
 * @return The statuses of the real filter. For n > 0 the outputs hold unspecified values after a failure, except
 *         after -5093 for lack of scratch memory, which leaves them untouched.
 * @entry AALFunc357
 */
QUORDSP_API AnalysisLibErrType QuorDSP_SavitzkyGolayFiltering_CxInput(const double* inRe, const double* inIm, int n,
                                                                      int order, int sidePoints, const double* weights,
                                                                      double* outRe, double* outIm);

/**
 * Median filter: out[i] is the median of in[i-leftRank] .. in[i+rightRank], where samples outside the signal count
 * as 0; for an even number of values it is the mean of the middle two. A window that holds a NaN gives NaN.
 * @param in         [n]  samples; only read; may be the same array as out
 * @param n               number of samples, 1 or more
 * @param leftRank        samples before the current one, 0 or more
 * @param rightRank       samples after the current one, less than n; any negative value: the same as leftRank
 * @param out        [n]  filtered samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null array; -20032 ranks; -20001 memory. On
 *         failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc407    @source Tukey, Exploratory Data Analysis, 1977, ch. 7
 */
QUORDSP_API AnalysisLibErrType QuorDSP_MedianFilter(const double* in, int n, int leftRank, int rightRank, double* out);

/*
 * Transforms. See SPECTRA above for factors, order of bins and shifting.
 */

/**
 * Discrete Fourier transform of a complex signal, in place.
 * @param re  [n]  real parts, replaced by those of the spectrum
 * @param im  [n]  imaginary parts, likewise
 * @param n        number of points, 1 or more
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null array; -20001 memory. On failure re and
 *         im are untouched.
 * @threads any, on different arrays    @entry AALFunc77    @source Cooley & Tukey; O&S, ch. 8 and 9
 */
QUORDSP_API AnalysisLibErrType QuorDSP_FFT(double* re, double* im, int n);

/**
 * Like QuorDSP_FFT, but the inverse, with the factor 1/n.
 * @entry AALFunc102
 */
QUORDSP_API AnalysisLibErrType QuorDSP_InvFFT(double* re, double* im, int n);

/**
 * Like QuorDSP_FFT, but of a real signal: im is only written.
 * @param re  [n]  signal, replaced by the real parts of all n bins
 * @param im  [n]  receives the imaginary parts of all n bins
 * @entry AALFunc147
 */
QUORDSP_API AnalysisLibErrType QuorDSP_ReFFT(double* re, double* im, int n);

/**
 * Like QuorDSP_InvFFT, but of the spectrum of a real signal: only bins 0..floor(n/2) are read, and im is kept.
 * @param re  [n]  real parts of the spectrum, replaced by the signal
 * @param im  [n]  imaginary parts of the spectrum; only read
 * @entry AALFunc148
 */
QUORDSP_API AnalysisLibErrType QuorDSP_ReInvFFT(double* re, double* im, int n);

/**
 * Table of factors that spares repeated transforms of one size their preparation. On Windows the table is announced
 * to the resource tracker of a run-time module (see THE BACKEND MODULE, 2.) that the process has loaded.
 * @param n   size of the transforms, 1 or more
 * @return The table, to be freed with QuorDSP_DestroyFFTTable; null when there is no backend, no entry, no memory,
 *         or when n < 1.
 * @threads any    @entry AALFunc260
 */
QUORDSP_API QuorDSP_FFTTable* QuorDSP_CreateFFTTable(int n);

/**
 * Frees a table; without a backend it does nothing.
 * @param table   table from QuorDSP_CreateFFTTable, not used by any other call; null is ignored
 * @threads any    @entry AALFunc261
 */
QUORDSP_API void QuorDSP_DestroyFFTTable(QuorDSP_FFTTable* table);

/**
 * Discrete Fourier transform of a real signal, of a chosen size, with an optional table and shift. Only the first n
 * bins of the m-point spectrum are handed out: for a zero-padded spectrum in full, pad x and pass n = m.
 * @param x      [n]  signal; only read; may be the same array as outRe or outIm
 * @param n           number of samples, 1 or more, and length of the outputs
 * @param m           size of the transform: m > n appends zeros, 0 < m < n takes the first m samples, m <= 0 means n
 * @param p           table for transforms of size m, or null; a table of another size is ignored
 * @param flag        nonzero: shift 0 Hz to the centre of the m bins
 * @param outRe  [n]  receives real parts: bins 0..min(n,m)-1, after shifting; for m < n the rest is unspecified
 * @param outIm  [n]  receives imaginary parts, likewise
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null x; -20001 memory. For n > 0 the outputs
 *         hold unspecified values after a failure, except after -5093 for lack of scratch memory, which leaves them
 *         untouched.
 * @threads any, on different arrays; a table is only read    @entry AALFunc262
 * @source Cooley & Tukey; O&S, ch. 8 and 9
 */
QUORDSP_API AnalysisLibErrType QuorDSP_FFTEx(const double* x, int n, int m, const QuorDSP_FFTTable* p, int flag,
                                             double* outRe, double* outIm);

/**
 * Like QuorDSP_FFTEx, but of a complex signal.
 * @param inRe   [n]  real parts; only read; may be the same array as outRe or outIm
 * @param inIm   [n]  imaginary parts, likewise
 * @entry AALFunc263
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxFFTEx(const double* inRe, const double* inIm, int n, int m,
                                               const QuorDSP_FFTTable* p, int flag, double* outRe, double* outIm);

/**
 * Inverse transform of the spectrum of a real signal, with the factor 1/n, an optional table and shift. Only bins
 * 0..floor(n/2) are used, in the order before shifting.
 * @param inRe  [n]  real parts of the spectrum; only read; may be the same array as out
 * @param inIm  [n]  imaginary parts, likewise
 * @param n          number of bins and of samples, 1 or more; for n < 1 no input is read
 * @param p          table for transforms of size n, or null; a table of another size is ignored
 * @param flag       nonzero: the spectrum has 0 Hz at its centre
 * @param out   [n]  receives the signal
 * @return 0; -5093 no backend or no scratch memory; -5094 entry missing; -20003 n; -20008 null out; -20001 memory.
 *         On failure out is untouched.
 * @threads any, on different arrays; a table is only read    @entry AALFunc264
 * @source Cooley & Tukey; O&S, ch. 8 and 9
 */
QUORDSP_API AnalysisLibErrType QuorDSP_InvFFTEx(const double* inRe, const double* inIm, int n,
                                                const QuorDSP_FFTTable* p, int flag, double* out);

/**
 * Like QuorDSP_InvFFTEx, but to a complex signal, from all n bins.
 * @param inRe   [n]  real parts of the spectrum; only read; may be the same array as outRe or outIm
 * @param inIm   [n]  imaginary parts, likewise
 * @param outRe  [n]  receives the real parts of the signal
 * @param outIm  [n]  receives the imaginary parts
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20001 memory. For n > 0 the outputs hold unspecified
 *         values after a failure, except after -5093 for lack of scratch memory, which leaves them untouched.
 * @entry AALFunc265
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxInvFFTEx(const double* inRe, const double* inIm, int n,
                                                  const QuorDSP_FFTTable* p, int flag, double* outRe, double* outIm);

/**
 * Two-dimensional transform of a real matrix, which is cut, or padded with zeros at the ends of rows and columns,
 * to the size of the result.
 * @param in             [rows*columns]                matrix, row-major; only read; must not overlap out
 * @param rows                                         rows of in, 1 or more
 * @param columns                                      columns of in, 1 or more
 * @param resultRows                                   rows of the result; 0 or less stands for rows
 * @param resultColumns                                columns of the result; 0 or less stands for columns
 * @param shift                                        nonzero: 0 Hz at the centre of both axes
 * @param out            [2*resultRows*resultColumns]  receives complex elements as pairs real, imaginary; row-major
 * @return 0; -5093 no backend; -5094 entry missing; -20003 rows or columns; -20008 null array; -20001 memory. On
 *         failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc266    @source Cooley & Tukey; O&S, ch. 8 and 9
 */
QUORDSP_API AnalysisLibErrType QuorDSP_FFT2D(const double* in, int rows, int columns, int resultRows, int resultColumns,
                                             int shift, double* out);

/**
 * Like QuorDSP_FFT2D, but of a complex matrix.
 * @param in  [2*rows*columns]   complex elements as pairs real, imaginary; row-major
 * @entry AALFunc267
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxFFT2D(const double* in, int rows, int columns, int resultRows,
                                               int resultColumns, int shift, double* out);

/**
 * Two-dimensional inverse transform to a real matrix, with the factor 1/(rows*columns). Only rows 0..floor(rows/2)
 * of the spectrum are used, in the order before shifting.
 * @param in       [2*rows*columns]   complex elements as pairs real, imaginary; row-major; must not overlap out
 * @param rows                        rows, 1 or more
 * @param columns                     columns, counted in complex elements, 1 or more
 * @param shifted                     nonzero: the spectrum has 0 Hz at the centre of both axes
 * @param out      [rows*columns]     receives the matrix, row-major
 * @return 0; -5093 no backend; -5094 entry missing; -20003 rows or columns; -20008 null array; -20001 memory. On
 *         failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc268    @source Cooley & Tukey; O&S, ch. 8 and 9
 */
QUORDSP_API AnalysisLibErrType QuorDSP_InvFFT2D(const double* in, int rows, int columns, int shifted, double* out);

/**
 * Like QuorDSP_InvFFT2D, but to a complex matrix, from all rows.
 * @param out  [2*rows*columns]   receives complex elements as pairs real, imaginary; row-major
 * @entry AALFunc269
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxInvFFT2D(const double* in, int rows, int columns, int shifted, double* out);

/*
 * Spectra.
 */

/**
 * Two-sided power spectrum of a real signal, in place: S[k] = |Y[k]|^2 / n^2.
 * @param x  [n]  signal, replaced by the power spectrum, in the square of its unit
 * @param n       number of points, 1 or more
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null array; -20001 memory. On failure x is
 *         untouched.
 * @threads any, on different arrays    @entry AALFunc161    @source O&S, ch. 10
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Spectrum(double* x, int n);

/**
 * Two-sided power spectrum of a complex signal: S[k] = |Y[k]|^2 / n^2.
 * @param inRe  [n]  real parts; only read; may be the same array as out
 * @param inIm  [n]  imaginary parts, likewise
 * @param n          number of points, 1 or more; for n < 1 no input is read
 * @param out   [n]  receives the power spectrum, in the square of the unit of the signal
 * @return 0; -5093 no backend or no scratch memory; -5094 entry missing; -20003 n; -20008 null out; -20001 memory.
 *         On failure out is untouched.
 * @threads any, on different arrays    @entry AALFunc467    @source O&S, ch. 10
 */
QUORDSP_API AnalysisLibErrType QuorDSP_CxSpectrum(const double* inRe, const double* inIm, int n, double* out);

/**
 * One-sided power spectrum of a real signal: out[0] = |Y[0]|^2 / n^2, out[k] = 2 |Y[k]|^2 / n^2. The Nyquist bin is
 * not part of it.
 * @param in   [n]                  signal; only read; must not overlap out
 * @param n                         number of points, 1 or more
 * @param dt   s                    sampling interval, > 0, else -20016
 * @param out  [max(1,floor(n/2))]  receives the power (rms), in the square of the unit of in
 * @param df   [1], Hz              receives the distance of the bins, 1/(n dt)
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null pointer; -20016 dt; -20001 memory. On
 *         failure out and df are untouched.
 * @threads any, on different arrays    @entry AALFunc10    @source O&S, ch. 10
 */
QUORDSP_API AnalysisLibErrType QuorDSP_AutoPowerSpectrum(const double* in, int n, double dt, double* out, double* df);

/**
 * One-sided amplitude and phase spectrum of a real signal: amplitude[0] = |Y[0]|/n, amplitude[k] = sqrt(2) |Y[k]|/n,
 * the root of QuorDSP_AutoPowerSpectrum. The Nyquist bin is not part of it.
 * @param in         [n]                  signal; only read; must not overlap the outputs
 * @param n                               number of points, 1 or more
 * @param unwrap                          nonzero: unwrap the phase, so that neighbours differ by at most pi
 * @param dt         s                    sampling interval, > 0, else -20016
 * @param amplitude  [max(1,floor(n/2))]  receives the amplitudes (rms), in the unit of in
 * @param phase      [max(1,floor(n/2))]  receives the phases, radians, in (-pi, pi] unless unwrapped; 0 for no signal
 * @param df         [1], Hz              receives the distance of the bins, 1/(n dt)
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null pointer; -20016 dt; -20001 memory. On
 *         failure the outputs are untouched.
 * @threads any, on different arrays    @entry AALFunc5    @source O&S, ch. 10
 */
QUORDSP_API AnalysisLibErrType QuorDSP_AmpPhaseSpectrum(const double* in, int n, int unwrap, double dt,
                                                        double* amplitude, double* phase, double* df);

/*
 * Extrema, sorting, peaks.
 */

/**
 * Greatest and least sample and their places. Of equal samples the first counts. NaN is skipped; when there is
 * nothing else both values are NaN at index 0.
 * @param in        [n]  samples; only read
 * @param n              number of samples, 64-bit, 1 or more
 * @param max       [1]  receives the greatest sample
 * @param maxIndex  [1]  receives its index, from 0; set it to 0 before: another backend may write 32 bits only
 * @param min       [1]  receives the least sample
 * @param minIndex  [1]  receives its index, likewise
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null pointer. On failure the outputs are
 *         untouched.
 * @threads any, on different outputs    @entry AALFunc120
 */
QUORDSP_API AnalysisLibErrType QuorDSP_MaxMin1D(const double* in, int64_t n, double* max, int64_t* maxIndex,
                                                double* min, int64_t* minIndex);

/**
 * Sorts samples. NaN goes to the end in either direction. Zeros of both signs are equal. With the default backend they
 * and NaN keep their order, n more doubles of memory are needed, and ordered samples take no longer than random ones.
 * @param in         [n]  samples; only read; may be the same array as out
 * @param n               number of samples, 1 or more
 * @param direction       0 ascending, nonzero descending
 * @param out        [n]  receives the sorted samples
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null array; -20001 memory. On failure out is
 *         untouched.
 * @threads any, on different arrays    @entry AALFunc160
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Sort(const double* in, int n, int direction, double* out);

/**
 * Peaks or valleys of a signal, which may come in consecutive blocks. A parabola is fitted to every group of width
 * consecutive samples; its vertex gives places between the samples and amplitudes that no sample has. A peak is
 * reported about width/2 samples late, so with blocks perhaps in the next call.
 *
 * With the default backend there is a peak where the slope of the parabola at the centre of its group passes from
 * positive to 0 or less, from one group to the next: of the two that open downwards it is the vertex nearer to the
 * centre of its group. At either end a vertex within half a sample of the centre of the first or last group is one,
 * too. Groups with NaN or infinity have no parabola. However a signal is cut into blocks, the peaks have the same bits.
 * A first block without initialize begins a sequence, as does one after endOfData.
 * @param in                 [n]  samples; only read
 * @param n                       number of samples, 1 or more; fewer than width in the whole sequence give no peaks
 * @param threshold               peaks with a fitted height below it are dropped (valleys: with a bottom above it)
 * @param width                   samples per fit, less than 3 counts as 3; 3 is best for clean data, more for noise
 * @param polarity                0 peaks, nonzero valleys
 * @param initialize              nonzero for the first block of a sequence
 * @param endOfData               nonzero for the last block; both nonzero for a single block
 * @param count              [1]  receives the number of peaks found in this call
 * @param locations          [1]  receives an array [*count]: places, fractional samples from the start of the sequence
 * @param amplitudes         [1]  receives an array [*count]: fitted heights, in the unit of in
 * @param secondDerivatives  [1]  receives an array [*count]: second derivatives for unit spacing, negative for peaks
 * @return 0; -5093 no backend; -5094 entry missing; -20003 n; -20008 null pointer; -20064 width or polarity changed
 *         in the middle of a sequence; -20001 memory. On failure nothing is written, and with the default backend the
 *         sequence is where it was: the block may be given again. After success the caller frees the three arrays
 *         with FreeAnalysisMem of the backend, also when *count is 0. On Windows they are announced to the resource
 *         tracker of a run-time module that the process has loaded.
 * @threads any; a sequence of blocks stays on one thread, each thread has its own    @entry AALFunc194
 * @source least-squares parabola: Savitzky & Golay
 */
QUORDSP_API AnalysisLibErrType QuorDSP_PeakDetector(const double* in, int n, double threshold, int width, int polarity,
                                                    int initialize, int endOfData, int64_t* count, double** locations,
                                                    double** amplitudes, double** secondDerivatives);

/*
 * Trends, levels and signal-to-noise ratio, computed in this library alone.
 */

/**
 * Removes a piecewise polynomial trend, in place: least-squares fit of the powers 1..order of the position, of the
 * same powers of the distance beyond each breakpoint, and of a constant. The fitted trend is continuous, with
 * continuous derivatives up to order-1.
 *
 * Order 0 takes one mean off all samples: their own or, when there is a valid breakpoint, that of the samples up to
 * the one nearest to the first valid breakpoint given. Later breakpoints have no effect then; this is intended.
 * @param signal           [count]            samples, replaced by signal minus trend
 * @param count                               number of samples; 1 leaves 0 (NaN for NaN or infinity)
 * @param order                               order of the polynomial, 0 or more
 * @param breakpoints      [breakpointCount]  places, counted from 1, where the trend may bend; only read; in any order;
 *                                            NaN and those not between 1 and count (exclusive) are ignored
 * @param breakpointCount                     number of breakpoints; below 1, or with null breakpoints, there are none
 * @return 0, always. For count < 1 or order < 0, and when there is no memory for the fit, signal is untouched; so
 *         it is for more than about 46200 unknowns: 1 + order * (1 + valid breakpoints), at most count.
 *         NaN or infinity among the samples leaves none of them finite; only for order 0 with a valid breakpoint it has
 *         no effect on others when it stands behind the samples of the mean. Equal breakpoints make the fit singular:
 *         the result may then be anything, infinite or NaN. With more unknowns than samples, the fit takes the first as
 *         many, the highest powers; it is singular then, too.
 * @threads any, on different arrays    @source Golub & Van Loan, ch. 5 (Householder QR)
 * @accuracy a polynomial of the fitted order (coefficients of like size over 0..1) leaves at most 1e-12 of its
 *           largest sample, for order <= 15 and count <= 10000. Of noise, the residuals are right to 1e-12 of its
 *           largest sample for order <= 5 and count > order, to 5e-9 for order <= 10 and count >= 20, to 3e-5 for order
 *           <= 15 and count >= 60. With up to three breakpoints, at least a fifth of the block from each other and from
 *           its ends, and count >= 50: to 1e-12 for order <= 2, 5e-12 for order 3, 1e-10 for order 4, 2e-9 for order 5.
 *           High powers are nearly dependent. Close breakpoints and counts near the number of unknowns make the fit
 *           nearly singular: nothing is promised then.
 *           Memory grows with the square of the number of unknowns, not with count; time with both.
 */
QUORDSP_API AnalysisLibErrType QuorDSP_detrend(double* signal, int count, int order, double* breakpoints,
                                               int breakpointCount);

/**
 * Removes the least-squares straight line over the sample index, in place. The squares of the indices are formed in
 * wrapping 32-bit arithmetic, which is intended: above 46341 samples the removed line is another than the
 * least-squares one. The sums run from index 0 upwards, so results repeat to the last bit.
 * @param data   [count]  samples, replaced by their distance from the line
 * @param count           number of samples; less than 1: nothing is touched; 1: the sample becomes NaN. NaN or infinity
 *                        among the samples makes them all NaN
 * @threads any, on different arrays    @source Draper & Smith, Applied Regression Analysis, 3rd ed., ch. 1
 * @accuracy a straight line leaves at most 1e-13 of its largest sample, for 2 <= count <= 46341
 */
QUORDSP_API void linear_regression(double* data, int count);

/**
 * Signal-to-noise ratio in decibels, element by element: snr[i] = 10 log10(signal[i] / noise[i]).
 * @param signal  [n]  signal powers; only read
 * @param n            number of elements; less than 1: nothing is touched
 * @param noise   [n]  noise powers, in the unit of signal; only read
 * @param snr     [n]  receives the ratios, dB; may be the same array as signal or noise. Zero, negative and non-finite
 *                     values give infinities and NaN as IEEE arithmetic has them
 * @return 0, always.
 * @threads any, on different arrays    @source definition of the decibel
 * @accuracy 1e-15 dB plus 4 units in the last place, for ratios in the normal range
 */
QUORDSP_API AnalysisLibErrType QuorDSP_getSNR(const double* signal, int n, const double* noise, double* snr);

/**
 * Reserved for an A-weighted sound pressure level. It does nothing.
 * @param signal   ignored; may be null
 * @param n        ignored
 * @param fs       ignored
 * @param level    ignored, not written; may be null
 * @return 0, always.
 * @threads any
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Calc_SPL_A(const double* signal, int n, double fs, double* level);

/*
 * Vibration: from the raw block of an accelerometer to acceleration, velocity and displacement. All three exports
 * take 9.78 m/s^2 for g, remove trends after integrating (so slow motion is lost) and, but for
 * QuorDSP_Acceleration, integrate with the trapezoidal rule. QuorDSP_Vibration_Acceleration_Euler stands at the end
 * of this file. All arrays of a call are distinct.
 */

/**
 * Acceleration, velocity and displacement of one stream of blocks, with limits and detrending. Elements of params:
 *     [0]  1 or more, below 2^31: first block of a stream; any other value, NaN and infinity included: a
 *          continuation, which ignores [1]..[9] and goes on with the stored settings, but with offset 0
 *     [1]  sampling rate, Hz
 *     [2]  sensitivity, mV per g for raw samples in V
 *     [3]  offset, g
 *     [4], [5]  initial velocity, m/s, and displacement, m
 *     [6], [7]  upper and lower bound of the velocity, m/s
 *     [8], [9]  upper and lower bound of the displacement, m
 * The straight line is taken out of the acceleration before it is integrated, and out of the velocity before that
 * is. The bounds clip the integrated values as they are stored; the running integral goes on unclipped. Where the
 * lower bound exceeds the upper one the lower is stored. Last, the velocity is detrended with order 2 in the first
 * block and 5 in the others, the displacement with order 15, which leaves anything or NaN of fewer than 16 samples,
 * and rounding errors of 16. A stream that has had no first block starts with 51200 Hz, 17.53 mV per g, bounds of -1e8
 * and 1e8, and 0.
 *
 * Intended: the sampling interval of a call is that of the rate stored before it (51200 Hz at first), so a new rate
 * takes effect with the second block. In the first block velocity[0] and displacement[0] are 0 before the trends
 * are removed, the initial values enter from element 1 on, and the displacement integrates the velocity one sample
 * ahead, with a velocity of 0 beyond the last sample: velocity[count] is not read. In a continuation the first
 * elements are not clipped.
 * @param params        [10]            settings, see above; only read
 * @param raw           [count]         raw samples; only read
 * @param acceleration  [count], m/s^2  receives (1000 raw/sensitivity + offset) * 9.78, not detrended
 * @param velocity      [count], mm/s   receives the velocity
 * @param displacement  [count], mm     receives the displacement
 * @param count                         number of samples, 1 or more; with 1 the velocity is NaN, also in later blocks
 *                                      of the stream
 * @return 0; 20032 for a null array or count < 1: nothing is written and the stream is unchanged. A zero
 *         sensitivity or rate gives infinities and NaN. Memory is needed by QuorDSP_detrend alone: when there is none
 *         the record keeps its trend, and the stream goes on from there.
 * @threads one call in the process at a time, and one stream at a time: the state is process-wide
 * @source trapezoidal rule: Davis & Rabinowitz, ch. 2
 * @accuracy the velocity of a sine of frequency f is scaled by x/tan(x) with x = pi f/fs, -0.033% at fs/100, -0.82% at
 *           fs/20; the displacement by the square of this. Removing order m takes at most another
 *           (m+1)(m+2)/(3P)^2 of a sine with P >= 10 periods a block, f <= fs/8: with P = 50 0.19% of the velocity
 *           and 1.2% of the displacement. Both to 0.01% in blocks of 5000 samples
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Vibration_Acceleration(double* params, double* raw, double* acceleration,
                                                              double* velocity, double* displacement, int count);

/**
 * Acceleration, velocity and displacement of one stream of blocks, integrated by the backend with Simpson's rule.
 * There is no start call: each call goes on from the last values of the call before it, at first from 0. So a block
 * that ends in NaN, by a NaN among its samples or by too few of them for the trends, makes all later ones NaN.
 * The velocity is detrended with order 5, the displacement with order 9.
 *
 * Intended: as in QuorDSP_Vibration_Acceleration the interval is that of the rate stored before the call (51200 Hz at
 * first). Statuses of the backend are ignored: when it is missing or refuses the interval (an infinite rate) nothing is
 * integrated, and velocity and displacement are processed as the caller left them.
 * @param params        [10]            [1] sampling rate, Hz, > 0; [2] sensitivity, mV per g for raw samples in V;
 *                                      [3] offset, g; the others are ignored; only read
 * @param raw           [count]         raw samples; only read
 * @param acceleration  [count], m/s^2  receives (1000 raw/sensitivity + offset) * 9.78
 * @param velocity      [count], mm/s   receives the velocity
 * @param displacement  [count], mm     receives the displacement
 * @param count                         number of samples, 1 or more
 * @return 0; 20032 for a null array, count < 1 or a rate that is not above 0: nothing is written and the stream is
 *         unchanged. Memory is needed by QuorDSP_detrend alone: when there is none the record keeps its trend, and
 *         the stream goes on from there.
 * @threads one call in the process at a time, and one stream at a time: the state is process-wide    @entry AALFunc95
 * @source Simpson's rule: Davis & Rabinowitz, ch. 2
 * @accuracy with the default backend the velocity of a sine of frequency f is scaled by x/sin(x) (2 + cos(2x))/3 with
 *           x = pi f/fs, -0.049% at fs/100, -1.23% at fs/20, and leads by half a sample; the displacement twice so.
 *           Removing trends takes and shifts (in radians) at most another (m+1)(m+2)/(3P)^2, as there: with P = 50
 *           0.19% of the velocity and 0.49% of the displacement. Both to 0.01% in blocks of 5000 samples
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Acceleration(double* params, double* raw, double* acceleration, double* velocity,
                                                    double* displacement, int count);

/*
 * Sensors and files, computed in this library alone.
 */

/**
 * Thermocouple voltages to temperatures, by the inverse functions of the ITS-90 with the departures below.
 *     type  0 B    1 E    2 J    3 K    4 R    5 S    6 T    7 N
 *     unit  0 degC    1 degF    2 K    3 degR    any other value degC
 * The cold junction adds its type K voltage whatever the type is. Arithmetic is single precision, and the added
 * voltage is rounded to single precision before it is compared with a range end. Intended, and not the published
 * functions:
 *     cold junction  above 1370 degC or below -270 degC: no compensation; the exponential term of type K is added below
 *                    0 degC also
 *     E, J, T, N     0 degC outside E -9.8294..76.3279, J -8.105..69.563, T -6.268..20.882, N -4.365..47.533 mV
 *     E, J, K, T, N  0 degC for NaN
 *     B              250..700 degC polynomial for 0.033 <= E < 1.978 mV, the 700..1820 degC one everywhere else
 *     E              from 0 mV: published coefficients up to degree 7, and -3.2447087e-14 at degree 8
 *     J              0..42.919 mV: coefficients of type K up to degree 6 (132.93 degC at 5.269 mV)
 *     K              below 0 mV only the term -5.1920577e-4 E^8 (-3.41 degC at -3 mV); degree 2 from 0 mV is 0.0786016
 *     N              0..20.613 mV: degree 3 is 0.04701838, the next coefficients sit one degree lower
 *     R              outside -0.24..13.228 mV: 65.47417 degC below 19.739 mV, 34061.777 degC from there on and for NaN
 *     S              from 17.536 mV, below -0.245 mV and for NaN the 1664.5..1768.1 degC polynomial
 * @param emf               [count], mV    measured voltages; only read; may be the same array as temperature
 * @param count                            number of samples; less than 1: returns 0 and touches nothing
 * @param unit                             unit of the results, see above
 * @param type                             thermocouple type, see above
 * @param coldJunctionTemp  degC           temperature of the cold junction
 * @param temperature       [count]        receives the temperatures
 * @return 0; 2147483647 type outside 0..7, nothing is written; -20322 for type K at the first compensated voltage
 *         above 54.9 mV or below -6.478 mV: the samples before it are written, it and the rest are not. Both ends
 *         are themselves out of range, since their single-precision values lie beyond them.
 * @threads any, on different arrays    @source Monograph 175
 * @accuracy distance from the range's polynomial in exact arithmetic, for voltages that a junction of the type gives:
 *           T 0.001, E, R and N 0.005, B and J 0.01 (J from 0 to 42.919 mV 1.5), K 0.02, S 0.05 degC; the published
 *           polynomials are themselves within 0.06 degC of the ITS-90. The same bits on every machine, but for the
 *           cold junction's voltage as far as the system's exp differs
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Thermocouple(double emf[], int count, int unit, int type,
                                                    double coldJunctionTemp, double temperature[]);

/**
 * Writes samples as a WAV file: 16-bit PCM, both of its two channels the same, with a fact chunk (56-byte header).
 * The whole file is put together in memory and then written in one piece.
 * @param fileName              path in the system's narrow encoding; an existing file is replaced. Null, like a folder
 *                              or a path in a missing folder, is a file that cannot be created
 * @param samples     [count]   samples, full scale -1..1; only read. A value times 32767, in single precision, is cut
 *                              towards zero and its low 16 bits are written: outside -1..1 it wraps; NaN and values
 *                              beyond 32 bits give 0
 * @param count                 number of samples; 0 or less: the header alone, formed from the value as it stands. The
 *                              sizes in the header are modulo 2^32; more than 2^30 - 13 samples do not fit them, but
 *                              are all written
 * @param sampleRate  Hz        sampling rate
 * @return 0; 20033 when the file cannot be created or cannot be written to its end, and when there is no memory for
 *         it, with a message in Chinese (UTF-8) on the standard error stream. Without memory, or where it cannot be
 *         opened, an existing file stays as it is; an incomplete file is removed, unless it is no regular file; behind
 *         a symbolic link it is emptied, and the link stays, but on Windows is deleted.
 * @threads any, on different files    @source RIFF/WAVE file format, 1991
 * @accuracy exact: one step of 1/32767
 */
QUORDSP_API AnalysisLibErrType QuorDSP_WriteWAV(const char* fileName, const float samples[], int count,
                                                unsigned int sampleRate);

/**
 * Writes samples as a WAV file: PCM of 8, 16, 24 or 32 bits, every channel the same (44-byte header). Values
 * outside -1..1 are clipped, then scaled and cut towards zero:
 *     8 bits   (s + 1)/2 * 254 + 1, unsigned: 1..255, with 0.0 as 128
 *     16 bits  s * 32767        24 bits  s * 8388607        32 bits  s * 2147483648, -2147483647..2147483647
 * NaN gives the low bits of 0x80000000: 0, and -2147483648 with 32 bits. The whole file is put together in memory and
 * then written in one piece.
 * @param fileName              like QuorDSP_WriteWAV
 * @param samples     [count]   samples, full scale -1..1; only read
 * @param count                 number of samples; 0 or less: the header alone
 * @param sampleRate  Hz        sampling rate
 * @param bitDepth              8, 16, 24 or 32; any other value: no file is written
 * @param numChannels           number of channels, of which the header holds the low 16 bits; 0 or less: the header
 *                              alone, with 0 channels
 * @return 0, always, also when no file could be written: that is silent, and files are kept and removed as by
 *         QuorDSP_WriteWAV. Sizes beyond the 32 bits of the header are reported on the standard output ("ERROR:
 *         couldn't save file to " and the path), and nothing is written, either.
 * @threads any, on different files    @source RIFF/WAVE file format, 1991
 * @accuracy exact: one step of 1/127, 1/32767, 1/8388607 or 1/2147483648
 */
QUORDSP_API AnalysisLibErrType QuorDSP_WriteWAVFile(const char* fileName, const float samples[], int count,
                                                    int sampleRate, int bitDepth, int numChannels);

#ifdef __cplusplus
}
#endif

/*
 * The two exports with decorated names. They have C++ linkage: a C++ compiler with the platform's own ABI finds
 * them by itself, any other one through the labels at the end of this file. Their parameter types are part of their
 * names.
 */

/**
 * Equiripple FIR coefficients for any bands (Parks-McClellan), from split band arrays. The status is always 20032
 * and tells nothing; set *outB to a negative number or NaN before the call to see whether there is a design.
 * @param n                  number of taps, 3 or more
 * @param d      Hz          sampling frequency, > 0
 * @param bandA  [bandCount] gain of each band; for a differentiator its slope A: gain A f/d
 * @param bandB  [bandCount] Hz, lower edge of each band
 * @param bandC  [bandCount] Hz, upper edge, above the lower one; bands ascend and do not overlap, up to d/2
 * @param bandD  [bandCount] weight of each band's error, > 0; for a differentiator relative to the frequency
 * @param bandCount          number of bands, 1 or more; it may exceed n; for less than 1 no band array is read
 * @param k                  0 multiband, 1 differentiator, 2 Hilbert transformer
 * @param outA   [n]         receives the coefficients
 * @param outB   [1]         receives the largest weighted deviation from the ideal gain, linear
 * @return 20032, always. The outputs are untouched when there is no backend or no entry, when memory is short, and
 *         when the default backend rejects the design; the conditions are those of QuorDSP_Equi_Ripple.
 * @threads any, on different arrays    @entry AALFunc408    @source Parks & McClellan; O&S, ch. 7
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Parks_McClellanCoef(int n, double d, double* const bandA, double* const bandB,
                                                           double* const bandC, double* const bandD, int bandCount,
                                                           int k, double* const outA, double* outB);

/**
 * Acceleration, velocity and displacement of one block, without any state. Integration is trapezoidal, despite the
 * name. Element count-1 of velocity and displacement is not integrated: set both before the call, for instance to
 * 0, since they take part in the removal of trends as they are; this is intended. Order 3 is removed from the
 * velocity, 15 from the displacement. The bounds clip the integrated values before that; where the lower exceeds
 * the upper one the lower is stored. With count 1 nothing is integrated: velocity[0] becomes NaN, displacement[0] 0
 * (a negative one -0, an infinite one or NaN NaN).
 * @param raw                  [count]            raw samples; only read
 * @param count                                   number of samples
 * @param sampleRate           Hz                 sampling rate; 0 gives infinities and NaN
 * @param scale                g per raw unit     scale of the raw samples
 * @param offset               g                  added to the scaled samples
 * @param initialVelocity      m/s                where the velocity starts
 * @param initialDisplacement  m                  where the displacement starts
 * @param velocityMax          m/s                upper bound of the velocity
 * @param velocityMin          m/s                lower bound of the velocity
 * @param displacementMax      m                  upper bound of the displacement
 * @param displacementMin      m                  lower bound of the displacement
 * @param acceleration         [count], g         receives scale * raw + offset (in g, not m/s^2)
 * @param velocity             [count], m/s       receives the velocity
 * @param displacement         [count], m         receives the displacement
 * @param breakpoints          [breakpointCount]  breakpoints of QuorDSP_detrend for both; only read; null: none
 * @param breakpointCount                         number of breakpoints
 * @return 0, always. For count < 1, and when one of the other arrays is null, nothing is touched. Memory is needed by
 *         QuorDSP_detrend alone: when there is none the record keeps its trend.
 * @threads any, on different arrays
 * @source trapezoidal rule: Davis & Rabinowitz, ch. 2
 * @accuracy as QuorDSP_Vibration_Acceleration, with orders 3 and 15, when the last elements are set to what the sine
 *           has there. The velocity leads by one sample, the displacement by two
 */
QUORDSP_API AnalysisLibErrType QuorDSP_Vibration_Acceleration_Euler(double* const raw, int count, double sampleRate,
                                                                    double scale, double offset, double initialVelocity,
                                                                    double initialDisplacement, double velocityMax,
                                                                    double velocityMin, double displacementMax,
                                                                    double displacementMin, double* const acceleration,
                                                                    double* const velocity, double* const displacement,
                                                                    double* const breakpoints, int breakpointCount);

/*
 * Labels for the decorated names where the compiler would form others: compilers with the GNU ABI on Windows, C
 * compilers elsewhere, and C with the ABI of the platform's compiler on Windows, whose linker is given aliases. The
 * assembler behind GCC takes a question mark in quotes only, and GCC puts prefixes before the quotes when it imports
 * directly or takes an address. So with GCC on Windows these two functions are called through the import library's
 * stub, and their address comes from GetProcAddress.
 */
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wredundant-decls"
#endif
#if defined(__MINGW32__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wattributes"
AnalysisLibErrType QuorDSP_Parks_McClellanCoef(
    int, double, double*, double*, double*, double*, int, int, double*,
    double*) __asm__("\"?QuorDSP_Parks_McClellanCoef@@YA?AW4AnalysisLibErrType@@HNQEAN000HH0PEAN@Z\"");
AnalysisLibErrType QuorDSP_Vibration_Acceleration_Euler(
    double*, int, double, double, double, double, double, double, double, double, double, double*, double*, double*,
    double*, int) __asm__("\"?QuorDSP_Vibration_Acceleration_Euler@@YA?AW4AnalysisLibErrType@@QEANHNNNNNNNNN0000H@Z\"");
#elif defined(__MINGW32__)
QUORDSP_API extern __typeof(QuorDSP_Parks_McClellanCoef)
    QuorDSP_Parks_McClellanCoef __asm__("?QuorDSP_Parks_McClellanCoef@@YA?AW4AnalysisLibErrType@@HNQEAN000HH0PEAN@Z");
QUORDSP_API extern __typeof(QuorDSP_Vibration_Acceleration_Euler) QuorDSP_Vibration_Acceleration_Euler __asm__(
    "?QuorDSP_Vibration_Acceleration_Euler@@YA?AW4AnalysisLibErrType@@QEANHNNNNNNNNN0000H@Z");
#elif !defined(__cplusplus) && defined(__GNUC__) && !defined(_WIN32)
QUORDSP_API extern __typeof(QuorDSP_Parks_McClellanCoef)
    QuorDSP_Parks_McClellanCoef __asm__("_Z27QuorDSP_Parks_McClellanCoefidPdS_S_S_iiS_S_");
QUORDSP_API extern __typeof(QuorDSP_Vibration_Acceleration_Euler)
    QuorDSP_Vibration_Acceleration_Euler __asm__("_Z36QuorDSP_Vibration_Acceleration_EulerPdidddddddddS_S_S_S_i");
#elif !defined(__cplusplus) && defined(_MSC_VER)
#pragma comment(linker, "/alternatename:QuorDSP_Parks_McClellanCoef="                                                  \
                        "?QuorDSP_Parks_McClellanCoef@@YA?AW4AnalysisLibErrType@@HNQEAN000HH0PEAN@Z")
#pragma comment(linker, "/alternatename:__imp_QuorDSP_Parks_McClellanCoef="                                            \
                        "__imp_?QuorDSP_Parks_McClellanCoef@@YA?AW4AnalysisLibErrType@@HNQEAN000HH0PEAN@Z")
#pragma comment(linker, "/alternatename:QuorDSP_Vibration_Acceleration_Euler="                                         \
                        "?QuorDSP_Vibration_Acceleration_Euler@@YA?AW4AnalysisLibErrType@@QEANHNNNNNNNNN0000H@Z")
#pragma comment(linker,                                                                                                \
                "/alternatename:__imp_QuorDSP_Vibration_Acceleration_Euler="                                           \
                "__imp_?QuorDSP_Vibration_Acceleration_Euler@@YA?AW4AnalysisLibErrType@@QEANHNNNNNNNNN0000H@Z")
#endif
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

#endif
