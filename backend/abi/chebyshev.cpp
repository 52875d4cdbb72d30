#include "iir/entries.h"

namespace quordsp::backend {

// Ch_LPF
Status AALFunc27(const double* x, std::int64_t n, double fs, double fc, double ripple, std::int32_t order,
                 double* y) noexcept
{
    return designAndFilter(x, n, {kChebyshev, Response::LowPass, order, {fs, fc}, {ripple}}, y);
}

// Ch_HPF
Status AALFunc26(const double* x, std::int64_t n, double fs, double fc, double ripple, std::int32_t order,
                 double* y) noexcept
{
    return designAndFilter(x, n, {kChebyshev, Response::HighPass, order, {fs, fc}, {ripple}}, y);
}

// Ch_BPF
Status AALFunc22(const double* x, std::int64_t n, double fs, double fl, double fh, double ripple, std::int32_t order,
                 double* y) noexcept
{
    return designAndFilter(x, n, {kChebyshev, Response::BandPass, order, {fs, fl, fh}, {ripple}}, y);
}

// Ch_BSF
Status AALFunc23(const double* x, std::int64_t n, double fs, double fl, double fh, double ripple, std::int32_t order,
                 double* y) noexcept
{
    return designAndFilter(x, n, {kChebyshev, Response::BandStop, order, {fs, fl, fh}, {ripple}}, y);
}

// CxCh_LPF
Status AALFunc454(Complex* x, std::int64_t n, double fs, double fc, double ripple, std::int32_t order,
                  Complex* y) noexcept
{
    return designAndFilter(x, n, {kChebyshev, Response::LowPass, order, {fs, fc}, {ripple}}, y);
}

// CxCh_HPF
Status AALFunc455(Complex* x, std::int64_t n, double fs, double fc, double ripple, std::int32_t order,
                  Complex* y) noexcept
{
    return designAndFilter(x, n, {kChebyshev, Response::HighPass, order, {fs, fc}, {ripple}}, y);
}

// CxCh_BPF
Status AALFunc456(Complex* x, std::int64_t n, double fs, double fl, double fh, double ripple, std::int32_t order,
                  Complex* y) noexcept
{
    return designAndFilter(x, n, {kChebyshev, Response::BandPass, order, {fs, fl, fh}, {ripple}}, y);
}

// CxCh_BSF
Status AALFunc457(Complex* x, std::int64_t n, double fs, double fl, double fh, double ripple, std::int32_t order,
                  Complex* y) noexcept
{
    return designAndFilter(x, n, {kChebyshev, Response::BandStop, order, {fs, fl, fh}, {ripple}}, y);
}

// Ch_CascadeCoef
Status AALFunc24(double fs, double fl, double fh, double ripple, IirFilter* filter) noexcept
{
    return designCascade(kChebyshev, {fs, fl, fh}, {ripple}, filter);
}

// Ch_Coef
Status AALFunc25(std::int32_t type, std::int32_t order, double fs, double fl, double fh, double ripple, double* a,
                 std::int32_t na, double* b, std::int32_t nb) noexcept
{
    return designDirect({kChebyshev, Response{type}, order, {fs, fl, fh}, {ripple}}, a, na, b, nb);
}

} // namespace quordsp::backend
