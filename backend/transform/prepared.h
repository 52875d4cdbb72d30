// A plan and the memory that it works in, taken together before anything is written.
#pragma once

#include "transform/plan_cache.h"
#include "transform/real_plan.h"

namespace quordsp::backend {

template <class Plan>
class Prepared {
public:
    // fitting: a plan for n that the caller has, or null. Throws std::bad_alloc.
    explicit Prepared(std::size_t n, SharedPlan<Plan>* fitting = nullptr)
        : lease_(fitting ? Lease<Plan>{fitting} : planCache<Plan>.lease(n)),
          large_(lease_.plan->workSize() > kSmall ? lease_.plan->takeWork() : nullptr)
    {}
    Prepared(const Prepared&) = delete;
    Prepared& operator=(const Prepared&) = delete;
    ~Prepared()
    {
        if (large_)
            lease_.plan->giveBack(std::move(large_));
    }

    void forward(const auto&... arrays) const { lease_.plan->plan().forward(arrays..., work()); }
    void inverse(const auto&... arrays) const { lease_.plan->plan().inverse(arrays..., work()); }

private:
    // What a plan may work in without any allocation: 8 KB.
    static constexpr std::size_t kSmall = 1024;

    double* work() const { return large_ ? lineStart(large_.get()) : small_; }

    Lease<Plan> lease_;
    Buffer<> large_;
    alignas(kCacheLine) mutable double small_[kSmall];
};

} // namespace quordsp::backend
