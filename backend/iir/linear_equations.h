// Systems of linear equations with complex coefficients.
#pragma once

#include "real.h"

#include <algorithm>
#include <span>
#include <vector>

namespace quordsp::backend {

// Row by row, each with its right-hand side at its end.
class LinearEquations {
public:
    explicit LinearEquations(std::size_t count) : count_{count}, values_(count * (count + 1)) {}

    std::span<std::complex<Real>> row(std::size_t i) { return std::span{values_}.subspan(i * width(), width()); }

    // Gauss' elimination; the right-hand sides become the solution.
    void solve()
    {
        for (std::size_t k = 0; k < count_; ++k) {
            exchange(k, largestOfColumn(k));
            for (std::size_t i = k + 1; i < count_; ++i)
                subtract(i, k, quotient(row(i)[k], row(k)[k]));
        }
        for (std::size_t k = count_; k-- > 0;) {
            std::complex<Real>& solution = row(k)[count_];
            solution = quotient(solution, row(k)[k]);
            for (std::size_t i = 0; i < k; ++i)
                row(i)[count_] -= row(i)[k] * solution;
        }
    }

private:
    std::size_t width() const { return count_ + 1; }

    std::size_t largestOfColumn(std::size_t k)
    {
        std::size_t largest = k;
        for (std::size_t i = k + 1; i < count_; ++i)
            if (std::norm(row(i)[k]) > std::norm(row(largest)[k]))
                largest = i;
        return largest;
    }

    void exchange(std::size_t k, std::size_t i)
    {
        if (i != k)
            std::swap_ranges(row(k).begin(), row(k).end(), row(i).begin());
    }

    void subtract(std::size_t i, std::size_t k, std::complex<Real> factor)
    {
        const auto from = row(k), to = row(i);
        for (std::size_t j = k + 1; j < width(); ++j)
            to[j] -= factor * from[j];
    }

    std::size_t count_;
    std::vector<std::complex<Real>> values_;
};

} // namespace quordsp::backend
