// Every single as a voltage of every type, against the plain loop: 2^32 inputs a type, NaN and infinity among them.
//
//     thermocouple_exhaustive [step]     every single, or every step-th; 1 if any result differs
#include <algorithm>
#include <atomic>
#include <bit>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <vector>

#include "QuorDSP_DAQ.h"
#include "reference/thermocouple.h"

namespace {

constexpr std::uint64_t kAll = std::uint64_t{1} << 32;
constexpr std::uint64_t kPart = std::uint64_t{1} << 22; // singles between two looks at the clock
constexpr int kBlock = 4096;
constexpr double kNoColdJunction = 1500.0; // so that nothing is added

struct Totals {
    std::uint64_t compared = 0;
    std::uint64_t different = 0;
    std::uint64_t refused = 0;
};

bool same(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) || (a != a && b != b);
}

// Compares block by block, but alone what type K refuses.
class Comparison {
public:
    explicit Comparison(int type) : type_{type} {}

    void add(float voltage)
    {
        if (type_ == 3 && quordsp::reference::outOfRangeK(voltage))
            return addRefused(voltage);
        emf_[count_++] = voltage;
        if (count_ == kBlock)
            finish();
    }

    Totals finish()
    {
        const int expectedStatus = quordsp::reference::thermocouple(emf_, count_, 0, type_, kNoColdJunction, expected_);
        const int status = QuorDSP_Thermocouple(emf_, count_, 0, type_, kNoColdJunction, actual_);
        totals_.different += status != expectedStatus;
        for (int i = 0; i < count_; ++i)
            totals_.different += !same(actual_[i], expected_[i]);
        totals_.compared += static_cast<std::uint64_t>(count_);
        count_ = 0;
        return totals_;
    }

private:
    void addRefused(float voltage)
    {
        double emf = voltage;
        double temperature = kUntouched;
        const int status = QuorDSP_Thermocouple(&emf, 1, 0, type_, kNoColdJunction, &temperature);
        totals_.different += status != QUORDSP_THERMOCOUPLE_OUT_OF_RANGE || temperature != kUntouched;
        ++totals_.compared;
        ++totals_.refused;
    }

    static constexpr double kUntouched = -98765.4321;

    int type_;
    int count_ = 0;
    double emf_[kBlock];
    double expected_[kBlock];
    double actual_[kBlock];
    Totals totals_;
};

class Run {
public:
    Run(int type, std::uint64_t step) : type_{type}, step_{step} {}

    Totals onAllCores()
    {
        std::vector<std::thread> threads;
        for (unsigned i = 0; i < std::max(1u, std::thread::hardware_concurrency()); ++i)
            threads.emplace_back([this] { work(); });
        for (std::thread& thread : threads)
            thread.join();
        return totals_;
    }

private:
    void work()
    {
        Comparison comparison{type_};
        for (std::uint64_t part; (part = next_.fetch_add(kPart)) < kAll;) {
            for (std::uint64_t bits = (part + step_ - 1) / step_ * step_; bits < part + kPart; bits += step_)
                comparison.add(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
            report(part);
        }
        const Totals totals = comparison.finish();
        const std::lock_guard lock{mutex_};
        totals_.compared += totals.compared;
        totals_.different += totals.different;
        totals_.refused += totals.refused;
    }

    // Every sixteenth of the way, on a terminal and in a log alike.
    static void report(std::uint64_t part)
    {
        if (part % (kAll / 16) == 0 && part > 0) {
            std::printf(".");
            std::fflush(stdout);
        }
    }

    int type_;
    std::uint64_t step_;
    std::atomic<std::uint64_t> next_{0};
    std::mutex mutex_;
    Totals totals_;
};

} // namespace

int main(int argc, char** argv)
{
    const std::uint64_t step = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1;
    if (step == 0) {
        std::fprintf(stderr, "thermocouple_exhaustive [step]: step is 1 or more\n");
        return 2;
    }
    std::uint64_t different = 0;
    for (int type = 0; type < 8; ++type) {
        std::printf("type %c ", "BEJKRSTN"[type]);
        const auto start = std::chrono::steady_clock::now();
        const Totals totals = Run{type, step}.onAllCores();
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
        std::printf(" %llu inputs compared, %llu refused, %llu different, %.0f s\n",
                    static_cast<unsigned long long>(totals.compared), static_cast<unsigned long long>(totals.refused),
                    static_cast<unsigned long long>(totals.different), seconds.count());
        different += totals.different;
    }
    std::printf("%s\n", different == 0 ? "every result is the plain loop's, bit for bit" : "FAILED");
    return different == 0 ? 0 : 1;
}
