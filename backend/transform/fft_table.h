// What repeated transforms of one size share.
#pragma once

#include "nianlys.h"
#include "transform/real_plan.h"
#include "transform/shared_plan.h"

#include <cstdint>

namespace quordsp::backend {

struct FftTable {
    explicit FftTable(std::size_t n) : size(n), complex(n), real(n) {}

    std::size_t size;
    mutable SharedPlan<ComplexPlan> complex;
    mutable SharedPlan<RealPlan> real;
};

// Null if size < 1 or there is no memory.
FftTable* createTable(std::int64_t size);

// The table's plan for n, or null: a table of another size is not used.
inline SharedPlan<ComplexPlan>* complexPlanOf(const FftTable* table, std::size_t n)
{
    return table && table->size == n ? &table->complex : nullptr;
}
inline SharedPlan<RealPlan>* realPlanOf(const FftTable* table, std::size_t n)
{
    return table && table->size == n ? &table->real : nullptr;
}

} // namespace quordsp::backend
