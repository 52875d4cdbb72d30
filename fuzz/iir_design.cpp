#include <complex>
#include <numbers>

#include "QuorDSP_DAQ.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

using Samples = std::vector<double>;

enum Family { Butterworth, Bessel, Chebyshev, InverseChebyshev, Elliptic, kFamilyCount };

struct Order {
    int family, type, order;
    double fs = 0, fl = 0, fh = 0, ripple = 0, attenuation = 0;
};

template <class Single, class Band, class... Tolerances>
int byType(const Order& o, const Samples& x, Samples& y, Single* lowPass, Single* highPass, Band* bandPass,
           Band* bandStop, Tolerances... tolerances)
{
    if (o.type % 4 < 2)
        return (o.type % 4 == 0 ? lowPass : highPass)(x.data(), sizeOf(x), o.fs, o.fl, tolerances..., o.order,
                                                      y.data());
    return (o.type % 4 == 2 ? bandPass : bandStop)(x.data(), sizeOf(x), o.fs, o.fl, o.fh, tolerances..., o.order,
                                                   y.data());
}

int filter(const Order& o, const Samples& x, Samples& y)
{
    switch (o.family) {
    case Butterworth:
        return byType(o, x, y, QuorDSP_Bw_LPF, QuorDSP_Bw_HPF, QuorDSP_Bw_BPF, QuorDSP_Bw_BSF);
    case Bessel:
        return byType(o, x, y, QuorDSP_Bssl_LPF, QuorDSP_Bssl_HPF, QuorDSP_Bssl_BPF, QuorDSP_Bssl_BSF);
    case Chebyshev:
        return byType(o, x, y, QuorDSP_Ch_LPF, QuorDSP_Ch_HPF, QuorDSP_Ch_BPF, QuorDSP_Ch_BSF, o.ripple);
    case InverseChebyshev:
        return byType(o, x, y, QuorDSP_InvCh_LPF, QuorDSP_InvCh_HPF, QuorDSP_InvCh_BPF, QuorDSP_InvCh_BSF,
                      o.attenuation);
    default:
        return byType(o, x, y, QuorDSP_Elp_LPF, QuorDSP_Elp_HPF, QuorDSP_Elp_BPF, QuorDSP_Elp_BSF, o.ripple,
                      o.attenuation);
    }
}

int coefficients(const Order& o, Samples& a, Samples& b)
{
    const auto call = [&](auto* entry, auto... tolerances) {
        return entry(o.type, o.order, o.fs, o.fl, o.fh, tolerances..., a.data(), sizeOf(a), b.data(), sizeOf(b));
    };
    switch (o.family) {
    case Butterworth:
        return call(QuorDSP_Bw_Coef);
    case Bessel:
        return call(QuorDSP_Bessel_Coef);
    case Chebyshev:
        return call(QuorDSP_Ch_Coef, o.ripple);
    case InverseChebyshev:
        return call(QuorDSP_InvCh_Coef, o.attenuation);
    default:
        return call(QuorDSP_Elp_Coef, o.ripple, o.attenuation);
    }
}

bool areFinite(const Samples& values)
{
    for (const double value : values)
        if (!std::isfinite(value))
            return false;
    return true;
}

void requireDocumented(int status)
{
    for (const int known : {0, -20001, -20003, -20008, -20020, -20021, -20023, -20024, -20025, -20028, -20031, -20061})
        if (status == known)
            return;
    require(false, "a documented status");
}

void requireResult(int status, const Samples& result, double before)
{
    requireDocumented(status);
    if (status == 0)
        require(areFinite(result), "the results are finite");
    else
        require(areSame(result, Samples(result.size(), before)), "a refused design writes nothing");
}

std::size_t directCount(const Order& o)
{
    return static_cast<std::size_t>(o.order) * (o.type < 2 ? 1 : 2) + 1;
}

// Arbitrary arguments, but for orders that are too high to be refused at once and too high to be quick.
void anyDesign(Bytes bytes)
{
    Order o{bytes.byte() % kFamilyCount, bytes.mostlyBetween(0, 3), bytes.mostlyBetween(0, 24)};
    if (o.order > 64 && o.order <= 1 << 20)
        o.order %= 64;
    for (double* value : {&o.fs, &o.fl, &o.fh, &o.ripple, &o.attenuation})
        *value = bytes.number();

    constexpr double kBefore = -7;
    Samples x(static_cast<std::size_t>(bytes.between(0, 20)));
    if (!x.empty())
        x[0] = 1;
    Samples y(x.size(), kBefore), again = y;
    Order known = o;
    known.type &= 3;
    const int status = filter(known, x, y);
    requireResult(status, y, kBefore);
    require(filter(known, x, again) == status && areSame(y, again), "the same bits again");

    const bool isSmall = o.order > 0 && o.order <= 64;
    Samples a(isSmall ? directCount(o) + (bytes.byte() == 1) : 1, kBefore), b(a.size(), kBefore);
    const int designed = coefficients(o, a, b);
    requireResult(designed, a, kBefore);
    requireResult(designed, b, kBefore);
    if (designed == 0)
        require(a[0] == 1, "the denominator begins with 1");
}

double gain(const Samples& a, const Samples& b, double f)
{
    const auto step = std::polar(1.0, -2 * std::numbers::pi * f);
    std::complex<double> numerator = 0, denominator = 0;
    for (std::size_t k = a.size(); k-- > 0;) {
        numerator = numerator * step + b[k];
        denominator = denominator * step + a[k];
    }
    return std::abs(numerator) / std::abs(denominator);
}

// A design that double holds with ease: it succeeds, and nowhere is its gain above 1.
void ordinaryDesign(Bytes bytes)
{
    const int family = bytes.byte() % kFamilyCount, type = bytes.between(0, 3), order = bytes.between(1, 5);
    const double fl = 0.1 + bytes.byte() / 2048.0, fh = fl + 0.08 + bytes.byte() / 4096.0;
    const Order o{family, type, order, 1, fl, fh, bytes.between(1, 30) / 10.0, 20.0 + bytes.byte() % 60};
    Samples a(directCount(o)), b(a.size());
    require(coefficients(o, a, b) == 0, "an ordinary design succeeds");
    for (int i = 0; i <= 64; ++i)
        require(gain(a, b, i / 128.0) < 1 + 1e-6, "no gain is above 1");
    Samples impulse(32), y(32);
    impulse[0] = 1;
    require(filter(o, impulse, y) == 0, "an ordinary filter runs");
    for (std::size_t i = 0; i < y.size(); ++i) {
        double expected = i < b.size() ? b[i] : 0;
        for (std::size_t k = 1; k < a.size() && k <= i; ++k)
            expected -= a[k] * y[i - k];
        require(std::abs(y[i] - expected) < 1e-7, "it follows its difference equation");
    }
}

} // namespace

void iir_design(Bytes bytes)
{
    if (bytes.byte() % 2)
        ordinaryDesign(bytes);
    else
        anyDesign(bytes);
}

} // namespace quordsp::fuzz
