#include "iir/entries.h"

namespace quordsp::backend {

// Bw_LPF
Status AALFunc21(const double* x, std::int64_t n, double fs, double fc, std::int32_t order, double* y) noexcept
{
    return designAndFilter(x, n, {kButterworth, Response::LowPass, order, {fs, fc}}, y);
}

// Bw_HPF
Status AALFunc20(const double* x, std::int64_t n, double fs, double fc, std::int32_t order, double* y) noexcept
{
    return designAndFilter(x, n, {kButterworth, Response::HighPass, order, {fs, fc}}, y);
}

// Bw_BPF
Status AALFunc16(const double* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                 double* y) noexcept
{
    return designAndFilter(x, n, {kButterworth, Response::BandPass, order, {fs, fl, fh}}, y);
}

// Bw_BSF
Status AALFunc17(const double* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order,
                 double* y) noexcept
{
    return designAndFilter(x, n, {kButterworth, Response::BandStop, order, {fs, fl, fh}}, y);
}

// CxBw_LPF
Status AALFunc450(Complex* x, std::int64_t n, double fs, double fc, std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kButterworth, Response::LowPass, order, {fs, fc}}, y);
}

// CxBw_HPF
Status AALFunc451(Complex* x, std::int64_t n, double fs, double fc, std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kButterworth, Response::HighPass, order, {fs, fc}}, y);
}

// CxBw_BPF
Status AALFunc452(Complex* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kButterworth, Response::BandPass, order, {fs, fl, fh}}, y);
}

// CxBw_BSF
Status AALFunc453(Complex* x, std::int64_t n, double fs, double fl, double fh, std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kButterworth, Response::BandStop, order, {fs, fl, fh}}, y);
}

// Bw_CascadeCoef
Status AALFunc18(double fs, double fl, double fh, IirFilter* filter) noexcept
{
    return designCascade(kButterworth, {fs, fl, fh}, {}, filter);
}

// Bw_Coef
Status AALFunc19(std::int32_t type, std::int32_t order, double fs, double fl, double fh, double* a, std::int32_t na,
                 double* b, std::int32_t nb) noexcept
{
    return designDirect({kButterworth, Response{type}, order, {fs, fl, fh}}, a, na, b, nb);
}

} // namespace quordsp::backend
