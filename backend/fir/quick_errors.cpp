#include "fir/quick_errors.h"

#include "cpu/instruction_set.h"
#include "fir/barycentric_kernel.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

// Weights below it are too small for sums that start with 1.
constexpr double kLeastWeight = 0x1p-900;
// Of two nodes, whose rounding would count too much in closer ones.
constexpr double kLeastDistance = 0x1p-40;
constexpr std::size_t kBatch = 64;
static_assert(kBatch % kFrequencyGroup == 0);

std::size_t wholeGroups(std::size_t count, std::size_t group)
{
    return (count + group - 1) / group * group;
}

} // namespace

QuickErrors::QuickErrors(const Interpolant& interpolant, const Approximation& approximation)
    : approximation_{approximation}, instructions_{bestInstructionSet()}, count_{interpolant.nodes().size()}
{
    const std::vector<Interpolant::Term>& terms = interpolant.terms();
    const std::size_t size = wholeGroups(count_, kNodeGroup);
    x_.resize(size, 2);
    weights_.resize(size);
    weightedValues_.resize(size);
    Real largest = 0;
    for (const Interpolant::Term& term : terms)
        largest = std::max(largest, std::abs(term.weight));
    const Real scale = 1 / largest;
    for (std::size_t i = 0; i < count_; ++i) {
        x_[i] = static_cast<double>(terms[i].x);
        weights_[i] = static_cast<double>(terms[i].weight * scale);
        weightedValues_[i] = static_cast<double>(terms[i].weightedValue * scale);
    }
}

bool QuickErrors::areInRange() const
{
    const auto isWide = [](const ApproximationBand& band) {
        return static_cast<double>(band.lower) < static_cast<double>(band.upper);
    };
    const auto areClose = [](double x, double next) { return !(x - next > kLeastDistance); };
    const auto nodes = static_cast<std::ptrdiff_t>(count_);
    return std::ranges::all_of(approximation_.bands, isWide) &&
           std::adjacent_find(x_.begin(), x_.begin() + nodes, areClose) == x_.begin() + nodes &&
           std::all_of(weights_.begin(), weights_.begin() + nodes,
                       [](double weight) { return std::abs(weight) > kLeastWeight; });
}

struct QuickErrors::Samples {
    double values[kBatch], cosines[kBatch], sines[kBatch];
};

void QuickErrors::evaluate(std::size_t band, std::span<const double> f, double* errors) const
{
    const NodeList nodes{x_.size(), x_.data(), weights_.data(), weightedValues_.data()};
    double frequencies[kBatch] = {};
    Samples samples;
    for (std::size_t done = 0; done < f.size(); done += kBatch) {
        const auto batch = f.subspan(done, std::min(kBatch, f.size() - done));
        std::ranges::copy(batch, frequencies);
        Versions<interpolate>::of(instructions_)(nodes, frequencies, wholeGroups(batch.size(), kFrequencyGroup),
                                                 samples.values, samples.cosines, samples.sines);
        formErrors(approximation_.bands[band], batch, samples, errors + done);
    }
}

void QuickErrors::formErrors(const ApproximationBand& band, std::span<const double> f, const Samples& samples,
                             double* errors) const
{
    const LinearPhase filter = approximation_.filter;
    const auto desired = static_cast<double>(band.desired), weight = static_cast<double>(band.weight);
    const auto slopeAtZero = static_cast<double>(filter.slopeAtZero());
    for (std::size_t i = 0; i < f.size(); ++i) {
        double gain = filter.factor(samples.cosines[i], samples.sines[i]);
        if (band.isSlope)
            gain = f[i] == 0 ? slopeAtZero : gain / f[i];
        errors[i] = weight * (desired - gain * samples.values[i]);
    }
}

} // namespace quordsp::backend
