// Every entry that filters a signal linearly, under one signature. Only the median filter is not among them.
#pragma once

#include "nianlys.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quordsp::test {

// A filter at rest. What it is called with are blocks of one signal, as long as it keeps its state between calls;
// otherwise each is a signal of its own.
template <class Sample>
using Run = std::function<backend::Status(const Sample* x, std::int64_t n, Sample* y)>;

struct LinearFilter {
    std::string name;
    std::function<Run<double>()> real;
    std::function<Run<backend::Complex>()> complex; // none for zero-phase filtering
    bool keepsState = false;
    bool isCausal = true;
    std::optional<std::size_t> twiceTheDelay; // of a filter whose response is symmetric
};

// The entry for real signals and the one for complex ones, which have these arguments between count and output.
template <class Real, class Complex, class... Arguments>
LinearFilter filterOf(std::string name, Real* real, Complex* complex, Arguments... arguments)
{
    const auto atRest = [=](auto* entry) {
        return [=] { return [=](auto* x, std::int64_t n, auto* y) { return entry(x, n, arguments..., y); }; };
    };
    return {.name = std::move(name), .real = atRest(real), .complex = atRest(complex), .twiceTheDelay = {}};
}

std::vector<LinearFilter> iirFilters();
std::vector<LinearFilter> firFilters();

} // namespace quordsp::test
