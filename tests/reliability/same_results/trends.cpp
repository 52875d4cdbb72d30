// Straight lines and piecewise polynomials taken out of noise.
#include <limits>

#include "QuorDSP_DAQ.h"
#include "reliability/same_results/results.h"
#include "support/integer_signal.h"

namespace quordsp::same_results {
namespace {

struct Breakpoints {
    std::string name;
    std::vector<double> places;
};

Result detrended(int count, int order, Breakpoints breakpoints)
{
    auto signal = noise(static_cast<std::size_t>(count), 7);
    QuorDSP_detrend(signal.data(), count, order, breakpoints.places.data(),
                    static_cast<int>(breakpoints.places.size()));
    return {"detrend count " + std::to_string(count) + " order " + std::to_string(order) + breakpoints.name, signal};
}

} // namespace

Results lineResults()
{
    Results results;
    for (const int count : {1, 2, 3, 4, 5, 7, 8, 9, 31, 100, 257, 1000, 46341, 50000}) {
        auto data = noise(static_cast<std::size_t>(count));
        linear_regression(data.data(), count);
        results.push_back({"linear_regression noise " + std::to_string(count), data});
        data = triangle(static_cast<std::size_t>(count), 50);
        linear_regression(data.data(), count);
        results.push_back({"linear_regression triangle " + std::to_string(count), data});
    }
    return results;
}

Results trendResults()
{
    Results results;
    const Breakpoints none{"", {}};
    for (const int count : {1, 2, 3, 5, 16, 17, 100, 1000, 1023})
        for (int order = 0; order <= 15; ++order)
            results.push_back(detrended(count, order, none));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Breakpoints bends[] = {{" one", {40}},
                                 {" between samples", {40.5, 70.25}},
                                 {" three unsorted", {70, 20, 45.5}},
                                 {" outside", {1, 0, -5, nan, 101, 1e300}},
                                 {" equal", {40, 40}},
                                 {" eight", {11, 22, 33, 44, 55, 66, 77, 88}}};
    for (const Breakpoints& breakpoints : bends)
        for (const int order : {0, 1, 2, 3, 4, 7})
            results.push_back(detrended(100, order, breakpoints));
    results.push_back(detrended(20000, 3, {" two", {7000, 15000}}));
    return results;
}

} // namespace quordsp::same_results
