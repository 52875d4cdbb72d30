// All roots come from those between angle 0 and pi/4 by exchanging and negating components. To name the folded angle by
// an integer, angles count in units of a quarter of the step: 4n units are a turn, n a quarter turn, n/2 the end of the
// octant. Of these units only multiples of gcd(4, n) occur.
#include "transform/roots.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>

namespace quordsp::backend {

namespace {

// pi/2 in two parts; the sum is good to 106 bits.
constexpr double kHalfPi = 0x1.921fb54442d18p+0;
constexpr double kHalfPiRest = 0x1.1a62633145c07p-54;

double leading22Bits(double value)
{
    constexpr std::uint64_t mask = ~std::uint64_t{0} << 31;
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(value) & mask);
}

// An angle as an unevaluated sum of two doubles: tail is below half a unit in the last place of head.
struct Angle {
    double head;
    double tail;
};

// Multiples of pi/2 / n. The leading part of the unit is so short that its product with an index is exact.
class AngleUnit {
public:
    explicit AngleUnit(double n) : head_(leading22Bits(kHalfPi / n)), tail_(((kHalfPi - head_ * n) + kHalfPiRest) / n)
    {}
    Angle times(double index) const
    {
        const double exact = index * head_;
        const double rest = index * tail_;
        const double sum = exact + rest;
        return {sum, (exact - sum) + rest};
    }

private:
    double head_;
    double tail_;
};

// The Taylor series up to x^17 and x^18: at pi/4 the next term is below 1e-19. Everything but the first term is small
// enough for its rounding errors not to count; the squared head in the cosine is not, and is carried in two parts.
double sine(Angle x)
{
    const double z = x.head * x.head;
    const double series =
        -1.0 / 6 +
        z * (1.0 / 120 +
             z * (-1.0 / 5040 + z * (1.0 / 362880 + z * (-1.0 / 39916800 +
                                                         z * (1.0 / 6227020800 + z * (-1.0 / 1307674368000 +
                                                                                      z * (1.0 / 355687428096000)))))));
    return x.head + (x.head * z * series + x.tail * (1 - z / 2));
}

double cosine(Angle x)
{
    const double z = x.head * x.head;
    const double upper = leading22Bits(x.head);
    const double lower = x.head - upper;
    const double zRest = (upper * upper - z) + lower * (x.head + upper);
    const double series =
        1.0 / 24 +
        z * (-1.0 / 720 +
             z * (1.0 / 40320 +
                  z * (-1.0 / 3628800 +
                       z * (1.0 / 479001600 +
                            z * (-1.0 / 87178291200 + z * (1.0 / 20922789888000 + z * (-1.0 / 6402373705728000)))))));
    const double first = 1 - z / 2;
    return first + (((1 - first) - z / 2) + (z * z * series - zRest / 2 - x.head * x.tail));
}

// log2 of gcd(4, n)
int commonBitsWithFour(std::size_t n)
{
    return std::min(std::countr_zero(n), 2);
}

// Root k of order n, with cosine and sine of the folded angle from octant.
template <class Octant>
Point<double> unfolded(std::size_t n, std::size_t k, Octant octant)
{
    std::size_t a = 4 * k;
    const bool lowerHalf = a > 2 * n;
    if (lowerHalf)
        a = 4 * n - a;
    const bool leftHalf = a > n;
    if (leftHalf)
        a = 2 * n - a;
    const bool secondOctant = a > n / 2;
    if (secondOctant)
        a = n - a;
    auto [cos, sin] = octant(a);
    if (secondOctant)
        std::swap(cos, sin);
    return {leftHalf ? -cos : cos, lowerHalf ? sin : -sin};
}

Point<double> cosineAndSine(const AngleUnit& unit, std::size_t index)
{
    const Angle angle = unit.times(static_cast<double>(index));
    return {cosine(angle), sine(angle)};
}

} // namespace

Point<double> rootOfUnity(std::size_t n, std::size_t k)
{
    const AngleUnit unit(static_cast<double>(n));
    return unfolded(n, k, [&](std::size_t a) { return cosineAndSine(unit, a); });
}

Roots::Roots(std::size_t n)
    : n_(n), shift_(commonBitsWithFour(n)), firstOctant_(makeBuffer<Point<double>>((n / 2 >> shift_) + 1))
{
    const AngleUnit unit(static_cast<double>(n));
    for (std::size_t i = 0; i <= n / 2 >> shift_; ++i)
        firstOctant_[i] = cosineAndSine(unit, i << shift_);
}

Point<double> Roots::operator()(std::size_t k) const
{
    return unfolded(n_, k, [this](std::size_t a) { return firstOctant_[a >> shift_]; });
}

} // namespace quordsp::backend
