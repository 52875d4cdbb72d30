#include "QuorDSP_DAQ.h"
#include "targets.h"

#include <algorithm>
#include <numeric>

namespace quordsp::fuzz {
namespace {

using Samples = std::vector<double>;

struct Fit {
    int order, side;
    Samples weights; // empty: none

    const double* weightsOrNull() const { return weights.empty() ? nullptr : weights.data(); }
    int frame() const { return 2 * side + 1; }
};

// In the documented order; but weights may be so far apart that none of this shows it.
int expectedStatus(const Fit& fit)
{
    if (fit.order < 0)
        return QUORDSP_ERR_ORDER_NEGATIVE;
    if (fit.side < 0)
        return QUORDSP_ERR_COUNT_NEGATIVE;
    if (fit.frame() <= fit.order)
        return QUORDSP_ERR_TOO_FEW_POINTS;
    const auto isWeight = [](double weight) { return std::isfinite(weight) && weight >= 0; };
    const auto positive =
        std::count_if(fit.weights.begin(), fit.weights.end(), [](double weight) { return weight > 0; });
    if (!fit.weights.empty())
        if (!std::all_of(fit.weights.begin(), fit.weights.end(), isWeight) || positive <= fit.order)
            return QUORDSP_ERR_SINGULAR;
    return QUORDSP_SUCCESS;
}

// A constant is left as it is: every row of the matrix adds up to 1.
void requireRowsOfSumOne(const Fit& fit, const Samples& filters)
{
    const auto frame = static_cast<std::ptrdiff_t>(fit.frame());
    for (auto row = filters.begin(); row != filters.end(); row += frame) {
        const double sum = std::accumulate(row, row + frame, 0.0);
        const double size = std::accumulate(row, row + frame, 0.0, [](double a, double b) { return a + std::abs(b); });
        require(std::abs(sum - 1) <= 1e-5 * size, "rows of sum 1");
    }
}

int design(const Fit& fit)
{
    const auto frame = static_cast<std::size_t>(std::max(fit.frame(), 1));
    const Samples before(frame * frame, -7.0);
    Samples filters = before, diffFilters(frame * static_cast<std::size_t>(std::max(fit.order, 0) + 1), -7.0);
    const int status =
        QuorDSP_SavitzkyGolayCoef(fit.order, fit.side, fit.weightsOrNull(), 1, filters.data(), diffFilters.data());
    const int expected = expectedStatus(fit);
    require(status == expected || (expected == 0 && status == QUORDSP_ERR_SINGULAR && !fit.weights.empty()),
            "the documented status");
    if (status == QUORDSP_SUCCESS)
        requireRowsOfSumOne(fit, filters);
    else
        require(filters == before, "nothing written on failure");
    return status;
}

} // namespace

// The documented status; a matrix that leaves a constant as it is; and the same in place as elsewhere.
void savitzky_golay(Bytes bytes)
{
    Fit fit{bytes.between(-1, 14), bytes.between(-1, 9), {}};
    if (bytes.byte() % 2 == 0)
        fit.weights = bytes.numbers(std::max(fit.frame(), 1));
    const Samples x = bytes.numbers(bytes.between(1, 60));
    const int designed = design(fit);

    Samples y(x.size(), -7.0), inPlace = x;
    const int status =
        QuorDSP_SavitzkyGolayFiltering(x.data(), sizeOf(x), fit.order, fit.side, fit.weightsOrNull(), y.data());
    require(status == designed || (status == QUORDSP_ERR_ARRAY_SIZE && sizeOf(x) < fit.frame()),
            "the status of the design");
    require(QuorDSP_SavitzkyGolayFiltering(inPlace.data(), sizeOf(x), fit.order, fit.side, fit.weightsOrNull(),
                                           inPlace.data()) == status,
            "the same status in place");
    if (status == QUORDSP_SUCCESS)
        require(areSame(inPlace, y), "the same in place");
    else
        require(areSame(inPlace, x) && y == Samples(x.size(), -7.0), "nothing written on failure");
}

} // namespace quordsp::fuzz
