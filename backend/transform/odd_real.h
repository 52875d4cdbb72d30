// Transform of a real signal of an odd size n, with about half the work of a complex one.
//
// One pass of transforms over a prime factor r of n, over real values, leaves r signals of size n/r: signal j has the
// bins r q + j of the spectrum, signal r - j has their mirror images and is left out, and signal 0 is real again. It is
// treated alike, until there is no small factor left. So there are (r - 1)/2 complex transforms of size n/r for each
// factor; and of what remains, a chirp convolution of which only half the bins are worked out.
#pragma once

#include "transform/chirp.h"
#include "transform/real_method.h"
#include "transform/real_pass.h"
#include "transform/split_buffer.h"

#include <vector>

namespace quordsp::backend {

class OddReal final : public RealMethod {
public:
    explicit OddReal(std::size_t n);

    std::size_t tableSize() const override { return tableSize_; }
    std::size_t workSize() const override { return workSize_; }
    void forward(const double* x, const Split& spectrum, double* work) const override;
    void inverse(const ConstSplit& spectrum, double last, double* x, double* work) const override;

private:
    struct Level {
        RealPass pass;
        SplitBuffer twiddles;
        Buffer<Point<double>> circle;
        std::unique_ptr<const ComplexPlan> complex;
    };

    void addLevel(std::size_t n, std::size_t radix);
    void transformRest(const double* x, Split bins, double* work) const;
    void invertRest(ConstSplit bins, double* x, double* work) const;

    std::vector<Level> levels_;
    std::size_t rest_;
    std::unique_ptr<const Chirp> chirp_; // if there is a rest
    std::size_t tableSize_ = 0;
    std::size_t workSize_;
};

} // namespace quordsp::backend
