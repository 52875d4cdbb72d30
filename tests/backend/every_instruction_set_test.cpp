// Transforms and statistics give the same bits with each instruction set that this machine has. The module's question
// for the best one is answered by this program: the linker puts its function in the place of the module's own. Each set
// has a process of its own, since plans are kept together with the kernels that they were made for.
#include "backend/transform/signals.h"
#include "cpu/instruction_set.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <bit>
#include <functional>

namespace {
auto chosen = quordsp::InstructionSet::Baseline;
} // namespace

extern "C" quordsp::InstructionSet __real__ZN7quordsp18bestInstructionSetEv();
extern "C" quordsp::InstructionSet __wrap__ZN7quordsp18bestInstructionSetEv()
{
    return chosen;
}

namespace quordsp::backend {
namespace {

// Of the bits of numbers, in their order; a status that is not success changes it, too.
class Hash {
public:
    void add(std::uint64_t bits) { value_ = std::rotl((value_ ^ bits) * 0x9e3779b97f4a7c15u, 29); }
    void add(Status status) { add(static_cast<std::uint64_t>(status)); }
    void add(const Array& values)
    {
        for (const double value : values)
            add(std::bit_cast<std::uint64_t>(value));
    }
    void add(const Complexes& values)
    {
        const Signal parts = separated(values);
        add(parts.re);
        add(parts.im);
    }
    std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 1;
};

void addTransforms(Hash& hash, std::size_t n)
{
    Signal complex = complexNoise(n), real = complex;
    Array power = complex.re;
    const Complexes x = interleaved(complex);
    Complexes bins(n);
    hash.add(fft(complex));
    hash.add(AALFunc147(real.re.data(), real.im.data(), count(real.re)));
    hash.add(AALFunc161(power.data(), count(power)));
    hash.add(AALFunc263(x.data(), count(x), 0, nullptr, 1, bins.data()));
    for (const Array& values : {complex.re, complex.im, real.re, real.im, power})
        hash.add(values);
    hash.add(bins);
    hash.add(AALFunc148(real.re.data(), real.im.data(), count(real.re)));
    hash.add(real.re);
}

void addMatrix(Hash& hash, std::int64_t rows, std::int64_t columns)
{
    const auto size = static_cast<std::size_t>(rows * columns);
    const Array x = noise(size, 5);
    Array back(size);
    Complexes bins(size), complexBins(size);
    hash.add(AALFunc266(x.data(), rows, columns, 0, 0, 1, bins.data()));
    hash.add(AALFunc267(bins.data(), rows, columns, 0, 0, 0, complexBins.data()));
    hash.add(AALFunc268(bins.data(), rows, columns, 1, back.data()));
    hash.add(bins);
    hash.add(complexBins);
    hash.add(AALFunc269(bins.data(), rows, columns, 1, complexBins.data()));
    hash.add(complexBins);
    hash.add(back);
}

void addStatistics(Hash& hash, std::size_t n)
{
    const Array x = noise(n, 7);
    double max = 0, min = 0;
    std::int64_t maxIndex = 0, minIndex = 0;
    hash.add(AALFunc120(x.data(), count(x), &max, &maxIndex, &min, &minIndex));
    hash.add(Array{max, static_cast<double>(maxIndex), min, static_cast<double>(minIndex)});
    Array sorted(n);
    hash.add(AALFunc160(x.data(), count(x), 0, sorted.data()));
    hash.add(sorted);
    for (const std::int64_t width : {3, 4, 9, 64}) {
        std::int64_t found = 0;
        double* results[3] = {};
        hash.add(AALFunc194(x.data(), count(x), 0.1, width, 0, 1, 1, &found, &results[0], &results[1], &results[2]));
        for (double* const values : results) {
            hash.add(Array(values, values + found));
            hash.add(AALFunc238(values));
        }
    }
}

std::uint64_t hashOfTransforms()
{
    Hash hash;
    for (std::size_t n = 1; n <= 200; ++n)
        addTransforms(hash, n);
    for (const std::size_t n : {1000u, 1009u, 1024u, 2187u, 4096u, 10000u, 65536u, 44100u})
        addTransforms(hash, n);
    for (const auto& [rows, columns] : {std::pair{1, 30}, {7, 9}, {16, 33}, {40, 24}})
        addMatrix(hash, rows, columns);
    return hash.value();
}

std::uint64_t hashOfStatistics()
{
    Hash hash;
    for (std::size_t n = 1; n <= 200; ++n)
        addStatistics(hash, n);
    addStatistics(hash, 5000);
    return hash.value();
}

std::uint64_t inOwnProcess(InstructionSet set, const std::function<std::uint64_t()>& hash)
{
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        chosen = set;
        const std::uint64_t value = hash();
        _exit(write(ends[1], &value, sizeof value) == sizeof value ? 0 : 1);
    }
    close(ends[1]);
    std::uint64_t value = 0;
    EXPECT_EQ(read(ends[0], &value, sizeof value), static_cast<ssize_t>(sizeof value));
    close(ends[0]);
    int status = 1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    return value;
}

void expectTheSameOfEverySet(const std::function<std::uint64_t()>& hash)
{
    const InstructionSet best = __real__ZN7quordsp18bestInstructionSetEv();
    const std::uint64_t expected = inOwnProcess(InstructionSet::Baseline, hash);
    for (const InstructionSet set : {InstructionSet::Avx2, InstructionSet::Avx512})
        if (set <= best) {
            EXPECT_EQ(inOwnProcess(set, hash), expected) << "instruction set " << static_cast<int>(set);
        }
}

TEST(EveryInstructionSet, GivesTransformsTheSameBits)
{
    expectTheSameOfEverySet(hashOfTransforms);
}

TEST(EveryInstructionSet, GivesStatisticsTheSameBits)
{
    expectTheSameOfEverySet(hashOfStatistics);
}

} // namespace
} // namespace quordsp::backend
