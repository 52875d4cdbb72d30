// ABI of the default analysis backend: the numbered entries that a client binds by name at run time, the records that
// they exchange, and the status codes. The number is the name: AALFunc21 is and stays the Butterworth low-pass filter.
//
// Every numeric entry checks its arguments before it writes any output and leaves all outputs untouched when it returns
// a negative status. Bad arguments are reported in this order: element count, null arrays, order or tap count,
// frequencies, ripple, attenuation, attenuation against ripple, selectors, lengths of coefficient arrays. NaN among the
// scalar arguments is out of range; NaN and infinity among the data flow through. Entries are reentrant: the only state
// that shows lies in what the caller passes (handles, state arrays) and, for AALFunc194, in the calling thread. The
// transforms of the module keep tables of recent sizes, up to 48 MB, which change no result. No entry throws.
// Frequencies are in the unit of fs, phases in radian, ripple and attenuation in positive decibels, 2-D arrays
// row-major. An output array may be the input array where "in place" is said, and nowhere else.
#ifndef QUORDSP_BACKEND_NIANLYS_H
#define QUORDSP_BACKEND_NIANLYS_H

#include <cstdint>

#if !defined(_WIN32)
#define NIANLYS_API __attribute__((visibility("default")))
#elif defined(NIANLYS_BUILDING)
#define NIANLYS_API __declspec(dllexport)
#else
#define NIANLYS_API __declspec(dllimport)
#endif

namespace quordsp::backend {

enum class Status : std::int32_t {
    Success = 0,
    OutOfMemory = -20001,
    CountNotPositive = -20003,
    CountNegative = -20004,
    TooFewTaps = -20007,
    ArraySize = -20008, // a required array is null, or its stated length is not the one that the result has
    IntervalNotPositive = -20016,
    Cutoff = -20020, // of an entry with one frequency: not 0 < fc < fs/2
    OrderNotPositive = -20021,
    Band = -20023, // of an entry with several frequencies: not ascending inside 0..fs/2
    RippleNotPositive = -20024,
    AttenuationNotPositive = -20025,
    AttenuationBelowRipple = -20028,
    DesignFailed = -20031,
    Rank = -20032,
    EvenSize = -20033, // the number of coefficients must be odd
    OddSize = -20034,  // the number of coefficients must be even
    TooFewPointsForOrder = -20037,
    Singular = -20041,
    DivisionByZero = -20060,
    InvalidSelection = -20061,
    StateNotInitialized = -20064,
    IirFilter = -20066, // null or inconsistent cascade filter record
    OrderNegative = -20103,
};

struct Complex {
    double real;
    double imaginary;
};
static_assert(sizeof(Complex) == 16);

// Cascade filter. Ns = (order + 1) / 2 sections: of 2nd order for types 0 low-pass and 1 high-pass, of 4th order (D =
// 4) for 2 band-pass and 3 band-stop. reverse holds a1..aD of each section (a0 = 1 is not stored), forward b0..bD,
// state the newest D values of the section's delay line, newest first. A nonzero reset clears the state at the next
// filtering.
struct IirFilter {
    std::int32_t type;
    std::int32_t order;
    std::int32_t reset;
    std::int32_t reverseCount;
    double* reverse;
    std::int32_t forwardCount;
    double* forward;
    std::int32_t stateCount;
    double* state;
};
static_assert(sizeof(IirFilter) == 56);

// Interpolated (narrow-band) FIR filter: a model filter run on every interpolation-th sample, then an image suppressor.
// Types 0..3 as above, 4 wide-band low-pass, 5 wide-band high-pass.
struct FirFilter {
    std::int32_t type;
    std::int32_t interpolation;
    std::int64_t modelCount;
    double* model;
    std::int64_t imageCount;
    double* image;
};
static_assert(sizeof(FirFilter) == 40);

// Delay line of a complex cascade: as many elements as the filter has reverse coefficients, section by section.
struct ComplexState {
    std::int32_t count;
    Complex* elements;
};
static_assert(sizeof(ComplexState) == 16);

struct Band {
    double amplitude;
    double lowerFrequency;
    double upperFrequency;
    double weight;
};
static_assert(sizeof(Band) == 32);

struct FftTable;

extern "C" {

// IIR band filters in one call: design, then n samples through the cascade from zero state, in place allowed.
// fc, or both fl and fh: Butterworth -3.01 dB; Chebyshev and elliptic the end of the pass band (-ripple); inverse
// Chebyshev the beginning of the stop band (-attenuation); Bessel the asymptote of the Butterworth filter of that
// cut-off. The order is that of the low-pass prototype: band filters have twice as many poles.
// They run on sections of 2nd order in powers of z - 1 or z + 1, whose coefficients lose nothing at low or high
// cut-offs: of orders up to 20 and cut-offs from 1e-4 to 0.499 fs, the gain is within 1e-9 dB of the ideal one in the
// pass band, unless a band is narrower than a hundredth of its centre (docs/accuracy.md). The results of
// IIRCascadeFiltering on cascade coefficients differ by what those lose. An order above 2^20 is answered as "not enough
// memory". A design fails when double precision cannot hold it: when its rounded sections are unstable, or when their
// gain is off by more than 1e-3 of the exact gain at the reference frequency (0; fs/2 for high-pass filters; both for
// band-stop, the centre for band-pass filters) or at a cut-off. Cut-offs down to 1e-150 fs and any below fs/2
// succeed (but for band-stop filters from below about 1e-13 fs to above fs/4, and inverse Chebyshev filters whose poles
// lie below 1e-150 fs), and bands of Butterworth filters down to a width of about 1e-11 of their centre. Bessel filters
// end at order 300 (the time grows with its cube, up to a third of a second), ripples and attenuations at 3080 dB;
// beyond, the design fails.
NIANLYS_API Status AALFunc21(const double* x, std::int64_t n, double fs, double fc, std::int32_t order,
                             double* y) noexcept; // Bw_LPF
NIANLYS_API Status AALFunc20(const double* x, std::int64_t n, double fs, double fc, std::int32_t order,
                             double* y) noexcept; // Bw_HPF
NIANLYS_API Status AALFunc16(const double* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                             double* y) noexcept; // Bw_BPF
NIANLYS_API Status AALFunc17(const double* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                             double* y) noexcept; // Bw_BSF
NIANLYS_API Status AALFunc399(const double* x, std::int64_t n, double fs, double fc, std::int32_t order,
                              double* y) noexcept; // Bssl_LPF
NIANLYS_API Status AALFunc400(const double* x, std::int64_t n, double fs, double fc, std::int32_t order,
                              double* y) noexcept; // Bssl_HPF
NIANLYS_API Status AALFunc401(const double* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                              double* y) noexcept; // Bssl_BPF
NIANLYS_API Status AALFunc402(const double* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                              double* y) noexcept; // Bssl_BSF
NIANLYS_API Status AALFunc27(const double* x, std::int64_t n, double fs, double fc, double ripple, std::int32_t order,
                             double* y) noexcept; // Ch_LPF
NIANLYS_API Status AALFunc26(const double* x, std::int64_t n, double fs, double fc, double ripple, std::int32_t order,
                             double* y) noexcept; // Ch_HPF
NIANLYS_API Status AALFunc22(const double* x, std::int64_t n, double fs, double fl, double fh, double ripple,
                             std::int32_t order, double* y) noexcept; // Ch_BPF
NIANLYS_API Status AALFunc23(const double* x, std::int64_t n, double fs, double fl, double fh, double ripple,
                             std::int32_t order, double* y) noexcept; // Ch_BSF
NIANLYS_API Status AALFunc101(const double* x, std::int64_t n, double fs, double fc, double attenuation,
                              std::int32_t order, double* y) noexcept; // InvCh_LPF
NIANLYS_API Status AALFunc100(const double* x, std::int64_t n, double fs, double fc, double attenuation,
                              std::int32_t order, double* y) noexcept; // InvCh_HPF
NIANLYS_API Status AALFunc96(const double* x, std::int64_t n, double fs, double fl, double fh, double attenuation,
                             std::int32_t order, double* y) noexcept; // InvCh_BPF
NIANLYS_API Status AALFunc97(const double* x, std::int64_t n, double fs, double fl, double fh, double attenuation,
                             std::int32_t order, double* y) noexcept; // InvCh_BSF
NIANLYS_API Status AALFunc64(const double* x, std::int64_t n, double fs, double fc, double ripple, double attenuation,
                             std::int32_t order, double* y) noexcept; // Elp_LPF
NIANLYS_API Status AALFunc63(const double* x, std::int64_t n, double fs, double fc, double ripple, double attenuation,
                             std::int32_t order, double* y) noexcept; // Elp_HPF
NIANLYS_API Status AALFunc59(const double* x, std::int64_t n, double fs, double fl, double fh, double ripple,
                             double attenuation, std::int32_t order, double* y) noexcept; // Elp_BPF
NIANLYS_API Status AALFunc60(const double* x, std::int64_t n, double fs, double fl, double fh, double ripple,
                             double attenuation, std::int32_t order, double* y) noexcept; // Elp_BSF

// The same with real coefficients on a complex signal; a null y means the result replaces x.
NIANLYS_API Status AALFunc450(Complex* x, std::int64_t n, double fs, double fc, std::int32_t order,
                              Complex* y) noexcept; // CxBw_LPF
NIANLYS_API Status AALFunc451(Complex* x, std::int64_t n, double fs, double fc, std::int32_t order,
                              Complex* y) noexcept; // CxBw_HPF
NIANLYS_API Status AALFunc452(Complex* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                              Complex* y) noexcept; // CxBw_BPF
NIANLYS_API Status AALFunc453(Complex* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                              Complex* y) noexcept; // CxBw_BSF
NIANLYS_API Status AALFunc403(Complex* x, std::int64_t n, double fs, double fc, std::int32_t order,
                              Complex* y) noexcept; // CxBssl_LPF
NIANLYS_API Status AALFunc404(Complex* x, std::int64_t n, double fs, double fc, std::int32_t order,
                              Complex* y) noexcept; // CxBssl_HPF
NIANLYS_API Status AALFunc405(Complex* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                              Complex* y) noexcept; // CxBssl_BPF
NIANLYS_API Status AALFunc406(Complex* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                              Complex* y) noexcept; // CxBssl_BSF
NIANLYS_API Status AALFunc454(Complex* x, std::int64_t n, double fs, double fc, double ripple, std::int32_t order,
                              Complex* y) noexcept; // CxCh_LPF
NIANLYS_API Status AALFunc455(Complex* x, std::int64_t n, double fs, double fc, double ripple, std::int32_t order,
                              Complex* y) noexcept; // CxCh_HPF
NIANLYS_API Status AALFunc456(Complex* x, std::int64_t n, double fs, double fl, double fh, double ripple,
                              std::int32_t order, Complex* y) noexcept; // CxCh_BPF
NIANLYS_API Status AALFunc457(Complex* x, std::int64_t n, double fs, double fl, double fh, double ripple,
                              std::int32_t order, Complex* y) noexcept; // CxCh_BSF
NIANLYS_API Status AALFunc458(Complex* x, std::int64_t n, double fs, double fc, double attenuation, std::int32_t order,
                              Complex* y) noexcept; // CxInvCh_LPF
NIANLYS_API Status AALFunc459(Complex* x, std::int64_t n, double fs, double fc, double attenuation, std::int32_t order,
                              Complex* y) noexcept; // CxInvCh_HPF
NIANLYS_API Status AALFunc460(Complex* x, std::int64_t n, double fs, double fl, double fh, double attenuation,
                              std::int32_t order, Complex* y) noexcept; // CxInvCh_BPF
NIANLYS_API Status AALFunc461(Complex* x, std::int64_t n, double fs, double fl, double fh, double attenuation,
                              std::int32_t order, Complex* y) noexcept; // CxInvCh_BSF
NIANLYS_API Status AALFunc462(Complex* x, std::int64_t n, double fs, double fc, double ripple, double attenuation,
                              std::int32_t order, Complex* y) noexcept; // CxElp_LPF
NIANLYS_API Status AALFunc463(Complex* x, std::int64_t n, double fs, double fc, double ripple, double attenuation,
                              std::int32_t order, Complex* y) noexcept; // CxElp_HPF
NIANLYS_API Status AALFunc464(Complex* x, std::int64_t n, double fs, double fl, double fh, double ripple,
                              double attenuation, std::int32_t order, Complex* y) noexcept; // CxElp_BPF
NIANLYS_API Status AALFunc465(Complex* x, std::int64_t n, double fs, double fl, double fh, double ripple,
                              double attenuation, std::int32_t order, Complex* y) noexcept; // CxElp_BSF

// IIR direct coefficients. type as in IirFilter; types 0 and 1 use fl only. na = nb = order + 1, for types 2 and 3
// 2 order + 1; a[0] = 1. A design fails when a coefficient is not finite; the coefficients are rounded one by one, so
// filters of high order and low cut-off lose their gain, and their stability, long before.
NIANLYS_API Status AALFunc19(std::int32_t type, std::int32_t order, double fs, double fl, double fh, double* a,
                             std::int32_t na, double* b, std::int32_t nb) noexcept; // Bw_Coef
NIANLYS_API Status AALFunc13(std::int32_t type, std::int32_t order, double fs, double fl, double fh, double* a,
                             std::int32_t na, double* b, std::int32_t nb) noexcept; // Bessel_Coef
NIANLYS_API Status AALFunc25(std::int32_t type, std::int32_t order, double fs, double fl, double fh, double ripple,
                             double* a, std::int32_t na, double* b, std::int32_t nb) noexcept; // Ch_Coef
NIANLYS_API Status AALFunc99(std::int32_t type, std::int32_t order, double fs, double fl, double fh, double attenuation,
                             double* a, std::int32_t na, double* b, std::int32_t nb) noexcept; // InvCh_Coef
NIANLYS_API Status AALFunc62(std::int32_t type, std::int32_t order, double fs, double fl, double fh, double ripple,
                             double attenuation, double* a, std::int32_t na, double* b,
                             std::int32_t nb) noexcept; // Elp_Coef

// IIR cascade coefficients into a filter of AllocIIRFilterPtr, whose type and order they follow; arms its reset flag.
// They are coefficients of direct form II, which feel rounding the more the lower the cut-offs: at 1e-4 fs the pass
// band of a low-pass or high-pass filter is within 4e-9 dB of the ideal one for Butterworth, 2e-6 dB for elliptic
// designs; of band filters, whose sections are of 4th order, 1e-5 dB at 1e-3 fs and 1e-2 dB at 1e-4 fs for Butterworth
// designs, sharper families less (docs/accuracy.md). Designs fail as above, and that is soon: from order 2 on,
// Butterworth and Bessel low-pass and high-pass designs succeed with cut-offs down to about 3e-8 sqrt(order) fs, and up
// to as far from fs/2, Chebyshev and elliptic ones about 1e-7 order fs, inverse Chebyshev ones as long as their pass
// band ends above that; band filters down to about 1e-4 fs. The gain at the reference frequency is exact but for the
// last bits.
NIANLYS_API Status AALFunc18(double fs, double fl, double fh, IirFilter* filter) noexcept;  // Bw_CascadeCoef
NIANLYS_API Status AALFunc12(double fs, double fl, double fh, IirFilter* filter) noexcept;  // Bessel_CascadeCoef
NIANLYS_API Status AALFunc471(double fs, double fl, double fh, IirFilter* filter) noexcept; // Bessel_CascadeCoefEx
NIANLYS_API Status AALFunc24(double fs, double fl, double fh, double ripple,
                             IirFilter* filter) noexcept; // Ch_CascadeCoef
NIANLYS_API Status AALFunc98(double fs, double fl, double fh, double attenuation,
                             IirFilter* filter) noexcept; // InvCh_CascadeCoef
NIANLYS_API Status AALFunc61(double fs, double fl, double fh, double ripple, double attenuation,
                             IirFilter* filter) noexcept; // Elp_CascadeCoef

// IIR filtering, in place allowed. The cascade keeps its state in the filter (the complex one in state, laid out alike:
// zeros are used and nothing is kept when state is null or of another count; it leaves the reset flag alone), the
// direct form in the last na - 1 outputs ya and nb - 1 inputs xb, newest last; null ya or xb mean zeros. The results
// have the same bits however a signal is cut into blocks; subnormal numbers count as 0. ZeroPhaseFiltering runs
// forwards, then backwards, from zeros each time. MedianFilter takes samples outside the signal as 0, the mean of the
// middle two of an even number, and NaN as soon as a window holds one; a negative rightRank means leftRank; 2^32
// samples are too many for a window's memory.
NIANLYS_API Status AALFunc91(const double* x, std::int64_t n, IirFilter* filter,
                             double* y) noexcept; // IIRCascadeFiltering
NIANLYS_API Status AALFunc466(const Complex* x, std::int64_t n, IirFilter* filter, ComplexState* state,
                              Complex* y) noexcept; // CxIIRCascadeFiltering
NIANLYS_API Status AALFunc92(const double* x, std::int64_t n, const double* a, double* ya, std::int32_t na,
                             const double* b, double* xb, std::int32_t nb, double* y) noexcept; // IIRFiltering
NIANLYS_API Status AALFunc354(const Complex* x, std::int64_t n, const double* a, Complex* ya, std::int32_t na,
                              const double* b, Complex* xb, std::int32_t nb,
                              Complex* y) noexcept; // IIRFiltering_CxInput
NIANLYS_API Status AALFunc385(const double* x, std::int64_t n, const double* a, std::int32_t na, const double* b,
                              std::int32_t nb, double* y) noexcept; // ZeroPhaseFiltering
NIANLYS_API Status AALFunc407(const double* x, std::int64_t n, std::int64_t leftRank, std::int64_t rightRank,
                              double* y) noexcept; // MedianFilter

// FIR design by windows: h receives taps coefficients, not rescaled; HP and BS need odd taps. windType: 1 rectangular,
// 2 triangular, 3 Hanning, 4 Hamming, 5 Blackman. window: 0..9, 11, 30..34, 60 Kaiser (parameter = beta >= 0), 61
// Dolph-Chebyshev (parameter = side lobes, dB, > 0), 62 Gaussian (parameter = deviation / length, > 0); NaN = its
// default. A parameter out of its range, infinity included, is an invalid selection; so is a beta that is NaN.
// Dolph-Chebyshev windows of more than 2^23 taps are answered as "not enough memory". The error of a coefficient is at
// most 1e-15 of the largest one.
NIANLYS_API Status AALFunc189(double fs, double fc, std::int32_t taps, double* h,
                              std::int32_t windType) noexcept; // Wind_LPF
NIANLYS_API Status AALFunc188(double fs, double fc, std::int32_t taps, double* h,
                              std::int32_t windType) noexcept; // Wind_HPF
NIANLYS_API Status AALFunc186(double fs, double fl, double fh, std::int32_t taps, double* h,
                              std::int32_t windType) noexcept; // Wind_BPF
NIANLYS_API Status AALFunc187(double fs, double fl, double fh, std::int32_t taps, double* h,
                              std::int32_t windType) noexcept;                                           // Wind_BSF
NIANLYS_API Status AALFunc112(double fs, double fc, std::int32_t taps, double* h, double beta) noexcept; // Ksr_LPF
NIANLYS_API Status AALFunc111(double fs, double fc, std::int32_t taps, double* h, double beta) noexcept; // Ksr_HPF
NIANLYS_API Status AALFunc109(double fs, double fl, double fh, std::int32_t taps, double* h,
                              double beta) noexcept; // Ksr_BPF
NIANLYS_API Status AALFunc110(double fs, double fl, double fh, std::int32_t taps, double* h,
                              double beta) noexcept; // Ksr_BSF
NIANLYS_API Status AALFunc79(std::int32_t type, double fs, double fl, double fh, std::int32_t taps,
                             double* h) noexcept; // FIR_Coef
NIANLYS_API Status AALFunc335(std::int32_t type, double fs, double fl, double fh, std::int32_t taps,
                              std::int32_t window, double parameter, double* h) noexcept; // WindFIR_Filter

// Equiripple FIR design (Parks-McClellan). The band edges ascend; ripple receives the largest weighted deviation that
// the coefficients have over the bands, linear. High-pass and band-stop filters need an odd number of taps.
// Equi_Ripple: edges has two frequencies a band; type 1 multiband, 2 differentiator (of slope amplitude * f / fs, the
// error counting in proportion to f; bands of slope 0 stop), 3 Hilbert transformer. Parks_McClellanCoef: the same with
// type 0, 1, 2. The last two are antisymmetric and positive first: their response is +j times the amplitude.
// EvenSize: gain at fs/2 with an even number of taps; OddSize: types 2 and 3 up to fs/2 with an odd one; Band: also
// type 3 from 0 on, an amplitude that is not finite, a weight that is not positive and finite.
// The ripple is within 1 % of the least possible one, unless double cannot hold that one: where fewer taps already have
// a deviation about 1e-13 of the largest amplitude, or coefficients so large that their rounding shows, these stand
// between zeros. DesignFailed: the exchange does not settle, within half a minute; more than 4096 taps or 1024
// bands; weights more than 1e8 apart where taps would have to be left out. Time grows with the square of the taps: 1001
// take some 30 ms, 4096 about half a second, and several times as much with many bands or weights that are far apart.
NIANLYS_API Status AALFunc69(double fs, double f1, double f2, std::int32_t taps, double* h,
                             double* ripple) noexcept; // EquiRpl_LPF
NIANLYS_API Status AALFunc68(double fs, double f1, double f2, std::int32_t taps, double* h,
                             double* ripple) noexcept; // EquiRpl_HPF
NIANLYS_API Status AALFunc66(double fs, double f1, double f2, double f3, double f4, std::int32_t taps, double* h,
                             double* ripple) noexcept; // EquiRpl_BPF
NIANLYS_API Status AALFunc67(double fs, double f1, double f2, double f3, double f4, std::int32_t taps, double* h,
                             double* ripple) noexcept; // EquiRpl_BSF
NIANLYS_API Status AALFunc65(std::int32_t bandCount, const double* amplitudes, const double* weights, double fs,
                             const double* edges, std::int32_t type, std::int32_t taps, double* h,
                             double* ripple) noexcept; // Equi_Ripple
NIANLYS_API Status AALFunc408(std::int32_t taps, double fs, const Band* bands, std::int64_t bandCount,
                              std::int32_t type, double* h, double* ripple) noexcept; // Parks_McClellanCoef

// Savitzky-Golay design: frame F = 2 sidePoints + 1 > polynomialOrder; filters F x F, diffFilters (polynomialOrder + 1)
// x F. Weights that are negative or not finite, fewer than polynomialOrder + 1 positive ones, and weights so far apart
// that the small ones are lost beside the others, are answered as "singular"; fits of (order + 1)^2 F > 2^32 as "out of
// memory".
NIANLYS_API Status AALFunc355(std::int32_t polynomialOrder, std::int32_t sidePoints, const double* weights,
                              std::int32_t computeDiffFilters, double* filters,
                              double* diffFilters) noexcept; // SavitzkyGolayCoef

// Narrow-band FIR filters: AALFunc491 makes an empty record or returns null, AALFunc409 designs into it, AALFunc492
// frees it and its two arrays and ignores null. passBand and stopBand are widths; ripple is linear; centerFrequency,
// which is in 0..fs/2 for all types, matters to types 2 and 3 only, which are stored with interpolation 1 and one image
// tap. The model and the suppressor have at most 4096 taps each, a filter of types 2 and 3 at most 2^20; beyond, where
// a deviation below about 1e-13 is asked for, and after half a minute of work the design fails. All lengths are odd.
NIANLYS_API FirFilter* AALFunc491() noexcept;            // AllocFIRFilterPtr
NIANLYS_API void AALFunc492(FirFilter* filter) noexcept; // FreeFIRFilterPtr
NIANLYS_API Status AALFunc409(double fs, double passBand, double stopBand, double centerFrequency, double ripple,
                              double attenuation, std::int32_t type, FirFilter* filter) noexcept; // FIRNarrowBandCoef

// FIR filtering: n samples out, in place allowed. FIRFiltering forms the sums from the newest input to the oldest, with
// the same bits however the signal is cut into blocks and for real signals and parts of complex ones; state = the last
// taps - 1 inputs, newest last; null means zeros, and taps <= 0 copies. Subnormal numbers count as 0. The designing
// ones start from zero state; from 192 taps on, and when taps times samples are 3 million or more, they work by Fourier
// transforms, within 1e-12 sum |h| max |x|, or 1e-298, of those sums. Savitzky-Golay filters need n >= F.
NIANLYS_API Status AALFunc352(const double* x, std::int64_t n, const double* h, double* state, std::int32_t taps,
                              double* y) noexcept; // FIRFiltering
NIANLYS_API Status AALFunc353(const Complex* x, std::int64_t n, const double* h, Complex* state, std::int32_t taps,
                              Complex* y) noexcept; // FIRFiltering_CxInput
NIANLYS_API Status AALFunc472(const double* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                              double* y) noexcept; // EquiRpl_LPFiltering
NIANLYS_API Status AALFunc473(const double* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                              double* y) noexcept; // EquiRpl_HPFiltering
NIANLYS_API Status AALFunc474(const double* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                              double f3, double f4, double* y) noexcept; // EquiRpl_BPFiltering
NIANLYS_API Status AALFunc475(const double* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                              double f3, double f4, double* y) noexcept; // EquiRpl_BSFiltering
NIANLYS_API Status AALFunc481(const double* x, std::int64_t n, std::int32_t taps, double fs, double fc,
                              std::int32_t window, double parameter, double* y) noexcept; // Wind_LPFiltering
NIANLYS_API Status AALFunc482(const double* x, std::int64_t n, std::int32_t taps, double fs, double fc,
                              std::int32_t window, double parameter, double* y) noexcept; // Wind_HPFiltering
NIANLYS_API Status AALFunc483(const double* x, std::int64_t n, std::int32_t taps, double fs, double fl, double fh,
                              std::int32_t window, double parameter, double* y) noexcept; // Wind_BPFiltering
NIANLYS_API Status AALFunc484(const double* x, std::int64_t n, std::int32_t taps, double fs, double fl, double fh,
                              std::int32_t window, double parameter, double* y) noexcept; // Wind_BSFiltering
NIANLYS_API Status AALFunc480(const double* x, std::int64_t n, std::int32_t type, std::int32_t taps, double fs,
                              double fl, double fh, std::int32_t window, double parameter,
                              double* y) noexcept; // WindFIR_Filtering
NIANLYS_API Status AALFunc476(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                              Complex* y) noexcept; // CxEquiRpl_LPFiltering
NIANLYS_API Status AALFunc477(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                              Complex* y) noexcept; // CxEquiRpl_HPFiltering
NIANLYS_API Status AALFunc478(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                              double f3, double f4, Complex* y) noexcept; // CxEquiRpl_BPFiltering
NIANLYS_API Status AALFunc479(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                              double f3, double f4, Complex* y) noexcept; // CxEquiRpl_BSFiltering
NIANLYS_API Status AALFunc486(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double fc,
                              std::int32_t window, double parameter, Complex* y) noexcept; // CxWind_LPFiltering
NIANLYS_API Status AALFunc487(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double fc,
                              std::int32_t window, double parameter, Complex* y) noexcept; // CxWind_HPFiltering
NIANLYS_API Status AALFunc488(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double fl, double fh,
                              std::int32_t window, double parameter, Complex* y) noexcept; // CxWind_BPFiltering
NIANLYS_API Status AALFunc489(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double fl, double fh,
                              std::int32_t window, double parameter, Complex* y) noexcept; // CxWind_BSFiltering
NIANLYS_API Status AALFunc485(const Complex* x, std::int64_t n, std::int32_t type, std::int32_t taps, double fs,
                              double fl, double fh, std::int32_t window, double parameter,
                              Complex* y) noexcept; // CxWindFIR_Filtering
NIANLYS_API Status AALFunc356(const double* x, std::int64_t n, std::int32_t polynomialOrder, std::int32_t sidePoints,
                              const double* weights, double* y) noexcept; // SavitzkyGolayFiltering
NIANLYS_API Status AALFunc357(const Complex* x, std::int64_t n, std::int32_t polynomialOrder, std::int32_t sidePoints,
                              const double* weights, Complex* y) noexcept; // SavitzkyGolayFiltering_CxInput
NIANLYS_API Status AALFunc410(const double* x, std::int64_t n, FirFilter filter,
                              double* y) noexcept; // FIRNarrowBandFilter
NIANLYS_API Status AALFunc411(const Complex* x, std::int64_t n, FirFilter filter,
                              Complex* y) noexcept; // CxFIRNarrowBandFilter

// Fourier transforms of any size; forward unscaled, inverse scaled by 1/N. What they compute for a size is kept for the
// next call, at most some 50 MB in all, until the module goes. The first four work in place; ReFFT ignores
// im's values and writes the whole spectrum, ReInvFFT leaves im as it is.
NIANLYS_API Status AALFunc77(double* re, double* im, std::int64_t n) noexcept;  // FFT
NIANLYS_API Status AALFunc102(double* re, double* im, std::int64_t n) noexcept; // InvFFT
NIANLYS_API Status AALFunc147(double* re, double* im, std::int64_t n) noexcept; // ReFFT
NIANLYS_API Status AALFunc148(double* re, double* im, std::int64_t n) noexcept; // ReInvFFT

// Extended and 2-D transforms: the input is cut or padded with zeros to the stated size (<= 0: its own); a nonzero
// shift puts frequency 0 at the centre. table may be null; one of another size is ignored.
NIANLYS_API FftTable* AALFunc260(std::int64_t size) noexcept; // CreateFFTTable
NIANLYS_API void AALFunc261(FftTable* table) noexcept;        // DestroyFFTTable
NIANLYS_API Status AALFunc262(const double* x, std::int64_t n, std::int64_t fftSize, const FftTable* table,
                              std::int32_t shift, Complex* y) noexcept; // FFTEx
NIANLYS_API Status AALFunc263(const Complex* x, std::int64_t n, std::int64_t fftSize, const FftTable* table,
                              std::int32_t shift, Complex* y) noexcept; // CxFFTEx
NIANLYS_API Status AALFunc264(const Complex* x, std::int64_t n, const FftTable* table, std::int32_t shifted,
                              double* y) noexcept; // InvFFTEx
NIANLYS_API Status AALFunc265(const Complex* x, std::int64_t n, const FftTable* table, std::int32_t shifted,
                              Complex* y) noexcept; // CxInvFFTEx
NIANLYS_API Status AALFunc266(const double* x, std::int64_t rows, std::int64_t columns, std::int64_t resultRows,
                              std::int64_t resultColumns, std::int32_t shift, Complex* y) noexcept; // FFT2D
NIANLYS_API Status AALFunc267(const Complex* x, std::int64_t rows, std::int64_t columns, std::int64_t resultRows,
                              std::int64_t resultColumns, std::int32_t shift, Complex* y) noexcept; // CxFFT2D
NIANLYS_API Status AALFunc268(const Complex* x, std::int64_t rows, std::int64_t columns, std::int32_t shifted,
                              double* y) noexcept; // InvFFT2D
NIANLYS_API Status AALFunc269(const Complex* x, std::int64_t rows, std::int64_t columns, std::int32_t shifted,
                              Complex* y) noexcept; // CxInvFFT2D

// Spectra: two-sided power, n values (Spectrum in place); one-sided power and rms amplitude with phase, n / 2 values
// (at least 1), df receives 1 / (n dt).
NIANLYS_API Status AALFunc161(double* x, std::int64_t n) noexcept;                   // Spectrum
NIANLYS_API Status AALFunc467(const Complex* x, std::int64_t n, double* s) noexcept; // CxSpectrum
NIANLYS_API Status AALFunc10(const double* x, std::int64_t n, double dt, double* s,
                             double* df) noexcept; // AutoPowerSpectrum
NIANLYS_API Status AALFunc5(const double* x, std::int64_t n, std::int32_t unwrap, double dt, double* amplitude,
                            double* phase, double* df) noexcept; // AmpPhaseSpectrum

// Statistics, detection, integration. MaxMin1D: of equal values the first counts; NaN is skipped, and nothing but NaN
// gives NaN at index 0. Sort: 0 ascending, else descending, in place allowed; NaN comes last either way; NaN and zeros
// of both signs keep their order; it takes 8 n bytes, and ordered samples no more time than random ones. Integrate:
// y[i] = dt/6 times the sum over j <= i of x[j-1] + 4 x[j] + x[j+1], where x[-1] = initial and x[n] = final, summed in
// this order; in place allowed.
//
// PeakDetector: a least-squares parabola through every width (at least 3) consecutive samples. Where its slope at their
// centre passes from positive to 0 or less, the vertex of the one before or the one after is a peak: of those that open
// downwards the one with the vertex nearer to its centre. The first group has a peak, too, if its slope is at most 0,
// the last one if it is positive, and the vertex within half a sample of the centre. Peaks below the threshold are
// dropped, all of them if it is NaN. polarity 0: peaks; else valleys, the peaks of the negated signal. A group with NaN
// or infinity, or whose weighted sums overflow (not below 1e290 for widths up to 1e5), has no parabola.
// A signal comes in blocks, the first with initialize, the last with endOfData; locations count from its first sample;
// the results are, to the bit, those of one block. Without initialize a block continues the signal of the calling
// thread, or begins one if there is none; another width or polarity is then StateNotInitialized. A refused call (and
// one without memory) has taken nothing: the same block may follow. Between blocks a thread holds 17 KB, from width
// 1025 on 35 KB and up to 9 bytes a sample of width; endOfData and the end of the thread free it. A call needs no more
// than 12 n + 24 bytes besides. The three arrays have *count values, also if it is 0; the caller frees each with
// AALFunc238.
NIANLYS_API Status AALFunc120(const double* x, std::int64_t n, double* max, std::int64_t* maxIndex, double* min,
                              std::int64_t* minIndex) noexcept;                                             // MaxMin1D
NIANLYS_API Status AALFunc160(const double* x, std::int64_t n, std::int32_t direction, double* y) noexcept; // Sort
NIANLYS_API Status AALFunc194(const double* x, std::int64_t n, double threshold, std::int64_t width,
                              std::int32_t polarity, std::int32_t initialize, std::int32_t endOfData,
                              std::int64_t* count, double** locations, double** amplitudes,
                              double** secondDerivatives) noexcept; // PeakDetector
NIANLYS_API Status AALFunc95(const double* x, std::int64_t n, double dt, double initial, double final,
                             double* y) noexcept; // Integrate

// Releases memory that an entry allocated for its results; null is accepted. FreeAnalysisMem is another name of it.
NIANLYS_API Status AALFunc238(void* memory) noexcept; // FreeAnalysisMem
NIANLYS_API Status FreeAnalysisMem(void* memory) noexcept;

// Life of a cascade filter. Alloc returns null on a bad type, an order below 1 or above 2^20, or no memory; the
// coefficients are zero and the reset flag armed. Reset arms the flag. Free accepts null. The direct coefficients have
// the lengths of *_Coef; here and there, a degree above 2^14 is a failed design unless the coefficients beyond are 0.
NIANLYS_API IirFilter* AllocIIRFilterPtr(std::int32_t type, std::int32_t order) noexcept;
NIANLYS_API Status ResetIIRFilter(IirFilter* filter) noexcept;
NIANLYS_API Status FreeIIRFilterPtr(IirFilter* filter) noexcept;
NIANLYS_API Status CascadeToDirectCoef(const IirFilter* filter, double* a, std::int32_t na, double* b,
                                       std::int32_t nb) noexcept;

} // extern "C"

} // namespace quordsp::backend

#endif
