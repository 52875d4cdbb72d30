#include "statistics/peak_list.h"

#include "buffer.h"

#include <algorithm>

namespace quordsp::backend {

PeakList::PeakList(std::size_t most)
    : locations_{allocate(most)}, amplitudes_{allocate(most)}, secondDerivatives_{allocate(most)}
{}

PeakList::Array PeakList::allocate(std::size_t count)
{
    auto* const memory = count <= kMostElements ? std::malloc(count * sizeof(double)) : nullptr;
    if (!memory)
        throw std::bad_alloc();
    return Array{static_cast<double*>(memory)};
}

void PeakList::add(const Peak& peak) noexcept
{
    locations_[count_] = peak.location;
    amplitudes_[count_] = peak.amplitude;
    secondDerivatives_[count_] = peak.secondDerivative;
    ++count_;
}

void PeakList::handOver(std::int64_t* count, double** locations, double** amplitudes,
                        double** secondDerivatives) noexcept
{
    *count = static_cast<std::int64_t>(count_);
    *locations = cut(locations_);
    *amplitudes = cut(amplitudes_);
    *secondDerivatives = cut(secondDerivatives_);
}

double* PeakList::cut(Array& array) const noexcept
{
    double* const whole = array.release();
    void* const shorter = std::realloc(whole, std::max<std::size_t>(count_, 1) * sizeof(double));
    return shorter ? static_cast<double*>(shorter) : whole;
}

} // namespace quordsp::backend
