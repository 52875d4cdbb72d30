// The error of an interpolant in double precision.
#pragma once

#include "cpu/instruction_set.h"
#include "fir/interpolant.h"

namespace quordsp::backend {

class QuickErrors {
public:
    QuickErrors(const Interpolant& interpolant, const Approximation& approximation);

    // Whether double has the range of the weights and tells nodes, and the edges of each band, apart.
    bool areInRange() const;
    // The errors at frequencies of a band.
    using Number = double;
    void evaluate(std::size_t band, std::span<const double> f, double* errors) const;

private:
    struct Samples;
    void formErrors(const ApproximationBand& band, std::span<const double> f, const Samples& samples,
                    double* errors) const;

    const Approximation& approximation_;
    InstructionSet instructions_;
    std::vector<double> x_, weights_, weightedValues_;
    std::size_t count_; // of nodes, without what fills the last group
};

} // namespace quordsp::backend
