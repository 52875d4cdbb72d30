// Complex transform of a size whose prime factors are all small.
#pragma once

#include "buffer.h"
#include "transform/complex_plan.h"
#include "transform/passes.h"

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
    MixedRadix(std::size_t n, const std::vector<std::size_t>& radices);

    std::size_t workSize() const override { return 2 * n_; }
    void forward(ConstSplit in, Split out, double* work) const override;

private:
    std::size_t n_;
    Buffer<> tables_;
    std::vector<Pass> passes_;
};

} // namespace quordsp::backend
