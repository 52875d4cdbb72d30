// Butterworth designs: coefficients, poles and responses against independent computations.
#include "backend/support/iir.h"
#include "data/backend/iir_vectors.inc"
#include "reference/response.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>

namespace quordsp::test {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

struct PublishedDesign {
    int type, order;
    double fl, fh;
    std::vector<double> b, a;
};

// Worked by hand from the bilinear transform of 1/(s^2 + sqrt(2) s + 1) and its kin; fs = 1000.
const PublishedDesign kPublished[] = {
    {LowPass, 2, 100, 0, {0.0674552738891, 0.134910547778, 0.0674552738891}, {1, -1.14298050254, 0.412801598096}},
    {HighPass, 2, 100, 0, {0.638945525159, -1.27789105032, 0.638945525159}, {1, -1.14298050254, 0.412801598096}},
    {LowPass,
     3,
     100,
     0,
     {0.0180989330075, 0.0542967990225, 0.0542967990225, 0.0180989330075},
     {1, -1.76004188034, 1.18289326204, -0.278059917635}},
    {BandPass, 1, 100, 200, {0.245237275253, 0, -0.245237275253}, {1, -0.932938034671, 0.509525449494}},
    {BandStop, 1, 100, 200, {0.754762724747, -0.932938034671, 0.754762724747}, {1, -0.932938034671, 0.509525449494}},
};

TEST(ButterworthCoef, GivesTheWorkedExamples)
{
    for (const auto& [type, order, fl, fh, b, a] : kPublished) {
        std::vector<double> actualA(a.size()), actualB(b.size());
        const int count = static_cast<int>(a.size());
        ASSERT_EQ(backend::AALFunc19(type, order, 1000, fl, fh, actualA.data(), count, actualB.data(), count),
                  Status::Success);
        EXPECT_THAT(actualA, Pointwise(DoubleNear(5e-12), a));
        EXPECT_THAT(actualB, Pointwise(DoubleNear(5e-12), b));
    }
}

TEST(ButterworthCoef, AgreesWithSciPy)
{
    for (const auto& [type, order, fl, fh, b, a] : vectors::kDirect) {
        const DirectCoefficients actual = direct(type, order, fl, fh);
        EXPECT_THAT(actual.a, Pointwise(DoubleNear(1e-11), a)) << type << ' ' << order;
        EXPECT_THAT(actual.b, Pointwise(DoubleNear(1e-13), b)) << type << ' ' << order;
    }
}

TEST(ButterworthCoef, HasTheSymmetryOfItsZeros)
{
    const auto low = direct(LowPass, 7, 0.1, 0), high = direct(HighPass, 7, 0.1, 0);
    EXPECT_THAT(low.b, Pointwise(testing::DoubleEq(), std::vector(low.b.rbegin(), low.b.rend())));
    for (std::size_t k = 0; k < high.b.size(); ++k)
        EXPECT_DOUBLE_EQ(high.b[k], -high.b[high.b.size() - 1 - k]);
    const auto band = direct(BandPass, 5, 0.1, 0.3);
    for (std::size_t k = 1; k < band.b.size(); k += 2)
        EXPECT_EQ(band.b[k], 0);
}

TEST(ButterworthCoef, ExchangesTheResponsesWhenTheCutoffIsMirrored)
{
    const auto low = direct(LowPass, 4, 0.1, 0), high = direct(HighPass, 4, 0.4, 0);
    for (std::size_t k = 0; k < low.a.size(); ++k) {
        const double sign = k % 2 ? -1 : 1;
        EXPECT_NEAR(high.a[k], sign * low.a[k], 1e-15);
        EXPECT_NEAR(high.b[k], sign * low.b[k], 1e-16);
    }
}

// The poles of a section of second order.
std::vector<std::complex<long double>> polesOf(const Section& section)
{
    const long double a1 = section.a[1], a2 = section.a[2];
    if (a2 == 0)
        return {-a1};
    return {(-a1 + std::sqrt(std::complex<long double>(a1 * a1 - 4 * a2))) / 2.0L};
}

// Rounding a1 and a2 moves the poles by about 1e-16 over their distance, which nothing can prevent.
TEST(ButterworthCascade, HasThePolesOfAFiftyDigitComputation)
{
    double worst = 0;
    for (const auto& [type, order, fc, poles] : vectors::kPoles) {
        const Filter filter = cascade(type, order, fc, 0);
        ASSERT_TRUE(filter);
        const std::vector<Section> parts = sections(*filter);
        ASSERT_EQ(parts.size(), poles.size());
        for (std::size_t k = 0; k < parts.size(); ++k) {
            const std::complex<long double> expected{poles[k].real, poles[k].imaginary};
            const auto error = static_cast<double>(std::abs(polesOf(parts[k]).front() - expected));
            const double distance = 2 * poles[k].imaginary;
            EXPECT_LE(error, std::max(1e-12, distance > 0 ? 1e-16 / distance : 0)) << type << ' ' << order << ' ' << fc;
            worst = std::max(worst, error);
        }
    }
    RecordProperty("largestError", std::to_string(worst));
}

struct ResponseCase {
    double fl, fh;
    double lowHighTolerance, bandTolerance; // dB in the pass band, for orders up to 20
};

// Sections of fourth order cannot hold narrow bands near 0 or fs/2 any better; those of second order can.
const ResponseCase kResponses[] = {
    {1e-4, 2e-4, 5e-9, 1e-2},   {1e-3, 2e-3, 1e-10, 1e-5}, {1e-3, 0.4, 1e-10, 1e-10},
    {0.01, 0.011, 1e-11, 1e-7}, {0.01, 0.02, 1e-11, 1e-8}, {0.1, 0.2, 1e-12, 1e-12},
    {0.25, 0.26, 1e-12, 1e-11}, {0.45, 0.49, 1e-12, 1e-9}, {0.499, 0.4995, 1e-10, 1e-3},
};

long double gainOf(const std::vector<Section>& parts, long double f)
{
    long double gain = 1;
    for (const Section& section : parts)
        gain *= std::abs(reference::spectrum(section.b, f)) / std::abs(reference::spectrum(section.a, f));
    return gain;
}

double largestPassBandError(int type, int order, double fl, double fh)
{
    const Filter filter = cascade(type, order, fl, fh);
    if (!filter)
        return INFINITY;
    const std::vector<Section> parts = sections(*filter);
    double largest = 0;
    for (int i = 1; i < 1200; ++i) { // half of the frequencies evenly, half of them by powers
        const long double f = i < 600 ? i / 1200.0L : std::pow(10.0L, -6 + (i - 600) / 600.0L * 5.69L);
        const long double wanted = reference::butterworthGain(type, order, fl, fh, f);
        if (wanted > 0.7)
            largest = std::max(largest, std::abs(reference::decibels(gainOf(parts, f) / wanted)));
    }
    return largest;
}

TEST(ButterworthCascade, HasTheResponseOfItsDefinitionInThePassBand)
{
    for (const auto& [fl, fh, lowHighTolerance, bandTolerance] : kResponses)
        for (int type : kTypes)
            for (int order : {1, 2, 3, 5, 8, 20})
                EXPECT_LE(largestPassBandError(type, order, fl, fh), type < BandPass ? lowHighTolerance : bandTolerance)
                    << "type " << type << " order " << order << " at " << fl << ", " << fh;
}

TEST(ButterworthCascade, IsHalfThePowerAtTheCutoffs)
{
    const double halfPower = -3.0102999566398120; // 10 log10(1/2)
    for (int type : kTypes)
        for (int order : {1, 2, 3, 4, 7, 12, 20})
            for (auto [fl, fh] : {std::pair{0.05, 0.45}, {0.1, 0.12}, {0.2, 0.4}}) {
                const std::vector<Section> parts = sections(*cascade(type, order, fl, fh));
                EXPECT_NEAR(reference::decibels(gainOf(parts, fl)), halfPower, 1e-9);
                if (type >= BandPass)
                    EXPECT_NEAR(reference::decibels(gainOf(parts, fh)), halfPower, 1e-9);
            }
}

TEST(ButterworthCascade, PadsTheSectionOfARealPole)
{
    const Filter low = cascade(LowPass, 3, 0.1, 0), band = cascade(BandStop, 3, 0.1, 0.2);
    EXPECT_EQ(low->reverse[1], 0);
    EXPECT_EQ(low->forward[2], 0);
    EXPECT_NE(low->reverse[3], 0);
    EXPECT_THAT(std::vector(band->reverse + 2, band->reverse + 4), testing::Each(0));
    EXPECT_THAT(std::vector(band->forward + 3, band->forward + 5), testing::Each(0));
    EXPECT_NE(band->reverse[7], 0);
}

TEST(ButterworthCascade, EqualsTheDirectFormWhenMultipliedOut)
{
    for (int type : kTypes)
        for (int order : {1, 2, 3, 6, 9}) {
            const DirectCoefficients wanted = direct(type, order, 0.1, 0.3);
            std::vector<double> a(wanted.a.size()), b(wanted.b.size());
            const int count = static_cast<int>(a.size());
            const Filter filter = cascade(type, order, 0.1, 0.3);
            ASSERT_EQ(backend::CascadeToDirectCoef(filter.get(), a.data(), count, b.data(), count), Status::Success);
            EXPECT_EQ(a[0], 1);
            for (std::size_t k = 0; k < a.size(); ++k) {
                EXPECT_NEAR(a[k], wanted.a[k], 4e-15 * std::max(1.0, std::abs(wanted.a[k]))) << type << ' ' << order;
                EXPECT_NEAR(b[k], wanted.b[k], 4e-15) << type << ' ' << order;
            }
        }
}

// Worked by hand: a Butterworth low-pass filter has gain 1 at 0, a high-pass filter at fs/2.
TEST(ButterworthCascade, HasTheExactGainAtItsReferenceFrequency)
{
    for (int order : {1, 2, 5, 8, 20})
        for (double fc : {1e-7, 3e-7, 1e-6, 1e-5}) {
            EXPECT_NEAR(static_cast<double>(gainOf(sections(*cascade(LowPass, order, fc, 0)), 0)), 1, 4e-15);
            EXPECT_NEAR(static_cast<double>(gainOf(sections(*cascade(HighPass, order, 0.5 - fc, 0)), 0.5L)), 1, 4e-14);
        }
}

// The frequencies at which a filter is held against its definition; between and beyond them its gain falls off.
std::vector<double> pointsOf(int type, double fl, double fh)
{
    switch (type) {
    case LowPass:
        return {0, fl};
    case HighPass:
        return {fl, 0.5};
    case BandPass:
        return {fl, fh};
    default:
        return {0, fl, fh, 0.5};
    }
}

TEST(ButterworthCascade, IsRefusedRatherThanOffByMoreThanAThousandth)
{
    for (int type : kTypes) {
        int designed = 0, refused = 0;
        for (double fl = 1e-9; fl < 1e-3; fl *= 1.3)
            for (int order : {1, 2, 3, 6, 12}) {
                const Filter filter = cascade(type, order, fl, 2 * fl);
                (filter ? designed : refused) += 1;
                if (filter)
                    for (double f : pointsOf(type, fl, 2 * fl))
                        EXPECT_NEAR(static_cast<double>(gainOf(sections(*filter), f) /
                                                        reference::butterworthGain(type, order, fl, 2 * fl, f)),
                                    1, 1.001e-3)
                            << "type " << type << " order " << order << " at " << fl;
            }
        EXPECT_GT(designed, 0);
        EXPECT_GT(refused, 0);
    }
}

TEST(ButterworthCascade, SucceedsDownToTheStatedCutoff)
{
    for (int order : {2, 3, 8, 20, 100})
        for (double factor = 1; factor < 4; factor *= 1.01) {
            const double fc = 3e-8 * std::sqrt(order) * factor;
            EXPECT_TRUE(cascade(LowPass, order, fc, 0)) << order << ' ' << fc;
            EXPECT_TRUE(cascade(HighPass, order, fc, 0)) << order << ' ' << fc;
            EXPECT_TRUE(cascade(LowPass, order, 0.5 - fc, 0)) << order << ' ' << fc;
            EXPECT_TRUE(cascade(HighPass, order, 0.5 - fc, 0)) << order << ' ' << fc;
        }
}

TEST(ButterworthCascade, RefusesWhatDoubleCannotHold)
{
    EXPECT_FALSE(cascade(LowPass, 2, 2e-8, 0));
    EXPECT_FALSE(cascade(LowPass, 2, 1e-10, 0));
    EXPECT_FALSE(cascade(BandPass, 2, 1e-6, 2e-6));
}

TEST(ButterworthFilter, SucceedsWhereverDoubleHoldsItsPolesFromOne)
{
    double x = 1, y = 7;
    const auto low = [&](double fc) { return butterworth(LowPass, &x, 1, 1, fc, 0, 8, &y); };
    const auto high = [&](double fc) { return butterworth(HighPass, &x, 1, 1, fc, 0, 8, &y); };
    for (double fc : {1e-150, 1e-12, 2e-8, 0.5 - 2e-8, 0.5 - 1e-15}) {
        EXPECT_EQ(low(fc), Status::Success) << fc;
        EXPECT_EQ(high(fc), Status::Success) << fc;
    }
    EXPECT_EQ(low(1e-155), Status::DesignFailed) << "the square of the poles' distance is below all normal numbers";
    EXPECT_EQ(high(1e-155), Status::DesignFailed);
    EXPECT_EQ(butterworth(BandPass, &x, 1, 1, 1e-6, 2e-6, 2, &y), Status::Success);
    EXPECT_EQ(butterworth(BandPass, &x, 1, 1, 0.25, 0.25 * (1 + 1e-14), 2, &y), Status::DesignFailed);
    EXPECT_EQ(butterworth(LowPass, &x, 1, INFINITY, 1, 0, 2, &y), Status::Cutoff);
}

#if defined(__x86_64__)
// Windows starts threads with 53 bits of precision in the unit that designs are worked out on.
template <class Call>
[[gnu::noinline]] auto atReducedPrecision(const Call& call)
{
    std::uint16_t word, after;
    asm volatile("fnstcw %0" : "=m"(word));
    const auto reduced = static_cast<std::uint16_t>((word & ~0x0300) | 0x0200);
    asm volatile("fldcw %0" : : "m"(reduced) : "memory");
    const auto result = call();
    asm volatile("fnstcw %0" : "=m"(after) : : "memory");
    asm volatile("fldcw %0" : : "m"(word) : "memory");
    EXPECT_EQ(after, reduced);
    return result;
}

std::vector<double> joined(const DirectCoefficients& coefficients)
{
    std::vector<double> all = coefficients.a;
    all.insert(all.end(), coefficients.b.begin(), coefficients.b.end());
    return all;
}

std::vector<double> directOf(const backend::IirFilter& filter)
{
    std::vector<double> a(13), b(13);
    EXPECT_EQ(backend::CascadeToDirectCoef(&filter, a.data(), 13, b.data(), 13), Status::Success);
    return joined({Status::Success, a, b});
}

std::vector<double> coefficientsOf(const backend::IirFilter& filter)
{
    return joined({Status::Success,
                   {filter.reverse, filter.reverse + filter.reverseCount},
                   {filter.forward, filter.forward + filter.forwardCount}});
}

TEST(ButterworthDesign, HasTheSameBitsOnAThreadOfReducedPrecision)
{
    const Filter filter = cascade(BandPass, 6, 0.01, 0.02);
    const std::function<std::vector<double>()> designs[] = {
        [] { return joined(direct(BandPass, 6, 0.01, 0.02)); },
        [] { return coefficientsOf(*cascade(BandPass, 6, 0.01, 0.02)); },
        [] { return butterworth(BandPass, vectors::kSignal, 0.01, 0.02, 6); },
        [&] { return directOf(*filter); },
    };
    for (const auto& design : designs)
        EXPECT_EQ(atReducedPrecision(design), design());
}
#endif

TEST(ButterworthCoef, TakesHighOrdersUntilACoefficientOverflows)
{
    const DirectCoefficients high = direct(LowPass, 1000, 0.25, 0), tooHigh = direct(LowPass, 20000, 0.25, 0);
    EXPECT_EQ(high.status, Status::Success);
    EXPECT_THAT(high.a, testing::Each(testing::Truly([](double value) { return std::isfinite(value); })));
    EXPECT_EQ(tooHigh.status, Status::DesignFailed);
    EXPECT_THAT(tooHigh.a, testing::Each(0));
}

} // namespace
} // namespace quordsp::test
