// The options that choose filters.
#include <vector>

#include "filter_choice.h"
#include "filter_window.h"

namespace quordsp::cli {
namespace {

template <class Rows>
std::vector<std::string> namesOf(const Rows& rows)
{
    std::vector<std::string> names;
    for (const auto& row : rows)
        names.emplace_back(row.name);
    return names;
}

} // namespace

void addFilter(Command& command, FilterChoice& choice)
{
    command
        .option("--response", choice.response,
                "What passes. Not for multiband, differentiator, hilbert and savitzky-golay;\n"
                "lowpass or highpass for wideband")
        .oneOf(std::vector<std::string>(kResponses.begin(), kResponses.end()));
    command
        .option("--order", choice.order,
                "Order of the low-pass prototype, 1 or more; a band filter has twice the poles.\n"
                "For savitzky-golay that of the polynomials, 0 or more")
        .whole();
    command
        .option("--cutoff", choice.cutoff,
                "Two ascending ones for a band. Here the gain is -3 dB for butterworth, minus\n"
                "the ripple for chebyshev and elliptic, minus the attenuation for\n"
                "inverse-chebyshev, -6 dB for windowed and kaiser")
        .values(1, 2)
        .number()
        .placeholder("HZ [HZ]");
    command.option("--family", choice.families, "Design, or several with commas to compare them")
        .list()
        .oneOf(namesOf(filterFamilies()))
        .showDefault();
    command.option("--ripple", choice.ripple, "Of the pass band, for chebyshev, elliptic, narrow-band and wideband")
        .number()
        .placeholder("DB");
    command
        .option("--attenuation", choice.attenuation,
                "Of the stop band, for inverse-chebyshev, elliptic, narrow-band and wideband")
        .number()
        .placeholder("DB");
    command
        .option("--taps", choice.taps,
                "Number of coefficients: at most 1048576 for windowed and kaiser; 3 to 4096 for\n"
                "equiripple, multiband, differentiator and hilbert. Odd for highpass and\n"
                "bandstop, even for a differentiator or hilbert up to half the rate. The delay\n"
                "is half of one less")
        .whole();
    command
        .option("--window", choice.window,
                "For windowed. The gain is not scaled: that of a pass band is below 0 dB when the\n"
                "taps are few, or many and the window dolph-chebyshev")
        .oneOf(namesOf(filterWindows()));
    command
        .option("--param", choice.parameter,
                "Of the windows kaiser (beta, 0 unless given), dolph-chebyshev (dB, 60) and\n"
                "gaussian (sigma, 0.2)")
        .number();
    command.option("--beta", choice.beta, "Shape of the window, for kaiser").number();
    command
        .option("--edges", choice.edges,
                "For equiripple, narrow-band and wideband, in place of --cutoff: the two ends of\n"
                "each transition, ascending; four for a band. The two transitions of a band of\n"
                "narrow-band are as broad as the narrower one")
        .values(2, 4)
        .number()
        .placeholder("HZ HZ [HZ HZ]");
    command
        .option("--bands", choice.bands,
                "For multiband, differentiator and hilbert, as in 0:100,150:500:0:10. GAIN is 1\n"
                "unless given; that of a differentiator is times 2 pi f, so that 1 gives the\n"
                "derivative by seconds. hilbert turns the phase by +90 degrees. The greater the\n"
                "WEIGHT, 1 unless given, the less the error")
        .list()
        .placeholder("FROM:TO[:GAIN[:WEIGHT]]");
    command
        .option("--side", choice.side,
                "For savitzky-golay: samples on either side of the one that is fitted to, at most\n"
                "5000 with --derivative; there is no delay")
        .within(0, kMostSide);
    command
        .option("--weights", choice.weights,
                "For savitzky-golay: one a sample of the frame, 2 SIDE + 1. Default: alike")
        .list()
        .number()
        .placeholder("W");
    command
        .option("--derivative", choice.derivative,
                "For savitzky-golay: in place of the smoothed signal, this derivative of it by\nseconds")
        .whole();
}

} // namespace quordsp::cli
