#include <algorithm>
#include <array>

#include "one_call.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

using namespace backend;

// What the oldest entries call window 1 to 5, and those of WindFIR_Filter.
constexpr std::array kOfType{0, 30, 1, 2, 5};

struct Entry {
    std::function<int(const Parameters&, double* h)> design;
    int type; // of the filter; -1: the parameter
    enum { Plain, ByType, Kaiser, All } window;
};

template <auto... edges>
auto byType(auto* entry)
{
    return [=](const Parameters& with, double* h) {
        return static_cast<int>(entry(with.fs, with.*edges..., with.taps, h, with.window));
    };
}

template <auto... edges>
auto kaiser(auto* entry)
{
    return [=](const Parameters& with, double* h) {
        return static_cast<int>(entry(with.fs, with.*edges..., with.taps, h, with.windowParameter));
    };
}

auto plain(auto* entry)
{
    return [=](const Parameters& with, double* h) {
        return static_cast<int>(entry(with.type, with.fs, with.fl, with.fh, with.taps, h));
    };
}

auto anyWindow(auto* entry)
{
    return [=](const Parameters& with, double* h) {
        return static_cast<int>(
            entry(with.type, with.fs, with.fl, with.fh, with.taps, with.window, with.windowParameter, h));
    };
}

const std::vector<Entry>& entries()
{
    constexpr auto fl = &Parameters::fl, fh = &Parameters::fh;
    static const std::vector<Entry> all{
        {anyWindow(AALFunc335), -1, Entry::All},        {anyWindow(QuorDSP_WindFIR_Filter), -1, Entry::All},
        {plain(AALFunc79), -1, Entry::Plain},           {plain(QuorDSP_FIR_Coef), -1, Entry::Plain},
        {byType<fl>(AALFunc189), 0, Entry::ByType},     {byType<fl>(QuorDSP_Wind_LPF), 0, Entry::ByType},
        {byType<fl>(AALFunc188), 1, Entry::ByType},     {byType<fl>(QuorDSP_Wind_HPF), 1, Entry::ByType},
        {byType<fl, fh>(AALFunc186), 2, Entry::ByType}, {byType<fl, fh>(QuorDSP_Wind_BPF), 2, Entry::ByType},
        {byType<fl, fh>(AALFunc187), 3, Entry::ByType}, {byType<fl, fh>(QuorDSP_Wind_BSF), 3, Entry::ByType},
        {kaiser<fl>(AALFunc112), 0, Entry::Kaiser},     {kaiser<fl>(QuorDSP_Ksr_LPF), 0, Entry::Kaiser},
        {kaiser<fl>(AALFunc111), 1, Entry::Kaiser},     {kaiser<fl>(QuorDSP_Ksr_HPF), 1, Entry::Kaiser},
        {kaiser<fl, fh>(AALFunc109), 2, Entry::Kaiser}, {kaiser<fl, fh>(QuorDSP_Ksr_BPF), 2, Entry::Kaiser},
        {kaiser<fl, fh>(AALFunc110), 3, Entry::Kaiser}, {kaiser<fl, fh>(QuorDSP_Ksr_BSF), 3, Entry::Kaiser},
    };
    return all;
}

// Mostly between 0 and fs/2.
double frequency(Bytes& bytes, double fs)
{
    const int share = bytes.byte();
    return share < 250 ? fs * share / 480 : bytes.number();
}

Parameters readParameters(Bytes& bytes)
{
    Parameters read;
    read.type = bytes.mostlyBetween(0, 4);
    read.taps = bytes.between(-1, 90);
    read.fs = bytes.number();
    read.fl = frequency(bytes, read.fs);
    read.fh = frequency(bytes, read.fs);
    read.window = bytes.mostlyBetween(0, 63);
    read.windowParameter = bytes.number();
    return read;
}

bool isWindow(int code, double parameter)
{
    constexpr std::array kPlain{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 30, 31, 32, 33, 34};
    if (code == 60 && parameter == 0)
        return true;
    if (code >= 60 && code <= 62)
        return std::isnan(parameter) || (parameter > 0 && std::isfinite(parameter));
    return std::find(kPlain.begin(), kPlain.end(), code) != kPlain.end();
}

// In the documented order.
int expectedStatus(const Parameters& with)
{
    const bool isBand = with.type == 2 || with.type == 3;
    const double nyquist = std::isfinite(with.fs) ? with.fs / 2 : 0;
    if (with.taps < 1)
        return QUORDSP_ERR_COUNT_NOT_POSITIVE;
    if ((with.type == 1 || with.type == 3) && with.taps % 2 == 0)
        return QUORDSP_ERR_EVEN_SIZE;
    if (isBand && !(with.fl > 0 && with.fl < with.fh && with.fh < nyquist))
        return QUORDSP_ERR_BAND;
    if (!isBand && !(with.fl > 0 && with.fl < nyquist))
        return QUORDSP_ERR_CUTOFF;
    const bool isKnown = with.type >= 0 && with.type <= 3 && isWindow(with.window, with.windowParameter);
    return isKnown ? QUORDSP_SUCCESS : QUORDSP_ERR_INVALID_SELECTION;
}

// The same design by the entry for all windows; an unknown one where there is none.
Parameters inOneTable(const Entry& entry, Parameters with)
{
    constexpr int kUnknown = -1;
    if (entry.type >= 0)
        with.type = entry.type;
    if (entry.window == Entry::Plain)
        with.window = 0;
    if (entry.window == Entry::ByType)
        with.window =
            with.window >= 1 && with.window <= 5 ? kOfType[static_cast<std::size_t>(with.window - 1)] : kUnknown;
    if (entry.window == Entry::Kaiser)
        with.window = std::isnan(with.windowParameter) ? kUnknown : 60;
    return with;
}

struct Result {
    int status;
    Samples h;
};

Result resultOf(const Entry& entry, const Parameters& with)
{
    Result result{0, Samples(static_cast<std::size_t>(std::max(with.taps, 1)), -7.0)};
    result.status = entry.design(with, result.h.data());
    return result;
}

} // namespace

// The documented status; on success symmetric coefficients of moderate size, those of the entry for all windows; on
// failure none at all.
void fir_window(Bytes bytes)
{
    const Parameters with = readParameters(bytes);
    const Entry& entry = entries()[bytes.byte() % entries().size()];
    const Parameters general = inOneTable(entry, with);
    const auto [status, h] = resultOf(entry, with);
    require(entry.design(with, nullptr) == QUORDSP_ERR_ARRAY_SIZE, "no array");
    require(status == expectedStatus(general), "the documented status");
    if (status != QUORDSP_SUCCESS) {
        require(h == Samples(h.size(), -7.0), "nothing written on failure");
        return;
    }
    require(std::equal(h.begin(), h.end(), h.rbegin()), "symmetric to the last bit");
    require(std::all_of(h.begin(), h.end(), [](double value) { return std::abs(value) <= 1.01; }), "at most 1");
    require(areSame(h, resultOf(entries()[0], general).h), "the bits of the entry for all windows");
}

} // namespace quordsp::fuzz
