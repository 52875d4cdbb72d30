#include <algorithm>
#include <numeric>

#include "one_call.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

struct Fit {
    int order, side;
    Samples weights; // empty: none

    const double* weightsOrNull() const { return weights.empty() ? nullptr : weights.data(); }
    std::int64_t frame() const { return 2 * std::int64_t{side} + 1; }
    bool isHuge() const { return order > 20 || side > 20 || order < -1 || side < -1; }
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
    const auto work = std::pow(static_cast<double>(fit.order) + 1, 2) * static_cast<double>(fit.frame());
    if (work > 4294967296)
        return QUORDSP_ERR_OUT_OF_MEMORY;
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

// The derivative of order 0 is the value: the middle row of the matrix.
void requireFirstRow(const Fit& fit, const Samples& filters, const Samples& diffFilters)
{
    const auto frame = static_cast<std::size_t>(fit.frame());
    const double* const middle = filters.data() + static_cast<std::size_t>(fit.side) * frame;
    for (std::size_t m = 0; m < frame; ++m)
        require(std::abs(diffFilters[m] - middle[m]) <= 1e-5 * (1 + std::abs(middle[m])), "the value at the middle");
}

int coefficients(const Fit& fit, bool isExported, Samples& filters, double* diffFilters)
{
    const int withDiffs = diffFilters ? 1 : 0;
    return isExported ? QuorDSP_SavitzkyGolayCoef(fit.order, fit.side, fit.weightsOrNull(), withDiffs, filters.data(),
                                                  diffFilters)
                      : static_cast<int>(backend::AALFunc355(fit.order, fit.side, fit.weightsOrNull(), withDiffs,
                                                             filters.data(), diffFilters));
}

int design(const Fit& fit, bool isExported)
{
    const int expected = expectedStatus(fit);
    if (fit.isHuge() && expected == QUORDSP_SUCCESS)
        return expected; // no memory has room for the matrix
    const auto frame = static_cast<std::size_t>(fit.isHuge() ? 1 : std::max(fit.frame(), std::int64_t{1}));
    const Samples before(frame * frame, -7.0);
    Samples filters = before, same = before;
    Samples diffFilters(frame * static_cast<std::size_t>(fit.isHuge() ? 1 : std::max(fit.order, 0) + 1), -7.0);
    const int status = coefficients(fit, isExported, filters, diffFilters.data());
    require(status == expected || (expected == 0 && status == QUORDSP_ERR_SINGULAR && !fit.weights.empty()),
            "the documented status");
    require(coefficients(fit, isExported, same, nullptr) == status && areSame(same, filters), "the same without rows");
    if (status == QUORDSP_SUCCESS) {
        requireRowsOfSumOne(fit, filters);
        requireFirstRow(fit, filters, diffFilters);
    } else {
        require(filters == before && diffFilters[0] == -7, "nothing written on failure");
    }
    return status;
}

Fit readFit(Bytes& bytes)
{
    Fit fit{bytes.mostlyBetween(-1, 14), bytes.mostlyBetween(-1, 9), {}};
    if (bytes.byte() % 2 == 0 && !fit.isHuge())
        fit.weights = bytes.numbers(std::max(static_cast<int>(fit.frame()), 1));
    return fit;
}

} // namespace

// The documented status; a matrix that leaves a constant as it is; and the filter in all of its forms.
void savitzky_golay(Bytes bytes)
{
    const Fit fit = readFit(bytes);
    const int n = bytes.between(0, 60);
    const Signal x{bytes.numbers(n), bytes.numbers(n)};
    const int designed = design(fit, bytes.byte() % 2 > 0);
    const OneCallFilter filter = oneCall(backend::AALFunc356, backend::AALFunc357, QuorDSP_SavitzkyGolayFiltering,
                                         QuorDSP_SavitzkyGolayFiltering_CxInput, AfterFailure::Anything, fit.order,
                                         fit.side, fit.weightsOrNull());
    const int status = requireOneOutcome(filter, x).status;
    if (n == 0)
        require(status == QUORDSP_ERR_COUNT_NOT_POSITIVE, "no samples");
    else if (designed == QUORDSP_SUCCESS && n < fit.frame())
        require(status == QUORDSP_ERR_ARRAY_SIZE, "too few samples");
    else
        require(status == designed || (n < fit.frame() && status == QUORDSP_ERR_ARRAY_SIZE),
                "the status of the design");
}

} // namespace quordsp::fuzz
