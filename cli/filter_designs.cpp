#include "filter_designs.h"

#include <algorithm>
#include <cmath>

#include "by_response.h"
#include "fir_designs.h"
#include "narrow_band.h"
#include "savitzky_golay.h"

namespace quordsp::cli {
namespace {

constexpr int kAll = static_cast<int>(kResponses.size());
constexpr int kWithoutBands = 2;

template <class Real, class Complex, double FilterRequest::*... parameters>
AnalysisLibErrType filterAtOnce(const FilterRequest& q, FilterSignal& s)
{
    if (s.isComplex())
        return Complex::atCutoffs(q, [&](auto filter, auto... cutoffs) {
            return filter(s.in.data(), s.inImaginary, s.count(), q.rate, cutoffs..., q.*parameters..., q.order, s.out,
                          s.outImaginary);
        });
    return Real::atCutoffs(q, [&](auto filter, auto... cutoffs) {
        return filter(s.in.data(), s.count(), q.rate, cutoffs..., q.*parameters..., q.order, s.out);
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

template <class Real, class Complex, auto direct, auto cascade, double FilterRequest::*... parameters>
constexpr FilterFamily iir(std::string_view name, Parameters takes, BandEnd passEnd, BandEnd stopEnd,
                           double (*cutoffLoss)(const FilterRequest&))
{
    return {name,
            kAll,
            kResponse | kOrder | kCutoff | takes,
            passEnd,
            stopEnd,
            cutoffLoss,
            filterAtOnce<Real, Complex, parameters...>,
            directForm<direct, parameters...>,
            cascadeForm<cascade, parameters...>,
            nullptr};
}

template <fir::Design design>
constexpr FilterFamily firOfTaps(std::string_view name, Parameters takes, BandEnd bandEnd)
{
    return {name,    kAll,  kResponse | kTaps | takes, bandEnd, bandEnd, nullptr, fir::filter<design>, nullptr,
            nullptr, design};
}

template <fir::Design design>
constexpr FilterFamily firOfBands(std::string_view name, std::string_view purpose, int derivative)
{
    return {name,    0,       kTaps | kBands, BandEnd::None, BandEnd::None, nullptr, fir::filter<design>,
            nullptr, nullptr, design,         purpose,       derivative};
}

template <Width width>
constexpr FilterFamily interpolated(std::string_view name, int responses)
{
    return {name,
            responses,
            kResponse | kEdges | kRipple | kAttenuation,
            BandEnd::Given,
            BandEnd::Given,
            nullptr,
            narrowBandFilter<width>,
            nullptr,
            nullptr,
            narrowBandImpulse<width>};
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
    iir<ByResponse<QuorDSP_Bw_LPF, QuorDSP_Bw_HPF, QuorDSP_Bw_BPF, QuorDSP_Bw_BSF>,
        ByResponse<QuorDSP_CxBw_LPF, QuorDSP_CxBw_HPF, QuorDSP_CxBw_BPF, QuorDSP_CxBw_BSF>, QuorDSP_Bw_Coef,
        QuorDSP_Bw_CascadeCoef>("butterworth", 0, BandEnd::None, BandEnd::None, halfPower),
    iir<ByResponse<QuorDSP_Bssl_LPF, QuorDSP_Bssl_HPF, QuorDSP_Bssl_BPF, QuorDSP_Bssl_BSF>,
        ByResponse<QuorDSP_CxBssl_LPF, QuorDSP_CxBssl_HPF, QuorDSP_CxBssl_BPF, QuorDSP_CxBssl_BSF>, QuorDSP_Bessel_Coef,
        QuorDSP_Bessel_CascadeCoef>("bessel", 0, BandEnd::None, BandEnd::None, nullptr),
    iir<ByResponse<QuorDSP_Ch_LPF, QuorDSP_Ch_HPF, QuorDSP_Ch_BPF, QuorDSP_Ch_BSF>,
        ByResponse<QuorDSP_CxCh_LPF, QuorDSP_CxCh_HPF, QuorDSP_CxCh_BPF, QuorDSP_CxCh_BSF>, QuorDSP_Ch_Coef,
        QuorDSP_Ch_CascadeCoef, kRippleOf>("chebyshev", kRipple, BandEnd::Given, BandEnd::None, given<kRippleOf>),
    iir<ByResponse<QuorDSP_InvCh_LPF, QuorDSP_InvCh_HPF, QuorDSP_InvCh_BPF, QuorDSP_InvCh_BSF>,
        ByResponse<QuorDSP_CxInvCh_LPF, QuorDSP_CxInvCh_HPF, QuorDSP_CxInvCh_BPF, QuorDSP_CxInvCh_BSF>,
        QuorDSP_InvCh_Coef, QuorDSP_InvCh_CascadeCoef, kAttenuationOf>("inverse-chebyshev", kAttenuation, BandEnd::None,
                                                                       BandEnd::Given, given<kAttenuationOf>),
    iir<ByResponse<QuorDSP_Elp_LPF, QuorDSP_Elp_HPF, QuorDSP_Elp_BPF, QuorDSP_Elp_BSF>,
        ByResponse<QuorDSP_CxElp_LPF, QuorDSP_CxElp_HPF, QuorDSP_CxElp_BPF, QuorDSP_CxElp_BSF>, QuorDSP_Elp_Coef,
        QuorDSP_Elp_CascadeCoef, kRippleOf, kAttenuationOf>("elliptic", kRipple | kAttenuation, BandEnd::Given,
                                                            BandEnd::Reached, given<kRippleOf>),
    firOfTaps<fir::windowed>("windowed", kCutoff | kWindow, BandEnd::Lobe),
    firOfTaps<fir::kaiser>("kaiser", kCutoff | kBeta, BandEnd::Lobe),
    firOfTaps<fir::equiripple>("equiripple", kEdges, BandEnd::Given),
    firOfBands<fir::multiband>("multiband", "bands", 0),
    firOfBands<fir::differentiator>("differentiator", "derivative", 1),
    firOfBands<fir::hilbert>("hilbert", "Hilbert transform", 0),
    interpolated<Width::Narrow>("narrow-band", kAll),
    interpolated<Width::Wide>("wideband", kWithoutBands),
    {"savitzky-golay", 0, kOrder | kSide | kWeights | kDerivative, BandEnd::None, BandEnd::None, nullptr,
     savitzkyGolayFilter, nullptr, nullptr, savitzkyGolayImpulse, "smoothing"},
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
    if ((family.takes & (kCutoff | kEdges)) == 0)
        return 0;
    return (type < 2 ? 1 : 2) * ((family.takes & kEdges) != 0 ? 2 : 1);
}

} // namespace quordsp::cli
