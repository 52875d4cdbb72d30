#include "iir/entries.h"

namespace quordsp::backend {

// Bssl_LPF
Status AALFunc399(const double* x, std::int64_t n, double fs, double fc, std::int32_t order, double* y) noexcept
{
    return designAndFilter(x, n, {kBessel, Response::LowPass, order, {fs, fc}}, y);
}

// Bssl_HPF
Status AALFunc400(const double* x, std::int64_t n, double fs, double fc, std::int32_t order, double* y) noexcept
{
    return designAndFilter(x, n, {kBessel, Response::HighPass, order, {fs, fc}}, y);
}

// Bssl_BPF
Status AALFunc401(const double* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                  double* y) noexcept
{
    return designAndFilter(x, n, {kBessel, Response::BandPass, order, {fs, fl, fh}}, y);
}

// Bssl_BSF
Status AALFunc402(const double* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                  double* y) noexcept
{
    return designAndFilter(x, n, {kBessel, Response::BandStop, order, {fs, fl, fh}}, y);
}

// CxBssl_LPF
Status AALFunc403(Complex* x, std::int64_t n, double fs, double fc, std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kBessel, Response::LowPass, order, {fs, fc}}, y);
}

// CxBssl_HPF
Status AALFunc404(Complex* x, std::int64_t n, double fs, double fc, std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kBessel, Response::HighPass, order, {fs, fc}}, y);
}

// CxBssl_BPF
Status AALFunc405(Complex* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kBessel, Response::BandPass, order, {fs, fl, fh}}, y);
}

// CxBssl_BSF
Status AALFunc406(Complex* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kBessel, Response::BandStop, order, {fs, fl, fh}}, y);
}

// Bessel_CascadeCoef
Status AALFunc12(double fs, double fl, double fh, IirFilter* filter) noexcept
{
    return designCascade(kBessel, {fs, fl, fh}, {}, filter);
}

// Bessel_CascadeCoefEx
Status AALFunc471(double fs, double fl, double fh, IirFilter* filter) noexcept
{
    return designCascade(kBessel, {fs, fl, fh}, {}, filter);
}

// Bessel_Coef
Status AALFunc13(std::int32_t type, std::int32_t order, double fs, double fl, double fh, double* a, std::int32_t na,
                 double* b, std::int32_t nb) noexcept
{
    return designDirect({kBessel, Response{type}, order, {fs, fl, fh}}, a, na, b, nb);
}

} // namespace quordsp::backend
