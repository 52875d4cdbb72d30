// Roots of unity, each from its own index and none from its neighbour, so that errors do not add up.
#pragma once

#include "buffer.h"
#include "transform/point.h"

namespace quordsp::backend {

// exp(-2 pi i k/n) for 0 <= k < n. Each component is off by at most 0.52 units in the last place for n < 2^31.
Point<double> rootOfUnity(std::size_t n, std::size_t k);

// Many of one order, faster.
class Roots {
public:
    explicit Roots(std::size_t n);
    Point<double> operator()(std::size_t k) const;

private:
    std::size_t n_;
    int shift_;
    Buffer<Point<double>> firstOctant_;
};

} // namespace quordsp::backend
