#include <complex>
#include <numbers>

#include "iir_entries.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

struct Coefficients {
    int status;
    Samples a, b;
};

// Of one entry of the family; all of them give the same.
Coefficients design(const IirFamily& family, const Parameters& with, std::size_t count)
{
    std::vector<Coefficients> results;
    for (const DirectDesign& entry : family.directs) {
        Coefficients own{0, Samples(count, kBefore), Samples(count, kBefore)};
        own.status = entry(with, own.a.data(), sizeOf(own.a), own.b.data(), sizeOf(own.b));
        results.push_back(own);
        require(entry(with, nullptr, 0, own.b.data(), 1) == -20008, "no array");
        require(own.status == results[0].status, "one status");
        require(areSame(own.a, results[0].a) && areSame(own.b, results[0].b), "one result");
    }
    return results[0];
}

std::size_t directCount(const Parameters& of)
{
    return static_cast<std::size_t>(of.order) * (of.type < 2 ? 1 : 2) + 1;
}

void requireCoefficients(const Coefficients& result)
{
    if (result.status != 0) {
        const Samples before(result.a.size(), kBefore);
        require(result.a == before && result.b == before, "a refused design writes nothing");
        return;
    }
    require(areFinite(result.a) && areFinite(result.b), "the coefficients are finite");
    require(result.a[0] == 1, "the denominator begins with 1");
}

void anyDesign(Bytes& bytes, const IirFamily& family)
{
    const Parameters with = readIirParameters(bytes);
    const int expected = expectedStatus(family, with);
    const bool isSmall = with.order > 0 && with.order <= 64, isWrong = bytes.byte() == 1 || !isSmall;
    const Coefficients result = design(family, with, isSmall ? directCount(with) + isWrong : 1);
    requireCoefficients(result);
    if (expected != 0 || isWrong)
        require(result.status == (expected != 0 ? expected : -20008), "the documented status");
    else
        require(result.status == 0 || result.status == -20031, "a design or none");
}

double gain(const Coefficients& of, double f)
{
    const auto step = std::polar(1.0, -2 * std::numbers::pi * f);
    std::complex<double> numerator = 0, denominator = 0;
    for (std::size_t k = of.a.size(); k-- > 0;) {
        numerator = numerator * step + of.b[k];
        denominator = denominator * step + of.a[k];
    }
    return std::abs(numerator) / std::abs(denominator);
}

// It succeeds, nowhere is its gain above 1, and the filter in one call is that of the coefficients.
void ordinaryDesign(Bytes& bytes, const IirFamily& family)
{
    const Parameters with = readOrdinaryIirParameters(bytes);
    const Coefficients result = design(family, with, directCount(with));
    require(result.status == 0, "an ordinary design succeeds");
    for (int i = 0; i <= 64; ++i)
        require(gain(result, i / 128.0) < 1 + 1e-6, "no gain is above 1");
    Samples impulse(32), y(32);
    impulse[0] = 1;
    require(family.filters[with.type](with).real(impulse.data(), 32, y.data()) == 0, "an ordinary filter runs");
    for (std::size_t i = 0; i < y.size(); ++i) {
        double expected = i < result.b.size() ? result.b[i] : 0;
        for (std::size_t k = 1; k < result.a.size() && k <= i; ++k)
            expected -= result.a[k] * y[i - k];
        require(std::abs(y[i] - expected) < 1e-7, "it follows its difference equation");
    }
}

} // namespace

// The direct coefficients of every family.
void iir_design(Bytes bytes)
{
    const bool isOrdinary = bytes.byte() % 2 > 0;
    const IirFamily& family = iirFamilies()[bytes.byte() % iirFamilies().size()];
    if (isOrdinary)
        ordinaryDesign(bytes, family);
    else
        anyDesign(bytes, family);
}

} // namespace quordsp::fuzz
