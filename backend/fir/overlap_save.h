// FIR filtering of a whole real signal by Fourier transforms: its cost grows with the logarithm of the number of taps.
//
// Every output is within 1e-12 sum |h| max |x|, or 1e-298, of the direct sum, max |x| over the block of 4096 samples,
// or 4 to 8 times the taps, that it stands in. So its last bits depend on later inputs, too. But a block that holds
// NaN, infinity or numbers too large for the transforms is filtered by direct sums.
#pragma once

#include "transform/real_plan.h"

namespace quordsp::backend {

class OverlapSave {
public:
    // Whether it is faster than direct sums.
    static bool pays(std::size_t taps, std::size_t n);

    // For signals of up to n samples; 1 <= taps <= n. h stays the caller's. Throws std::bad_alloc.
    OverlapSave(const double* h, std::size_t taps, std::size_t n);

    // From zero state. Of x and y, each stride-th value. x may be y.
    void filter(const double* x, std::size_t n, std::size_t stride, double* y) const;

private:
    std::size_t blockSize() const { return size_ - history_; }
    void filterBlock(std::size_t length) const;
    double largestInput() const;
    void transform(double raise) const;
    void multiplyByResponse() const;

    const double* h_;
    std::size_t taps_, history_, size_;
    double reach_ = 0; // sum |h|
    RealPlan plan_;
    AlignedBuffer work_;
    SplitBuffer response_, spectrum_;
    Buffer<> inputs_, outputs_;
};

} // namespace quordsp::backend
