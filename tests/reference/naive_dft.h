// The discrete Fourier transform as its definition says it, in long double: the oracle for fast transforms.
#pragma once

#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

namespace reference {

struct Value {
    long double re;
    long double im;
};

// Bin k of the transform of n points is the sum of x[i] exp(-2 pi i k/n), without a factor.
class NaiveDft {
public:
    explicit NaiveDft(std::size_t n)
    {
        for (std::size_t k = 0; k < n; ++k) {
            // At most half a turn either way: the smaller the angle, the smaller its rounding error.
            const long double turns = k <= n / 2 ? static_cast<long double>(k) / static_cast<long double>(n)
                                                 : -static_cast<long double>(n - k) / static_cast<long double>(n);
            const long double angle = 2 * std::numbers::pi_v<long double> * turns;
            roots_.push_back({std::cos(angle), -std::sin(angle)});
        }
    }

    Value bin(const std::vector<double>& re, const std::vector<double>& im, std::size_t k) const
    {
        Value sum = {0, 0};
        std::size_t root = 0;
        for (std::size_t i = 0; i < roots_.size(); ++i) {
            const auto [c, s] = roots_[root];
            sum.re += re[i] * c - im[i] * s;
            sum.im += re[i] * s + im[i] * c;
            root += k;
            if (root >= roots_.size())
                root -= roots_.size();
        }
        return sum;
    }

private:
    std::vector<Value> roots_;
};

} // namespace reference
