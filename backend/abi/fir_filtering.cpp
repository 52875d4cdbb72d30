#include "fir/filtering.h"
#include "fir/windowed_design.h"

namespace quordsp::backend {

// FIRFiltering
Status AALFunc352(const double* x, std::int64_t n, const double* h, double* state, std::int32_t taps,
                  double* y) noexcept
{
    return filterBlock(x, n, h, state, taps, y);
}

// FIRFiltering_CxInput
Status AALFunc353(const Complex* x, std::int64_t n, const double* h, Complex* state, std::int32_t taps,
                  Complex* y) noexcept
{
    return filterBlock(x, n, h, state, taps, y);
}

// Wind_LPFiltering
Status AALFunc481(const double* x, std::int64_t n, std::int32_t taps, double fs, double fc, std::int32_t window,
                  double parameter, double* y) noexcept
{
    return filterWindowed(x, n, {Response::LowPass, {fs, fc}, taps, {window, parameter}}, y);
}

// Wind_HPFiltering
Status AALFunc482(const double* x, std::int64_t n, std::int32_t taps, double fs, double fc, std::int32_t window,
                  double parameter, double* y) noexcept
{
    return filterWindowed(x, n, {Response::HighPass, {fs, fc}, taps, {window, parameter}}, y);
}

// Wind_BPFiltering
Status AALFunc483(const double* x, std::int64_t n, std::int32_t taps, double fs, double fl, double fh,
                  std::int32_t window, double parameter, double* y) noexcept
{
    return filterWindowed(x, n, {Response::BandPass, {fs, fl, fh}, taps, {window, parameter}}, y);
}

// Wind_BSFiltering
Status AALFunc484(const double* x, std::int64_t n, std::int32_t taps, double fs, double fl, double fh,
                  std::int32_t window, double parameter, double* y) noexcept
{
    return filterWindowed(x, n, {Response::BandStop, {fs, fl, fh}, taps, {window, parameter}}, y);
}

// WindFIR_Filtering
Status AALFunc480(const double* x, std::int64_t n, std::int32_t type, std::int32_t taps, double fs, double fl,
                  double fh, std::int32_t window, double parameter, double* y) noexcept
{
    return filterWindowed(x, n, {Response{type}, {fs, fl, fh}, taps, {window, parameter}}, y);
}

// CxWind_LPFiltering
Status AALFunc486(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double fc, std::int32_t window,
                  double parameter, Complex* y) noexcept
{
    return filterWindowed(x, n, {Response::LowPass, {fs, fc}, taps, {window, parameter}}, y);
}

// CxWind_HPFiltering
Status AALFunc487(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double fc, std::int32_t window,
                  double parameter, Complex* y) noexcept
{
    return filterWindowed(x, n, {Response::HighPass, {fs, fc}, taps, {window, parameter}}, y);
}

// CxWind_BPFiltering
Status AALFunc488(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double fl, double fh,
                  std::int32_t window, double parameter, Complex* y) noexcept
{
    return filterWindowed(x, n, {Response::BandPass, {fs, fl, fh}, taps, {window, parameter}}, y);
}

// CxWind_BSFiltering
Status AALFunc489(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double fl, double fh,
                  std::int32_t window, double parameter, Complex* y) noexcept
{
    return filterWindowed(x, n, {Response::BandStop, {fs, fl, fh}, taps, {window, parameter}}, y);
}

// CxWindFIR_Filtering
Status AALFunc485(const Complex* x, std::int64_t n, std::int32_t type, std::int32_t taps, double fs, double fl,
                  double fh, std::int32_t window, double parameter, Complex* y) noexcept
{
    return filterWindowed(x, n, {Response{type}, {fs, fl, fh}, taps, {window, parameter}}, y);
}

} // namespace quordsp::backend
