// With t = k - (taps - 1) / 2 and the ideal low-pass response g(f, t) = sin(2 pi f t / fs) / (pi t): what passes from
// fl to fh is g(fh, t) - g(fl, t), and what stops is the unit impulse without that.
#include "fir/windowed_design.h"

#include "extended_precision.h"
#include "fir/filtering.h"
#include "status.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quordsp::backend {
namespace {

using Real = long double;

constexpr Real kPi = std::numbers::pi_v<Real>;

bool hasComplement(Response response)
{
    return response == Response::HighPass || response == Response::BandStop;
}

void check(const WindowedDesign& design)
{
    require(design.taps > 0, Status::CountNotPositive);
    require(!hasComplement(design.response) || design.taps % 2 != 0, Status::EvenSize);
    requireCutoffs(design.response, design.frequencies);
    require(isKnown(design.response), Status::InvalidSelection);
    check(design.window);
}

// The frequency over fs, t in halves.
Real lowPass(Real frequency, std::int64_t halves)
{
    const auto t2 = static_cast<Real>(halves);
    if (halves == 0)
        return 2 * frequency;
    const Real turns = frequency * t2 / 2;
    return std::sin(2 * kPi * (turns - std::round(turns))) / (kPi * t2 / 2);
}

class IdealResponse {
public:
    IdealResponse(Response response, const Frequencies& frequencies)
        : low_{isBand(response) ? frequencies.fl / Real{frequencies.fs} : 0},
          high_{(isBand(response) ? frequencies.fh : frequencies.fl) / Real{frequencies.fs}},
          isComplement_{hasComplement(response)}
    {}

    Real operator()(std::int64_t halves) const
    {
        const Real passed = lowPass(high_, halves) - lowPass(low_, halves);
        return isComplement_ ? static_cast<Real>(halves == 0) - passed : passed;
    }

private:
    Real low_, high_;
    bool isComplement_;
};

// The first count of the taps.
void compute(const WindowedDesign& design, std::size_t count, double* h)
{
    const auto taps = static_cast<std::size_t>(design.taps);
    const std::size_t different = std::min(count, (taps + 1) / 2);
    const Buffer<> window = firstOfHalf(design.window, taps, different);
    inExtendedPrecision([&] {
        const IdealResponse ideal(design.response, design.frequencies);
        for (std::size_t k = 0; k < different; ++k) {
            const auto halves = static_cast<std::int64_t>(taps - 1 - 2 * k);
            h[k] = static_cast<double>(window[k] * ideal(halves));
            if (const std::size_t mirrored = taps - 1 - k; mirrored < count)
                h[mirrored] = h[k];
        }
    });
}

} // namespace

Status designWindowed(const WindowedDesign& design, double* h) noexcept
{
    return guarded([&] {
        requireArrays(h);
        check(design);
        compute(design, static_cast<std::size_t>(design.taps), h);
    });
}

template <class Sample>
Status filterWindowed(const Sample* x, std::int64_t n, const WindowedDesign& design, Sample* y) noexcept
{
    return guarded([&] {
        requirePositiveCount(n);
        requireArrays(x, y);
        check(design);
        const std::int64_t met = std::min<std::int64_t>(design.taps, n); // the others meet the zeros before the signal
        const Buffer<> h = makeBuffer(static_cast<std::size_t>(met));
        compute(design, static_cast<std::size_t>(met), h.get());
        filterFromRest(x, n, h.get(), met, y);
    });
}

template Status filterWindowed(const double*, std::int64_t, const WindowedDesign&, double*) noexcept;
template Status filterWindowed(const Complex*, std::int64_t, const WindowedDesign&, Complex*) noexcept;

} // namespace quordsp::backend
