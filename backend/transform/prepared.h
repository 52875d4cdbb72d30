// A plan and the memory that it works in: all that a transform can run out of memory for.
#pragma once

#include "transform/plan_cache.h"
#include "transform/real_plan.h"

namespace quordsp::backend {

template <class Plan>
class Prepared {
public:
    // fitting: a plan for n that the caller has, or null. Throws std::bad_alloc.
    explicit Prepared(std::size_t n, SharedPlan<Plan>* fitting = nullptr)
        : lease_(fitting ? Lease{fitting, nullptr, nullptr} : planCache<Plan>.lease(n))
    {
        try {
            work_ = lease_.plan->takeWork();
        } catch (...) {
            unpin();
            throw;
        }
    }
    Prepared(const Prepared&) = delete;
    Prepared& operator=(const Prepared&) = delete;
    ~Prepared()
    {
        lease_.plan->giveBack(std::move(work_));
        unpin();
    }

    const Plan& plan() const { return lease_.plan->plan(); }
    void forward(auto in, auto out) const { lease_.plan->plan().forward(in, out, lineStart(work_.get())); }
    void inverse(auto in, auto out) const { lease_.plan->plan().inverse(in, out, lineStart(work_.get())); }

private:
    using Lease = typename PlanCache<Plan>::Lease;

    void unpin()
    {
        if (lease_.slot)
            lease_.slot->unpin();
    }

    Lease lease_;
    Buffer<> work_;
};

} // namespace quordsp::backend
