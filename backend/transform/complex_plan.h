// What a complex transform of one size needs and can be computed once, and the transform itself.
#pragma once

#include "transform/point.h"

#include <cstddef>
#include <memory>

namespace quordsp::backend {

// Immutable: any number of threads may transform with one plan, each with a work array of its own. A plan is for one
// transform or for kLanes of them at once, whose arrays are rows of lanes.
class ComplexPlan {
public:
    virtual ~ComplexPlan() = default;

    virtual std::size_t tableSize() const = 0; // doubles that the plan holds, about
    virtual std::size_t workSize() const = 0;  // doubles

    // Unscaled. out is either in, of the same kind, or does not overlap it. Fastest if work starts a
    // cache line.
    virtual void forward(const ConstSplit& in, const Split& out, double* work) const = 0;
    void inverse(const ConstSplit& in, const Split& out, double* work) const
    {
        forward(exchanged(in), exchanged(out), work);
    }
};

// The fastest plan of a kind for n >= 1. Throws std::bad_alloc, also for an n so large that computing with it would
// overflow.
std::unique_ptr<const ComplexPlan> makeComplexPlan(std::size_t n, std::size_t lanes);

// kLanes transforms at once.
class LanePlan {
public:
    explicit LanePlan(std::size_t n) : plan_(makeComplexPlan(n, kLanes)) {}

    std::size_t tableSize() const { return plan_->tableSize(); }
    std::size_t workSize() const { return plan_->workSize(); }
    void forward(const ConstSplit& in, const Split& out, double* work) const { plan_->forward(in, out, work); }

private:
    std::unique_ptr<const ComplexPlan> plan_;
};

template <class Plan>
std::unique_ptr<const Plan> makePlan(std::size_t n)
{
    return std::make_unique<const Plan>(n);
}

template <>
inline std::unique_ptr<const ComplexPlan> makePlan<ComplexPlan>(std::size_t n)
{
    return makeComplexPlan(n, 1);
}

} // namespace quordsp::backend
