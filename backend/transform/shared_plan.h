// A plan that several threads use, and memory to work in for the first of them; the others bring their own.
#pragma once

#include "transform/complex_plan.h"
#include "transform/work.h"

#include <atomic>
#include <cstddef>
#include <memory>

namespace quordsp::backend {

template <class Plan>
class SharedPlan {
public:
    // What one of them keeps at most, in doubles, unless its tables alone are larger.
    static constexpr std::size_t kLarge = std::size_t{1} << 20;

    // Throws std::bad_alloc.
    explicit SharedPlan(std::size_t n) : plan_(makePlan<Plan>(n)), workSize_(plan_->workSize()) {}
    ~SharedPlan() { delete[] spare_.load(std::memory_order_relaxed); }

    const Plan& plan() const { return *plan_; }
    std::size_t size() const { return plan_->tableSize() + (keepsWork() ? workSize_ : 0); }
    std::size_t workSize() const { return workSize_; }

    // Throws std::bad_alloc.
    Buffer<> takeWork()
    {
        if (double* const spare = spare_.exchange(nullptr, std::memory_order_acquire))
            return Buffer<>(spare);
        return makeBuffer(workSize_ + kDoublesPerLine);
    }
    void giveBack(Buffer<> work)
    {
        double* none = nullptr;
        if (keepsWork() && spare_.compare_exchange_strong(none, work.get(), std::memory_order_release))
            work.release();
    }

private:
    bool keepsWork() const { return plan_->tableSize() + workSize_ <= kLarge; }

    std::unique_ptr<const Plan> plan_;
    std::size_t workSize_;
    std::atomic<double*> spare_{nullptr};
};

} // namespace quordsp::backend
