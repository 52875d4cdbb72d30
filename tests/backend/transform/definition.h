// A spectrum as the definition of the transform gives it.
#pragma once
#include "backend/transform/signals.h"
#include "reference/naive_dft.h"

namespace quordsp::backend {

inline Signal spectrumByDefinition(const Signal& x)
{
    const reference::NaiveDft dft(x.re.size());
    Signal y;
    for (std::size_t k = 0; k < x.re.size(); ++k) {
        const auto [re, im] = dft.bin(x.re, x.im, k);
        y.re.push_back(static_cast<double>(re));
        y.im.push_back(static_cast<double>(im));
    }
    return y;
}

} // namespace quordsp::backend
