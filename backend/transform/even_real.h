// Transform of a real signal of an even size: a complex transform of half the size, over the pairs of neighbours, and
// one step more.
#pragma once

#include "transform/complex_plan.h"
#include "transform/real_method.h"
#include "transform/split_buffer.h"

namespace quordsp::backend {

class EvenReal final : public RealMethod {
public:
    explicit EvenReal(std::size_t n);

    std::size_t tableSize() const override { return half_ + complex_->tableSize(); }
    std::size_t workSize() const override { return Work::sizeOf(half_) + complex_->workSize(); }
    void forward(const double* x, const Split& spectrum, double* work) const override;
    void inverse(const ConstSplit& spectrum, double last, double* x, double* work) const override;

private:
    std::size_t half_;
    std::unique_ptr<const ComplexPlan> complex_;
    SplitBuffer twiddles_;
};

} // namespace quordsp::backend
