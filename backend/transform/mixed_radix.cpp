#include "transform/mixed_radix.h"

#include "transform/roots.h"

#include <bit>

namespace quordsp::backend {

namespace {

// Radices of 2^exponent, exponent != 1. Few large factors are best, and two fours are cheaper than an eight and a two.
// But inputs of a pass that are a multiple of 4096 bytes apart compete for the same few lines of the nearest cache:
// room enough for those of a four, not of an eight.
std::vector<std::size_t> powerOfTwoRadices(int exponent)
{
    const int eights = exponent >= 12 ? exponent % 2 : exponent / 3 - (exponent % 3 == 1 ? 1 : 0);
    const int fours = (exponent - 3 * eights) / 2;
    std::vector<std::size_t> radices(static_cast<std::size_t>(eights), 8);
    radices.insert(radices.end(), static_cast<std::size_t>(fours), 4);
    return radices;
}

class TableWriter {
public:
    explicit TableWriter(Split table) : table_(table) {}

    // Appends root(step * i), i = 0..count-1.
    void append(const Roots& root, std::size_t step, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            table_.set(i, root(i * step));
        table_ = table_ + count;
    }
    ConstSplit position() const { return table_; }

private:
    Split table_;
};

} // namespace

// Eights and fours come first: they soon make the stride a multiple of what a vector register holds. A two is last.
Factors factorized(std::size_t n)
{
    const int twos = std::countr_zero(n);
    Factors factors = {twos > 1 ? powerOfTwoRadices(twos) : std::vector<std::size_t>{}, n >> twos};
    for (std::size_t prime = 3; prime <= kLargestPrimeRadix; prime += 2)
        for (; factors.rest % prime == 0; factors.rest /= prime)
            factors.radices.push_back(prime);
    if (twos == 1)
        factors.radices.push_back(2);
    return factors;
}

MixedRadix::MixedRadix(std::size_t n, const std::vector<std::size_t>& radices) : n_(n)
{
    std::size_t points = 0;
    for (std::size_t groups = n; const std::size_t radix : radices) {
        groups /= radix;
        points += tableSize(radix, groups);
    }
    tables_ = makeBuffer(2 * points);
    TableWriter table({tables_.get(), tables_.get() + points});
    const Roots root(n);
    for (std::size_t stride = 1; const std::size_t radix : radices) {
        const std::size_t groups = n / (stride * radix);
        Pass pass = {radix, stride, groups, table.position(), {}};
        for (std::size_t j = 1; j < radix; ++j)
            table.append(root, stride * j, groups);
        pass.circle = table.position();
        table.append(root, n / radix, radix);
        passes_.push_back(pass);
        stride *= radix;
    }
}

// Passes write out and work in turn so that the last one writes out. When that would make the first one write what it
// reads, they begin with work, and what they leave there is copied.
void MixedRadix::forward(ConstSplit in, Split out, double* work) const
{
    const Split scratch = {work, work + n_};
    const bool endsInWork = in.re == out.re && passes_.size() % 2 == 1;
    std::size_t toCome = passes_.size() + (endsInWork ? 1 : 0);
    ConstSplit source = in;
    for (const Pass& pass : passes_) {
        const Split target = --toCome % 2 == 0 ? out : scratch;
        run(pass, source, target);
        source = target;
    }
    if (source.re != out.re)
        copy(source, n_, out);
}

} // namespace quordsp::backend
