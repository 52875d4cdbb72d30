#include "iir/entries.h"

namespace quordsp::backend {

// Elp_LPF
Status AALFunc64(const double* x, std::int64_t n, double fs, double fc, double ripple, double attenuation,
                 std::int32_t order, double* y) noexcept
{
    return designAndFilter(x, n, {kElliptic, Response::LowPass, order, {fs, fc}, {ripple, attenuation}}, y);
}

// Elp_HPF
Status AALFunc63(const double* x, std::int64_t n, double fs, double fc, double ripple, double attenuation,
                 std::int32_t order, double* y) noexcept
{
    return designAndFilter(x, n, {kElliptic, Response::HighPass, order, {fs, fc}, {ripple, attenuation}}, y);
}

// Elp_BPF
Status AALFunc59(const double* x, std::int64_t n, double fs, double fl, double fh, double ripple, double attenuation,
                 std::int32_t order, double* y) noexcept
{
    return designAndFilter(x, n, {kElliptic, Response::BandPass, order, {fs, fl, fh}, {ripple, attenuation}}, y);
}

// Elp_BSF
Status AALFunc60(const double* x, std::int64_t n, double fs, double fl, double fh, double ripple, double attenuation,
                 std::int32_t order, double* y) noexcept
{
    return designAndFilter(x, n, {kElliptic, Response::BandStop, order, {fs, fl, fh}, {ripple, attenuation}}, y);
}

// CxElp_LPF
Status AALFunc462(Complex* x, std::int64_t n, double fs, double fc, double ripple, double attenuation,
                  std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kElliptic, Response::LowPass, order, {fs, fc}, {ripple, attenuation}}, y);
}

// CxElp_HPF
Status AALFunc463(Complex* x, std::int64_t n, double fs, double fc, double ripple, double attenuation,
                  std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kElliptic, Response::HighPass, order, {fs, fc}, {ripple, attenuation}}, y);
}

// CxElp_BPF
Status AALFunc464(Complex* x, std::int64_t n, double fs, double fl, double fh, double ripple, double attenuation,
                  std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kElliptic, Response::BandPass, order, {fs, fl, fh}, {ripple, attenuation}}, y);
}

// CxElp_BSF
Status AALFunc465(Complex* x, std::int64_t n, double fs, double fl, double fh, double ripple, double attenuation,
                  std::int32_t order, Complex* y) noexcept
{
    return designAndFilter(x, n, {kElliptic, Response::BandStop, order, {fs, fl, fh}, {ripple, attenuation}}, y);
}

// Elp_CascadeCoef
Status AALFunc61(double fs, double fl, double fh, double ripple, double attenuation, IirFilter* filter) noexcept
{
    return designCascade(kElliptic, {fs, fl, fh}, {ripple, attenuation}, filter);
}

// Elp_Coef
Status AALFunc62(std::int32_t type, std::int32_t order, double fs, double fl, double fh, double ripple,
                 double attenuation, double* a, std::int32_t na, double* b, std::int32_t nb) noexcept
{
    return designDirect({kElliptic, Response{type}, order, {fs, fl, fh}, {ripple, attenuation}}, a, na, b, nb);
}

} // namespace quordsp::backend
