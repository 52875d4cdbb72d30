// Complex transform of any size as a convolution (Bluestein): with jk = (j^2 + k^2 - (k-j)^2)/2 the transform is the
// input times a chirp, convolved with the conjugate chirp, times the chirp. The convolution goes through transforms of
// a size that has small prime factors only and leaves room for it.
#pragma once

#include "transform/mixed_radix.h"

namespace quordsp::backend {

class Chirp final : public ComplexPlan {
public:
    explicit Chirp(std::size_t n);

    std::size_t workSize() const override { return 2 * padded_ + convolver_.workSize(); }
    void forward(ConstSplit in, Split out, double* work) const override;

private:
    Split chirp() const { return {tables_.get(), tables_.get() + n_}; }
    Split kernel() const { return {tables_.get() + 2 * n_, tables_.get() + 2 * n_ + padded_}; }

    std::size_t n_;
    std::size_t padded_;
    MixedRadix convolver_;
    Buffer<> tables_;
};

} // namespace quordsp::backend
