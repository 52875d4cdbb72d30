// What a complex transform of one size needs and can be computed once, and the transform itself.
#pragma once

#include "transform/point.h"

#include <cstddef>
#include <memory>

namespace quordsp::backend {

// Immutable: any number of threads may transform with one plan, each with a work array of its own.
class ComplexPlan {
public:
    virtual ~ComplexPlan() = default;

    virtual std::size_t workSize() const = 0; // doubles

    // Unscaled. out is either in or does not overlap it.
    virtual void forward(ConstSplit in, Split out, double* work) const = 0;
    void inverse(ConstSplit in, Split out, double* work) const { forward(exchanged(in), exchanged(out), work); }
};

// The fastest way for n >= 1. Throws std::bad_alloc, also for an n so large that computing with it would overflow.
std::unique_ptr<const ComplexPlan> makeComplexPlan(std::size_t n);

} // namespace quordsp::backend
