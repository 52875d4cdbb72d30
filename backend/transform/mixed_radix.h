// Complex transform of a size whose prime factors are all small.
#pragma once

#include "buffer.h"
#include "transform/complex_plan.h"
#include "transform/passes.h"
#include "transform/work.h"

#include <cstddef>
#include <vector>

namespace quordsp::backend {

// n = product of the radices, in the order of the passes, times rest.
struct Factors {
    std::vector<std::size_t> radices;
    std::size_t rest; // 1 if the radices suffice
};
Factors factorized(std::size_t n);

class MixedRadix final : public ComplexPlan {
public:
    MixedRadix(std::size_t n, std::size_t lanes);

    std::size_t tableSize() const override { return tableSize_; }
    std::size_t workSize() const override { return 2 * Work::sizeOf(n_ * lanes_); }
    void forward(const ConstSplit& in, const Split& out, double* work) const override;

private:
    void makeTables();
    void forwardInOnePass(const ConstSplit& in, const Split& out, double* work) const;
    void copyRows(ConstSplit from, Split to) const;

    std::size_t n_;
    std::size_t lanes_;
    std::size_t tableSize_ = 0;
    std::vector<Pass> passes_;
    AlignedBuffer laneTwiddles_{0};
    Buffer<Point<double>> groupTwiddles_;
};

} // namespace quordsp::backend
