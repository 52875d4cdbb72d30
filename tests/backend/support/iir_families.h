// The designing IIR entries of every family under one name each, whatever the response.
#pragma once

#include "backend/support/iir.h"
#include "backend/support/iir_family.h"

namespace quordsp::test {

// What there is to order; a family takes no notice of what it does not have.
struct Order {
    Family family;
    int type;
    int order;
    double fl = 0.1, fh = 0.3;
    double ripple = 0.5, attenuation = 50; // dB
    double fs = 1;
};

namespace detail {

template <class In, class Out, class Single, class Band, class... Tolerances>
Status byType(const Order& o, In* x, std::int64_t n, Out* y, Single* lowPass, Single* highPass, Band* bandPass,
              Band* bandStop, Tolerances... tolerances)
{
    if (o.type < BandPass)
        return (o.type == LowPass ? lowPass : highPass)(x, n, o.fs, o.fl, tolerances..., o.order, y);
    return (o.type == BandPass ? bandPass : bandStop)(x, n, o.fs, o.fl, o.fh, tolerances..., o.order, y);
}

} // namespace detail

inline Status filter(const Order& o, const double* x, std::int64_t n, double* y)
{
    using namespace backend;
    switch (o.family) {
    case Butterworth:
        return detail::byType(o, x, n, y, AALFunc21, AALFunc20, AALFunc16, AALFunc17);
    case Bessel:
        return detail::byType(o, x, n, y, AALFunc399, AALFunc400, AALFunc401, AALFunc402);
    case Chebyshev:
        return detail::byType(o, x, n, y, AALFunc27, AALFunc26, AALFunc22, AALFunc23, o.ripple);
    case InverseChebyshev:
        return detail::byType(o, x, n, y, AALFunc101, AALFunc100, AALFunc96, AALFunc97, o.attenuation);
    default:
        return detail::byType(o, x, n, y, AALFunc64, AALFunc63, AALFunc59, AALFunc60, o.ripple, o.attenuation);
    }
}

inline Status filter(const Order& o, backend::Complex* x, std::int64_t n, backend::Complex* y)
{
    using namespace backend;
    switch (o.family) {
    case Butterworth:
        return detail::byType(o, x, n, y, AALFunc450, AALFunc451, AALFunc452, AALFunc453);
    case Bessel:
        return detail::byType(o, x, n, y, AALFunc403, AALFunc404, AALFunc405, AALFunc406);
    case Chebyshev:
        return detail::byType(o, x, n, y, AALFunc454, AALFunc455, AALFunc456, AALFunc457, o.ripple);
    case InverseChebyshev:
        return detail::byType(o, x, n, y, AALFunc458, AALFunc459, AALFunc460, AALFunc461, o.attenuation);
    default:
        return detail::byType(o, x, n, y, AALFunc462, AALFunc463, AALFunc464, AALFunc465, o.ripple, o.attenuation);
    }
}

// Empty when the design is refused.
inline std::vector<double> filtered(const Order& o, const std::vector<double>& x)
{
    std::vector<double> y(x.size());
    if (filter(o, x.data(), static_cast<std::int64_t>(x.size()), y.data()) != Status::Success)
        y.clear();
    return y;
}

inline Status directInto(const Order& o, double* a, int na, double* b, int nb)
{
    const auto& [family, type, order, fl, fh, ripple, attenuation, fs] = o;
    switch (family) {
    case Butterworth:
        return backend::AALFunc19(type, order, fs, fl, fh, a, na, b, nb);
    case Bessel:
        return backend::AALFunc13(type, order, fs, fl, fh, a, na, b, nb);
    case Chebyshev:
        return backend::AALFunc25(type, order, fs, fl, fh, ripple, a, na, b, nb);
    case InverseChebyshev:
        return backend::AALFunc99(type, order, fs, fl, fh, attenuation, a, na, b, nb);
    default:
        return backend::AALFunc62(type, order, fs, fl, fh, ripple, attenuation, a, na, b, nb);
    }
}

inline DirectCoefficients direct(const Order& o)
{
    const int count = o.order * (o.type < BandPass ? 1 : 2) + 1;
    const std::vector<double> empty(static_cast<std::size_t>(count));
    DirectCoefficients result{{}, empty, empty};
    result.status = directInto(o, result.a.data(), count, result.b.data(), count);
    return result;
}

inline Status cascadeInto(const Order& o, backend::IirFilter* filter)
{
    const auto& [family, type, order, fl, fh, ripple, attenuation, fs] = o;
    switch (family) {
    case Butterworth:
        return backend::AALFunc18(fs, fl, fh, filter);
    case Bessel:
        return backend::AALFunc12(fs, fl, fh, filter);
    case Chebyshev:
        return backend::AALFunc24(fs, fl, fh, ripple, filter);
    case InverseChebyshev:
        return backend::AALFunc98(fs, fl, fh, attenuation, filter);
    default:
        return backend::AALFunc61(fs, fl, fh, ripple, attenuation, filter);
    }
}

// Null when the design is refused.
inline Filter cascade(const Order& o)
{
    Filter filter = allocate(o.type, o.order);
    return filter && cascadeInto(o, filter.get()) == Status::Success ? std::move(filter) : nullptr;
}

} // namespace quordsp::test
