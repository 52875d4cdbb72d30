#include "transform/transforms.h"

#include "status.h"
#include "transform/division.h"
#include "transform/prepared.h"

namespace quordsp::backend {

namespace {

std::size_t checkedCount(const double* re, const double* im, std::int64_t n)
{
    requirePositiveCount(n);
    requireArrays(re, im);
    return static_cast<std::size_t>(n);
}

void transformInPlace(Split a, std::size_t n)
{
    Prepared<ComplexPlan>(n).forward(a, a);
}

} // namespace

void fft(double* re, double* im, std::int64_t n)
{
    transformInPlace({re, im}, checkedCount(re, im, n));
}

void inverseFft(double* re, double* im, std::int64_t n)
{
    const std::size_t count = checkedCount(re, im, n);
    transformInPlace(exchanged(Split{re, im}), count);
    divide(re, count, count);
    divide(im, count, count);
}

void realFft(double* re, double* im, std::int64_t n)
{
    const std::size_t count = checkedCount(re, im, n);
    const Split spectrum = {re, im};
    Prepared<RealPlan>(count).forward(re, spectrum);
    completeSpectrum(spectrum, count);
}

void inverseRealFft(double* re, const double* im, std::int64_t n)
{
    const std::size_t count = checkedCount(re, im, n);
    Prepared<RealPlan>(count).inverse(ConstSplit{re, im}, re);
    divide(re, count, count);
}

} // namespace quordsp::backend
