#include "iir_entries.h"

namespace quordsp::fuzz {
namespace {

using namespace backend;

template <auto... tolerances>
struct Shapes {
    static constexpr Fields<&Parameters::fs, &Parameters::fl, tolerances..., &Parameters::order> kCutoff{};
    static constexpr Fields<&Parameters::fs, &Parameters::fl, &Parameters::fh, tolerances..., &Parameters::order>
        kBand{};

    static CascadeDesign cascade(auto* entry)
    {
        return [=](const Parameters& with, CascadeRecord filter) {
            return static_cast<int>(entry(with.fs, with.fl, with.fh, with.*tolerances..., filter));
        };
    }

    static DirectDesign direct(auto* entry)
    {
        return [=](const Parameters& with, double* a, int na, double* b, int nb) {
            return static_cast<int>(
                entry(with.type, with.order, with.fs, with.fl, with.fh, with.*tolerances..., a, na, b, nb));
        };
    }
};

constexpr auto kInput = AfterFailure::TheInput;

IirFamily butterworth()
{
    using S = Shapes<>;
    return {false,
            false,
            {row(AALFunc21, AALFunc450, QuorDSP_Bw_LPF, QuorDSP_CxBw_LPF, S::kCutoff, kInput),
             row(AALFunc20, AALFunc451, QuorDSP_Bw_HPF, QuorDSP_CxBw_HPF, S::kCutoff, kInput),
             row(AALFunc16, AALFunc452, QuorDSP_Bw_BPF, QuorDSP_CxBw_BPF, S::kBand, kInput),
             row(AALFunc17, AALFunc453, QuorDSP_Bw_BSF, QuorDSP_CxBw_BSF, S::kBand, kInput)},
            {S::cascade(AALFunc18), S::cascade(QuorDSP_Bw_CascadeCoef)},
            {S::direct(AALFunc19), S::direct(QuorDSP_Bw_Coef)}};
}

IirFamily bessel()
{
    using S = Shapes<>;
    return {false,
            false,
            {row(AALFunc399, AALFunc403, QuorDSP_Bssl_LPF, QuorDSP_CxBssl_LPF, S::kCutoff, kInput),
             row(AALFunc400, AALFunc404, QuorDSP_Bssl_HPF, QuorDSP_CxBssl_HPF, S::kCutoff, kInput),
             row(AALFunc401, AALFunc405, QuorDSP_Bssl_BPF, QuorDSP_CxBssl_BPF, S::kBand, kInput),
             row(AALFunc402, AALFunc406, QuorDSP_Bssl_BSF, QuorDSP_CxBssl_BSF, S::kBand, kInput)},
            {S::cascade(AALFunc12), S::cascade(AALFunc471), S::cascade(QuorDSP_Bessel_CascadeCoef),
             S::cascade(QuorDSP_Bessel_CascadeCoefEx)},
            {S::direct(AALFunc13), S::direct(QuorDSP_Bessel_Coef)}};
}

IirFamily chebyshev()
{
    using S = Shapes<&Parameters::ripple>;
    return {true,
            false,
            {row(AALFunc27, AALFunc454, QuorDSP_Ch_LPF, QuorDSP_CxCh_LPF, S::kCutoff, kInput),
             row(AALFunc26, AALFunc455, QuorDSP_Ch_HPF, QuorDSP_CxCh_HPF, S::kCutoff, kInput),
             row(AALFunc22, AALFunc456, QuorDSP_Ch_BPF, QuorDSP_CxCh_BPF, S::kBand, kInput),
             row(AALFunc23, AALFunc457, QuorDSP_Ch_BSF, QuorDSP_CxCh_BSF, S::kBand)},
            {S::cascade(AALFunc24), S::cascade(QuorDSP_Ch_CascadeCoef)},
            {S::direct(AALFunc25), S::direct(QuorDSP_Ch_Coef)}};
}

IirFamily inverseChebyshev()
{
    using S = Shapes<&Parameters::attenuation>;
    return {false,
            true,
            {row(AALFunc101, AALFunc458, QuorDSP_InvCh_LPF, QuorDSP_CxInvCh_LPF, S::kCutoff, kInput),
             row(AALFunc100, AALFunc459, QuorDSP_InvCh_HPF, QuorDSP_CxInvCh_HPF, S::kCutoff, kInput),
             row(AALFunc96, AALFunc460, QuorDSP_InvCh_BPF, QuorDSP_CxInvCh_BPF, S::kBand, kInput),
             row(AALFunc97, AALFunc461, QuorDSP_InvCh_BSF, QuorDSP_CxInvCh_BSF, S::kBand, kInput)},
            {S::cascade(AALFunc98), S::cascade(QuorDSP_InvCh_CascadeCoef)},
            {S::direct(AALFunc99), S::direct(QuorDSP_InvCh_Coef)}};
}

IirFamily elliptic()
{
    using S = Shapes<&Parameters::ripple, &Parameters::attenuation>;
    return {true,
            true,
            {row(AALFunc64, AALFunc462, QuorDSP_Elp_LPF, QuorDSP_CxElp_LPF, S::kCutoff, kInput),
             row(AALFunc63, AALFunc463, QuorDSP_Elp_HPF, QuorDSP_CxElp_HPF, S::kCutoff, kInput),
             row(AALFunc59, AALFunc464, QuorDSP_Elp_BPF, QuorDSP_CxElp_BPF, S::kBand, kInput),
             row(AALFunc60, AALFunc465, QuorDSP_Elp_BSF, QuorDSP_CxElp_BSF, S::kBand, kInput)},
            {S::cascade(AALFunc61), S::cascade(QuorDSP_Elp_CascadeCoef)},
            {S::direct(AALFunc62), S::direct(QuorDSP_Elp_Coef)}};
}

int expectedOfFrequencies(const Parameters& with)
{
    const long double nyquist = std::isfinite(with.fs) ? static_cast<long double>(with.fs) / 2 : 0;
    if (with.type == 2 || with.type == 3)
        return with.fl > 0 && with.fl < with.fh && with.fh < nyquist ? 0 : -20023;
    return with.fl > 0 && with.fl < nyquist ? 0 : -20020;
}

int expectedOfTolerances(const IirFamily& family, const Parameters& with)
{
    if (family.hasRipple && !(with.ripple > 0))
        return -20024;
    if (family.hasAttenuation && !(with.attenuation > 0))
        return -20025;
    return family.hasRipple && family.hasAttenuation && with.attenuation <= with.ripple ? -20028 : 0;
}

} // namespace

const std::vector<IirFamily>& iirFamilies()
{
    static const std::vector<IirFamily> families{butterworth(), bessel(), chebyshev(), inverseChebyshev(), elliptic()};
    return families;
}

int expectedStatus(const IirFamily& family, const Parameters& with)
{
    if (with.order < 1)
        return -20021;
    if (const int status = expectedOfFrequencies(with); status != 0)
        return status;
    if (const int status = expectedOfTolerances(family, with); status != 0)
        return status;
    return with.type < 0 || with.type > 3 ? -20061 : 0;
}

Parameters readIirParameters(Bytes& bytes)
{
    Parameters with;
    with.type = bytes.mostlyBetween(0, 3);
    with.order = bytes.mostlyBetween(0, 24);
    if (with.order > 64 && with.order <= 1 << 20)
        with.order %= 64;
    for (auto value :
         {&Parameters::fs, &Parameters::fl, &Parameters::fh, &Parameters::ripple, &Parameters::attenuation})
        with.*value = bytes.number();
    return with;
}

Parameters readOrdinaryIirParameters(Bytes& bytes)
{
    Parameters with;
    with.type = bytes.between(0, 3);
    with.order = bytes.between(1, 5);
    with.fl = 0.1 + bytes.byte() / 2048.0;
    with.fh = with.fl + 0.08 + bytes.byte() / 4096.0;
    with.ripple = bytes.between(1, 30) / 10.0;
    with.attenuation = 20.0 + bytes.byte() % 60;
    return with;
}

} // namespace quordsp::fuzz
