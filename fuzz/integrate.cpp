#include "nianlys.h"
#include "targets.h"

namespace quordsp::fuzz {

// The definition, summed in its order; in place as elsewhere; nothing without an interval.
void integrate(Bytes bytes)
{
    const std::vector<double> x = bytes.numbers(bytes.between(0, 60));
    const double dt = bytes.number(), initial = bytes.number(), final = bytes.number();
    std::vector<double> expected(x.size(), -7.0), y = expected, inPlace = x;
    const int wanted = x.empty() ? -20003 : dt > 0 ? 0 : -20016;
    double sum = 0;
    for (std::size_t i = 0; i < x.size() && wanted == 0; ++i) {
        sum += (i > 0 ? x[i - 1] : initial) + 4 * x[i] + (i + 1 < x.size() ? x[i + 1] : final);
        expected[i] = sum * dt / 6;
    }
    const auto n = static_cast<std::int64_t>(x.size());
    require(static_cast<int>(backend::AALFunc95(x.data(), n, dt, initial, final, y.data())) == wanted,
            "the documented status");
    require(areSame(y, expected), "the sums, or nothing written");
    require(static_cast<int>(backend::AALFunc95(inPlace.data(), n, dt, initial, final, inPlace.data())) == wanted,
            "the same status in place");
    require(areSame(inPlace, wanted == 0 ? y : x), "the same in place");
    require(backend::AALFunc95(nullptr, n + 1, dt, initial, final, y.data()) == backend::Status::ArraySize, "no input");
}

} // namespace quordsp::fuzz
