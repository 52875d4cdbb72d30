// Transforms along the columns of a matrix, in place.
#pragma once

#include "transform/prepared.h"
#include "transform/split_buffer.h"

#include <optional>

namespace quordsp::backend {

class Columns {
public:
    // Throws std::bad_alloc.
    Columns(std::size_t rows, std::size_t count)
        : rows_(rows), count_(count), column_(rows > 1 && count % kLanes > 0 ? rows : 0)
    {
        if (rows > 1 && count >= kLanes)
            many_.emplace(rows);
        if (rows > 1 && count % kLanes > 0)
            one_.emplace(rows);
    }

    // y: rows of a pitch. After each step calls done with the first of the columns that it was about and their number.
    template <class Done>
    void forward(Split y, Done done) const
    {
        std::size_t first = 0;
        if (rows_ == 1)
            return done(first, count_);
        for (; first + kLanes <= count_; first += kLanes) {
            many_->forward(ConstSplit(y + first), y + first);
            done(first, kLanes);
        }
        for (; first < count_; ++first) {
            transformOne(y + first);
            done(first, std::size_t{1});
        }
    }

private:
    void transformOne(Split y) const
    {
        const Split column = column_;
        for (std::size_t i = 0; i < rows_; ++i)
            column.set(i, y[i * y.pitch]);
        one_->forward(ConstSplit(column), column);
        for (std::size_t i = 0; i < rows_; ++i)
            y.set(i * y.pitch, column[i]);
    }

    std::size_t rows_;
    std::size_t count_;
    SplitBuffer column_;
    std::optional<Prepared<LanePlan>> many_;
    std::optional<Prepared<ComplexPlan>> one_;
};

} // namespace quordsp::backend
