// Transform of a real signal, by the method that suits its size.
#pragma once

#include "transform/real_method.h"
#include "transform/split_buffer.h"

#include <memory>

namespace quordsp::backend {

// Immutable, like ComplexPlan.
class RealPlan {
public:
    // n >= 1. Throws std::bad_alloc.
    explicit RealPlan(std::size_t n);

    std::size_t bins() const { return n_ / 2 + 1; }
    std::size_t tableSize() const { return method_->tableSize(); }
    std::size_t workSize() const { return method_->workSize(); }

    // As RealMethod says.
    void forward(const double* x, const Split& spectrum, double* work) const { method_->forward(x, spectrum, work); }
    void inverse(const ConstSplit& spectrum, double last, double* x, double* work) const
    {
        method_->inverse(spectrum, last, x, work);
    }
    void inverse(const ConstSplit& spectrum, double* x, double* work) const
    {
        method_->inverse(spectrum, spectrum[n_ / 2].re, x, work);
    }

private:
    std::size_t n_;
    std::unique_ptr<const RealMethod> method_;
};

// Fills in bins n/2 + 1..n - 1.
void completeSpectrum(Split spectrum, std::size_t n);

} // namespace quordsp::backend
