// The plans of recent sizes, so that a transform need not compute its tables anew. All threads share them without a
// lock: whoever uses a plan counts as a user of its slot, and only the plan of a slot without users is ever replaced.
// Who finds no plan, or no slot for a new one, has a plan of its own.
#pragma once

#include "transform/shared_plan.h"

#include <atomic>
#include <cstddef>
#include <limits>
#include <memory>
#include <utility>

namespace quordsp::backend {

template <class Plan>
using OwnPlan = std::unique_ptr<SharedPlan<Plan>>;

template <class Plan>
class PlanSlot {
public:
    PlanSlot() = default;
    PlanSlot(const PlanSlot&) = delete;
    PlanSlot& operator=(const PlanSlot&) = delete;
    // Keeps a plan that some thread still uses while the process ends.
    ~PlanSlot()
    {
        OwnPlan<Plan> last;
        exchange(0, last);
    }

    // The plan for n, until unpin(); or null.
    SharedPlan<Plan>* pin(std::size_t n)
    {
        if (n_.load(std::memory_order_relaxed) != n)
            return nullptr;
        if (users_.fetch_add(1, std::memory_order_acquire) >= 0 && n_.load(std::memory_order_relaxed) == n)
            return plan_;
        unpin();
        return nullptr;
    }
    void unpin() { users_.fetch_sub(1, std::memory_order_release); }
    // As far as anybody can tell who has no lock.
    bool isEmpty() const { return n_.load(std::memory_order_relaxed) == 0; }

    // Puts a plan for n, or none, in the place of the one that was there, and pins it; or fails, for the slot has
    // users.
    bool exchange(std::size_t n, OwnPlan<Plan>& plan)
    {
        int users = 0;
        if (!users_.compare_exchange_strong(users, kReplacing, std::memory_order_acquire))
            return false;
        n_.store(n, std::memory_order_relaxed);
        OwnPlan<Plan> before(std::exchange(plan_, plan.release()));
        plan = std::move(before);
        users_.fetch_add((plan_ ? 1 : 0) - kReplacing, std::memory_order_release);
        return true;
    }

private:
    // So far below 0 that users who come meanwhile, find the slot closed and leave again do not lift it above.
    static constexpr int kReplacing = std::numeric_limits<int>::min() / 2;

    std::atomic<int> users_{0};
    std::atomic<std::size_t> n_{0}; // 0: empty
    SharedPlan<Plan>* plan_ = nullptr;
};

struct Unpin {
    void operator()(auto* slot) const { slot->unpin(); }
};

// A plan, and what keeps it: a slot that is pinned, or its only owner. Or neither: somebody else does.
template <class Plan>
struct Lease {
    SharedPlan<Plan>* plan;
    std::unique_ptr<PlanSlot<Plan>, Unpin> slot = nullptr;
    OwnPlan<Plan> own = nullptr;
};

template <class Plan>
class PlanCache {
public:
    // Throws std::bad_alloc.
    Lease<Plan> lease(std::size_t n)
    {
        PlanSlot<Plan>* const slots = slots_[n * kGolden >> (64 - kSetBits)];
        for (std::size_t way = 0; way < kWays; ++way)
            if (auto* const plan = slots[way].pin(n))
                return {.plan = plan, .slot{&slots[way]}};
        return keep(n, std::make_unique<SharedPlan<Plan>>(n), slots);
    }

private:
    [[gnu::noinline]] Lease<Plan> keep(std::size_t n, OwnPlan<Plan> own, PlanSlot<Plan>* slots)
    {
        SharedPlan<Plan>* const plan = own.get();
        const std::size_t size = plan->size();
        if (!reserve(size))
            return {.plan = plan, .own = std::move(own)};
        const std::size_t turn = turn_.fetch_add(1, std::memory_order_relaxed);
        for (const bool occupied : {false, true})
            for (std::size_t i = 0; i < kWays; ++i) {
                PlanSlot<Plan>& slot = slots[(turn + i) % kWays];
                if (slot.isEmpty() != occupied && slot.exchange(n, own)) {
                    release(own);
                    return {.plan = plan, .slot{&slot}};
                }
            }
        held_.fetch_sub(size, std::memory_order_relaxed);
        return {.plan = plan, .own = std::move(own)};
    }
    bool reserve(std::size_t size)
    {
        if (size > SharedPlan<Plan>::kLarge)
            return false;
        held_.fetch_add(size, std::memory_order_relaxed);
        for (auto& slots : slots_)
            for (PlanSlot<Plan>& slot : slots) {
                if (held_.load(std::memory_order_relaxed) <= kMost)
                    return true;
                OwnPlan<Plan> evicted;
                slot.exchange(0, evicted);
                release(evicted);
            }
        const bool fits = held_.load(std::memory_order_relaxed) <= kMost;
        if (!fits)
            held_.fetch_sub(size, std::memory_order_relaxed);
        return fits;
    }
    void release(OwnPlan<Plan>& evicted)
    {
        if (evicted)
            held_.fetch_sub(evicted->size(), std::memory_order_relaxed);
        evicted.reset();
    }

    static constexpr int kSetBits = 4;
    static constexpr std::size_t kWays = 4;
    static constexpr std::size_t kGolden = 0x9e3779b97f4a7c15;
    static constexpr std::size_t kMost = 2 * SharedPlan<Plan>::kLarge; // doubles

    PlanSlot<Plan> slots_[std::size_t{1} << kSetBits][kWays];
    std::atomic<std::size_t> held_{0};
    std::atomic<std::size_t> turn_{0};
};

// Freed with the module.
template <class Plan>
inline constinit PlanCache<Plan> planCache;

} // namespace quordsp::backend
