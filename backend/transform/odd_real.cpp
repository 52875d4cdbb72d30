#include "transform/odd_real.h"

#include "transform/mixed_radix.h"
#include "transform/roots.h"

#include <algorithm>
#include <utility>

namespace quordsp::backend {

namespace {

// The complex transforms of one level, as they come from work.
Split rowsOf(const RealPass& pass, Work& work)
{
    const Split row = work.take(pass.count);
    for (std::size_t j = 2; j <= pass.radix / 2; ++j)
        work.take(pass.count);
    return row.withPitch(Work::sizeOf(pass.count));
}

// Calls body with each bin of row j that a level of size n works out, its place among bins 0..n/2, and whether it is
// the conjugate that belongs there.
template <class Body>
void forEachBin(const RealPass& pass, std::size_t j, Body body)
{
    const std::size_t n = pass.radix * pass.count;
    std::size_t q = 0, k = j;
    for (; k <= n / 2; ++q, k += pass.radix)
        body(q, k, false);
    for (; q < pass.count; ++q, k += pass.radix)
        body(q, n - k, true);
}

} // namespace

OddReal::OddReal(std::size_t n) : rest_(n)
{
    const Factors factors = factorized(n);
    for (const std::size_t radix : factors.radices) {
        addLevel(rest_, radix);
        rest_ /= radix;
    }
    if (rest_ > 1)
        chirp_ = std::make_unique<const Chirp>(rest_, rest_, rest_ / 2 + 1, 1);

    std::size_t work = chirp_ ? Work::sizeOf(rest_) + chirp_->workSize() : 0;
    tableSize_ = chirp_ ? chirp_->tableSize() : 0;
    for (const Level& level : levels_) {
        const std::size_t rows = level.pass.radix / 2;
        work = std::max(work, rows * Work::sizeOf(level.pass.count) + level.complex->workSize());
        tableSize_ += rows * Work::sizeOf(level.pass.count) + level.complex->tableSize() + 2 * level.pass.radix;
    }
    workSize_ = work + Work::sizeOf(n / 3 + 1);
}

void OddReal::addLevel(std::size_t n, std::size_t radix)
{
    const std::size_t count = n / radix;
    Level level = {{}, SplitBuffer(radix / 2 * count), makeBuffer<Point<double>>(radix), makePlan<ComplexPlan>(count)};
    level.pass.radix = radix;
    level.pass.count = count;
    const Roots root(n);
    for (std::size_t j = 1; j <= radix / 2; ++j)
        for (std::size_t i = 0; i < count; ++i)
            level.twiddles.get().set((j - 1) * count + i, root(j * i));
    for (std::size_t j = 0; j < radix; ++j)
        level.circle[j] = root(count * j);
    level.pass.twiddles = level.twiddles;
    level.pass.circle = level.circle.get();
    chooseFunctions(level.pass);
    levels_.push_back(std::move(level));
}

void OddReal::transformRest(const double* x, Split bins, double* work) const
{
    Work arrays(work);
    const Split z = arrays.take(rest_);
    for (std::size_t i = 0; i < rest_; ++i)
        z.set(i, {x[i], 0});
    chirp_->forward(z, z, arrays.rest());
    for (std::size_t k = 1; k <= rest_ / 2; ++k)
        bins.set(k * bins.pitch, z[k]);
    bins.set(0, {z.re[0], 0});
}

// x[i] = bin 0 + the sum of twice the real parts of the others, turned.
void OddReal::invertRest(ConstSplit bins, double* x, double* work) const
{
    Work arrays(work);
    const Split z = arrays.take(rest_);
    z.set(0, {bins.re[0], 0});
    for (std::size_t k = 1; k <= rest_ / 2; ++k)
        z.set(k, 2 * bins[k * bins.pitch]);
    chirp_->transposed(exchanged(z), exchanged(z), arrays.rest());
    std::copy_n(z.re, rest_, x);
}

// The real signal changes between two arrays. The bins of a level have the distance of those before, times its radix.
void OddReal::forward(const double* x, const Split& spectrum, double* work) const
{
    Work arrays(work);
    Split signals = levels_.empty() ? Split{} : arrays.take(levels_.front().pass.count);
    Split bins = spectrum.withPitch(1);
    for (const Level& level : levels_) {
        const RealPass& pass = level.pass;
        Work rest = arrays;
        const Split rows = rowsOf(pass, rest);
        pass.forward(pass, x, signals.re, rows);
        for (std::size_t j = 1; j <= pass.radix / 2; ++j) {
            const Split row = rows + (j - 1) * rows.pitch;
            if (pass.count > 1)
                level.complex->forward(row, row, rest.rest());
            forEachBin(pass, j, [&](std::size_t q, std::size_t k, bool mirrored) {
                bins.set(k * bins.pitch, mirrored ? conjugate(row[q]) : row[q]);
            });
        }
        x = signals.re;
        std::swap(signals.re, signals.im);
        bins.pitch *= pass.radix;
    }
    if (chirp_)
        transformRest(x, bins, arrays.rest());
    else
        bins.set(0, {x[0], 0});
}

void OddReal::inverse(const ConstSplit& spectrum, double, double* x, double* work) const
{
    Work arrays(work);
    Split signals = levels_.empty() ? Split{x, x} : arrays.take(levels_.front().pass.count);
    ConstSplit bins = spectrum.withPitch(1);
    for (const Level& level : levels_)
        bins.pitch *= level.pass.radix;
    if (chirp_)
        invertRest(bins, signals.re, arrays.rest());
    else
        signals.re[0] = bins.re[0];
    for (std::size_t i = levels_.size(); i-- > 0;) {
        const RealPass& pass = levels_[i].pass;
        Work rest = arrays;
        const Split rows = rowsOf(pass, rest);
        bins.pitch /= pass.radix;
        for (std::size_t j = 1; j <= pass.radix / 2; ++j) {
            const Split row = rows + (j - 1) * rows.pitch;
            forEachBin(pass, j, [&](std::size_t q, std::size_t k, bool mirrored) {
                const auto bin = bins[k * bins.pitch];
                row.set(q, mirrored ? conjugate(bin) : bin);
            });
            if (pass.count > 1)
                levels_[i].complex->inverse(row, row, rest.rest());
        }
        pass.inverse(pass, signals.re, rows, i > 0 ? signals.im : x);
        std::swap(signals.re, signals.im);
    }
}

} // namespace quordsp::backend
