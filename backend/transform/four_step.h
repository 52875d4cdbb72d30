// Complex transform of a large size n = columns * rows whose prime factors are all small, in two passes over memory:
// the input as a matrix [rows][columns] is transformed along its columns, some at a time, which fit into a near cache;
// each value is turned by root (row * column) of order n; and the rows of the result are transformed and written as
// columns.
#pragma once

#include "transform/mixed_radix.h"
#include "transform/split_buffer.h"

namespace quordsp::backend {

class FourStep final : public ComplexPlan {
public:
    // n has a divisor from kLanes up to its square root.
    explicit FourStep(std::size_t n);

    static bool suits(std::size_t n);

    std::size_t tableSize() const override;
    std::size_t workSize() const override;
    void forward(const ConstSplit& in, const Split& out, double* work) const override;

private:
    void transformColumns(ConstSplit in, Split turned, double* work) const;
    void transformRows(ConstSplit turned, Split out, double* work) const;
    Point<double> root(std::size_t k) const { return coarse_[k / kFine] * fine_[k % kFine]; }

    static constexpr std::size_t kFine = 1024;

    std::size_t n_;
    std::size_t rows_;
    std::size_t columns_;
    MixedRadix alongColumns_;
    MixedRadix alongRows_;
    Buffer<Point<double>> fine_;   // roots 0, 1, ..., kFine - 1
    Buffer<Point<double>> coarse_; // roots 0, kFine, 2 kFine, ...
    SplitBuffer laneTwiddles_;     // [rows][kLanes]: root (row * lane)
};

} // namespace quordsp::backend
