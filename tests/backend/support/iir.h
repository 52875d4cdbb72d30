// The IIR entries under one name each, whatever the response.
#pragma once

#include "nianlys.h"

#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace quordsp::test {

using backend::Status;

enum Type : int { LowPass, HighPass, BandPass, BandStop };

inline constexpr Type kTypes[] = {LowPass, HighPass, BandPass, BandStop};

struct FreeFilter {
    void operator()(backend::IirFilter* filter) const { backend::FreeIIRFilterPtr(filter); }
};
using Filter = std::unique_ptr<backend::IirFilter, FreeFilter>;

inline Filter allocate(int type, int order)
{
    return Filter{backend::AllocIIRFilterPtr(type, order)};
}

// fs is 1; null when the design is refused.
inline Filter cascade(int type, int order, double fl, double fh)
{
    Filter filter = allocate(type, order);
    return filter && backend::AALFunc18(1, fl, fh, filter.get()) == Status::Success ? std::move(filter) : nullptr;
}

inline Status butterworth(int type, const double* x, std::int64_t n, double fs, double fl, double fh, int order,
                          double* y)
{
    switch (type) {
    case LowPass:
        return backend::AALFunc21(x, n, fs, fl, order, y);
    case HighPass:
        return backend::AALFunc20(x, n, fs, fl, order, y);
    case BandPass:
        return backend::AALFunc16(x, n, fs, fl, fh, order, y);
    default:
        return backend::AALFunc17(x, n, fs, fl, fh, order, y);
    }
}

inline std::vector<double> butterworth(int type, const std::vector<double>& x, double fl, double fh, int order)
{
    std::vector<double> y(x.size());
    if (butterworth(type, x.data(), static_cast<std::int64_t>(x.size()), 1, fl, fh, order, y.data()) != Status::Success)
        y.clear();
    return y;
}

struct DirectCoefficients {
    Status status;
    std::vector<double> a, b;
};

inline DirectCoefficients direct(int type, int order, double fl, double fh)
{
    const int count = order * (type < BandPass ? 1 : 2) + 1;
    const std::vector<double> empty(static_cast<std::size_t>(count));
    DirectCoefficients result{{}, empty, empty};
    result.status = backend::AALFunc19(type, order, 1, fl, fh, result.a.data(), count, result.b.data(), count);
    return result;
}

// The sections of a filter as polynomials.
struct Section {
    std::vector<double> a, b;
};

inline std::vector<Section> sections(const backend::IirFilter& filter)
{
    const int order = filter.type < BandPass ? 2 : 4;
    std::vector<Section> result;
    for (int k = 0; k * order < filter.reverseCount; ++k) {
        Section section{{1}, {filter.forward + k * (order + 1), filter.forward + (k + 1) * (order + 1)}};
        section.a.insert(section.a.end(), filter.reverse + k * order, filter.reverse + (k + 1) * order);
        result.push_back(section);
    }
    return result;
}

inline std::vector<double> impulse(std::size_t n)
{
    std::vector<double> x(n);
    x[0] = 1;
    return x;
}

} // namespace quordsp::test
