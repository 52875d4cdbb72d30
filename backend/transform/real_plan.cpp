// Even sizes n = 2m: the complex transform Z of x[0] + i x[1], x[2] + i x[3], ... holds the transforms E of the even
// and O of the odd elements as Z = E + i O, and both are conjugate symmetric. The spectrum is
// X[k] = E[k] + exp(-2 pi i k/n) O[k].
#include "transform/real_plan.h"

#include "transform/roots.h"

namespace quordsp::backend {

namespace {

void joinHalves(ConstSplit z, ConstSplit twiddles, std::size_t m, Split spectrum)
{
    spectrum.set(0, {z.re[0] + z.im[0], 0});
    spectrum.set(m, {z.re[0] - z.im[0], 0});
    for (std::size_t k = 1; k <= m / 2; ++k) {
        const auto a = z[k], b = conjugate(z[m - k]);
        const auto even = 0.5 * (a + b);
        const auto odd = quarterTurn(0.5 * (a - b)) * twiddles[k];
        spectrum.set(k, even + odd);
        spectrum.set(m - k, conjugate(even - odd));
    }
}

void splitHalves(ConstSplit spectrum, ConstSplit twiddles, std::size_t m, Split z)
{
    z.set(0, {spectrum.re[0] + spectrum.re[m], spectrum.re[0] - spectrum.re[m]});
    for (std::size_t k = 1; k <= m / 2; ++k) {
        const auto a = spectrum[k], b = conjugate(spectrum[m - k]);
        const auto even = a + b;
        const auto odd = quarterTurn((a - b) * conjugate(twiddles[k])); // times -1
        z.set(k, even - odd);
        z.set(m - k, conjugate(even + odd));
    }
}

} // namespace

RealPlan::RealPlan(std::size_t n) : n_(n), points_(n % 2 == 0 ? n / 2 : n), complex_(makeComplexPlan(points_))
{
    if (n % 2 != 0)
        return;
    twiddles_ = makeBuffer(2 * (n / 4 + 1));
    const Roots root(n);
    for (std::size_t k = 0; k <= n / 4; ++k)
        twiddles().set(k, root(k));
}

void RealPlan::forward(const double* x, Split spectrum, double* work) const
{
    const Split z = {work, work + points_};
    double* const complexWork = work + 2 * points_;
    if (n_ % 2 == 0) {
        for (std::size_t i = 0; i < points_; ++i)
            z.set(i, {x[2 * i], x[2 * i + 1]});
        complex_->forward(z, z, complexWork);
        joinHalves(z, twiddles(), points_, spectrum);
    } else {
        for (std::size_t i = 0; i < points_; ++i)
            z.set(i, {x[i], 0});
        complex_->forward(z, z, complexWork);
        copy(z, bins(), spectrum);
        spectrum.im[0] = 0;
    }
}

void RealPlan::inverse(ConstSplit spectrum, double* x, double* work) const
{
    const Split z = {work, work + points_};
    double* const complexWork = work + 2 * points_;
    if (n_ % 2 == 0) {
        splitHalves(spectrum, twiddles(), points_, z);
        complex_->inverse(z, z, complexWork);
        for (std::size_t i = 0; i < points_; ++i) {
            x[2 * i] = z.re[i];
            x[2 * i + 1] = z.im[i];
        }
    } else {
        z.set(0, {spectrum.re[0], 0});
        for (std::size_t k = 1; k < bins(); ++k) {
            z.set(k, spectrum[k]);
            z.set(n_ - k, conjugate(spectrum[k]));
        }
        complex_->inverse(z, z, complexWork);
        std::copy_n(z.re, n_, x);
    }
}

} // namespace quordsp::backend
