#include "iir/entries.h"

namespace quordsp::backend {

// InvCh_LPF
Status AALFunc101(const double* x, std::int64_t n, double fs, double fc, double attenuation, std::int32_t order,
                  double* y) noexcept
{
    return designAndFilter(x, n, {kInverseChebyshev, Response::LowPass, order, {fs, fc}, {.attenuation = attenuation}},
                           y);
}

// InvCh_HPF
Status AALFunc100(const double* x, std::int64_t n, double fs, double fc, double attenuation, std::int32_t order,
                  double* y) noexcept
{
    return designAndFilter(x, n, {kInverseChebyshev, Response::HighPass, order, {fs, fc}, {.attenuation = attenuation}},
                           y);
}

// InvCh_BPF
Status AALFunc96(const double* x, std::int64_t n, double fs, double fl, double fh, double attenuation,
                 std::int32_t order, double* y) noexcept
{
    return designAndFilter(
        x, n, {kInverseChebyshev, Response::BandPass, order, {fs, fl, fh}, {.attenuation = attenuation}}, y);
}

// InvCh_BSF
Status AALFunc97(const double* x, std::int64_t n, double fs, double fl, double fh, double attenuation,
                 std::int32_t order, double* y) noexcept
{
    return designAndFilter(
        x, n, {kInverseChebyshev, Response::BandStop, order, {fs, fl, fh}, {.attenuation = attenuation}}, y);
}

// CxInvCh_LPF
Status AALFunc458(Complex* x, std::int64_t n, double fs, double fc, double attenuation, std::int32_t order,
                  Complex* y) noexcept
{
    return designAndFilter(x, n, {kInverseChebyshev, Response::LowPass, order, {fs, fc}, {.attenuation = attenuation}},
                           y);
}

// CxInvCh_HPF
Status AALFunc459(Complex* x, std::int64_t n, double fs, double fc, double attenuation, std::int32_t order,
                  Complex* y) noexcept
{
    return designAndFilter(x, n, {kInverseChebyshev, Response::HighPass, order, {fs, fc}, {.attenuation = attenuation}},
                           y);
}

// CxInvCh_BPF
Status AALFunc460(Complex* x, std::int64_t n, double fs, double fl, double fh, double attenuation, std::int32_t order,
                  Complex* y) noexcept
{
    return designAndFilter(
        x, n, {kInverseChebyshev, Response::BandPass, order, {fs, fl, fh}, {.attenuation = attenuation}}, y);
}

// CxInvCh_BSF
Status AALFunc461(Complex* x, std::int64_t n, double fs, double fl, double fh, double attenuation, std::int32_t order,
                  Complex* y) noexcept
{
    return designAndFilter(
        x, n, {kInverseChebyshev, Response::BandStop, order, {fs, fl, fh}, {.attenuation = attenuation}}, y);
}

// InvCh_CascadeCoef
Status AALFunc98(double fs, double fl, double fh, double attenuation, IirFilter* filter) noexcept
{
    return designCascade(kInverseChebyshev, {fs, fl, fh}, {.attenuation = attenuation}, filter);
}

// InvCh_Coef
Status AALFunc99(std::int32_t type, std::int32_t order, double fs, double fl, double fh, double attenuation, double* a,
                 std::int32_t na, double* b, std::int32_t nb) noexcept
{
    return designDirect({kInverseChebyshev, Response{type}, order, {fs, fl, fh}, {.attenuation = attenuation}}, a, na,
                        b, nb);
}

} // namespace quordsp::backend
