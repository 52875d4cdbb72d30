// Filtering in direct form I:
//     y[i] = (b[0] x[i] + b[1] x[i-1] + ... - a[1] y[i-1] - a[2] y[i-2] - ...) / a[0].
#pragma once

#include "buffer.h"
#include "parts.h"

#include <span>

namespace quordsp::backend {

// The results have the same bits however a signal is cut into blocks, and whether real signals or parts of complex ones
// are filtered.
class DirectFilter {
public:
    // At rest. a is not empty; a and b outlive this. Throws std::bad_alloc.
    DirectFilter(std::span<const double> a, std::span<const double> b, std::size_t parts);

    // The last a.size() - 1 outputs and b.size() - 1 inputs, newest last; null for zeros.
    void setPast(const double* outputs, const double* inputs) noexcept;
    void getPast(double* outputs, double* inputs) const noexcept;

    // x may be y.
    void run(const double* x, std::int64_t n, double* y) noexcept;

private:
    void runBlock(const double* x, std::size_t length, double* y) noexcept;
    void convolveInputs(std::size_t length) noexcept;

    std::span<const double> a_, b_;
    std::size_t parts_, pastOutputs_, pastInputs_; // the latter two in doubles
    Buffer<> outputs_, inputs_;                    // those of the past, then the block in hand
};

} // namespace quordsp::backend
