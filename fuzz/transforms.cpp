#include "QuorDSP_DAQ.h"
#include "targets.h"

#include <algorithm>
#include <numeric>

namespace quordsp::fuzz {
namespace {

using Samples = std::vector<double>;

struct Signal {
    Samples re, im;
    bool operator==(const Signal&) const = default;
};

// Few bytes make a long array.
Samples samples(Bytes& bytes, int count)
{
    const auto few = bytes.niceNumbers(bytes.between(1, 9));
    Samples all;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
        all.push_back(few[i * i % few.size()]);
    return all;
}

double size(const Samples& x)
{
    return std::accumulate(x.begin(), x.end(), 1.0, [](double sum, double value) { return sum + std::abs(value); });
}

void requireNear(const Samples& a, const Samples& b, double scale, const char* what)
{
    for (std::size_t i = 0; i < b.size(); ++i)
        require(std::abs(a[i] - b[i]) <= 1e-13 * scale, what);
}

// There and back; the real transform is the complex one; its power is the spectrum's.
void oneDimension(const Signal& x)
{
    const int n = sizeOf(x.re);
    const double scale = size(x.re) + size(x.im);
    Signal y = x;
    require(QuorDSP_FFT(y.re.data(), y.im.data(), n) == 0, "status 0");
    require(QuorDSP_InvFFT(y.re.data(), y.im.data(), n) == 0, "status 0");
    requireNear(y.re, x.re, scale, "the signal again");
    requireNear(y.im, x.im, scale, "the signal again");

    Signal real{x.re, x.im}, complex{x.re, Samples(x.im.size())};
    require(QuorDSP_ReFFT(real.re.data(), real.im.data(), n) == 0, "status 0");
    require(QuorDSP_FFT(complex.re.data(), complex.im.data(), n) == 0, "status 0");
    requireNear(real.re, complex.re, scale, "the complex transform of a real signal");
    requireNear(real.im, complex.im, scale, "the complex transform of a real signal");
    Samples power = x.re;
    require(QuorDSP_Spectrum(power.data(), n) == 0, "status 0");
    for (std::size_t i = 0; i < power.size(); ++i)
        require(std::abs(power[i] * n * n - std::hypot(real.re[i], real.im[i]) * std::hypot(real.re[i], real.im[i])) <=
                    1e-12 * scale * scale,
                "the power of the transform");
    require(QuorDSP_ReInvFFT(real.re.data(), real.im.data(), n) == 0, "status 0");
    requireNear(real.re, x.re, scale, "the real signal again");
}

// Cut or with zeros appended, in any order of bins: the inverse gives what was transformed.
void chosenSize(const Signal& x, int fftSize, int shift)
{
    const int n = sizeOf(x.re);
    const auto bins = static_cast<std::size_t>(fftSize > 0 ? fftSize : n);
    if (bins > x.re.size())
        return; // the library hands out n bins
    Signal bin{Samples(x.re.size()), Samples(x.re.size())}, back = bin;
    require(QuorDSP_CxFFTEx(x.re.data(), x.im.data(), n, fftSize, nullptr, shift, bin.re.data(), bin.im.data()) == 0,
            "status 0");
    require(QuorDSP_CxInvFFTEx(bin.re.data(), bin.im.data(), static_cast<int>(bins), nullptr, shift, back.re.data(),
                               back.im.data()) == 0,
            "status 0");
    back.re.resize(bins);
    back.im.resize(bins);
    requireNear(x.re, back.re, size(x.re) + size(x.im), "what was transformed");
    requireNear(x.im, back.im, size(x.re) + size(x.im), "what was transformed");
}

void twoDimensions(const Samples& x, int rows, int columns, int shift)
{
    Samples bins(2 * x.size()), back(x.size());
    require(QuorDSP_FFT2D(x.data(), rows, columns, 0, 0, shift, bins.data()) == 0, "status 0");
    require(QuorDSP_InvFFT2D(bins.data(), rows, columns, shift, back.data()) == 0, "status 0");
    requireNear(back, x, size(x), "the matrix again");
}

void spectra(const Samples& x, double dt, int unwrap)
{
    const std::size_t half = std::max<std::size_t>(x.size() / 2, 1);
    Samples power(half, -7.0), amplitude(half, -7.0), phase(half, -7.0);
    double df = -7;
    const int expected = dt > 0 ? QUORDSP_SUCCESS : QUORDSP_ERR_INTERVAL_NOT_POSITIVE;
    require(QuorDSP_AutoPowerSpectrum(x.data(), sizeOf(x), dt, power.data(), &df) == expected, "the documented status");
    require(QuorDSP_AmpPhaseSpectrum(x.data(), sizeOf(x), unwrap, dt, amplitude.data(), phase.data(), &df) == expected,
            "the documented status");
    if (expected != QUORDSP_SUCCESS) {
        require(power.front() == -7 && amplitude.front() == -7 && phase.front() == -7 && df == -7,
                "nothing written on failure");
        return;
    }
    for (std::size_t i = 0; i < half; ++i)
        require(std::abs(power[i] - amplitude[i] * amplitude[i]) <= 1e-12 * size(x), "power is amplitude squared");
}

} // namespace

void transforms(Bytes bytes)
{
    const int n = bytes.between(1, 12) * bytes.between(1, 60);
    const Signal x{samples(bytes, n), samples(bytes, n)};
    oneDimension(x);
    chosenSize(x, bytes.mostlyBetween(-1, 250), bytes.between(0, 1));
    const int rows = bytes.between(1, 40), columns = bytes.between(1, 20);
    twoDimensions(samples(bytes, rows * columns), rows, columns, bytes.between(0, 1));
    spectra(x.re, bytes.number(), bytes.between(0, 1));

    Signal untouched = x;
    const int none = -bytes.between(0, 2);
    require(QuorDSP_FFT(untouched.re.data(), untouched.im.data(), none) == QUORDSP_ERR_COUNT_NOT_POSITIVE,
            "no samples");
    require(untouched == x, "nothing written on failure");
}

} // namespace quordsp::fuzz
