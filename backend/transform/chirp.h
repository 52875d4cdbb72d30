// Complex transform of any size as a convolution (Bluestein): with jk = (j^2 + k^2 - (k-j)^2)/2 the transform is the
// input times a chirp, convolved with the conjugate chirp, times the chirp. The convolution goes through transforms of
// a size that has small prime factors only and leaves room for it.
#pragma once

#include "transform/complex_plan.h"
#include "transform/split_buffer.h"

namespace quordsp::backend {

class Chirp final : public ComplexPlan {
public:
    // Takes the first so many values, the others being 0, to the first so many bins.
    Chirp(std::size_t n, std::size_t values, std::size_t bins, std::size_t lanes);

    std::size_t tableSize() const override { return 2 * (chirped_ + padded_) + convolver_->tableSize(); }
    std::size_t workSize() const override { return Work::sizeOf(padded_ * lanes_) + convolver_->workSize(); }
    void forward(const ConstSplit& in, const Split& out, double* work) const override;
    // Likewise, from bins to values.
    void transposed(ConstSplit in, Split out, double* work) const;

private:
    enum class Kernel { AsItIs, Reversed };
    void convolve(ConstSplit in, std::size_t inCount, Kernel kernel, Split out, std::size_t outCount,
                  double* work) const;
    void multiply(ConstSplit rows, ConstSplit factors, std::size_t count, Split products) const;

    std::size_t values_;
    std::size_t bins_;
    std::size_t chirped_; // the larger one of them
    std::size_t lanes_;
    std::size_t padded_;
    std::unique_ptr<const ComplexPlan> convolver_;
    SplitBuffer chirp_;
    SplitBuffer kernel_;
};

} // namespace quordsp::backend
