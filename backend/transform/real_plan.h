// Transform of a real signal. Of an even size it is a complex transform of half the size, over the pairs of neighbours,
// and one step more; of an odd size it is a complex transform without imaginary parts.
#pragma once

#include "transform/complex_plan.h"
#include "transform/split_buffer.h"

namespace quordsp::backend {

// Immutable, like ComplexPlan. Spectra are held as their bins 0..n/2; the others are the conjugates of these.
class RealPlan {
public:
    // n >= 1. Throws std::bad_alloc.
    explicit RealPlan(std::size_t n);

    std::size_t bins() const { return n_ / 2 + 1; }
    std::size_t workSize() const { return Work::sizeOf(points_) + complex_->workSize(); } // doubles
    std::size_t tableSize() const { return n_ / 2 + complex_->tableSize(); }

    // Unscaled. x may be spectrum.re. Imaginary parts that are 0 for any real signal come out as 0.
    void forward(const double* x, Split spectrum, double* work) const;

    // Unscaled: n times the signal. x may be spectrum.re. Ignores the imaginary parts that no real signal has.
    void inverse(ConstSplit spectrum, double* x, double* work) const;

private:
    std::size_t n_;
    std::size_t points_; // of the complex transform
    std::unique_ptr<const ComplexPlan> complex_;
    SplitBuffer twiddles_{0}; // of an even size
};

} // namespace quordsp::backend
