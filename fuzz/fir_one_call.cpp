#include <algorithm>
#include <numeric>

#include "one_call.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

using namespace backend;

struct Design {
    int status;
    Samples h;
};

// A filter in one call, and its coefficients.
struct Entry {
    OneCallRow filter;
    std::function<int(const Parameters&, double* h)> design;
    bool isSlow = false;
    bool raisesEvenTaps = false;
};

auto windowed(int type)
{
    return [=](const Parameters& with, double* h) {
        return static_cast<int>(AALFunc335(type < 0 ? with.type : type, with.fs, with.fl, with.fh, with.taps,
                                           with.window, with.windowParameter, h));
    };
}

template <auto... edges>
auto equiripple(auto* entry)
{
    return [=](const Parameters& with, double* h) {
        double ripple = 0;
        return static_cast<int>(entry(with.fs, with.*edges..., with.taps, h, &ripple));
    };
}

const std::vector<Entry>& entries()
{
    using P = Parameters;
    constexpr Fields<&P::taps, &P::fs, &P::fl, &P::window, &P::windowParameter> kCutoff;
    constexpr Fields<&P::taps, &P::fs, &P::fl, &P::fh, &P::window, &P::windowParameter> kBand;
    constexpr Fields<&P::type, &P::taps, &P::fs, &P::fl, &P::fh, &P::window, &P::windowParameter> kAnyType;
    constexpr Fields<&P::taps, &P::fs, &P::fl, &P::fh> kTwoEdges;
    constexpr Fields<&P::taps, &P::fs, &P::fl, &P::fh, &P::f3, &P::f4> kFourEdges;
    constexpr auto two = [](auto* entry) { return equiripple<&P::fl, &P::fh>(entry); };
    constexpr auto four = [](auto* entry) { return equiripple<&P::fl, &P::fh, &P::f3, &P::f4>(entry); };
    static const std::vector<Entry> all{
        {row(AALFunc481, AALFunc486, QuorDSP_Wind_LPFiltering, QuorDSP_CxWind_LPFiltering, kCutoff), windowed(0)},
        {row(AALFunc482, AALFunc487, QuorDSP_Wind_HPFiltering, QuorDSP_CxWind_HPFiltering, kCutoff), windowed(1)},
        {row(AALFunc483, AALFunc488, QuorDSP_Wind_BPFiltering, QuorDSP_CxWind_BPFiltering, kBand), windowed(2)},
        {row(AALFunc484, AALFunc489, QuorDSP_Wind_BSFiltering, QuorDSP_CxWind_BSFiltering, kBand), windowed(3)},
        {row(AALFunc480, AALFunc485, QuorDSP_WindFIR_Filtering, QuorDSP_CxWindFIR_Filtering, kAnyType), windowed(-1)},
        {row(AALFunc472, AALFunc476, QuorDSP_EquiRpl_LPFiltering, QuorDSP_CxEquiRpl_LPFiltering, kTwoEdges),
         two(AALFunc69), true},
        {row(AALFunc473, AALFunc477, QuorDSP_EquiRpl_HPFiltering, QuorDSP_CxEquiRpl_HPFiltering, kTwoEdges),
         two(AALFunc68), true, true},
        {row(AALFunc474, AALFunc478, QuorDSP_EquiRpl_BPFiltering, QuorDSP_CxEquiRpl_BPFiltering, kFourEdges),
         four(AALFunc66), true},
        {row(AALFunc475, AALFunc479, QuorDSP_EquiRpl_BSFiltering, QuorDSP_CxEquiRpl_BSFiltering, kFourEdges),
         four(AALFunc67), true, true},
    };
    return all;
}

// Mostly ascending edges below fs/2.
void readFrequencies(Bytes& bytes, Parameters& with)
{
    const bool isOrdinary = bytes.byte() % 4 > 0;
    with.fs = isOrdinary ? 1 : bytes.number();
    double edge = 0;
    for (const auto value : {&Parameters::fl, &Parameters::fh, &Parameters::f3, &Parameters::f4}) {
        edge += (1 + bytes.byte()) / 2100.0;
        with.*value = isOrdinary ? edge : bytes.number();
    }
}

Parameters readParameters(Bytes& bytes, const Entry& entry, bool isLong)
{
    Parameters with;
    readFrequencies(bytes, with);
    with.taps = isLong ? 400 + bytes.byte() : bytes.mostlyBetween(-1, 40);
    if (entry.isSlow && with.taps > 40 && with.taps <= 4097)
        with.taps %= 40;
    with.type = bytes.mostlyBetween(0, 3);
    constexpr int windows[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 30, 31, 32, 33, 34, 60, 61, 62, -1, 63};
    with.window = windows[bytes.byte() % std::size(windows)];
    with.windowParameter = bytes.number();
    return with;
}

Design designOf(const Entry& entry, Parameters with)
{
    if (entry.raisesEvenTaps && with.taps > 2)
        with.taps |= 1;
    Design design{0, Samples(static_cast<std::size_t>(std::max(with.taps, 1)))};
    design.status = entry.design(with, design.h.data());
    return design;
}

// Where many taps meet many samples transforms do the work: within their bound; elsewhere the sums themselves, but for
// the sign of zeros.
void requireFiltered(const Samples& h, const Samples& x, const Samples& y)
{
    Samples sums(x.size());
    require(AALFunc352(x.data(), sizeOf(x), h.data(), nullptr, sizeOf(h), sums.data()) == Status::Success, "status 0");
    const bool isSums = h.size() < 192 || h.size() * x.size() < 2'990'000;
    const auto larger = [](double a, double b) { return std::max(a, std::abs(b)); };
    const double size = std::accumulate(h.begin(), h.end(), 0.0, [](double a, double b) { return a + std::abs(b); }) *
                        std::accumulate(x.begin(), x.end(), 0.0, larger);
    for (std::size_t i = 0; i < y.size(); ++i)
        require(y[i] == sums[i] || (std::isnan(y[i]) && std::isnan(sums[i])) ||
                    (!isSums && std::abs(y[i] - sums[i]) <= 1e-12 * size),
                "the signal filtered by the coefficients");
}

} // namespace

// Every FIR filter in one call, in all of its forms, is its design followed by the filter.
void fir_one_call(Bytes bytes)
{
    const Entry& entry = entries()[bytes.byte() % entries().size()];
    const bool isLong = !entry.isSlow && bytes.byte() % 64 == 63;
    const Parameters with = readParameters(bytes, entry, isLong);
    const int n = bytes.between(0, 40);
    const auto length = static_cast<std::size_t>(isLong && n > 0 ? 4000 + 100 * n : n);
    const auto numbers = [&] { return isLong ? bytes.niceNumbers(n) : bytes.numbers(n); };
    const Signal x{repeated(numbers(), length), repeated(numbers(), length)};
    const Outcome outcome = requireOneOutcome(entry.filter(with), x);
    if (with.taps > 4097)
        return;
    const Design design = designOf(entry, with);
    require(outcome.status == (n > 0 ? design.status : -20003), "the status of the design");
    if (outcome.status == 0)
        requireFiltered(design.h, x.re, outcome.y.re);
}

} // namespace quordsp::fuzz
