#include "transform/transforms.h"

#include "status.h"
#include "transform/prepared.h"

namespace quordsp::backend {

namespace {

// Dividing rounds once, which multiplying by 1/n would not.
void divide(double* x, std::size_t n)
{
    const auto divisor = static_cast<double>(n);
    for (std::size_t i = 0; i < n; ++i)
        x[i] /= divisor;
}

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
    divide(re, count);
    divide(im, count);
}

void realFft(double* re, double* im, std::int64_t n)
{
    const std::size_t count = checkedCount(re, im, n);
    Prepared<RealPlan>(count).forward(re, Split{re, im});
    for (std::size_t k = count / 2 + 1; k < count; ++k) {
        re[k] = re[count - k];
        im[k] = -im[count - k];
    }
}

void inverseRealFft(double* re, const double* im, std::int64_t n)
{
    const std::size_t count = checkedCount(re, im, n);
    Prepared<RealPlan>(count).inverse(ConstSplit{re, im}, re);
    divide(re, count);
}

} // namespace quordsp::backend
