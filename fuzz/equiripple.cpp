#include <numbers>

#include "QuorDSP_DAQ.h"
#include "nianlys.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

constexpr int kMultiBand = 1, kDifferentiator = 2;

struct Design {
    int type, taps;
    double fs;
    std::vector<double> amplitudes, weights, edges;

    int bands() const { return sizeOf(amplitudes); }
};

double amplitude(const std::vector<double>& h, bool isAntisymmetric, double f)
{
    double sum = 0;
    for (std::size_t k = 0; k < h.size(); ++k) {
        const double angle =
            2 * std::numbers::pi * f * (static_cast<double>(h.size() - 1) / 2 - static_cast<double>(k));
        sum += h[k] * (isAntisymmetric ? std::sin(angle) : std::cos(angle));
    }
    return sum;
}

// Nowhere on a coarse grid is the error above what was reported.
void requireRipple(const Design& design, const std::vector<double>& h, double ripple)
{
    double coefficients = 0;
    for (const double value : h)
        coefficients += std::abs(value);
    for (std::size_t band = 0; band < design.amplitudes.size(); ++band)
        for (int i = 0; i <= 20; ++i) {
            const double lower = design.edges[2 * band] / design.fs, upper = design.edges[2 * band + 1] / design.fs;
            const double f = lower + (upper - lower) * i / 20;
            const bool isSlope = design.type == kDifferentiator && design.amplitudes[band] != 0;
            if (isSlope && f < 1e-6)
                continue;
            const double value = amplitude(h, design.type != kMultiBand, f);
            const double error = std::abs((isSlope ? value / f : value) - design.amplitudes[band]);
            const double rounding = 1e-13 * (coefficients + std::abs(design.amplitudes[band])) / (isSlope ? f : 1);
            require(error * design.weights[band] <= ripple * 1.02 + rounding * design.weights[band],
                    "the ripple is the largest error");
        }
}

struct Result {
    int status;
    std::vector<double> h;
    double ripple = kBefore;
};

using fuzz::areSame;

bool areSame(const Result& a, const Result& b)
{
    return areSame(a.h, b.h) && isSame(a.ripple, b.ripple);
}

// The entry that takes a band as a record, from type 0 on.
Result byRecords(const Design& design, std::size_t size)
{
    std::vector<backend::Band> bands;
    for (std::size_t i = 0; i < design.amplitudes.size(); ++i)
        bands.push_back({design.amplitudes[i], design.edges[2 * i], design.edges[2 * i + 1], design.weights[i]});
    Result result{0, std::vector<double>(size, kBefore)};
    const int type = design.type > 0 ? design.type - 1 : -1;
    result.status = static_cast<int>(backend::AALFunc408(design.taps, design.fs, bands.data(), design.bands(), type,
                                                         result.h.data(), &result.ripple));
    return result;
}

// The export that takes four arrays and makes room for a band a tap; its status tells nothing.
Result byArrays(Design design, std::size_t size)
{
    std::vector<double> lower, upper;
    for (std::size_t i = 0; i < design.amplitudes.size(); ++i) {
        lower.push_back(design.edges[2 * i]);
        upper.push_back(design.edges[2 * i + 1]);
    }
    Result result{0, std::vector<double>(size, kBefore)};
    const int type = design.type > 0 ? design.type - 1 : -1;
    result.status =
        QuorDSP_Parks_McClellanCoef(design.taps, design.fs, design.amplitudes.data(), lower.data(), upper.data(),
                                    design.weights.data(), design.bands(), type, result.h.data(), &result.ripple);
    return result;
}

void requireResult(const Design& design, bool isExported)
{
    const std::size_t size = static_cast<std::size_t>(design.taps > 0 && design.taps <= 64 ? design.taps : 64);
    Result result{0, std::vector<double>(size, kBefore)};
    auto& [status, h, ripple] = result;
    status = QuorDSP_Equi_Ripple(design.bands(), design.amplitudes.data(), design.weights.data(), design.fs,
                                 design.edges.data(), design.type, design.taps, h.data(), &ripple);
    const Result other = isExported ? byArrays(design, size) : byRecords(design, size);
    require(areSame(other, result), "the same from other arrays");
    require(other.status == (isExported ? QUORDSP_BAD_ARGUMENT : status), "the same status from records");
    requireOneOf({0, -20001, -20007, -20008, -20023, -20031, -20033, -20034, -20061}, status);
    if (status != 0) {
        require(h == std::vector<double>(size, kBefore) && ripple == kBefore, "a refused design writes nothing");
        return;
    }
    const double sign = design.type == kMultiBand ? 1 : -1;
    for (std::size_t k = 0; k < size; ++k)
        require(std::isfinite(h[k]) && h[k] == sign * h[size - 1 - k], "finite and symmetric or antisymmetric");
    require(ripple >= 0 && std::isfinite(ripple), "a ripple");
    requireRipple(design, h, ripple);
}

} // namespace

// Designs of any bands: documented statuses, nothing written by refused ones, the symmetry, the ripple as reported.
void equiripple(Bytes bytes)
{
    const bool isOrdinary = bytes.byte() % 4 > 0;
    Design design{bytes.mostlyBetween(0, 4), bytes.mostlyBetween(1, 48), 1, {}, {}, {}};
    if (design.taps > 64 && design.taps <= 4096)
        design.taps %= 64;
    const int bands = bytes.between(isOrdinary, 5);
    double edge = 0;
    for (int band = 0; band < bands; ++band) {
        design.amplitudes.push_back(isOrdinary ? bytes.between(-2, 4) / 2.0 : bytes.number());
        design.weights.push_back(isOrdinary ? std::exp2(bytes.between(-8, 8)) : bytes.number());
        for (int side = 0; side < 2; ++side) {
            edge += bytes.byte() / (512.0 * bands);
            design.edges.push_back(isOrdinary ? edge : bytes.number());
        }
    }
    if (!isOrdinary)
        design.fs = bytes.number();
    requireResult(design, design.taps <= 4096 && bytes.byte() % 2 > 0);
}

} // namespace quordsp::fuzz
