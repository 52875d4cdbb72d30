#include "one_call.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

using namespace backend;

struct Result {
    int status;
    Samples h;
    double ripple;
};

// A design by the edges of bands that pass and stop by turns, from 0 to fs/2.
struct Entry {
    std::function<int(const Parameters&, double* h, double* ripple)> design;
    bool firstPasses;
    std::size_t edges;
};

template <auto... edges>
Entry entryOf(auto* entry, bool firstPasses)
{
    return {[=](const Parameters& with, double* h, double* ripple) {
                return static_cast<int>(entry(with.fs, with.*edges..., with.taps, h, ripple));
            },
            firstPasses, sizeof...(edges)};
}

const std::vector<Entry>& entries()
{
    constexpr auto f1 = &Parameters::fl, f2 = &Parameters::fh, f3 = &Parameters::f3, f4 = &Parameters::f4;
    static const std::vector<Entry> all{
        entryOf<f1, f2>(AALFunc69, true),          entryOf<f1, f2>(QuorDSP_EquiRpl_LPF, true),
        entryOf<f1, f2>(AALFunc68, false),         entryOf<f1, f2>(QuorDSP_EquiRpl_HPF, false),
        entryOf<f1, f2, f3, f4>(AALFunc66, false), entryOf<f1, f2, f3, f4>(QuorDSP_EquiRpl_BPF, false),
        entryOf<f1, f2, f3, f4>(AALFunc67, true),  entryOf<f1, f2, f3, f4>(QuorDSP_EquiRpl_BSF, true),
    };
    return all;
}

std::vector<double> edgesOf(const Entry& entry, const Parameters& with)
{
    std::vector<double> edges{0, with.fl, with.fh};
    if (entry.edges == 4)
        edges.insert(edges.end(), {with.f3, with.f4});
    edges.push_back(with.fs / 2);
    return edges;
}

Result emptyResult(const Parameters& with)
{
    const bool isSmall = with.taps > 0 && with.taps <= 64;
    return {0, Samples(static_cast<std::size_t>(isSmall ? with.taps : 1), kBefore), kBefore};
}

// The same bands for the entry that takes any.
Result byBands(const Entry& entry, const Parameters& with)
{
    Result result = emptyResult(with);
    const auto edges = edgesOf(entry, with);
    Samples amplitudes;
    for (std::size_t band = 0; band < edges.size() / 2; ++band)
        amplitudes.push_back(entry.firstPasses == (band % 2 == 0));
    const Samples weights(amplitudes.size(), 1);
    result.status = static_cast<int>(AALFunc65(sizeOf(amplitudes), amplitudes.data(), weights.data(), with.fs,
                                               edges.data(), 1, with.taps, result.h.data(), &result.ripple));
    return result;
}

bool areAscending(const Entry& entry, const Parameters& with)
{
    const auto edges = edgesOf(entry, with);
    for (std::size_t i = 1; i < edges.size(); ++i)
        if (!(edges[i - 1] < edges[i]))
            return false;
    return std::isfinite(with.fs);
}

// In the documented order.
int expectedStatus(const Entry& entry, const Parameters& with)
{
    const bool passesLast = entry.firstPasses == (entry.edges == 4);
    if (with.taps < 3)
        return -20007;
    if (passesLast && with.taps % 2 == 0)
        return -20033;
    if (!areAscending(entry, with))
        return -20023;
    return with.taps > 4096 ? -20031 : 0;
}

Parameters readParameters(Bytes& bytes)
{
    Parameters with;
    with.taps = bytes.mostlyBetween(0, 48);
    if (with.taps > 64 && with.taps <= 4096)
        with.taps %= 64;
    const bool isOrdinary = bytes.byte() % 4 > 0;
    double edge = 0;
    for (const auto value : {&Parameters::fl, &Parameters::fh, &Parameters::f3, &Parameters::f4}) {
        edge += bytes.byte() / 2100.0;
        with.*value = isOrdinary ? edge : bytes.number();
    }
    if (!isOrdinary)
        with.fs = bytes.number();
    if (std::abs(with.fs) < 1e-300) // half of it is not rounded
        with.fs = 0;
    return with;
}

} // namespace

// The designs by edges: the documented status, and the design of the same bands by the entry that takes any.
void equiripple_edges(Bytes bytes)
{
    const Entry& entry = entries()[bytes.byte() % entries().size()];
    const Parameters with = readParameters(bytes);
    Result result = emptyResult(with);
    result.status = entry.design(with, result.h.data(), &result.ripple);
    require(entry.design(with, nullptr, &result.ripple) == -20008, "no array");
    const int expected = expectedStatus(entry, with);
    if (expected != 0)
        require(result.status == expected, "the documented status");
    else
        require(result.status == 0 || result.status == -20031, "a design or none");
    if (result.status != 0)
        require(result.h == Samples(result.h.size(), kBefore) && result.ripple == kBefore, "nothing is written");
    if (expected != 0)
        return;
    const Result same = byBands(entry, with);
    require(same.status == result.status, "the status of the same bands");
    require(areSame(same.h, result.h) && isSame(same.ripple, result.ripple), "the design of the same bands");
}

} // namespace quordsp::fuzz
