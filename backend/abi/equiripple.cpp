#include "fir/equiripple_design.h"

namespace quordsp::backend {

// EquiRpl_LPF
Status AALFunc69(double fs, double f1, double f2, std::int32_t taps, double* h, double* ripple) noexcept
{
    return designSelective({true, taps, fs, {f1, f2}}, h, ripple);
}

// EquiRpl_HPF
Status AALFunc68(double fs, double f1, double f2, std::int32_t taps, double* h, double* ripple) noexcept
{
    return designSelective({false, taps, fs, {f1, f2}}, h, ripple);
}

// EquiRpl_BPF
Status AALFunc66(double fs, double f1, double f2, double f3, double f4, std::int32_t taps, double* h,
                 double* ripple) noexcept
{
    return designSelective({false, taps, fs, {f1, f2, f3, f4}}, h, ripple);
}

// EquiRpl_BSF
Status AALFunc67(double fs, double f1, double f2, double f3, double f4, std::int32_t taps, double* h,
                 double* ripple) noexcept
{
    return designSelective({true, taps, fs, {f1, f2, f3, f4}}, h, ripple);
}

// EquiRpl_LPFiltering
Status AALFunc472(const double* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                  double* y) noexcept
{
    return filterSelectively(x, n, {true, taps, fs, {f1, f2}}, y);
}

// EquiRpl_HPFiltering
Status AALFunc473(const double* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                  double* y) noexcept
{
    return filterSelectively(x, n, {false, taps, fs, {f1, f2}}, y);
}

// EquiRpl_BPFiltering
Status AALFunc474(const double* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2, double f3,
                  double f4, double* y) noexcept
{
    return filterSelectively(x, n, {false, taps, fs, {f1, f2, f3, f4}}, y);
}

// EquiRpl_BSFiltering
Status AALFunc475(const double* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2, double f3,
                  double f4, double* y) noexcept
{
    return filterSelectively(x, n, {true, taps, fs, {f1, f2, f3, f4}}, y);
}

// CxEquiRpl_LPFiltering
Status AALFunc476(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                  Complex* y) noexcept
{
    return filterSelectively(x, n, {true, taps, fs, {f1, f2}}, y);
}

// CxEquiRpl_HPFiltering
Status AALFunc477(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2,
                  Complex* y) noexcept
{
    return filterSelectively(x, n, {false, taps, fs, {f1, f2}}, y);
}

// CxEquiRpl_BPFiltering
Status AALFunc478(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2, double f3,
                  double f4, Complex* y) noexcept
{
    return filterSelectively(x, n, {false, taps, fs, {f1, f2, f3, f4}}, y);
}

// CxEquiRpl_BSFiltering
Status AALFunc479(const Complex* x, std::int64_t n, std::int32_t taps, double fs, double f1, double f2, double f3,
                  double f4, Complex* y) noexcept
{
    return filterSelectively(x, n, {true, taps, fs, {f1, f2, f3, f4}}, y);
}

// Equi_Ripple
Status AALFunc65(std::int32_t bandCount, const double* amplitudes, const double* weights, double fs,
                 const double* edges, std::int32_t type, std::int32_t taps, double* h, double* ripple) noexcept
{
    const BandList bands{bandCount, nullptr, amplitudes, weights, edges};
    return designBands({EquirippleKind{type > 0 ? type - 1 : -1}, taps, fs, bands}, h, ripple);
}

// Parks_McClellanCoef
Status AALFunc408(std::int32_t taps, double fs, const Band* bands, std::int64_t bandCount, std::int32_t type, double* h,
                  double* ripple) noexcept
{
    return designBands({EquirippleKind{type}, taps, fs, {bandCount, bands}}, h, ripple);
}

} // namespace quordsp::backend
