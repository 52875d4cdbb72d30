// What the library computes by itself.
#include <algorithm>
#include <filesystem>

#include "parity/exports.h"
#include "support/file_bytes.h"
#include "support/integer_signal.h"

namespace quordsp::parity {
namespace {

int straightened(Arguments& arguments)
{
    linear_regression(arguments.array('E').data(), arguments.integer('n'));
    return 0;
}

// The three results of one block.
struct Motion {
    std::vector<double> acceleration, velocity, displacement;

    explicit Motion(std::size_t count) : acceleration(count), velocity(count, 0.5), displacement(count, 0.25) {}
    void addTo(Arguments& arguments) const
    {
        arguments.add('a', acceleration);
        arguments.add('v', velocity);
        arguments.add('d', displacement);
    }
};

template <class Stream>
int block(Arguments& arguments, Stream stream, double mode, int count, bool added)
{
    double params[] = {mode, arguments.scalar('s'), 98.1, 0.25, 0.5, -0.125, 0.625, -0.625, 1e8, -1e8};
    const auto size = static_cast<std::size_t>(std::max(1, count));
    std::vector<double> raw = noise(size, static_cast<std::uint32_t>(size));
    Motion motion{size};
    const int status = stream(params, raw.data(), motion.acceleration.data(), motion.velocity.data(),
                              motion.displacement.data(), count);
    if (added)
        motion.addTo(arguments);
    return status;
}

// A first block takes its rate from the call before it: the block before sets it. Then a stream of two blocks.
int trapezoidalStream(Arguments& arguments)
{
    block(arguments, QuorDSP_Vibration_Acceleration, 1, 50, false);
    const int status =
        block(arguments, QuorDSP_Vibration_Acceleration, arguments.scalar('c'), arguments.integer('h'), true);
    block(arguments, QuorDSP_Vibration_Acceleration, 0, 100, true);
    return status;
}

// A block of one sample leaves a velocity and a displacement of 0, but not after NaN.
int simpsonStream(Arguments& arguments)
{
    block(arguments, QuorDSP_Acceleration, 0, 1, false);
    block(arguments, QuorDSP_Acceleration, 0, 1, false);
    const int status = block(arguments, QuorDSP_Acceleration, 0, arguments.integer('h'), true);
    block(arguments, QuorDSP_Acceleration, 0, 100, true);
    return status;
}

int eulerBlock(Arguments& arguments)
{
    const auto size = static_cast<std::size_t>(std::max(1, arguments.integer('n')));
    std::vector<double> raw = noise(size, 9);
    Motion motion{size};
    const int status = QuorDSP_Vibration_Acceleration_Euler(
        raw.data(), arguments.integer('n'), arguments.scalar('s'), 0.3, 0.1, 0.5, -0.125, 0.625, -0.625, 1e8, -1e8,
        motion.acceleration.data(), motion.velocity.data(), motion.displacement.data(), arguments.array('^').data(),
        arguments.integer('i'));
    motion.addTo(arguments);
    return status;
}

// The status of a writer, and the file that it has written beside this program, or into a folder that is not there.
template <class Writer>
int written(Arguments& arguments, Writer write)
{
    const std::filesystem::path folder = support::programPath().parent_path();
    const std::filesystem::path path = folder / (arguments.integer('f') == 0 ? "parity.wav" : "none/parity.wav");
    std::vector<float> samples = noise<float>(static_cast<std::size_t>(std::max(1, arguments.integer('n'))));
    samples[0] = 1.5F;
    const int status = write(path.string().c_str(), samples.data());
    arguments.add('b', test::takeBytes(path));
    return status;
}

int stereoFile(Arguments& arguments)
{
    return written(arguments, [&](const char* path, const float* samples) {
        return QuorDSP_WriteWAV(path, samples, arguments.integer('n'), static_cast<unsigned>(arguments.integer('r')));
    });
}

int anyFile(Arguments& arguments)
{
    return written(arguments, [&](const char* path, const float* samples) {
        return QuorDSP_WriteWAVFile(path, samples, arguments.integer('n'), arguments.integer('r'),
                                    arguments.integer('b'), arguments.integer('k'));
    });
}

} // namespace

const Family& ownRoutines()
{
    static const Family family{
        {{'n', {{129, 1, 2, 3, 17, 100, 1000}, {0, -1}}},
         {'h', {{129, 1, 33, 100, 1000}, {0, -1}}}, // fewer samples than the trends need make a stream NaN
         {'s', {{2000, 1000}, {}}},
         {'o', {{1, 0, 2, 3}, {-1}}},
         {'i', {{0, 1, 2, 3}, {-1}}},
         {'t', {{3, 0, 1, 2, 4, 5, 6, 7}, {8, -1}}},
         {'f', {{0, 1}, {}}},
         {'u', {{0, 1, 2, 3}, {4, -1}}},
         {'c', {{1, 2, 0, -3}, {}}},
         {'x', {{25, -270, 0, 130, 2000}, {}}},
         {'r', {{44100, 8000}, {0}}},
         {'b', {{16, 8, 24, 32}, {12, 0}}},
         {'k', {{1, 2, 5}, {0, -1}}}},
        {
            ROW(QuorDSP_detrend, "Eno^i"),
            {"linear_regression", "En", straightened},
            ROW(QuorDSP_getSNR, "XnZY"),
            ROW(QuorDSP_Calc_SPL_A, "XnsR"),
            {"QuorDSP_Vibration_Acceleration", "|hsc", trapezoidalStream},
            {"QuorDSP_Acceleration", "|hs", simpsonStream},
            {"QuorDSP_Vibration_Acceleration_Euler", "|nsi", eulerBlock},
            ROW(QuorDSP_Thermocouple, "~nutxY"),
            {"QuorDSP_WriteWAV", "|nrf", stereoFile},
            {"QuorDSP_WriteWAVFile", "|nrbkf", anyFile},
        }};
    return family;
}

} // namespace quordsp::parity
