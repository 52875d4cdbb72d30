#include "parity/arrays.h"

#include <algorithm>
#include <cmath>

#include "parity/arguments.h"
#include "support/integer_signal.h"

namespace quordsp::parity {
namespace {

// Stands in arrays that are only written. Nothing computes it.
constexpr double kUntouched = -0x1.23456789abcdep-300;

enum Role { In, Out, InOut };

using Maker = std::vector<double>(std::size_t count, const Arguments& arguments);

template <std::uint32_t kSeed>
std::vector<double> noiseOf(std::size_t count, const Arguments&)
{
    return noise(count, kSeed);
}

std::vector<double> untouched(std::size_t count, const Arguments&)
{
    return std::vector<double>(count, kUntouched);
}

// Of a filter that is stable: 1, -1/2, 1/4, ... with another first coefficient.
std::vector<double> reverseCoefficients(std::size_t count, const Arguments& arguments)
{
    std::vector<double> coefs(count);
    for (std::size_t i = 0; i < count; ++i)
        coefs[i] = i == 0 ? arguments.scalar('c') : std::ldexp(i % 2 == 0 ? 1.0 : -1.0, -static_cast<int>(i));
    return coefs;
}

std::vector<double> millivolts(std::size_t count, const Arguments&)
{
    return scaled(noise(count, 5), 30);
}

// Weights from 1/2 to 3/2, or zeros.
std::vector<double> fitWeights(std::size_t count, const Arguments& arguments)
{
    std::vector<double> weights = scaled(noise(count, 6), arguments.integer('e') == 1 ? 0.5 : 0);
    for (double& weight : weights)
        weight += arguments.integer('e') == 1 ? 1 : 0;
    return weights;
}

std::vector<double> breakpoints(std::size_t count, const Arguments&)
{
    const std::vector<double> places{40, 90.5, 7};
    return {places.begin(), places.begin() + static_cast<std::ptrdiff_t>(std::min(count, places.size()))};
}

// Bands of equiripple designs, by the setting j.
struct Bands {
    std::vector<double> amplitudes, weights, edges;
};

const Bands& bands(const Arguments& arguments)
{
    static const Bands presets[] = {
        {{1, 0}, {1, 1}, {0, 100, 150, 500}},
        {{0, 1, 0}, {1, 2, 10}, {0, 50, 100, 200, 260, 500}},
        {{1}, {1}, {20, 450}},
        {{1, 0}, {1, 1}, {0, 200, 150, 500}},
        {{1, 0}, {1, -1}, {0, 100, 150, 500}},
        {{1, 0}, {1, 1}, {0, 100, 150, 501}},
        {{0, 1, 0.5}, {1, 1, 1}, {0, 90, 130, 300, 340, 500}},
    };
    return presets[arguments.integer('j')];
}

std::vector<double> amplitudes(std::size_t, const Arguments& arguments)
{
    return bands(arguments).amplitudes;
}

std::vector<double> bandWeights(std::size_t, const Arguments& arguments)
{
    return bands(arguments).weights;
}

std::vector<double> edges(std::size_t, const Arguments& arguments)
{
    return bands(arguments).edges;
}

template <std::size_t kFirst>
std::vector<double> everySecondEdge(std::size_t, const Arguments& arguments)
{
    std::vector<double> half;
    const std::vector<double>& all = bands(arguments).edges;
    for (std::size_t i = kFirst; i < all.size(); i += 2)
        half.push_back(all[i]);
    return half;
}

template <char kLetter, int kMore = 0>
int count(const Arguments& arguments)
{
    return arguments.integer(kLetter) + kMore;
}

template <int kValue>
int fixed(const Arguments&)
{
    return kValue;
}

int bins(const Arguments& arguments)
{
    const int n = arguments.integer('n');
    return n > 0 ? std::max(1, n / 2) : 0;
}

int frame(const Arguments& arguments)
{
    return std::max(0, 2 * arguments.integer('g') + 1);
}

int square(const Arguments& arguments)
{
    return frame(arguments) * frame(arguments);
}

int derivatives(const Arguments& arguments)
{
    return std::max(0, arguments.integer('o') + 1) * frame(arguments);
}

template <int kEach>
int matrix(const Arguments& arguments)
{
    return kEach * std::max(0, arguments.integer('u')) * std::max(0, arguments.integer('v'));
}

int resultMatrix(const Arguments& arguments)
{
    const int rows = arguments.integer(arguments.integer('x') > 0 ? 'x' : 'u');
    const int columns = arguments.integer(arguments.integer('y') > 0 ? 'y' : 'v');
    return 2 * std::max(0, rows) * std::max(0, columns);
}

struct Kind {
    char letter;
    Role role;
    int (*count)(const Arguments&);
    Maker* make;
};

constexpr Kind kKinds[] = {
    // Signals, real or real parts, and imaginary parts: to be read, to be written, and both
    {'X', In, count<'n'>, noiseOf<1>},
    {'Z', In, count<'n'>, noiseOf<2>},
    {'Y', Out, count<'n'>, untouched},
    {'W', Out, count<'n'>, untouched},
    {'E', InOut, count<'n'>, noiseOf<1>},
    {'F', InOut, count<'n'>, noiseOf<2>},
    // Spectra, single numbers, thermocouple voltages, breakpoints
    {'Q', Out, bins, untouched},
    {'K', Out, bins, untouched},
    {'R', Out, fixed<1>, untouched},
    {'O', Out, fixed<1>, untouched},
    {'~', In, count<'n'>, millivolts},
    {'^', In, count<'i'>, breakpoints},
    // Filters: coefficients and state of a FIR filter; reverse and forward ones, each with its state; split states
    {'H', In, count<'k'>, noiseOf<3>},
    {'S', InOut, count<'k', -1>, noiseOf<4>},
    {'A', In, count<'x'>, reverseCoefficients},
    {'L', InOut, count<'x', -1>, noiseOf<7>},
    {'B', In, count<'y'>, noiseOf<3>},
    {'U', InOut, count<'y', -1>, noiseOf<8>},
    {'G', In, count<'n'>, noiseOf<7>},
    {'M', In, count<'n'>, noiseOf<8>},
    // Designs: reverse and forward coefficients; taps; weights and results of polynomial fits; gains, weights, edges,
    // and
    // lower and upper edges of bands
    {'P', Out, count<'p'>, untouched},
    {'V', Out, count<'q'>, untouched},
    {'C', Out, count<'k'>, untouched},
    {'*', In, frame, fitWeights},
    {'[', Out, square, untouched},
    {']', Out, derivatives, untouched},
    {'(', In, fixed<1>, amplitudes},
    {')', In, fixed<1>, bandWeights},
    {'=', In, fixed<1>, edges},
    {'<', In, fixed<1>, everySecondEdge<0>},
    {'>', In, fixed<1>, everySecondEdge<1>},
    // Matrices: real and complex, in and out
    {'#', In, matrix<1>, noiseOf<1>},
    {'%', In, matrix<2>, noiseOf<1>},
    {'$', Out, resultMatrix, untouched},
    {'&', Out, matrix<1>, untouched},
    {'@', Out, matrix<2>, untouched},
};

const Kind& kindOf(char letter)
{
    return *std::ranges::find(kKinds, letter, &Kind::letter);
}

} // namespace

bool isWritten(char letter)
{
    return kindOf(letter).role != In;
}

std::vector<double> newArray(char letter, const Arguments& arguments)
{
    const Kind& kind = kindOf(letter);
    return kind.make(static_cast<std::size_t>(std::max(0, kind.count(arguments))), arguments);
}

std::size_t bandCount(const Arguments& arguments)
{
    return bands(arguments).amplitudes.size();
}

} // namespace quordsp::parity
