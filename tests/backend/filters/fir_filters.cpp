#include "backend/filters/linear_filters.h"
#include "backend/support/complex.h"

#include <cmath>
#include <memory>

namespace quordsp::test {
namespace {

using namespace backend;

constexpr int kKaiser = 60, kDolphChebyshev = 61;

// Not symmetric.
std::vector<double> someTaps(std::size_t count)
{
    return partOf(complexNoise(count), &Complex::real);
}

template <class Sample, class Entry>
Run<Sample> tapsAtRest(const std::vector<double>& h, Entry* entry)
{
    return [=, state = std::vector<Sample>(h.size() - 1)](const Sample* x, std::int64_t n, Sample* y) mutable {
        return entry(x, n, h.data(), state.data(), static_cast<std::int32_t>(h.size()), y);
    };
}

LinearFilter ofTaps(std::size_t count)
{
    const std::vector<double> h = someTaps(count);
    return {.name = "FIRFiltering, " + std::to_string(count) + " taps",
            .real = [=] { return tapsAtRest<double>(h, AALFunc352); },
            .complex = [=] { return tapsAtRest<Complex>(h, AALFunc353); },
            .keepsState = true,
            .twiceTheDelay = {}};
}

template <class Real, class Complex, class... Arguments>
LinearFilter linearPhase(std::string name, Real* real, Complex* complex, int taps, Arguments... arguments)
{
    LinearFilter filter = filterOf(std::move(name), real, complex, taps, arguments...);
    filter.twiceTheDelay = static_cast<std::size_t>(taps - 1);
    return filter;
}

// 601 taps are worked off by Fourier transforms.
void addWindowed(std::vector<LinearFilter>& filters)
{
    for (int taps : {31, 601}) {
        const std::string count = ", " + std::to_string(taps) + " taps";
        filters.push_back(
            linearPhase("Wind_LPFiltering" + count, AALFunc481, AALFunc486, taps, 1.0, 0.1, kKaiser, 5.0));
        filters.push_back(linearPhase("Wind_HPFiltering" + count, AALFunc482, AALFunc487, taps, 1.0, 0.1, 2, 0.0));
        filters.push_back(linearPhase("Wind_BPFiltering" + count, AALFunc483, AALFunc488, taps, 1.0, 0.1, 0.3, 0, 0.0));
        filters.push_back(linearPhase("Wind_BSFiltering" + count, AALFunc484, AALFunc489, taps, 1.0, 0.1, 0.3,
                                      kDolphChebyshev, 60.0));
        for (int type = 0; type < 4; ++type) {
            LinearFilter filter = filterOf("WindFIR_Filtering" + count + ", type " + std::to_string(type), AALFunc480,
                                           AALFunc485, type, taps, 1.0, 0.1, 0.3, kKaiser, 3.0);
            filter.twiceTheDelay = static_cast<std::size_t>(taps - 1);
            filters.push_back(filter);
        }
    }
}

void addEquiripple(std::vector<LinearFilter>& filters)
{
    filters.push_back(linearPhase("EquiRpl_LPFiltering", AALFunc472, AALFunc476, 24, 1.0, 0.1, 0.2));
    filters.push_back(linearPhase("EquiRpl_HPFiltering", AALFunc473, AALFunc477, 25, 1.0, 0.1, 0.2));
    filters.push_back(linearPhase("EquiRpl_BPFiltering", AALFunc474, AALFunc478, 33, 1.0, 0.05, 0.15, 0.25, 0.35));
    filters.push_back(linearPhase("EquiRpl_BSFiltering", AALFunc475, AALFunc479, 33, 1.0, 0.05, 0.15, 0.25, 0.35));
}

LinearFilter narrowBand(int type)
{
    const bool stops = type == 3;
    const std::shared_ptr<FirFilter> record(AALFunc491(), AALFunc492);
    AALFunc409(1, stops ? 0.06 : 0.04, stops ? 0.04 : 0.06, 0.12, 0.01, 60, type, record.get());
    const auto atRest = [=](auto* entry) {
        return [=] { return [=](auto* x, std::int64_t n, auto* y) { return entry(x, n, *record, y); }; };
    };
    return {.name = "FIRNarrowBandFilter, type " + std::to_string(type),
            .real = atRest(AALFunc410),
            .complex = atRest(AALFunc411),
            .twiceTheDelay =
                static_cast<std::size_t>((record->modelCount - 1) * record->interpolation + record->imageCount - 1)};
}

LinearFilter smoother(int order, int sidePoints, const double* weights)
{
    LinearFilter filter = filterOf("SavitzkyGolayFiltering, " + std::to_string(sidePoints) + " side points", AALFunc356,
                                   AALFunc357, order, sidePoints, weights);
    filter.isCausal = false;
    filter.twiceTheDelay = 0;
    return filter;
}

} // namespace

std::vector<LinearFilter> firFilters()
{
    static constexpr double kWeights[] = {1, 0.5, 2, 5, 2, 0.5, 1};
    std::vector<LinearFilter> filters{ofTaps(1),
                                      ofTaps(50),
                                      ofTaps(300),
                                      smoother(2, 3, kWeights),
                                      smoother(4, 10, nullptr),
                                      smoother(3, 200, nullptr)};
    addWindowed(filters);
    addEquiripple(filters);
    for (int type = 0; type < 6; ++type)
        filters.push_back(narrowBand(type));
    return filters;
}

} // namespace quordsp::test
