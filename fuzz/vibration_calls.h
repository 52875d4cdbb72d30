// One call of an export that turns a raw block into three records.
#pragma once
#include "bytes.h"

namespace quordsp::fuzz {

struct Records {
    std::vector<double> acceleration;
    std::vector<double> velocity;
    std::vector<double> displacement;

    explicit Records(std::size_t count) : acceleration(count, -7.0), velocity(count, 0.5), displacement(count, 0.25) {}
    Records(std::vector<double> a, std::vector<double> v, std::vector<double> d)
        : acceleration(std::move(a)), velocity(std::move(v)), displacement(std::move(d))
    {}
};

inline bool areSame(const Records& a, const Records& b)
{
    return areSame(a.acceleration, b.acceleration) && areSame(a.velocity, b.velocity) &&
           areSame(a.displacement, b.displacement);
}

// A block for one of the stateful exports, and what it must not do.
template <class Export>
int callStream(Export stream, const std::vector<double>& params, const std::vector<double>& raw, Records& records,
               int count)
{
    auto readParams = params;
    auto readRaw = raw;
    const int status = stream(readParams.data(), readRaw.data(), records.acceleration.data(), records.velocity.data(),
                              records.displacement.data(), count);
    require(areSame(readParams, params) && areSame(readRaw, raw), "the inputs are only read");
    return status;
}

// Calls that are refused, each of which must leave outputs and stream alone.
template <class Export>
void callWrongly(Export stream, int which)
{
    double values[10] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    double* arrays[] = {values, values, values, values, values};
    if (which % 6 < 5)
        arrays[which % 6] = nullptr;
    const int status = stream(arrays[0], arrays[1], arrays[2], arrays[3], arrays[4], which % 6 < 5 ? 2 : -(which / 6));
    require(status == 20032, "a bad argument is said");
    for (const double value : values)
        require(value == 1, "a refused call writes nothing");
}

} // namespace quordsp::fuzz
