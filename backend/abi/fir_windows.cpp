#include "fir/windowed_design.h"

namespace quordsp::backend {

// Wind_LPF
Status AALFunc189(double fs, double fc, std::int32_t taps, double* h, std::int32_t windType) noexcept
{
    return designWindowed({Response::LowPass, {fs, fc}, taps, classicWindow(windType)}, h);
}

// Wind_HPF
Status AALFunc188(double fs, double fc, std::int32_t taps, double* h, std::int32_t windType) noexcept
{
    return designWindowed({Response::HighPass, {fs, fc}, taps, classicWindow(windType)}, h);
}

// Wind_BPF
Status AALFunc186(double fs, double fl, double fh, std::int32_t taps, double* h, std::int32_t windType) noexcept
{
    return designWindowed({Response::BandPass, {fs, fl, fh}, taps, classicWindow(windType)}, h);
}

// Wind_BSF
Status AALFunc187(double fs, double fl, double fh, std::int32_t taps, double* h, std::int32_t windType) noexcept
{
    return designWindowed({Response::BandStop, {fs, fl, fh}, taps, classicWindow(windType)}, h);
}

// Ksr_LPF
Status AALFunc112(double fs, double fc, std::int32_t taps, double* h, double beta) noexcept
{
    return designWindowed({Response::LowPass, {fs, fc}, taps, kaiserWindow(beta)}, h);
}

// Ksr_HPF
Status AALFunc111(double fs, double fc, std::int32_t taps, double* h, double beta) noexcept
{
    return designWindowed({Response::HighPass, {fs, fc}, taps, kaiserWindow(beta)}, h);
}

// Ksr_BPF
Status AALFunc109(double fs, double fl, double fh, std::int32_t taps, double* h, double beta) noexcept
{
    return designWindowed({Response::BandPass, {fs, fl, fh}, taps, kaiserWindow(beta)}, h);
}

// Ksr_BSF
Status AALFunc110(double fs, double fl, double fh, std::int32_t taps, double* h, double beta) noexcept
{
    return designWindowed({Response::BandStop, {fs, fl, fh}, taps, kaiserWindow(beta)}, h);
}

// FIR_Coef
Status AALFunc79(std::int32_t type, double fs, double fl, double fh, std::int32_t taps, double* h) noexcept
{
    return designWindowed({Response{type}, {fs, fl, fh}, taps, kNoWindow}, h);
}

// WindFIR_Filter
Status AALFunc335(std::int32_t type, double fs, double fl, double fh, std::int32_t taps, std::int32_t window,
                  double parameter, double* h) noexcept
{
    return designWindowed({Response{type}, {fs, fl, fh}, taps, {window, parameter}}, h);
}

} // namespace quordsp::backend
