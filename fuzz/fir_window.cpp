#include "QuorDSP_DAQ.h"
#include "targets.h"

#include <algorithm>
#include <array>

namespace quordsp::fuzz {
namespace {

struct Arguments {
    int type, taps;
    double fs, fl, fh;
    int window;
    double parameter;
};

// Mostly between 0 and fs/2.
double frequency(Bytes& bytes, double fs)
{
    const int share = bytes.byte();
    return share < 250 ? fs * share / 480 : bytes.number();
}

Arguments readArguments(Bytes& bytes)
{
    Arguments read{};
    read.type = bytes.mostlyBetween(0, 4);
    read.taps = bytes.between(-1, 90);
    read.fs = bytes.number();
    read.fl = frequency(bytes, read.fs);
    read.fh = frequency(bytes, read.fs);
    read.window = bytes.mostlyBetween(0, 63);
    read.parameter = bytes.number();
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
int expectedStatus(const Arguments& with)
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
    const bool isKnown = with.type >= 0 && with.type <= 3 && isWindow(with.window, with.parameter);
    return isKnown ? QUORDSP_SUCCESS : QUORDSP_ERR_INVALID_SELECTION;
}

} // namespace

// The documented status; on success symmetric coefficients of moderate size, on failure none at all.
void fir_window(Bytes bytes)
{
    const Arguments with = readArguments(bytes);
    const std::vector<double> before(static_cast<std::size_t>(std::max(with.taps, 1)), -7.0);
    std::vector<double> h = before;
    const int status =
        QuorDSP_WindFIR_Filter(with.type, with.fs, with.fl, with.fh, with.taps, with.window, with.parameter, h.data());
    require(status == expectedStatus(with), "the documented status");
    if (status == QUORDSP_SUCCESS) {
        require(std::equal(h.begin(), h.end(), h.rbegin()), "symmetric to the last bit");
        require(std::all_of(h.begin(), h.end(), [](double value) { return std::abs(value) <= 1.01; }), "at most 1");
    } else {
        require(h == before, "nothing written on failure");
    }
}

} // namespace quordsp::fuzz
