#include "savitzky_golay.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>
#include <vector>

#include "fir_designs.h"

namespace quordsp::cli {
namespace {

const double* weightsOf(const FilterRequest& q)
{
    return q.weights.empty() ? nullptr : q.weights.data();
}

// What a frame times row p gives is the coefficient of t^p in the polynomial fitted to it, t in samples from the
// middle.
class PolynomialRows {
public:
    explicit PolynomialRows(const FilterRequest& q) : frame_(static_cast<std::size_t>(std::max(q.frame(), 1)))
    {
        const auto highest = static_cast<std::size_t>(std::clamp(q.order, 0, std::max(2 * q.side, 0)));
        std::vector<double> smoothing(frame_ * frame_);
        rows_.resize((highest + 1) * frame_);
        status_ = QuorDSP_SavitzkyGolayCoef(q.order, q.side, weightsOf(q), 1, smoothing.data(), rows_.data());
    }

    [[nodiscard]] AnalysisLibErrType status() const { return status_; }

    // Times a frame: the derivative by samples, so many samples behind the middle.
    [[nodiscard]] std::vector<double> derivative(int degree, int t) const
    {
        std::vector<double> taps(frame_);
        for (auto p = static_cast<std::size_t>(degree); p < rows_.size() / frame_; ++p) {
            const int rest = static_cast<int>(p) - degree;
            double factor = std::pow(t, rest);
            for (int power = rest + 1; power <= rest + degree; ++power)
                factor *= power;
            for (std::size_t k = 0; k < frame_; ++k)
                taps[k] += factor * rows_[p * frame_ + k];
        }
        return taps;
    }

private:
    std::size_t frame_;
    std::vector<double> rows_;
    AnalysisLibErrType status_;
};

std::vector<double> tapsOf(const FilterRequest& q, const PolynomialRows& rows)
{
    std::vector<double> taps = rows.derivative(q.derivative, 0);
    std::ranges::reverse(taps);
    for (double& tap : taps)
        tap *= std::pow(q.rate, q.derivative);
    return taps;
}

// The samples before the middle of the first frame, or those behind the middle of the last one.
void fillEnd(const FilterRequest& q, const PolynomialRows& rows, std::span<const double> frame, int from, double* out)
{
    for (int t = from; t < from + q.side; ++t) {
        const std::vector<double> taps = rows.derivative(q.derivative, t);
        *out++ = std::pow(q.rate, q.derivative) * std::inner_product(taps.begin(), taps.end(), frame.begin(), 0.0);
    }
}

AnalysisLibErrType differentiate(const FilterRequest& q, const PolynomialRows& rows, std::span<const double> in,
                                 double* out)
{
    const auto frame = static_cast<std::size_t>(q.frame());
    const auto side = static_cast<std::size_t>(q.side);
    std::vector<double> delayed(in.size());
    const AnalysisLibErrType status = fir::convolve(tapsOf(q, rows), {in, delayed.data()});
    if (status < 0)
        return status;
    std::copy(delayed.begin() + static_cast<std::ptrdiff_t>(frame) - 1, delayed.end(), out + side);
    fillEnd(q, rows, in.first(frame), -q.side, out);
    fillEnd(q, rows, in.last(frame), 1, out + in.size() - side);
    return status;
}

AnalysisLibErrType differentiate(const FilterRequest& q, const FilterSignal& signal)
{
    const PolynomialRows rows(q);
    if (rows.status() < 0)
        return rows.status();
    if (signal.count() < q.frame())
        return QUORDSP_ERR_ARRAY_SIZE;
    const AnalysisLibErrType status = differentiate(q, rows, signal.in, signal.out);
    if (status < 0 || !signal.isComplex())
        return status;
    return differentiate(q, rows, {signal.inImaginary, signal.in.size()}, signal.outImaginary);
}

// The filter's answer to an impulse as far from the ends as reaches: the coefficients themselves would come with all
// those of the ends, a square of numbers.
AnalysisLibErrType smoothedImpulse(const FilterRequest& q, std::vector<double>& taps)
{
    const auto side = static_cast<std::size_t>(std::max(q.side, 0));
    std::vector<double> signal(4 * side + 1);
    signal[2 * side] = 1;
    const AnalysisLibErrType status = QuorDSP_SavitzkyGolayFiltering(signal.data(), static_cast<int>(signal.size()),
                                                                     q.order, q.side, weightsOf(q), signal.data());
    const auto first = signal.begin() + static_cast<std::ptrdiff_t>(side);
    taps.assign(first, first + static_cast<std::ptrdiff_t>(2 * side + 1));
    return status;
}

} // namespace

AnalysisLibErrType savitzkyGolayFilter(const FilterRequest& q, FilterSignal& signal)
{
    if (q.weights.empty()) // others delay frequencies by different times
        signal.delay = 0;
    if (q.derivative > 0)
        return differentiate(q, signal);
    if (!signal.isComplex())
        return QuorDSP_SavitzkyGolayFiltering(signal.in.data(), signal.count(), q.order, q.side, weightsOf(q),
                                              signal.out);
    return QuorDSP_SavitzkyGolayFiltering_CxInput(signal.in.data(), signal.inImaginary, signal.count(), q.order, q.side,
                                                  weightsOf(q), signal.out, signal.outImaginary);
}

AnalysisLibErrType savitzkyGolayImpulse(const FilterRequest& q, Impulse& impulse)
{
    impulse.lead = q.side;
    if (q.derivative == 0)
        return smoothedImpulse(q, impulse.taps);
    const PolynomialRows rows(q);
    if (rows.status() >= 0)
        impulse.taps = tapsOf(q, rows);
    return rows.status();
}

} // namespace quordsp::cli
