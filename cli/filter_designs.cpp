#include "filter_designs.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace quordsp::cli {
namespace {

int count(std::span<const double> in)
{
    return static_cast<int>(in.size());
}

// Calls the design of the request's response: those of a band have twice the frequencies.
template <class One, class Two>
AnalysisLibErrType ofType(int type, One low, One high, Two pass, Two stop, auto callOne, auto callTwo)
{
    if (type < 2)
        return callOne(type == 0 ? low : high);
    return callTwo(type == 2 ? pass : stop);
}

template <auto low, auto high, auto pass, auto stop, double FilterRequest::*... parameters>
AnalysisLibErrType filterAtOnce(const FilterRequest& q, std::span<const double> in, double* out)
{
    return ofType(
        q.type, low, high, pass, stop,
        [&](auto filter) { return filter(in.data(), count(in), q.rate, q.edges[0], q.*parameters..., q.order, out); },
        [&](auto filter) {
            return filter(in.data(), count(in), q.rate, q.edges[0], q.edges[1], q.*parameters..., q.order, out);
        });
}

template <auto design, double FilterRequest::*... parameters>
AnalysisLibErrType directForm(const FilterRequest& q, double* reverse, double* forward, int size)
{
    return design(q.type, q.order, q.rate, q.edges[0], q.edges[1], q.*parameters..., reverse, size, forward, size);
}

template <auto design, double FilterRequest::*... parameters>
AnalysisLibErrType cascadeForm(const FilterRequest& q, QuorDSP_IIRFilter* filter)
{
    return design(q.rate, q.edges[0], q.edges[1], q.*parameters..., filter);
}

AnalysisLibErrType windowed(const FilterRequest& q, double* coefficients)
{
    return QuorDSP_WindFIR_Filter(q.type, q.rate, q.edges[0], q.edges[1], q.taps, q.window, q.parameter, coefficients);
}

AnalysisLibErrType kaiser(const FilterRequest& q, double* coefficients)
{
    return ofType(
        q.type, QuorDSP_Ksr_LPF, QuorDSP_Ksr_HPF, QuorDSP_Ksr_BPF, QuorDSP_Ksr_BSF,
        [&](auto design) { return design(q.rate, q.edges[0], q.taps, coefficients, q.beta); },
        [&](auto design) { return design(q.rate, q.edges[0], q.edges[1], q.taps, coefficients, q.beta); });
}

AnalysisLibErrType equiripple(const FilterRequest& q, double* coefficients)
{
    const double* const f = q.edges;
    double ripple = 0;
    return ofType(
        q.type, QuorDSP_EquiRpl_LPF, QuorDSP_EquiRpl_HPF, QuorDSP_EquiRpl_BPF, QuorDSP_EquiRpl_BSF,
        [&](auto design) { return design(q.rate, f[0], f[1], q.taps, coefficients, &ripple); },
        [&](auto design) { return design(q.rate, f[0], f[1], f[2], f[3], q.taps, coefficients, &ripple); });
}

template <auto design>
AnalysisLibErrType convolve(const FilterRequest& q, std::span<const double> in, double* out)
{
    std::vector<double> coefficients(static_cast<std::size_t>(std::max(q.taps, 1)));
    const AnalysisLibErrType status = design(q, coefficients.data());
    return status < 0 ? status : QuorDSP_FIRFiltering(in.data(), count(in), coefficients.data(), nullptr, q.taps, out);
}

template <auto low, auto high, auto pass, auto stop, auto direct, auto cascade, double FilterRequest::*... parameters>
constexpr FilterFamily iir(std::string_view name, Parameters takes, BandEnd passEnd, BandEnd stopEnd,
                           double (*cutoffLoss)(const FilterRequest&))
{
    return {name,
            kOrder | kCutoff | takes,
            passEnd,
            stopEnd,
            cutoffLoss,
            filterAtOnce<low, high, pass, stop, parameters...>,
            directForm<direct, parameters...>,
            cascadeForm<cascade, parameters...>,
            nullptr};
}

template <auto design>
constexpr FilterFamily fir(std::string_view name, Parameters takes, BandEnd bandEnd)
{
    return {name, kTaps | takes, bandEnd, bandEnd, nullptr, convolve<design>, nullptr, nullptr, design};
}

double halfPower(const FilterRequest&)
{
    return 10 * std::log10(2.0);
}

template <double FilterRequest::* parameter>
double given(const FilterRequest& q)
{
    return q.*parameter;
}

constexpr auto kRippleOf = &FilterRequest::ripple;
constexpr auto kAttenuationOf = &FilterRequest::attenuation;

constexpr FilterFamily kFamilies[] = {
    iir<QuorDSP_Bw_LPF, QuorDSP_Bw_HPF, QuorDSP_Bw_BPF, QuorDSP_Bw_BSF, QuorDSP_Bw_Coef, QuorDSP_Bw_CascadeCoef>(
        "butterworth", 0, BandEnd::None, BandEnd::None, halfPower),
    iir<QuorDSP_Bssl_LPF, QuorDSP_Bssl_HPF, QuorDSP_Bssl_BPF, QuorDSP_Bssl_BSF, QuorDSP_Bessel_Coef,
        QuorDSP_Bessel_CascadeCoef>("bessel", 0, BandEnd::None, BandEnd::None, nullptr),
    iir<QuorDSP_Ch_LPF, QuorDSP_Ch_HPF, QuorDSP_Ch_BPF, QuorDSP_Ch_BSF, QuorDSP_Ch_Coef, QuorDSP_Ch_CascadeCoef,
        kRippleOf>("chebyshev", kRipple, BandEnd::Given, BandEnd::None, given<kRippleOf>),
    iir<QuorDSP_InvCh_LPF, QuorDSP_InvCh_HPF, QuorDSP_InvCh_BPF, QuorDSP_InvCh_BSF, QuorDSP_InvCh_Coef,
        QuorDSP_InvCh_CascadeCoef, kAttenuationOf>("inverse-chebyshev", kAttenuation, BandEnd::None, BandEnd::Given,
                                                   given<kAttenuationOf>),
    iir<QuorDSP_Elp_LPF, QuorDSP_Elp_HPF, QuorDSP_Elp_BPF, QuorDSP_Elp_BSF, QuorDSP_Elp_Coef, QuorDSP_Elp_CascadeCoef,
        kRippleOf, kAttenuationOf>("elliptic", kRipple | kAttenuation, BandEnd::Given, BandEnd::Reached,
                                   given<kRippleOf>),
    fir<windowed>("windowed", kCutoff | kWindow, BandEnd::Lobe),
    fir<kaiser>("kaiser", kCutoff | kBeta, BandEnd::Lobe),
    fir<equiripple>("equiripple", kEdges, BandEnd::Given),
};

constexpr FilterWindow kWindows[] = {
    {"rectangle", 0, false},
    {"hanning", 1, false},
    {"hamming", 2, false},
    {"blackman-harris", 3, false},
    {"exact-blackman", 4, false},
    {"blackman", 5, false},
    {"flat-top", 6, false},
    {"blackman-harris-4", 7, false},
    {"blackman-harris-7", 8, false},
    {"low-side-lobe", 9, false},
    {"blackman-nuttall", 11, false},
    {"triangle", 30, false},
    {"bartlett-hanning", 31, false},
    {"bohman", 32, false},
    {"parzen", 33, false},
    {"welch", 34, false},
    {"kaiser", 60, true},
    {"dolph-chebyshev", 61, true},
    {"gaussian", 62, true},
};

} // namespace

std::span<const FilterFamily> filterFamilies()
{
    return kFamilies;
}

const FilterFamily& filterFamily(std::string_view name)
{
    return *std::ranges::find(kFamilies, name, &FilterFamily::name);
}

int edgeCount(const FilterFamily& family, int type)
{
    return (type < 2 ? 1 : 2) * ((family.takes & kEdges) != 0 ? 2 : 1);
}

std::span<const FilterWindow> filterWindows()
{
    return kWindows;
}

const FilterWindow& filterWindow(std::string_view name)
{
    return *std::ranges::find(kWindows, name, &FilterWindow::name);
}

} // namespace quordsp::cli
